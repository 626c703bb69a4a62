#include "widget/readout.h"

#include "image/imagedata.h"
#include "base/saturate.h"

#include <QCoreApplication>

#include <algorithm>

ReadoutPixel imageViewPixel(int x, int y, int height)
{
    return ReadoutPixel { x, y, double(height) - 1.0 - y };
}

ReadoutPixel columnChartPixel(int x, int y, int height)
{
    return ReadoutPixel { x, truncated(double(height) - 1.0 - y), double(y) };
}

ReadoutAxis rulerAxis(int start, int end, int decimals, double zoom, int extent)
{
    if (start < 0 || end < 0 || extent < 1) {
        return ReadoutAxis();
    }
    return ReadoutAxis { decimals, (end * zoom - start) / extent, double(start) };
}

QString readoutText(const ReadoutPixel& pixel, const ImageData& image, const ReadoutAxis& xAxis,
    const ReadoutAxis& yAxis)
{
    const int x = std::min(std::max(pixel.x, 0), image.width);
    const int row = std::min(std::max(pixel.row, 0), image.height);
    return QCoreApplication::translate("CVKIntensityMdiWidget", "X:%1  Y:%2\nData:%3")
        .arg(QString::number(x * xAxis.scale + xAxis.offset, 'f', xAxis.decimals),
            QString::number(pixel.shownY * yAxis.scale + yAxis.offset, 'f', yAxis.decimals),
            QString::number(image.pixelValue(x, row)));
}
