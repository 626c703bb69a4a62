#pragma once

#include <vkintensityhost.h>

#include <QPixmap>
#include <QString>

/// The program's look, the same on every platform.

/// Compiles pictures, style sheet and texts into the program that calls it, also out of a static
/// library. Once before the first window.
void initViewerResources();

/// The look of the host kit, with the rules for the viewer's own window and pages, and the icon.
/// All sizes follow the screen's logical dots per inch.
void applyAppearance();

using vkintensityhost::scaledForScreen;

/// The picture, drawn into a square of `side` pixels at 96 dots per inch, as sharp as the screen
/// allows.
QPixmap scaledPicture(const QString& resource, int side);
