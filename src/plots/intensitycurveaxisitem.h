#pragma once

#include "canvas/crossitem.h"
#include "plots/columnmap.h"
#include "plots/intensitycurvelayoutitem.h"
#include "analysis/peakdetection.h"
#include "base/valuerange.h"

/// Large chart of one whole profile that never loses a peak, however many samples share a column.
/// Finds the peaks, marks the strongest with ticks and stacked labels, and lets the user pick a
/// sample with the left button.
///
/// While it is hidden nothing is computed: what it holds stays until the next rebuild.
class IntensityCurveAxisItem : public IntensityCurveLayoutItem
{
    Q_OBJECT

public:
    explicit IntensityCurveAxisItem(QGraphicsItem* parent);

    /// Finds the peaks and builds ticks, column map and polyline. Only with samples and while the
    /// item is visible.
    void rebuildCurve() override;

    /// 10 shown peaks, hidden, full scale at 255 levels; shows at the next rebuild.
    void resetPeaks();

    /// Picks the sample in the middle column.
    void centerAnchor();

    int anchorIndex() const { return m_anchorIndex; }
    const QVector<QLineF>& peakTicks() const { return m_peakTicks; }
    const QVector<int>& columnMap() const { return m_columnMap; }
    const QVector<Peak>& peaks() const { return m_detected.peaks; }
    int shownPeaks() const { return m_shownPeaks; }
    bool arePeaksShown() const { return m_showPeaks; }
    double rangeStart() const { return m_range.start; }
    double rangeEnd() const { return m_range.end; }

Q_SIGNALS:
    /// Sample `position` was picked; `isHorizontal` is the reversed flag. The receiver may delete
    /// the item.
    void changeAnchorPosition(bool isHorizontal, int position);

public Q_SLOTS:
    /// How many peaks get ticks and labels, limited to 1 .. peakCapacity.
    void changedMaxPeaksCount(int count);
    void changedShowPeaksState(bool isShow);
    /// Calibrated values at sample 0 and at the index equal to the sample count; a negative one
    /// means none.
    void changedShowValueRange(qreal, qreal);

protected:
    void sizeChanged() override;
    void drawAnchor(QPainter* painter) override;
    void emitDragScroll(const QPointF& current) override;
    void constrainDrag(const QPointF& pressed, QPointF& current) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;

private:
    LevelAxis levelAxis() const;
    uchar sampleAt(int index) const;
    void detect();
    bool makeRoom(const DetectedPeaks& found, QByteArray& detectedSamples);
    void rebuildTicks();
    void pick(double x);
    void placeCross();
    void moveCross(double x, double y);
    void layOutLabels(const QFont& font);
    void drawLabels(QPainter* painter, double lineHeight);

    int m_anchorIndex = 0;
    CrossItem m_cross; ///< marks the picked point
    QVector<int> m_columnMap; ///< the sample that each column shows; -1 before the first rebuild
    int m_shownPeaks = 10;
    bool m_showPeaks = false;
    DetectedPeaks m_detected;
    QByteArray m_detectedSamples; ///< those that m_detected belongs to
    QVector<QLineF> m_peakTicks;
    QStringList m_labels; ///< of the first peaks, as last laid out
    ValueRange m_range;
};
