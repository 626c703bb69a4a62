#pragma once

#include "analysis/displaylevels.h"
#include "analysis/roistatistics.h"

#include <QRect>
#include <QVector>

#include <functional>
#include <optional>

class ImageData;

/// Numbers of any part of a one-channel image, from the same arithmetic as those of the regions of
/// interest and of the lines through the anchor. Coordinates are image pixels. Nothing is answered
/// without pixels, for a depth other than 8, 16 and 32, and for a part that is empty or does not
/// lie inside the image.

/// Whether `rect` holds a pixel and lies inside an image of this size.
bool isInsideImage(const QRect& rect, const ImageData& image);

std::optional<RoiStatistics> rectStatistics(const ImageData& image, const QRect& rect);

/// mean / deviation; not a number for a deviation of 0.
double signalToNoise(const RoiStatistics& statistics);

/// Smallest and largest value, as rectStatistics() finds them.
std::optional<SampleRange> rectRange(const ImageData& image, const QRect& rect);

/// Counts of the values from `first` on up to the largest one.
struct ValueHistogram
{
    uint first = 0;
    QVector<uint> counts;
};

/// Nothing for more than 2^26 different values.
std::optional<ValueHistogram> rectHistogram(const ImageData& image, const QRect& rect);

/// The same counts in blocks of consecutive values, for callers that pass them on: takes no more
/// memory than a block, of which there are a few at most. `range` is that of the rectangle. Returns
/// whether there are counts; `visit` is called from the first block on.
using CountVisitor = std::function<void(const uint* counts, qint64 valueCount)>;
bool forEachCountBlock(
    const ImageData& image, const QRect& rect, const SampleRange& range, const CountVisitor& visit);

/// The samples of a row from left to right, or of a column from top to bottom; empty outside.
QVector<uint> rowValues(const ImageData& image, int y);
QVector<uint> columnValues(const ImageData& image, int x);

/// The display levels of an image whose values have this range; nothing for the full range of 32
/// bits, whose number of values is none.
std::optional<DisplayLevels> displayLevels(const SampleRange& range);

/// The display levels of `values`.
QVector<uchar> levelsOf(const QVector<uint>& values, const DisplayLevels& levels);
