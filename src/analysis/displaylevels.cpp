#include "analysis/displaylevels.h"

double displayScale(uchar low, uchar high, uint min, uint max)
{
    return double(int(high) - int(low)) / double(max - min);
}

void buildDisplayLevels(double scale, uchar* levels, uint binCount)
{
    for (uint bin = 0; bin < binCount; ++bin) {
        levels[bin] = displayLevel(bin, scale);
    }
}
