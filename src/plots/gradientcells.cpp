#include "plots/gradientcells.h"

#include "base/saturate.h"

namespace {

constexpr int equalCells = 32;

} // namespace

QVector<QRectF> gradientCells(const QSizeF& size, int border)
{
    const double cellWidth = truncated(size.width() * 0.03125); // a 32nd
    const double height = truncated(size.height());
    const int leftOver = roundedSize(size).width() % equalCells;
    QVector<QRectF> cells;
    for (int i = 0; i < equalCells; ++i) {
        cells.append(QRectF(i * cellWidth + border, border, cellWidth, height));
    }
    if (leftOver >= 1) {
        cells.append(QRectF(equalCells * cellWidth + border, border, leftOver, height));
    }
    return cells;
}

int colorStep(int colorCount, int cellCount)
{
    // Deliberate: integer division, so that a 33rd cell leaves the end of the palette unshown.
    return cellCount < 1 ? 0 : colorCount / cellCount;
}
