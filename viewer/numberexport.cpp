#include "numberexport.h"

#include "formats/csvtables.h"
#include "formats/jsonlines.h"
#include "measurements.h"

#include <algorithm>

namespace {

using Widget = CVKIntensityWidget;

QRect imageRect(const Widget& widget)
{
    return QRect(QPoint(), widget.imageInfo().size);
}

QRect selectedRegion(const Widget& widget)
{
    return widget.regions().value(widget.selectedRegion()) & imageRect(widget);
}

bool isRow(NumberKind kind)
{
    return kind == NumberKind::RowProfile || kind == NumberKind::RowPeaks;
}

/// The row or column through the cross-hair.
Widget::Profile profileFor(const Widget& widget, NumberKind kind)
{
    const auto cross = widget.crossHair();
    if (!cross) {
        return Widget::Profile();
    }
    return isRow(kind) ? widget.rowProfile(cross->y()) : widget.columnProfile(cross->x());
}

QVector<Widget::Peak> peaksFor(const Widget& widget, const Widget::Profile& profile)
{
    return widget.peaks(profile, widget.peakLabels().count);
}

Widget::Histogram histogramFor(const Widget& widget, NumberKind kind)
{
    return widget.histogram(
        kind == NumberKind::ImageHistogram ? imageRect(widget) : selectedRegion(widget));
}

/// The part of the image that the numbers are of; null for all of it.
QRect measuredPart(const Widget& widget, NumberKind kind)
{
    switch (kind) {
    case NumberKind::RegionStatistics:
    case NumberKind::ImageHistogram: return QRect();
    case NumberKind::RegionHistogram: return selectedRegion(widget);
    default: break;
    }
    const QRect image = imageRect(widget);
    const int index = profileFor(widget, kind).index;
    return isRow(kind) ? QRect(0, index, image.width(), 1) : QRect(index, 0, 1, image.height());
}

bool isAvailable(const Widget& widget, NumberKind kind)
{
    switch (kind) {
    case NumberKind::RegionStatistics: return !widget.regions().isEmpty();
    case NumberKind::ImageHistogram:
    case NumberKind::RegionHistogram: return histogramFor(widget, kind).isValid();
    case NumberKind::RowProfile:
    case NumberKind::ColumnProfile: return profileFor(widget, kind).isValid();
    case NumberKind::RowPeaks:
    case NumberKind::ColumnPeaks: return !peaksFor(widget, profileFor(widget, kind)).isEmpty();
    }
    return false;
}

QByteArray table(const Widget& widget, NumberKind kind)
{
    const QString unit = positionUnit(widget.calibration());
    switch (kind) {
    case NumberKind::RegionStatistics: return csvRegions(regionStatistics(widget));
    case NumberKind::ImageHistogram:
    case NumberKind::RegionHistogram:
        return csvHistogram(measuredHistogram(histogramFor(widget, kind)));
    case NumberKind::RowProfile:
    case NumberKind::ColumnProfile:
        return csvProfile(measuredProfile(profileFor(widget, kind)), unit);
    case NumberKind::RowPeaks:
    case NumberKind::ColumnPeaks:
        return csvPeaks(measuredPeaks(peaksFor(widget, profileFor(widget, kind))), unit);
    }
    return QByteArray();
}

MeasuredProfile measuredLine(const Widget& widget, NumberKind kind)
{
    const Widget::Profile profile = profileFor(widget, kind);
    MeasuredProfile line = measuredProfile(profile);
    if (kind == NumberKind::RowPeaks || kind == NumberKind::ColumnPeaks) {
        line.peaks = measuredPeaks(peaksFor(widget, profile));
    }
    return line;
}

Measurement measurement(const Widget& widget, NumberKind kind)
{
    Measurement measured;
    measured.source = measurementSource(widget.imageInfo());
    measured.calibration = measuredCalibration(widget.calibration());
    switch (kind) {
    case NumberKind::RegionStatistics: measured.regions = regionStatistics(widget); break;
    case NumberKind::ImageHistogram:
        measured.histogram = measuredHistogram(histogramFor(widget, kind));
        break;
    case NumberKind::RegionHistogram:
        measured.regions << regionStatistics(widget.statistics(selectedRegion(widget)));
        measured.regionHistograms << measuredHistogram(histogramFor(widget, kind));
        break;
    case NumberKind::RowProfile:
    case NumberKind::RowPeaks: measured.rows << measuredLine(widget, kind); break;
    case NumberKind::ColumnProfile:
    case NumberKind::ColumnPeaks: measured.columns << measuredLine(widget, kind); break;
    }
    return measured;
}

} // namespace

QVector<NumberKind> availableNumbers(const CVKIntensityWidget& widget)
{
    QVector<NumberKind> kinds { NumberKind::RegionStatistics, NumberKind::ImageHistogram,
        NumberKind::RegionHistogram, NumberKind::RowProfile, NumberKind::ColumnProfile,
        NumberKind::RowPeaks, NumberKind::ColumnPeaks };
    const auto lacks = [&widget](NumberKind kind) { return !isAvailable(widget, kind); };
    kinds.erase(std::remove_if(kinds.begin(), kinds.end(), lacks), kinds.end());
    return kinds;
}

QByteArray exportedFile(const CVKIntensityWidget& widget, const ExportChoice& choice)
{
    if (choice.isJson) {
        return jsonLine(measurement(widget, choice.kind)) + '\n';
    }
    return csvPreamble(measurementSource(widget.imageInfo()),
               measuredCalibration(widget.calibration()), measuredPart(widget, choice.kind))
        + table(widget, choice.kind);
}

QString exportedText(const CVKIntensityWidget& widget, NumberKind kind)
{
    return tabbed(table(widget, kind));
}
