#pragma once

#include <QRectF>
#include <QSizeF>
#include <QVector>

/// Cells of a colour bar of `size`, left to right inside a frame of `border`, in item units: 32 of
/// equal whole-number width, and a last narrow one when whole units are left over.
QVector<QRectF> gradientCells(const QSizeF& size, int border);

/// How far apart in the palette the colours of neighbouring cells lie: cell i shows colour
/// i * step. 0 with fewer colours than cells, and without cells.
int colorStep(int colorCount, int cellCount);
