#pragma once

#include "formats/measurement.h"
#include "formats/textwriter.h"

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

/// The same line piece by piece, for numbers that are not to be in memory at once. The members are
/// called in the order of the names; each but end() may be left out.
class JsonLineWriter
{
public:
    explicit JsonLineWriter(const MeasurementSource& source);

    void image(const RegionStatistics& region);
    void region(const RegionStatistics& region);
    void row(const MeasuredProfile& profile);
    void column(const MeasuredProfile& profile);

    /// A histogram from the value `first` on: of the region written last, or of all pixels. Its
    /// counts follow.
    void regionHistogram(quint32 first);
    void imageHistogram(quint32 first);
    void counts(const quint32* counts, qint64 count);

    void end(const std::optional<MeasuredCalibration>& calibration);

    int size() const { return m_out.size(); } ///< bytes that take() has
    QByteArray take() { return m_out.take(); } ///< what was written since the last call

private:
    enum class Part { Source, Image, Regions, Rows, Columns, Histogram, End };

    void enter(Part part);
    void begin(Part part);
    void finish(Part part);
    void beginItem();
    void beginHistogram(quint32 first);
    void closeHistogram();
    void closeRegion();

    TextWriter m_out;
    Part m_part = Part::Source;
    bool m_hasItem = false; ///< the list that is open
    bool m_hasCount = false;
    bool m_isRegionOpen = false;
    bool m_isHistogramOpen = false;
};
