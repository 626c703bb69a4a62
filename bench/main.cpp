#include "ratioreporter.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstring>
#include <vector>

/// Runs the benchmarks, each seven times in mixed order unless told otherwise, so that a busy
/// moment of the machine does not fall on one side of a pair alone.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // windows are painted, none is shown
    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules("*.debug=false");
    char repetitions[] = "--benchmark_repetitions=7";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments { argv[0], repetitions, interleaving };
    arguments.insert(arguments.end(), argv + 1, argv + argc); // later ones count
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return 0;
}
