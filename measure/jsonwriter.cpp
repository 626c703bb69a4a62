#include "writers.h"

#include "formats/jsonlines.h"

#include <algorithm>

namespace {

constexpr int pieceBytes = 64 * 1024;
constexpr qint64 countsAtOnce = 16 * 1024;

/// Writes one object, in pieces that do not grow with the image.
class JsonObject
{
public:
    JsonObject(const MeasureTask& task, OrderedOutput::Part& out)
        : m_task(task)
        , m_out(out)
        , m_line(task.image.source())
    {
    }

    Notes write();

private:
    void writeRegions();
    void writeProfiles();
    void writeCounts(const uint* counts, qint64 count);
    void passOn();

    const MeasureTask& m_task;
    OrderedOutput::Part& m_out;
    JsonLineWriter m_line;
    Notes m_notes;
};

Notes JsonObject::write()
{
    MeasuredImage& image = m_task.image;
    m_line.image(image.statistics(image.rect()));
    writeRegions();
    writeProfiles();
    if (m_task.options.wantsHistogram) {
        const bool isCounted = image.histogram(
            image.rect(), [this](quint32 first) { m_line.imageHistogram(first); },
            [this](const uint* counts, qint64 count) { writeCounts(counts, count); });
        if (!isCounted) {
            m_notes << "its values span too wide a range for a histogram";
        }
    }
    m_line.end(m_task.options.calibration);
    m_out.add(m_line.take() + '\n');
    return m_notes;
}

void JsonObject::writeRegions()
{
    for (const QRect& region : m_task.regions) {
        m_line.region(m_task.image.statistics(region));
        if (m_task.options.wantsHistogram) {
            const bool isCounted = m_task.image.histogram(
                region, [this](quint32 first) { m_line.regionHistogram(first); },
                [this](const uint* counts, qint64 count) { writeCounts(counts, count); });
            if (!isCounted) {
                m_notes << "the values of a region span too wide a range for a histogram";
            }
        }
        passOn();
    }
}

void JsonObject::writeProfiles()
{
    const MeasureOptions& options = m_task.options;
    for (const int row : options.rows) {
        m_line.row(m_task.image.profile(
            MeasuredProfile::Axis::Row, row, options.peakCount, options.calibration));
        passOn();
    }
    for (const int column : options.columns) {
        m_line.column(m_task.image.profile(
            MeasuredProfile::Axis::Column, column, options.peakCount, options.calibration));
        passOn();
    }
}

void JsonObject::writeCounts(const uint* counts, qint64 count)
{
    for (qint64 done = 0; done < count; done += countsAtOnce) {
        m_line.counts(counts + done, std::min(countsAtOnce, count - done));
        passOn();
    }
}

void JsonObject::passOn()
{
    if (m_line.size() >= pieceBytes) {
        m_out.add(m_line.take());
    }
}

} // namespace

Notes writeJson(MeasureTask task, OrderedOutput::Part& out)
{
    return JsonObject(task, out).write();
}
