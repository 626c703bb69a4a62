#include "measurerun.h"

#include "formats/imagefolder.h"
#include "measuredimage.h"
#include "writers.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <new>
#include <thread>
#include <vector>

namespace {

/// A record up to this size is used again for the next file, whose pixels need no fresh memory
/// then; a larger one is freed first, so that two never lie in memory at the same time.
constexpr qint64 largestKeptBytes = 16 << 20;

qint64 pixelBytes(const MeasurementSource& source)
{
    return qint64(source.size.width()) * source.size.height() * source.bits / 8;
}

} // namespace

MeasureRun::MeasureRun(const MeasureOptions& options, OrderedOutput::Write write,
    const std::atomic<bool>& isInterrupted, Messages& messages)
    : m_options(options)
    , m_write(write)
    , m_messages(messages)
    , m_regions(options.regions)
    , m_output(write, options.jobs, isInterrupted)
{
}

int MeasureRun::run()
{
    if (!readRegions()) {
        return 2;
    }
    listFiles();
    if (m_options.format == MeasureOptions::Format::Csv && !m_write(csvBegin(m_options))) {
        return 1;
    }
    const int threadCount = std::min(m_options.jobs, int(m_files.size())) - 1;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([this] { measureFiles(); });
    }
    measureFiles();
    for (std::thread& thread : threads) {
        thread.join();
    }
    return m_hasRefused || m_output.hasFailed() ? 1 : 0;
}

bool MeasureRun::readRegions()
{
    if (m_options.regionFile.isEmpty()) {
        return true;
    }
    const QString problem = m_regions.readFile(m_options.regionFile);
    if (!problem.isEmpty()) {
        m_messages.tell("--regions " + m_options.regionFile + ": " + problem);
        return false;
    }
    const QString skipped = m_regions.skippedText();
    if (!skipped.isEmpty()) {
        m_messages.tell(skipped);
    }
    return true;
}

void MeasureRun::listFiles()
{
    for (const QString& path : m_options.paths) {
        const QFileInfo info(path);
        if (!info.isDir()) {
            m_files << path;
            continue;
        }
        const QFileInfoList images = imagesInFolder(path);
        if (images.isEmpty()) {
            refuse(path,
                info.isReadable() ? "this folder holds no images"
                                  : "there is no permission to read this folder");
        }
        for (const QFileInfo& image : images) {
            m_files << image.filePath();
        }
    }
}

/// The work of one thread: takes files until there are none left.
void MeasureRun::measureFiles()
{
    try {
        for (int number = m_next++; number < int(m_files.size()); number = m_next++) {
            if (!m_output.mayStart(number)) {
                return;
            }
            measureFile(number);
            m_messages.showProgress(++m_done, int(m_files.size()));
        }
    } catch (const std::exception&) { // in the middle of a line, or before any
        m_messages.tell("there is not enough memory");
        m_output.fail();
    }
}

void MeasureRun::measureFile(int number)
{
    static thread_local std::unique_ptr<MeasuredImage> image;
    if (!image || pixelBytes(image->source()) > largestKeptBytes) {
        image.reset();
        image = std::make_unique<MeasuredImage>();
    }
    OrderedOutput::Part out(m_output, number);
    try {
        QString problem = image->load(m_files.at(number), m_options.page);
        MeasureTask task { m_options, *image, {} };
        if (problem.isEmpty()) {
            problem = lineProblem(image->source().size);
        }
        if (problem.isEmpty()) {
            task.regions = m_regions.inImage(image->source().size, &problem);
        }
        if (!problem.isEmpty()) {
            refuse(m_files.at(number), problem);
            out.finish();
            return;
        }
        const bool isJson = m_options.format == MeasureOptions::Format::Json;
        for (const QString& note : isJson ? writeJson(task, out) : writeCsv(task, out)) {
            m_messages.tell(m_files.at(number) + ": " + note);
        }
        out.finish();
    } catch (const std::bad_alloc&) {
        image.reset();
        if (!out.discard()) {
            throw;
        }
        refuse(m_files.at(number), "there is not enough memory");
    }
}

void MeasureRun::refuse(const QString& path, const QString& reason)
{
    m_hasRefused = true;
    m_messages.tell(path + ": " + reason);
}

/// Why a row or column that is asked for is not in an image of this size; empty when all are.
QString MeasureRun::lineProblem(const QSize& size) const
{
    for (const int row : m_options.rows) {
        if (row >= size.height()) {
            return QString("there is no row %1 (--row), only %2 from 0")
                .arg(row)
                .arg(size.height());
        }
    }
    for (const int column : m_options.columns) {
        if (column >= size.width()) {
            return QString("there is no column %1 (--column), only %2 from 0")
                .arg(column)
                .arg(size.width());
        }
    }
    return QString();
}
