#pragma once

#include <QString>

class ImageData;

/// How a pixel number is shown along one axis: number x scale + offset, with `decimals` decimals.
struct ReadoutAxis
{
    int decimals = 0;
    double scale = 1.0;
    double offset = 0.0;
};

/// What the read-out says of one pixel.
struct ReadoutPixel
{
    int x = 0; ///< column
    int row = 0; ///< row of the sample, counted from the top
    double shownY = 0.0; ///< row number as shown
};

/// The pixel (`x`, `y`) of an image of `height` rows as the image view shows it: rows are counted
/// upward from the bottom one.
ReadoutPixel imageViewPixel(int x, int y, int height);

/// The pixel (`x`, `y`) as the chart of a column shows it: rows are counted upward from the bottom
/// one already.
ReadoutPixel columnChartPixel(int x, int y, int height);

/// The axis of `extent` pixels under a ruler that reads `start` at pixel 0 and `end` times `zoom`
/// at the far end, with `decimals` decimals. Plain pixel numbers when either end is negative or the
/// image has no extent.
ReadoutAxis rulerAxis(int start, int end, int decimals, double zoom, int extent);

/// Two lines, "X:.. Y:.." and "Data:..", for `pixel` of the grey image `image`. Column and row are
/// limited to 0 .. width and 0 .. height.
/// Deliberate: not to width - 1 and height - 1, so x = width reads the first pixel of the next row.
QString readoutText(const ReadoutPixel& pixel, const ImageData& image, const ReadoutAxis& xAxis,
    const ReadoutAxis& yAxis);
