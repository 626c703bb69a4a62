#include "writers.h"

#include "formats/csvtables.h"
#include "formats/textwriter.h"

namespace {

constexpr int pieceBytes = 64 * 1024;

using Axis = MeasuredProfile::Axis;

/// Writes the lines of one image, in pieces that do not grow with it.
class CsvLines
{
public:
    CsvLines(const MeasureTask& task, OrderedOutput::Part& out)
        : m_task(task)
        , m_out(out)
        , m_begin(csvField(task.image.source().file) + ','
              + QByteArray::number(task.image.source().page) + ',')
    {
    }

    Notes write();

private:
    void writeStatistics();
    void writeHistograms();
    void writeHistogram(const QByteArray& region, const QRect& rect);
    void writeProfiles();
    void writeProfile(Axis axis, int index);
    void writeValues(const QByteArray& begin, const MeasuredProfile& profile);
    void writePeaks(const QByteArray& begin, const QVector<MeasuredPeak>& peaks);
    void endLine();

    const MeasureTask& m_task;
    OrderedOutput::Part& m_out;
    const QByteArray m_begin; ///< of each line: file and page
    TextWriter m_text;
    Notes m_notes;
};

Notes CsvLines::write()
{
    switch (m_task.options.table) {
    case MeasureOptions::Table::Statistics: writeStatistics(); break;
    case MeasureOptions::Table::Histogram: writeHistograms(); break;
    case MeasureOptions::Table::Profiles:
    case MeasureOptions::Table::Peaks: writeProfiles(); break;
    }
    m_out.add(m_text.take());
    return m_notes;
}

void CsvLines::writeStatistics()
{
    const QRect all = m_task.image.rect();
    m_text.text(m_begin + "image," + csvStatistics(m_task.image.statistics(all)));
    endLine();
    for (int i = 0; i < int(m_task.regions.size()); ++i) {
        m_text.text(m_begin + QByteArray::number(i + 1) + ','
            + csvStatistics(m_task.image.statistics(m_task.regions.at(i))));
        endLine();
    }
}

void CsvLines::writeHistograms()
{
    writeHistogram("image", m_task.image.rect());
    for (int i = 0; i < int(m_task.regions.size()); ++i) {
        writeHistogram(QByteArray::number(i + 1), m_task.regions.at(i));
    }
}

void CsvLines::writeHistogram(const QByteArray& region, const QRect& rect)
{
    const QByteArray begin = m_begin + region + ',';
    qint64 value = 0;
    const bool isCounted = m_task.image.histogram(
        rect, [&value](quint32 first) { value = first; },
        [&](const uint* counts, qint64 count) {
            for (qint64 i = 0; i < count; ++i) {
                m_text.text(begin);
                m_text.integer(value++);
                m_text.character(',');
                m_text.integer(counts[i]);
                endLine();
            }
        });
    if (!isCounted) {
        m_notes << "its values span too wide a range for a histogram";
    }
}

void CsvLines::writeProfiles()
{
    for (const int row : m_task.options.rows) {
        writeProfile(Axis::Row, row);
    }
    for (const int column : m_task.options.columns) {
        writeProfile(Axis::Column, column);
    }
}

void CsvLines::writeProfile(Axis axis, int index)
{
    const MeasureOptions& options = m_task.options;
    const MeasuredProfile profile
        = m_task.image.profile(axis, index, options.peakCount, options.calibration);
    const QByteArray begin
        = m_begin + (axis == Axis::Row ? "row," : "column,") + QByteArray::number(index) + ',';
    if (profile.peaks) {
        writePeaks(begin, *profile.peaks);
    } else {
        writeValues(begin, profile);
    }
}

void CsvLines::writeValues(const QByteArray& begin, const MeasuredProfile& profile)
{
    const ProfileScale scale = m_task.image.scale(profile.axis, m_task.options.calibration);
    for (int i = 0; i < int(profile.values.size()); ++i) {
        m_text.text(begin);
        m_text.integer(i);
        m_text.character(',');
        m_text.real(scale.position(i));
        m_text.character(',');
        m_text.integer(profile.values.at(i));
        endLine();
    }
}

void CsvLines::writePeaks(const QByteArray& begin, const QVector<MeasuredPeak>& peaks)
{
    for (const MeasuredPeak& peak : peaks) {
        m_text.text(begin);
        m_text.integer(peak.rank);
        m_text.character(',');
        m_text.integer(peak.pixel);
        m_text.character(',');
        m_text.real(peak.position);
        m_text.character(',');
        m_text.integer(peak.value);
        endLine();
    }
}

void CsvLines::endLine()
{
    m_text.character('\n');
    if (m_text.size() >= pieceBytes) {
        m_out.add(m_text.take());
    }
}

/// The header line of a table of the formats without lines.
QByteArray tableHeader(const MeasureOptions& options)
{
    const QString unit = options.calibration ? options.calibration->unit : QString();
    switch (options.table) {
    case MeasureOptions::Table::Statistics: break;
    case MeasureOptions::Table::Histogram: return "region," + csvHistogram(MeasuredHistogram());
    case MeasureOptions::Table::Profiles:
        return "axis,index," + csvProfile(MeasuredProfile(), unit);
    case MeasureOptions::Table::Peaks: return "axis,index," + csvPeaks({}, unit);
    }
    return csvRegions({});
}

} // namespace

Notes writeCsv(MeasureTask task, OrderedOutput::Part& out)
{
    return CsvLines(task, out).write();
}

QByteArray csvBegin(const MeasureOptions& options)
{
    return csvPreamble(MeasurementSource(), options.calibration) + "file,page,"
        + tableHeader(options);
}
