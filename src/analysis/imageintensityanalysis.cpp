#include "analysis/imageintensityanalysis.h"

#include "analysis/roistatistics.h"
#include "image/sampledispatch.h"
#include "base/saturate.h"

#include <algorithm>
#include <limits>
#include <utility>

ImageIntensityAnalysis::ImageIntensityAnalysis(ImageData* firstImage)
    : histogram(nullptr)
{
    resetTables();
    setImageData(firstImage);
}

ImageIntensityAnalysis::~ImageIntensityAnalysis()
{
    delete displayImage; // before the memory it shows
}

void ImageIntensityAnalysis::resetTables()
{
    for (size_t level = 0; level < palette.size(); ++level) {
        const auto gray = uchar(level);
        palette[level] = { gray, gray, gray };
        colorIndex[level] = gray;
    }
    roiInfo = IntensityInfo();
}

bool ImageIntensityAnalysis::hasImage() const
{
    return image && image->isLoaded();
}

void ImageIntensityAnalysis::setImageData(ImageData* newImage)
{
    image = newImage;
    if (!hasImage()) {
        return;
    }
    m_loadColors.reset();
    image->convertToGray();
    histogram.setImageData(image);
    Q_EMIT newHistogramSize(int(histogram.size));
    if (!hasImage()) {
        return; // a receiver has closed it
    }
    createDisplayImage();
    drawRect = QRect(0, 0, image->width, image->height);
    if (m_isLoading && canConvert()) {
        m_loadColors = levelColors();
    }
    convertToDisplay();
}

void ImageIntensityAnalysis::refreshImageData(const QPoint& newAnchor, const QRect& newDrawRect)
{
    if (!hasImage()) {
        return;
    }
    anchor = newAnchor;
    drawRect = newDrawRect;
    m_loadColors.reset();
    histogram.calcHistogram();
    Q_EMIT newHistogramSize(int(histogram.size));
    if (!hasImage()) {
        return; // a receiver has closed it
    }
    if (displayBuffer && displayImage) {
        *displayImage = imageOverDisplayBuffer();
    }
    if (canConvert()) {
        convertToDisplay();
    } else {
        showNothing();
    }
    updateLines();
}

/// Black pixels and lines of level 0, as a fresh image without levels has them.
void ImageIntensityAnalysis::showNothing()
{
    m_displayMemory.zeroFrom(0);
    histogram.clearLines();
    Q_EMIT updateImage();
}

void ImageIntensityAnalysis::createDisplayImage()
{
    if (displayImage) {
        *displayImage = QImage(); // still known elsewhere, and must not show freed memory
    } else {
        displayImage = new QImage;
    }
    displayBuffer = nullptr;
    m_displayMemory.release();
    // Deliberate: three bytes for each byte of the image, more than the conversion writes for
    // samples of 16 and 32 bits.
    const quint64 pixelBytes = quint64(image->dataSize) * 3;
    const quint64 paddedLine = (quint64(image->width) * 3 + 3) / 4 * 4;
    const quint64 imageBytes = paddedLine * quint64(image->height);
    if (!m_displayMemory.acquire(size_t(std::max(pixelBytes, imageBytes)))) {
        return;
    }
    displayBuffer = m_displayMemory.data();
    m_displayPixels = image->pixelCount;
    m_displayMemory.zeroFrom(canConvert() ? size_t(m_displayPixels) * 3 : 0);
    *displayImage = imageOverDisplayBuffer();
}

QImage ImageIntensityAnalysis::imageOverDisplayBuffer() const
{
    if (m_areRowsPacked && image->width <= std::numeric_limits<int>::max() / 3) {
        return QImage(
            displayBuffer, image->width, image->height, 3 * image->width, QImage::Format_RGB888);
    }
    // Deliberate: this constructor takes rows as padded to four bytes, while the conversion writes
    // them packed; the two agree for widths that are a multiple of four.
    return QImage(displayBuffer, image->width, image->height, QImage::Format_RGB888);
}

bool ImageIntensityAnalysis::canConvert() const
{
    return displayBuffer && histogram.hasLevels() && image->data
        && forSampleWidth(std::as_const(*image), [](const auto*) {});
}

void ImageIntensityAnalysis::convertToDisplay()
{
    if (!canConvert()) {
        return;
    }
    forSampleWidth(std::as_const(*image), [this](const auto* samples) {
        const auto available = qint64(image->allocatedBytes() / sizeof(*samples));
        const qint64 count = std::min({ qint64(image->pixelCount), available, m_displayPixels });
        convertToRgb(samples, count, histogram.levels(), levelColors(), displayBuffer);
        m_displayMemory.markWritten(size_t(3 * count));
    });
    Q_EMIT updateImage();
}

ImageIntensityAnalysis::LoadScope::LoadScope(ImageIntensityAnalysis* engine)
    : m_engine(engine)
{
    m_engine->m_isLoading = true;
    m_engine->m_loadColors.reset();
}

