#include "analysis/displaylevels.h"

#include <cstring>

double displayScale(uchar low, uchar high, uint min, uint max)
{
    return double(int(high) - int(low)) / double(max - min);
}

namespace {

/// First bin behind `bin` with another level, or binCount. Levels only rise.
uint nextLevelStart(uint bin, uint binCount, double scale)
{
    const uchar level = displayLevel(bin, scale);
    uint same = bin;
    uint other = binCount;
    while (other - same > 1) {
        const uint middle = same + (other - same) / 2;
        (displayLevel(middle, scale) == level ? same : other) = middle;
    }
    return other;
}

/// Far fewer levels than bins: fills each level's run of bins at once.
void buildRuns(double scale, uchar* levels, uint binCount)
{
    uint bin = 0;
    while (bin < binCount) {
        const uint next = nextLevelStart(bin, binCount, scale);
        std::memset(levels + bin, displayLevel(bin, scale), next - bin);
        bin = next;
    }
}

} // namespace

void buildDisplayLevels(double scale, uchar* levels, uint binCount)
{
    if (scale >= 0.0 && binCount > 4096) {
        buildRuns(scale, levels, binCount);
        return;
    }
    for (uint bin = 0; bin < binCount; ++bin) {
        levels[bin] = displayLevel(bin, scale);
    }
}
