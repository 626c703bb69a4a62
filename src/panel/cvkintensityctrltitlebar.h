#pragma once

#include <QMap>
#include <QPixmap>
#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// Title bar above a module of the control panel. A click on it or on its button collapses the
/// module, the next one shows it again.
class CVKIntensityCtrlTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit CVKIntensityCtrlTitleBar(QWidget* parent);

    /// Builds label, button and layout at the first call; later ones store the index only.
    void setTitle(int index, const QString& title);

    int moduleIndex() const { return m_moduleIndex; }
    bool isShrunk() const { return m_isShrunk; }
    /// For the title that the button was built with, the state at that moment.
    const QMap<QString, bool>& stateByTitle() const { return m_stateByTitle; }

Q_SIGNALS:
    void changeShrinkageState(bool shrinkageState); ///< true: collapse the module

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
    void on_pbFlex_clicked(bool checked);

private:
    void buildLabel(const QString& title, double dotsPerInch);
    void buildFlexButton(const QString& title);
    void buildLayout(double dotsPerInch);
    void setShrunk(bool isShrunk);

    int m_moduleIndex = 0;
    bool m_isShrunk = false;
    QLabel* m_label = nullptr;
    QPushButton* m_flexButton = nullptr;
    QHBoxLayout* m_layout = nullptr;
    QMap<QString, bool> m_stateByTitle;
    QPixmap m_leftSkin;
    QPixmap m_middleSkin;
    QPixmap m_rightSkin;
};
