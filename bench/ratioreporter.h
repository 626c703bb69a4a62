#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

using BenchmarkLoop = std::function<void(benchmark::State&)>;

/// Registers X/plain and X/fast for `name` X. `limit` is the largest wanted ratio of their times, 0
/// for none.
void addPair(const std::string& name, double limit, BenchmarkLoop plain, BenchmarkLoop fast);

/// Prints every run as usual and, at the end, one line for each pair of benchmarks called X/plain
/// and X/fast: the medians of their processor times and the ratio of the two, with the limit of
/// X, if it has one.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    void printRatios();

private:
    std::map<std::string, std::vector<double>> m_milliseconds; ///< by benchmark name
};
