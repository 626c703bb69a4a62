#pragma once

#include "messages.h"
#include "options.h"
#include "orderedoutput.h"
#include "regionlist.h"

#include <atomic>

/// Measures all files that the options name and writes the results in the order of the arguments.
class MeasureRun
{
public:
    /// `write` gets whole lines wherever they are short. An interruption ends the run behind a
    /// whole line.
    MeasureRun(const MeasureOptions& options, OrderedOutput::Write write,
        const std::atomic<bool>& isInterrupted, Messages& messages);

    /// Exit status: 0, 1 when some files were refused or nothing more can be written, 2 for a
    /// region file that cannot be read.
    int run();

private:
    bool readRegions();
    void listFiles();
    void measureFiles();
    void measureFile(int number);
    void refuse(const QString& path, const QString& reason);
    QString lineProblem(const QSize& size) const;

    const MeasureOptions m_options;
    const OrderedOutput::Write m_write;
    Messages& m_messages;
    RegionList m_regions;
    QStringList m_files;
    OrderedOutput m_output;
    std::atomic<int> m_next { 0 }; ///< file that no thread has taken yet
    std::atomic<int> m_done { 0 };
    std::atomic<bool> m_hasRefused { false };
};
