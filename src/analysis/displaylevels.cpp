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

/// Whether levels come in runs that are worth finding: far fewer of them than bins, and only
/// rising.
bool comesInRuns(double scale, uint binCount)
{
    return scale >= 0.0 && binCount > 4096;
}

/// Calls visit(first bin, bins, level) for each level's run of bins until it returns false. Returns
/// whether every run was visited.
template <class Visit>
bool forEachRun(double scale, uint binCount, Visit visit)
{
    uint bin = 0;
    while (bin < binCount) {
        const uint next = nextLevelStart(bin, binCount, scale);
        if (!visit(bin, size_t(next - bin), displayLevel(bin, scale))) {
            return false;
        }
        bin = next;
    }
    return true;
}

/// Whether each of `count` bytes, at least one, is `byte`: the first one is, and each is the same
/// as the one before it.
bool isFilledWith(const uchar* bytes, size_t count, uchar byte)
{
    return bytes[0] == byte && std::memcmp(bytes, bytes + 1, count - 1) == 0;
}

} // namespace

void buildDisplayLevels(double scale, uchar* levels, uint binCount)
{
    if (comesInRuns(scale, binCount)) {
        forEachRun(scale, binCount, [levels](uint first, size_t count, uchar level) {
            std::memset(levels + first, level, count);
            return true;
        });
        return;
    }
    for (uint bin = 0; bin < binCount; ++bin) {
        levels[bin] = displayLevel(bin, scale);
    }
}

bool holdsDisplayLevels(double scale, const uchar* levels, uint binCount)
{
    if (comesInRuns(scale, binCount)) {
        return forEachRun(scale, binCount, [levels](uint first, size_t count, uchar level) {
            return isFilledWith(levels + first, count, level);
        });
    }
    for (uint bin = 0; bin < binCount; ++bin) {
        if (levels[bin] != displayLevel(bin, scale)) {
            return false;
        }
    }
    return true;
}
