#pragma once

#include "controlsettings.h"

#include <QPointer>
#include <QWidget>

/// What the panel can show of an image.
enum class ImageView { Image, Row, Column };

/// Works the named controls of an intensity widget for menus and shortcuts: each call is a click on
/// a button or a choice in a box that the user could make as well. A control that is missing,
/// disabled or (a zoom button beside a chart) hidden is left alone.
class ImageControls
{
public:
    explicit ImageControls(QWidget* intensityWidget = nullptr);

    /// Makes a widget fit for the viewer: it takes no drops, its wheel zooms by whole notches and
    /// scrolls the panel, its controls have accessible names and follow each other as they stand.
    void prepare();

    void zoomIn();
    void zoomOut();
    bool canZoom() const;

    void showView(ImageView view);
    ImageView shownView() const;

    /// `name` is one of paletteNames().
    void choosePalette(const QString& name);

    /// To be called with each load, which resets the palette without a click.
    void forgetPalette();

    /// View, shown peaks, palette and wavelengths as they are now; no regions.
    ControlSettings settings() const;

    /// Regions of interest that are marked on the image.
    int regionCount() const;

    /// The canvas alone, without panel and zoom buttons; null without a widget.
    QWidget* canvas() const;

private:
    template <class Control>
    Control* control(const QString& name) const;
    void click(const QString& name);
    void scrollInsteadOfChoosing();
    void rememberPalette();
    void nameControls();
    void orderControls();

    QPointer<QWidget> m_widget;
};
