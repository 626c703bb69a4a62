#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class QGridLayout;
class QLabel;
class QScrollArea;

/// One line of the help: what to press, and what it does.
struct HelpLine
{
    QString keys;
    QString effect;
};

/// A card over the whole window that lists mouse and keys. Any key and any click closes it, apart
/// from those that scroll it where the window is too small to show all of it.
class HelpOverlay : public QWidget
{
    Q_OBJECT

public:
    /// Covers `window` from now on and is hidden.
    HelpOverlay(const QVector<HelpLine>& keys, QWidget* window);

    void open();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Section
    {
        QLabel* heading = nullptr;
        QVector<QLabel*> keys;
        QVector<QLabel*> effects; // beside them
    };

    void addSection(const QString& heading, const QVector<HelpLine>& lines);
    void arrange(bool stacked);
    QSize wantedSize() const;
    void cover();
    void dismiss();

    QWidget* m_card;
    QScrollArea* m_scroll;
    QGridLayout* m_grid = nullptr;
    QVector<Section> m_sections;
    QPointer<QWidget> m_focusBefore;
};
