#pragma once

#include <QRect>
#include <QtGlobal>

#include <algorithm>

/// The samples of a region of interest as runs of indices, one a row. A corner outside the image is
/// allowed: an index inside the allocation then names a pixel of the next or the previous row, one
/// outside it is left out.
struct RoiRows
{
    QRect roi; ///< inclusive corners, in image pixels
    int width = 0; ///< samples per image row
    qint64 sampleCount = 0; ///< samples in the allocation

    /// Rows x columns as the corners give them, with the samples that are left out. Negative or 0
    /// for a region without pixels.
    qint64 pixelCount() const
    {
        const qint64 rows = qint64(roi.bottom()) - roi.top() + 1;
        const qint64 columns = qint64(roi.right()) - roi.left() + 1;
        return rows * columns;
    }

    /// Calls visit(first index, count) for each row that has samples, top first.
    template <class Visit>
    void forEach(Visit visit) const
    {
        if (width < 1 || sampleCount < 1 || roi.right() < roi.left()) {
            return;
        }
        // Rows whose right end reaches the first sample and whose left end the last one.
        const qint64 top = std::max<qint64>(roi.top(), -floorQuotient(roi.right(), width));
        const qint64 bottom
            = std::min<qint64>(roi.bottom(), floorQuotient(sampleCount - 1 - roi.left(), width));
        for (qint64 row = top; row <= bottom; ++row) {
            const qint64 first = std::max<qint64>(row * width + roi.left(), 0);
            const qint64 end = std::min<qint64>(row * width + roi.right() + 1, sampleCount);
            visit(first, end - first);
        }
    }

private:
    /// a / b rounded down; b above 0.
    static qint64 floorQuotient(qint64 a, qint64 b) { return a / b - (a % b < 0 ? 1 : 0); }
};
