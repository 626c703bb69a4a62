#include "ratioreporter.h"

#include "panel/cvkdatahistogram.h"

#include <QImage>

#include <algorithm>
#include <vector>

namespace {

constexpr int binCount = 65536;
constexpr int repaintCount = 200; // one takes too little time to be measured

/// Counts of a 16-bit camera frame: a peak near the dark end and a long tail.
std::vector<uint> cameraCounts()
{
    std::vector<uint> counts(binCount);
    for (int i = 0; i < binCount; ++i) {
        counts[size_t(i)] = uint(67108864 / (i * 8 + 100)) + uint(i * 7919 % 31);
    }
    return counts;
}

/// The panel with a scan of all counts at every paint, for smallest and largest as signed numbers.
class ScanningPanel : public CVKDataHistogram
{
public:
    explicit ScanningPanel(const std::vector<uint>& counts)
        : m_counts(counts)
    {
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        int smallest = int(m_counts.front());
        int largest = smallest;
        for (const uint count : m_counts) {
            smallest = std::min(smallest, int(count));
            largest = std::max(largest, int(count));
        }
        benchmark::DoNotOptimize(smallest);
        benchmark::DoNotOptimize(largest);
        CVKDataHistogram::paintEvent(event);
    }

private:
    const std::vector<uint>& m_counts;
};

/// Repaints of the panel alone, without the controls on it.
void measureRepaints(benchmark::State& state, CVKDataHistogram& panel, std::vector<uint>& counts)
{
    panel.resize(290, 450);
    panel.updateRoiIntensityHistogram(counts.data(), binCount, 0, binCount - 1);
    QImage image(panel.size(), QImage::Format_RGB32);
    panel.render(&image);
    for (auto _ : state) {
        for (int i = 0; i < repaintCount; ++i) {
            panel.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        }
    }
}

void measurePlain(benchmark::State& state)
{
    std::vector<uint> counts = cameraCounts();
    ScanningPanel panel(counts);
    measureRepaints(state, panel, counts);
}

void measureFast(benchmark::State& state)
{
    std::vector<uint> counts = cameraCounts();
    CVKDataHistogram panel;
    measureRepaints(state, panel, counts);
}

const bool pairsAdded = [] {
    addPair("histogram panel repaint with 65536 bins", 0.5, measurePlain, measureFast);
    return true;
}();

} // namespace
