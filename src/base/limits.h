#pragma once

#include <QtGlobal>

/// Most bins of a histogram, one a value: a range of more values is not counted.
constexpr qint64 histogramBinLimit = qint64(1) << 26;

/// Longest side, in pixels, of anything that is painted on: no surface is larger.
constexpr int surfaceSideLimit = 1 << 20;
