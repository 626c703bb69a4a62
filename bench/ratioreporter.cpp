#include "ratioreporter.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr char plainSuffix[] = "/plain";
constexpr char fastSuffix[] = "/fast";

struct Pair
{
    std::string name;
    double limit;
};

/// In the order of their registration.
std::vector<Pair>& pairs()
{
    static std::vector<Pair> all;
    return all;
}

double median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

} // namespace

void addPair(const std::string& name, double limit, BenchmarkLoop plain, BenchmarkLoop fast)
{
    pairs().push_back({ name, limit });
    for (const auto& [suffix, loop] :
        { std::pair(plainSuffix, plain), std::pair(fastSuffix, fast) }) {
        benchmark::RegisterBenchmark((name + suffix).c_str(), loop)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
    }
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
            m_milliseconds[run.run_name.function_name].push_back(
                run.cpu_accumulated_time * 1e3 / double(run.iterations));
        }
    }
    ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::printRatios()
{
    std::printf("\n%-44s %10s %10s %7s %8s\n", "medians of the processor time", "plain ms",
        "fast ms", "ratio", "at most");
    for (const Pair& pair : pairs()) {
        const double plain = median(m_milliseconds[pair.name + plainSuffix]);
        const double fast = median(m_milliseconds[pair.name + fastSuffix]);
        if (plain <= 0.0 || fast <= 0.0) {
            continue; // filtered out
        }
        const double ratio = fast / plain;
        std::printf("%-44s %10.2f %10.2f %7.3f", pair.name.c_str(), plain, fast, ratio);
        if (pair.limit > 0.0) {
            std::printf(" %8.2f%s", pair.limit, ratio <= pair.limit ? "" : "  missed");
        }
        std::printf("\n");
    }
}
