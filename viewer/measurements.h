#pragma once

#include "cvkintensitywidget.h"
#include "formats/jsonlines.h"
#include "formats/measurement.h"

#include <optional>

/// Numbers of the intensity widget as the plain data that files are written from. Coordinates are
/// those of the widget.

MeasurementSource measurementSource(const CVKIntensityWidget::ImageInfo& info);

std::optional<MeasuredCalibration> measuredCalibration(
    const std::optional<CVKIntensityWidget::Calibration>& calibration);

/// "um" or "nm"; empty without a calibration, when positions are pixel numbers.
QString positionUnit(const std::optional<CVKIntensityWidget::Calibration>& calibration);

RegionStatistics regionStatistics(const CVKIntensityWidget::Statistics& statistics);

/// One entry for each region of the widget, whose numbers they keep. The edge that a drag may leave
/// outside of the image does not count; a region without pixels has no mean, deviation and ratio
/// (NaN).
QVector<RegionStatistics> regionStatistics(const CVKIntensityWidget& widget);

MeasuredHistogram measuredHistogram(const CVKIntensityWidget::Histogram& histogram);

/// With the position of each pixel, and without peaks.
MeasuredProfile measuredProfile(const CVKIntensityWidget::Profile& profile);

QVector<MeasuredPeak> measuredPeaks(const QVector<CVKIntensityWidget::Peak>& peaks);
