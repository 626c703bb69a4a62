#pragma once

#include <QMap>
#include <QPixmap>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// Heads a module of the control panel with its title; a click hides or shows the module.
class CVKIntensityCtrlTitleBar : public QWidget
{
    Q_OBJECT

public:
    /// Deletes itself when closed (Qt::WA_DeleteOnClose).
    explicit CVKIntensityCtrlTitleBar(QWidget* parent);

    /// Builds title, button and layout at the first call; later ones only store the index.
    void setTitle(int index, const QString& title);

Q_SIGNALS:
    void changeShrinkageState(bool shrinkageState); ///< true: hide the module

public Q_SLOTS:
    void on_pbFlex_clicked(bool checked);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void shrink(bool shrinkage);

    int m_moduleIndex = 0;
    bool m_shrinkage = false; ///< the module is hidden
    QLabel* m_label = nullptr;
    QPushButton* m_flex = nullptr; ///< checked while the module is hidden
    QHBoxLayout* m_layout = nullptr;
    QPixmap m_leftSkin;
    QPixmap m_middleSkin;
    QPixmap m_rightSkin;
    QMap<QString, bool> m_stateByTitle;
};
