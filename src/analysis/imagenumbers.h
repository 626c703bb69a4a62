#pragma once

#include "analysis/displaylevels.h"
#include "analysis/roistatistics.h"

#include <QRect>
#include <QVector>

#include <optional>

class ImageData;

/// Numbers of any part of a one-channel image, from the same arithmetic as those of the regions of
/// interest and of the lines through the anchor. Coordinates are image pixels. Nothing is answered
/// without pixels, for a depth other than 8, 16 and 32, and for a part that is empty or does not
/// lie inside the image.

/// Whether `rect` holds a pixel and lies inside an image of this size.
bool isInsideImage(const QRect& rect, const ImageData& image);

std::optional<RoiStatistics> rectStatistics(const ImageData& image, const QRect& rect);

/// Counts of the values from `first` on up to the largest one.
struct ValueHistogram
{
    uint first = 0;
    QVector<uint> counts;
};

/// Nothing for more than 2^26 different values.
std::optional<ValueHistogram> rectHistogram(const ImageData& image, const QRect& rect);

/// The samples of a row from left to right, or of a column from top to bottom; empty outside.
QVector<uint> rowValues(const ImageData& image, int y);
QVector<uint> columnValues(const ImageData& image, int x);

/// The display levels of `values`.
QVector<uchar> levelsOf(const QVector<uint>& values, const DisplayLevels& levels);
