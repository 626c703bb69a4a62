#pragma once

#include <QImage>
#include <QString>
#include <QVector>

/// The images that give the window its look, drawn here rather than kept as files. Sizes are
/// pixels at 96 dots per inch. How the widgets use an image decides its shape: tiles join without
/// a seam, and stretched images are plain along the direction in which they are stretched.

struct SkinImage
{
    QString fileName;
    QImage (*draw)();
};

/// Column, canvas, title bars, module panels and the Return button.
QVector<SkinImage> widgetSkinImages();

/// Signs on the widget's buttons, boxes and lists; the style sheet of the host kit names them.
QVector<SkinImage> controlGlyphs();

/// Pictures on the viewer's pages.
QVector<SkinImage> viewerImages();
