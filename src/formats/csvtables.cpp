#include "formats/csvtables.h"

#include "formats/textwriter.h"

#include <QCoreApplication>

namespace {

/// Bytes of a key's value: line ends, and other control characters with them, become spaces.
QByteArray inOneLine(const QString& text)
{
    QString line = text;
    for (QChar& character : line) {
        if (character.category() == QChar::Other_Control
            || character.category() == QChar::Separator_Line
            || character.category() == QChar::Separator_Paragraph) {
            character = QLatin1Char(' ');
        }
    }
    return line.toUtf8();
}

void keyLine(TextWriter& out, const char* key, const QByteArray& value)
{
    out.text("# ");
    out.text(key);
    out.text(": ");
    out.text(value);
    out.character('\n');
}

void extent(TextWriter& out, const QSize& size)
{
    out.text("width=");
    out.integer(size.width());
    out.text(" height=");
    out.integer(size.height());
}

QByteArray sizeText(const QSize& size)
{
    TextWriter out;
    extent(out, size);
    return out.take();
}

QByteArray regionText(const QRect& region)
{
    TextWriter out;
    out.text("x=");
    out.integer(region.x());
    out.text(" y=");
    out.integer(region.y());
    out.character(' ');
    extent(out, region.size());
    return out.take();
}

QByteArray calibrationText(const MeasuredCalibration& calibration)
{
    TextWriter out;
    out.text("start=");
    out.real(calibration.start);
    out.text(" width=");
    out.real(calibration.width);
    out.text(" unit=");
    out.text(inOneLine(calibration.unit));
    return out.take();
}

QByteArray positionHeader(const QString& unit)
{
    return unit.isEmpty() ? QByteArrayLiteral("position")
                          : csvField(QStringLiteral("position [%1]").arg(unit));
}

int digitsOf(quint32 value)
{
    int digits = 1;
    while (value > 9) {
        value /= 10;
        ++digits;
    }
    return digits;
}

/// A field of a table without its quotes, and whether quotes are needed between tabs.
void appendTabbed(QByteArray& out, const QByteArray& field)
{
    if (!field.contains('\t') && !field.contains('\n') && !field.contains('"')) {
        out += field;
        return;
    }
    QByteArray quoted = field;
    quoted.replace("\"", "\"\"");
    out += '"' + quoted + '"';
}

} // namespace

QByteArray csvField(const QString& text)
{
    QByteArray field = text.toUtf8();
    const bool needsQuotes = field.contains(',') || field.contains('"') || field.contains('\n')
        || field.contains('\r') || field.startsWith('#');
    if (needsQuotes) {
        field.replace("\"", "\"\"");
        field = '"' + field + '"';
    }
    return field;
}

QByteArray csvPreamble(const MeasurementSource& source,
    const std::optional<MeasuredCalibration>& calibration, const QRect& region)
{
    TextWriter out;
    keyLine(out, "program", inOneLine(QCoreApplication::applicationName()));
    keyLine(out, "version", inOneLine(QCoreApplication::applicationVersion()));
    if (!source.file.isEmpty()) {
        keyLine(out, "file", inOneLine(source.file));
        keyLine(out, "page", QByteArray::number(source.page));
    }
    if (!source.size.isEmpty()) {
        keyLine(out, "size", sizeText(source.size));
    }
    if (source.bits > 0) {
        keyLine(out, "bits", QByteArray::number(source.bits));
    }
    if (calibration) {
        keyLine(out, "calibration", calibrationText(*calibration));
    }
    if (!region.isNull()) {
        keyLine(out, "region", regionText(region));
    }
    return out.take();
}

QByteArray csvRegions(const QVector<RegionStatistics>& regions)
{
    TextWriter out;
    out.text("region,x,y,width,height,pixels,mean,minimum,maximum,deviation,signal_to_noise\n");
    for (int i = 0; i < int(regions.size()); ++i) {
        out.integer(i + 1);
        out.character(',');
        out.text(csvStatistics(regions.at(i)));
        out.character('\n');
    }
    return out.take();
}

QByteArray csvStatistics(const RegionStatistics& region)
{
    TextWriter out;
    for (const int edge :
        { region.rect.x(), region.rect.y(), region.rect.width(), region.rect.height() }) {
        out.integer(edge);
        out.character(',');
    }
    out.integer(region.pixels);
    out.character(',');
    out.real(region.mean);
    out.character(',');
    out.integer(region.minimum);
    out.character(',');
    out.integer(region.maximum);
    out.character(',');
    out.real(region.deviation);
    out.character(',');
    out.real(region.signalToNoise);
    return out.take();
}

QByteArray csvHistogram(const MeasuredHistogram& histogram)
{
    const auto lines = qint64(histogram.counts.size());
    TextWriter out;
    out.reserve(16 + lines * (digitsOf(quint32(histogram.first + quint32(lines))) + 4));
    out.text("value,count\n");
    qint64 value = histogram.first;
    for (const quint32 count : histogram.counts) {
        out.integer(value++);
        out.character(',');
        out.integer(count);
        out.character('\n');
    }
    return out.take();
}

QByteArray csvProfile(const MeasuredProfile& profile, const QString& unit)
{
    TextWriter out;
    out.text("pixel,");
    out.text(positionHeader(unit));
    out.text(",value\n");
    for (int i = 0; i < int(profile.values.size()); ++i) {
        out.integer(i);
        out.character(',');
        out.real(profile.positions.value(i, i));
        out.character(',');
        out.integer(profile.values.at(i));
        out.character('\n');
    }
    return out.take();
}

QByteArray csvPeaks(const QVector<MeasuredPeak>& peaks, const QString& unit)
{
    TextWriter out;
    out.text("rank,pixel,");
    out.text(positionHeader(unit));
    out.text(",value\n");
    for (const MeasuredPeak& peak : peaks) {
        out.integer(peak.rank);
        out.character(',');
        out.integer(peak.pixel);
        out.character(',');
        out.real(peak.position);
        out.character(',');
        out.integer(peak.value);
        out.character('\n');
    }
    return out.take();
}

QString tabbed(const QByteArray& csvTable)
{
    QByteArray out;
    out.reserve(csvTable.size());
    QByteArray field;
    bool isQuoted = false;
    bool isClosed = false; // the byte before closed the quotes
    for (const char byte : csvTable) {
        if (byte == '"') {
            if (isClosed) {
                field += byte; // a doubled quote stands for one
            }
            isClosed = isQuoted;
            isQuoted = !isQuoted;
            continue;
        }
        isClosed = false;
        if (!isQuoted && (byte == ',' || byte == '\n')) {
            appendTabbed(out, field);
            field.clear();
            out += byte == ',' ? '\t' : '\n';
        } else {
            field += byte;
        }
    }
    appendTabbed(out, field);
    return QString::fromUtf8(out);
}