ImageIntensityAnalysis::LoadScope::~LoadScope()
{
    if (m_engine) {
        m_engine->m_isLoading = false;
        m_engine->m_loadColors.reset();
    }
}

LevelColors ImageIntensityAnalysis::levelColors() const
{
    LevelColors colors;
    for (size_t level = 0; level < colors.size(); ++level) {
        colors[level] = palette[colorIndex[level]];
    }
    return colors;
}

int ImageIntensityAnalysis::verticalSize() const
{
    return std::min(image->height, histogram.verticalLineLength());
}

int ImageIntensityAnalysis::horizontalSize() const
{
    return std::min(image->width, histogram.horizontalLineLength());
}

/// Each line is sent to the large charts first and to the strips, with the shown part, after.
/// A receiver may close the image, so each step looks at it again.
void ImageIntensityAnalysis::updateLines()
{
    if (!image) {
        return;
    }
    histogram.extractVerticalLine(anchor.x());
    histogram.extractHorizontalLine(anchor.y());
    Q_EMIT updateLineVertical(histogram.verticalLine, verticalSize());
    if (image) {
        Q_EMIT updateLineHorizontal(histogram.horizontalLine, horizontalSize());
    }
    if (image) {
        Q_EMIT updateLineVertical(
            histogram.verticalLine, verticalSize(), drawRect.top(), drawRect.height());
    }
    if (image) {
        Q_EMIT updateLineHorizontal(
            histogram.horizontalLine, horizontalSize(), drawRect.left(), drawRect.width());
    }
    if (image) {
        Q_EMIT updateLineValueRange(qreal(histogram.min), qreal(histogram.max));
    }
}

void ImageIntensityAnalysis::changedAnchorPosition(QPointF anchorImage)
{
    if (histogram.hasLevels()) {
        anchor = roundedPoint(anchorImage);
        updateLines();
    }
}

void ImageIntensityAnalysis::changedDrawRect(QRectF rect)
{
    if (histogram.hasLevels()) {
        drawRect = roundedRect(rect);
        updateLines();
    }
}

void ImageIntensityAnalysis::changedColors(QVector<QColor> color)
{
    const int count = std::min(int(color.size()), int(palette.size()));
    for (int i = 0; i < count; ++i) {
        const QColor& c = color.at(i);
        palette[size_t(i)] = { uchar(c.red()), uchar(c.green()), uchar(c.blue()) };
    }
    if (!image) {
        return;
    }
    const bool isRepetition = m_loadColors && *m_loadColors == levelColors();
    m_loadColors.reset();
    if (isRepetition) {
        Q_EMIT updateImage(); // the load's own announcement
    } else {
        convertToDisplay();
    }
}

void ImageIntensityAnalysis::sendUpdetaIntensityHistogramSignal()
{
    if (histogram.hasLevels()) {
        Q_EMIT updateRoiIntensityHistogram(
            histogram.histogram, int(histogram.size), histogram.min, histogram.max);
    }
}

void ImageIntensityAnalysis::changedIntensityRoi(int selected, QRectF rect)
{
    const bool isPoint = rect.width() == 0.0 && rect.height() == 0.0;
    if (isPoint || !hasImage()) {
        return;
    }
    roiInfo.imageWidth = image->width;
    roiInfo.imageHeight = image->height;
    const QRect roi = roundedRect(rect);
    updateRoiStatistics(selected, roi);
    histogram.calcRoiHistogram(roiInfo.min, roiInfo.max, roi);
    // Deliberate: the size is that of the whole image's histogram; receivers go by the range.
    Q_EMIT updateRoiIntensityHistogram(
        histogram.roiBins(roiInfo.min, roiInfo.max), int(histogram.size), roiInfo.min, roiInfo.max);
}

void ImageIntensityAnalysis::updateRoiStatistics(int selected, const QRect& roi)
{
    // Deliberate: an edge equal to the width or the height passes, one pixel beyond the image.
    if (roi.isNull() || roi.right() > image->width || roi.bottom() > image->height) {
        return;
    }
    roiInfo.rect = roi;
    computeRoiStatistics(roi);
    Q_EMIT updateRoiIntensityInfo(selected, roiInfo);
}

void ImageIntensityAnalysis::computeRoiStatistics(const QRect& roi)
{
    if (!displayBuffer) {
        return;
    }
    forSampleWidth(std::as_const(*image), [&](const auto* samples) {
        const RoiRows rows { roi, image->width,
            qint64(image->allocatedBytes() / sizeof(*samples)) };
        const RoiStatistics statistics = roiStatistics(samples, rows);
        roiInfo.min = statistics.range.min;
        roiInfo.max = statistics.range.max;
        roiInfo.mean = statistics.mean;
        roiInfo.standardDeviation = statistics.deviation;
        // Deliberate: with a deviation of 0, or none, the last region's ratio stays.
        if (roiInfo.standardDeviation > 0.0) {
            roiInfo.signalToNoise = roiInfo.mean / roiInfo.standardDeviation;
        }
    });
}
