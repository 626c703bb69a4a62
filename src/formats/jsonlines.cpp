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

void histogramObject(TextWriter& out, const MeasuredHistogram& histogram)
{
    out.reserve(qint64(histogram.counts.size()) * 2);
    out.character('{');
    integerField(out, "first", histogram.first, true);
    name(out, "counts");
    integers(out, histogram.counts);
    out.character('}');
}

/// `histogram` may be null.
void regionObject(
    TextWriter& out, const RegionStatistics& region, const MeasuredHistogram* histogram)
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
    if (histogram) {
        name(out, "histogram");
        histogramObject(out, *histogram);
    }
    out.character('}');
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

void regionsField(TextWriter& out, const Measurement& measurement)
{
    name(out, "regions");
    int index = 0;
    list(out, measurement.regions, [&](const RegionStatistics& region) {
        const bool hasHistogram = index < int(measurement.regionHistograms.size());
        regionObject(out, region, hasHistogram ? &measurement.regionHistograms.at(index) : nullptr);
        ++index;
    });
}

void profilesField(TextWriter& out, const char* fieldName, const QVector<MeasuredProfile>& profiles)
{
    name(out, fieldName);
    list(out, profiles, [&out](const MeasuredProfile& profile) { profileObject(out, profile); });
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

QByteArray jsonLine(const Measurement& measurement)
{
    TextWriter out;
    out.character('{');
    sourceFields(out, measurement.source);
    if (measurement.image) {
        name(out, "image");
        regionObject(out, *measurement.image, nullptr);
    }
    regionsField(out, measurement);
    profilesField(out, "rows", measurement.rows);
    profilesField(out, "columns", measurement.columns);
    if (measurement.histogram) {
        name(out, "histogram");
        histogramObject(out, *measurement.histogram);
    }
    calibrationField(out, measurement.calibration);
    name(out, "program");
    string(out, QCoreApplication::applicationName());
    name(out, "version");
    string(out, QCoreApplication::applicationVersion());
    out.character('}');
    return out.take();
}
