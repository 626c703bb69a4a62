#pragma once

#include "formats/measurement.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// Everything that was asked for about one image. Names and order in JSON are: file, page, width,
/// height, bits, image, regions, rows, columns, histogram, calibration, program, version.
struct Measurement
{
    MeasurementSource source;
    std::optional<RegionStatistics> image; ///< of all pixels
    QVector<RegionStatistics> regions;
    QVector<MeasuredProfile> rows;
    QVector<MeasuredProfile> columns;
    std::optional<MeasuredHistogram> histogram; ///< of all pixels
    QVector<MeasuredHistogram> regionHistograms; ///< as many as regions, or none
    std::optional<MeasuredCalibration> calibration;
};

/// One JSON object on one line, without a line end. `image` and `histogram` are left out where they
/// were not asked for, lists are then empty, `calibration` is null without one, and `file` for a
/// frame from memory. Program and version are those of the application object. Doubles with as many
/// digits as it takes to read the same double back; null where there is no number. Text is UTF-8
/// with control characters escaped.
QByteArray jsonLine(const Measurement& measurement);
