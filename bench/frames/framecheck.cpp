#include "framecheck.h"

#include "frameseries.h"
#include "image/rawheader.h"

#include <QFile>
#include <QGraphicsView>
#include <QTemporaryDir>
#include <QtEndian>

#include <array>
#include <cstdio>

namespace {

bool writeRawFile(const QString& path, std::vector<quint16> samples)
{
    const qint64 pixelBytes = qint64(samples.size()) * 2;
    const RawHeaderBytes header
        = packedRawHeader({ FrameSeries::side, FrameSeries::side, 1, 2, quint32(pixelBytes) });
    for (quint16& sample : samples) {
        sample = qToLittleEndian(sample);
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
        && file.write(reinterpret_cast<const char*>(header.data()), rawHeaderBytes)
        == rawHeaderBytes
        && file.write(reinterpret_cast<const char*>(samples.data()), pixelBytes) == pixelBytes
        && file.flush();
}

bool isSame(const char* name, int frame, bool equal)
{
    if (!equal) {
        std::printf("frame %d: %s differs\n", frame, name);
    }
    return equal;
}

bool sameStatistics(
    const CVKIntensityWidget::Statistics& one, const CVKIntensityWidget::Statistics& other)
{
    return one.isValid() && one.rect == other.rect && one.pixels == other.pixels
        && one.mean == other.mean && one.minimum == other.minimum && one.maximum == other.maximum
        && one.deviation == other.deviation && one.signalToNoise == other.signalToNoise;
}

bool sameHistogram(
    const CVKIntensityWidget::Histogram& one, const CVKIntensityWidget::Histogram& other)
{
    return one.isValid() && one.first == other.first && one.counts == other.counts;
}

bool sameProfile(const CVKIntensityWidget::Profile& one, const CVKIntensityWidget::Profile& other)
{
    return one.isValid() && one.values == other.values && one.levels == other.levels;
}

/// What both widgets answer for the whole frame, its region, and the lines of the cross-hair.
bool sameNumbers(const CVKIntensityWidget& one, const CVKIntensityWidget& other, int frame)
{
    const QRect whole(0, 0, FrameSeries::side, FrameSeries::side);
    const QRect region = FrameSeries::region();
    const QPoint at = FrameSeries::crossHair();
    bool same = isSame("value", frame, one.value(at) && one.value(at) == other.value(at));
    for (const QRect& rect : { whole, region }) {
        same &= isSame(
            "statistics", frame, sameStatistics(one.statistics(rect), other.statistics(rect)));
        same &= isSame(
            "histogram", frame, sameHistogram(one.histogram(rect), other.histogram(rect)));
    }
    same &= isSame("row", frame, sameProfile(one.rowProfile(at.y()), other.rowProfile(at.y())));
    same &= isSame(
        "column", frame, sameProfile(one.columnProfile(at.x()), other.columnProfile(at.x())));
    return same;
}

QImage canvasPicture(CVKIntensityWidget& intensity)
{
    return intensity.findChild<QGraphicsView*>()->grab().toImage();
}

} // namespace

bool checkFrames(CVKIntensityWidget* intensity, const FrameSeries& series)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("frame.raw");
    CVKIntensityWidget fromFile;
    fromFile.setAttribute(Qt::WA_DeleteOnClose, false);
    fromFile.setReading(CVKIntensityWidget::Reading::Faithful);
    fromFile.resize(intensity->size());
    fromFile.show();
    bool same = true;
    for (int i = 0; i < FrameSeries::count; ++i) {
        if (!writeRawFile(path, series.samples(i)) || !fromFile.loadImage(path)
            || !fromFile.addRegion(FrameSeries::region())
            || !fromFile.setCrossHair(FrameSeries::crossHair())
            || !intensity->updateFrame(series.frame(i))) {
            std::printf("frame %d: not shown\n", i);
            return false;
        }
        same &= sameNumbers(*intensity, fromFile, i);
        same &= isSame("picture", i, canvasPicture(*intensity) == canvasPicture(fromFile));
    }
    return same;
}
