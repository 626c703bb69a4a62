#include "frameseries.h"
#include "framecheck.h"

#include <cvkintensitywidget.h>

#include <QApplication>
#include <QEvent>
#include <QGraphicsView>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <vector>

namespace {

constexpr char usage[] = "Usage: vkframes [ROUNDS]      times updateFrame() with painting\n"
                         "       vkframes --write FILE  writes the frames that are shown\n"
                         "       vkframes --check       compares each frame with its raw file\n";

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Milliseconds of processor time, which other programs do not lengthen, from the call of
/// updateFrame() until the window has been painted.
double updateTime(CVKIntensityWidget* intensity, const CVKIntensityWidget::Frame& frame)
{
    const std::clock_t start = std::clock();
    if (!intensity->updateFrame(frame)) {
        return -1.0;
    }
    QApplication::processEvents();
    return 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Prints the median time of a frame and the numbers of the region in the last one.
int measure(CVKIntensityWidget* intensity, const FrameSeries& series, int rounds)
{
    PaintCounter canvas;
    intensity->findChild<QGraphicsView*>()->viewport()->installEventFilter(&canvas);
    std::vector<double> times;
    for (int round = -1; round < rounds; ++round) { // the first one only warms up
        for (int i = 0; i < FrameSeries::count; ++i) {
            const double time = updateTime(intensity, series.frame(i));
            if (round >= 0) {
                times.push_back(time);
            }
        }
    }
    const int frames = (rounds + 1) * FrameSeries::count;
    if (*std::min_element(times.begin(), times.end()) < 0.0 || canvas.count < frames) {
        std::fprintf(stderr, "vkframes: %d of %d frames were painted\n", canvas.count, frames);
        return 1;
    }
    const auto numbers = intensity->statistics(FrameSeries::region());
    std::printf("%.3f %.17g %.17g %u %u\n", median(times), numbers.mean, numbers.deviation,
        numbers.minimum, numbers.maximum);
    return 0;
}

int run(const QStringList& arguments)
{
    const FrameSeries series;
    if (arguments.value(1) == "--write") {
        return series.write(arguments.value(2)) ? 0 : 1;
    }
    CVKIntensityWidget intensity;
    intensity.setAttribute(Qt::WA_DeleteOnClose, false);
    intensity.resize(1280, 800);
    intensity.show();
    QApplication::processEvents();
    if (!intensity.showFrame(series.frame(0)) || !intensity.addRegion(FrameSeries::region())
        || !intensity.setCrossHair(FrameSeries::crossHair())) {
        std::fputs("vkframes: the first frame is not shown\n", stderr);
        return 1;
    }
    if (arguments.value(1) == "--check") {
        return checkFrames(&intensity, series) ? 0 : 1;
    }
    return measure(&intensity, series, std::max(arguments.value(1, "10").toInt(), 1));
}

} // namespace

/// Times frames from memory: 2048 x 2048 pixels of 16 bits, in a window of 1280 x 800 with one
/// region. bench/compare_frames.py runs it next to another widget.
int main(int argc, char* argv[])
{
    if (argc > 1 && std::strcmp(argv[1], "--help") == 0) {
        std::fputs(usage, stdout);
        return 0;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // windows are painted, none is shown
    }
    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules("*.debug=false");
    return run(QApplication::arguments());
}
