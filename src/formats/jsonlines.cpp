#include "formats/jsonlines.h"

#include "formats/textwriter.h"

#include <QCoreApplication>

namespace {

const char* const hexDigits = "0123456789abcdef";

/// A string with its quotes.
void string(TextWriter& out, const QString& text)
{
    out.character('"');
    for (const char byte : text.toUtf8()) {
        if (byte == '"' || byte == '\\') {
            out.character('\\');
            out.character(byte);
        } else if (uchar(byte) < 0x20) {
            out.text("\\u00");
            out.character(hexDigits[uchar(byte) >> 4]);
            out.character(hexDigits[uchar(byte) & 15]);
        } else {
            out.character(byte);
        }
    }
    out.character('"');
}

/// `,"name":`; no comma for the first name of an object.
void name(TextWriter& out, const char* text, bool isFirst = false)
{
    out.text(isFirst ? "\"" : ",\"");
    out.text(text);
    out.text("\":");
}

void integerField(TextWriter& out, const char* fieldName, qint64 value, bool isFirst = false)
{
    name(out, fieldName, isFirst);
    out.integer(value);
}

void realField(TextWriter& out, const char* fieldName, double value, bool isFirst = false)
{
    name(out, fieldName, isFirst);
    out.real(value, "null");
}

/// `[...]` with what `write` writes for each item.
template <class List, class Write>
void list(TextWriter& out, const List& items, Write write)
{
    out.character('[');
    bool isFirst = true;
    for (const auto& item : items) {
        if (!isFirst) {
            out.character(',');
        }
        isFirst = false;
        write(item);
    }
    out.character(']');
}

void integers(TextWriter& out, const QVector<quint32>& values)
{
    list(out, values, [&out](quint32 value) { out.integer(value); });
}

/// Without the closing brace.
void openRegion(TextWriter& out, const RegionStatistics& region)
{
    out.character('{');
    integerField(out, "x", region.rect.x(), true);
    integerField(out, "y", region.rect.y());
    integerField(out, "width", region.rect.width());
    integerField(out, "height", region.rect.height());
    integerField(out, "pixels", region.pixels);
    realField(out, "mean", region.mean);
    integerField(out, "minimum", region.minimum);
    integerField(out, "maximum", region.maximum);
    realField(out, "deviation", region.deviation);
    realField(out, "signal_to_noise", region.signalToNoise);
}

void peakObject(TextWriter& out, const MeasuredPeak& peak)
{
    out.character('{');
    integerField(out, "rank", peak.rank, true);
    integerField(out, "pixel", peak.pixel);
    realField(out, "position", peak.position);
    integerField(out, "value", peak.value);
    out.character('}');
}

void profileObject(TextWriter& out, const MeasuredProfile& profile)
{
    out.character('{');
    integerField(out, "index", profile.index, true);
    name(out, "values");
    integers(out, profile.values);
    if (profile.peaks) {
        name(out, "peaks");
        list(out, *profile.peaks, [&out](const MeasuredPeak& peak) { peakObject(out, peak); });
    }
    out.character('}');
}

void sourceFields(TextWriter& out, const MeasurementSource& source)
{
    name(out, "file", true);
    if (source.file.isEmpty()) {
        out.text("null");
    } else {
        string(out, source.file);
    }
    integerField(out, "page", source.page);
    integerField(out, "width", source.size.width());
    integerField(out, "height", source.size.height());
    integerField(out, "bits", source.bits);
}

void calibrationField(TextWriter& out, const std::optional<MeasuredCalibration>& calibration)
{
    name(out, "calibration");
    if (!calibration) {
        out.text("null");
        return;
    }
    out.character('{');
    realField(out, "start", calibration->start, true);
    realField(out, "width", calibration->width);
    name(out, "unit");
    string(out, calibration->unit);
    out.character('}');
}

} // namespace

JsonLineWriter::JsonLineWriter(const MeasurementSource& source)
{
    m_out.character('{');
    sourceFields(m_out, source);
}

void JsonLineWriter::image(const RegionStatistics& region)
{
    enter(Part::Image);
    name(m_out, "image");
    openRegion(m_out, region);
    m_out.character('}');
}

