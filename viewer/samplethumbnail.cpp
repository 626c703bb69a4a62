#include "samplethumbnail.h"

#include <algorithm>

namespace {

constexpr uchar middleGray = 128;

/// First of the `from` pixels that belong to cell `i` when they are shared out among `to` cells.
int cellStart(int i, int from, int to)
{
    return int(qint64(i) * from / to);
}

template <class Sample>
double cellMean(const SampleFrame& frame, const QRect& cell, int channel)
{
    quint64 sum = 0; // at most 2^31 pixels of 32 bits
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
        const uchar* const line = frame.bytes + qint64(y) * frame.bytesPerLine;
        const auto* samples = reinterpret_cast<const Sample*>(line) + channel;
        for (int x = cell.left(); x <= cell.right(); ++x) {
            sum += samples[qint64(x) * frame.channels];
        }
    }
    return double(sum) / (double(cell.width()) * double(cell.height()));
}

/// Row by row, the shown channels of a cell one after the other.
template <class Sample>
QVector<double> cellMeans(const SampleFrame& frame, const QSize& size)
{
    QVector<double> means;
    means.reserve(size.width() * size.height() * frame.shown.size());
    for (int row = 0; row < size.height(); ++row) {
        const int top = cellStart(row, frame.height, size.height());
        const int below = cellStart(row + 1, frame.height, size.height());
        for (int column = 0; column < size.width(); ++column) {
            const int left = cellStart(column, frame.width, size.width());
            const int behind = cellStart(column + 1, frame.width, size.width());
            for (const int channel : frame.shown) {
                const QRect cell(left, top, behind - left, below - top);
                means << cellMean<Sample>(frame, cell, channel);
            }
        }
    }
    return means;
}

QVector<double> cellMeansOf(const SampleFrame& frame, const QSize& size)
{
    switch (frame.bytesPerChannel) {
    case 1: return cellMeans<quint8>(frame, size);
    case 2: return cellMeans<quint16>(frame, size);
    case 4: return cellMeans<quint32>(frame, size);
    }
    return {};
}

uchar level(double value, double low, double high)
{
    return high > low ? uchar((value - low) * 255.0 / (high - low) + 0.5) : middleGray;
}

} // namespace

QSize thumbnailSize(const QSize& image, const QSize& bounds)
{
    if (image.width() <= bounds.width() && image.height() <= bounds.height()) {
        return image;
    }
    return image.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage stretchedThumbnail(const SampleFrame& frame, const QSize& size)
{
    if (size.isEmpty()) {
        return QImage();
    }
    const QVector<double> means = cellMeansOf(frame, size);
    const bool gray = frame.shown.size() == 1;
    QImage picture(size, gray ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    if (means.isEmpty() || picture.isNull()) {
        return QImage();
    }
    const auto [low, high] = std::minmax_element(means.begin(), means.end());
    const int lineLength = size.width() * int(frame.shown.size());
    for (int row = 0; row < size.height(); ++row) {
        uchar* const line = picture.scanLine(row);
        for (int i = 0; i < lineLength; ++i) {
            line[i] = level(means[row * lineLength + i], *low, *high);
        }
    }
    return picture;
}
