#pragma once

#include <QPointer>
#include <QWidget>

/// The one place that looks for children of an intensity widget: for what Qt itself handles by
/// widgets, which is focus, accessibility, wheel, drops, scrolling and layout. Everything about the
/// image goes through the members of the intensity widget.
class WidgetAccess
{
public:
    explicit WidgetAccess(QWidget* intensityWidget = nullptr);

    /// Makes a widget fit for the viewer: it takes no drops, its wheel zooms by whole notches and
    /// scrolls the panel, its controls have accessible names and follow each other as they stand.
    void prepare();

    /// The canvas alone, without panel and zoom buttons; null without a widget.
    QWidget* canvas() const;

    /// Where the canvas is drawn and gets its mouse events; null without a widget.
    QWidget* picture() const;

    /// Lays the canvas out once more at its size. The library places the read-out only when the
    /// canvas gets a size, while the first text of an image has more lines than the one before.
    void layOutCanvas();

    /// Scrolls the panel so that the numbers of a region are in sight, when that part is unfolded.
    void showStatistics();

    /// Brings the Return button back up, which stays down after a click.
    void releaseReturnButton();

private:
    void keepPanelInPlace();
    void scrollInsteadOfChoosing();
    void nameControls();
    void orderControls();

    QPointer<QWidget> m_widget;
};