void JsonLineWriter::region(const RegionStatistics& region)
{
    enter(Part::Regions);
    closeRegion();
    beginItem();
    openRegion(m_out, region);
    m_isRegionOpen = true;
}

void JsonLineWriter::row(const MeasuredProfile& profile)
{
    enter(Part::Rows);
    beginItem();
    profileObject(m_out, profile);
}

void JsonLineWriter::column(const MeasuredProfile& profile)
{
    enter(Part::Columns);
    beginItem();
    profileObject(m_out, profile);
}

void JsonLineWriter::regionHistogram(quint32 first)
{
    beginHistogram(first);
}

void JsonLineWriter::imageHistogram(quint32 first)
{
    enter(Part::Histogram);
    beginHistogram(first);
}

void JsonLineWriter::counts(const quint32* counts, qint64 count)
{
    m_out.reserve(count * 2); // a digit and a comma, at least
    for (qint64 i = 0; i < count; ++i) {
        if (m_hasCount) {
            m_out.character(',');
        }
        m_hasCount = true;
        m_out.integer(counts[i]);
    }
}

void JsonLineWriter::end(const std::optional<MeasuredCalibration>& calibration)
{
    enter(Part::End);
    calibrationField(m_out, calibration);
    name(m_out, "program");
    string(m_out, QCoreApplication::applicationName());
    name(m_out, "version");
    string(m_out, QCoreApplication::applicationVersion());
    m_out.character('}');
}

/// Finishes the part that is written and begins the next ones up to `part`: lists are there even
/// when they are empty.
void JsonLineWriter::enter(Part part)
{
    while (m_part < part) {
        finish(m_part);
        m_part = Part(int(m_part) + 1);
        begin(m_part);
    }
}

void JsonLineWriter::begin(Part part)
{
    const char* const listName = part == Part::Regions ? "regions"
        : part == Part::Rows                           ? "rows"
        : part == Part::Columns                        ? "columns"
                                                       : nullptr;
    if (listName) {
        name(m_out, listName);
        m_out.character('[');
        m_hasItem = false;
    }
}

void JsonLineWriter::finish(Part part)
{
    closeRegion();
    closeHistogram();
    if (part == Part::Regions || part == Part::Rows || part == Part::Columns) {
        m_out.character(']');
    }
}

void JsonLineWriter::beginItem()
{
    if (m_hasItem) {
        m_out.character(',');
    }
    m_hasItem = true;
}

void JsonLineWriter::beginHistogram(quint32 first)
{
    name(m_out, "histogram");
    m_out.character('{');
    integerField(m_out, "first", first, true);
    name(m_out, "counts");
    m_out.character('[');
    m_isHistogramOpen = true;
    m_hasCount = false;
}

void JsonLineWriter::closeHistogram()
{
    if (m_isHistogramOpen) {
        m_out.text("]}");
        m_isHistogramOpen = false;
    }
}

void JsonLineWriter::closeRegion()
{
    closeHistogram();
    if (m_isRegionOpen) {
        m_out.character('}');
        m_isRegionOpen = false;
    }
}

QByteArray jsonLine(const Measurement& measurement)
{
    JsonLineWriter line(measurement.source);
    if (measurement.image) {
        line.image(*measurement.image);
    }
    for (int i = 0; i < int(measurement.regions.size()); ++i) {
        line.region(measurement.regions.at(i));
        if (i < int(measurement.regionHistograms.size())) {
            const MeasuredHistogram& histogram = measurement.regionHistograms.at(i);
            line.regionHistogram(histogram.first);
            line.counts(histogram.counts.constData(), histogram.counts.size());
        }
    }
    for (const MeasuredProfile& profile : measurement.rows) {
        line.row(profile);
    }
    for (const MeasuredProfile& profile : measurement.columns) {
        line.column(profile);
    }
    if (measurement.histogram) {
        line.imageHistogram(measurement.histogram->first);
        line.counts(
            measurement.histogram->counts.constData(), measurement.histogram->counts.size());
    }
    line.end(measurement.calibration);
    return line.take();
}
