#include "plainpeaks.h"

#include <algorithm>

namespace plain {

namespace {

constexpr size_t enoughPeaks = 200;

bool isMaximum(const uchar* samples, int i, int k)
{
    return samples[i] > samples[i - k] && samples[i] > samples[i + k];
}

} // namespace

Peaks detectPeaks(const uchar* samples, int count)
{
    const int scales = int(count * 0.5 + 0.5);
    std::vector<int> rowSums(size_t(scales), 0);
    for (int k = 1; k < scales; ++k) {
        for (int i = k; i < count - k; ++i) {
            if (isMaximum(samples, i, k)) {
                --rowSums[size_t(k)];
            }
        }
    }
    int scale = 0;
    for (int k = 1; k < scales; ++k) {
        if (rowSums[size_t(k)] < rowSums[size_t(scale)]) {
            scale = k;
        }
    }
    std::vector<int> counts(size_t(count), 0);
    for (int k = 1; k < std::min(scale + 1, count); ++k) {
        for (int i = k; i < count - k; ++i) {
            if (isMaximum(samples, i, k)) {
                ++counts[size_t(i)];
            }
        }
    }
    Peaks found { scale, rowSums[size_t(scale)], {} };
    int level = scale;
    do {
        const auto first = std::ptrdiff_t(found.peaks.size());
        for (int i = 0; i < count; ++i) {
            if (counts[size_t(i)] == level) {
                found.peaks.push_back({ i, samples[i] });
            }
        }
        std::stable_sort(found.peaks.begin() + first, found.peaks.end(),
            [](const Peak& a, const Peak& b) { return a.value > b.value; });
        --level;
    } while (found.peaks.size() < enoughPeaks && level >= 1);
    return found;
}

} // namespace plain
