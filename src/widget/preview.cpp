#include "widget/preview.h"

#include "analysis/previewlevels.h"
#include "image/imagedata.h"
#include "image/imageloadregistry.h"

#include <exception>

namespace {

LoadProblem loadGray(const QString& path, qint64 pixelLimit, ImageData& image)
{
    ImageLoadRegistry loaders;
    ReadOptions options;
    options.reading = Reading::Faithful;
    options.pixelLimit = pixelLimit;
    ReadReport report;
    loaders.load(path, &image, options, &report);
    image.convertToGray();
    return report.problem;
}

/// Null without memory.
QImage grayPicture(const ImageData& image, const QSize& bounds)
{
    const QSize size = previewSize(QSize(image.width, image.height), bounds);
    QImage picture(size, QImage::Format_Grayscale8);
    if (picture.isNull()
        || !fillPreview(image, size, picture.bits(), qint64(picture.bytesPerLine()))) {
        return QImage();
    }
    return picture;
}

QImage loadedPreview(
    const QString& path, const QSize& bounds, qint64 pixelLimit, LoadProblem& problem)
{
    ImageData image;
    problem = loadGray(path, pixelLimit, image);
    if (problem != LoadProblem::None || bounds.isEmpty()) {
        return QImage();
    }
    const QImage picture = grayPicture(image, bounds);
    problem = picture.isNull() ? LoadProblem::TooLarge : LoadProblem::None;
    return picture;
}

} // namespace

QImage previewOf(const QString& path, const QSize& bounds, qint64 pixelLimit, LoadProblem* problem)
{
    LoadProblem found = LoadProblem::None;
    QImage picture;
    try {
        picture = loadedPreview(path, bounds, pixelLimit, found);
    } catch (...) { // no exception may leave a thread that loads previews
        found = LoadProblem::TooLarge;
    }
    if (problem) {
        *problem = found;
    }
    return picture;
}
