#pragma once

#include <QPixmap>
#include <QString>

/// The program's look, the same on every platform.

/// Compiles the images and the style sheet into the program that calls it, also out of a static
/// library. Once before the first window.
void initViewerResources();

/// Style, colours, font and style sheet. All sizes follow the screen's logical dots per inch.
void applyAppearance();

/// `pixels` at 96 dots per inch on the primary screen, truncated; unchanged without a screen.
int scaledForScreen(int pixels);

/// The picture, drawn into a square of `side` pixels at 96 dots per inch, as sharp as the screen
/// allows.
QPixmap scaledPicture(const QString& resource, int side);
