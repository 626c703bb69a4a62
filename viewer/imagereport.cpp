#include "imagereport.h"

#include "imagetexts.h"
#include "measurements.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

/// Context of the texts for translation.
struct ImageReport
{
    Q_DECLARE_TR_FUNCTIONS(ImageReport)
};

QString rounded(double number)
{
    return qIsNaN(number) ? QString("-") : QString::number(number, 'f', 3); // as in the panel
}

QStringList header()
{
    return { ImageReport::tr("Region"), ImageReport::tr("X"), ImageReport::tr("Y"),
        ImageReport::tr("Width"), ImageReport::tr("Height"), ImageReport::tr("Pixels"),
        ImageReport::tr("Minimum"), ImageReport::tr("Maximum"), ImageReport::tr("Mean"),
        ImageReport::tr("Deviation"), ImageReport::tr("Signal to Noise") };
}

QStringList row(const QString& name, const RegionStatistics& statistics)
{
    const bool hasPixels = statistics.pixels > 0;
    return { name, QString::number(statistics.rect.x()), QString::number(statistics.rect.y()),
        QString::number(statistics.rect.width()), QString::number(statistics.rect.height()),
        QString::number(statistics.pixels),
        hasPixels ? QString::number(statistics.minimum) : QString("-"),
        hasPixels ? QString::number(statistics.maximum) : QString("-"), rounded(statistics.mean),
        rounded(statistics.deviation), rounded(statistics.signalToNoise) };
}

QString crossHairLine(const CVKIntensityWidget& widget)
{
    const auto cross = widget.crossHair();
    const auto value = cross ? widget.value(*cross) : std::nullopt;
    if (!value) {
        return QString();
    }
    return ImageReport::tr("Cross-hair: X %1, Y %2, value %3")
        .arg(cross->x())
        .arg(cross->y())
        .arg(*value);
}

QString calibrationLine(const CVKIntensityWidget& widget)
{
    const auto calibration = widget.calibration();
    if (!calibration) {
        return QString();
    }
    return ImageReport::tr("Wavelengths: %1 %3 at pixel 0, %2 %3 a pixel")
        .arg(calibration->start)
        .arg(calibration->pixelWidth)
        .arg(positionUnit(calibration));
}

} // namespace

Printout imageReport(const CVKIntensityWidget& widget)
{
    Printout report;
    const CVKIntensityWidget::ImageInfo info = widget.imageInfo();
    if (!info.isValid()) {
        return report;
    }
    report.title = QFileInfo(info.file).fileName();
    report.lines << imageSummary(info) << crossHairLine(widget) << calibrationLine(widget)
                 << ImageReport::tr("X and Y count from 0 at the top left pixel.");
    report.lines.removeAll(QString());
    const QRect image(QPoint(), info.size);
    report.table << header()
                 << row(ImageReport::tr("Image"), regionStatistics(widget.statistics(image)));
    const QVector<RegionStatistics> regions = regionStatistics(widget);
    for (int i = 0; i < int(regions.size()); ++i) {
        report.table << row(ImageReport::tr("ROI %1").arg(i + 1), regions[i]);
    }
    return report;
}
