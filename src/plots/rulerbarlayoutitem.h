#pragma once

#include "canvas/componentitem.h"
#include "plots/rulerscale.h"
#include "base/valuerange.h"

#include <QGraphicsLayoutItem>
#include <QRect>
#include <QSize>

/// Ruler with round-numbered ticks, labels and a title. Measures the image pixels of one axis, or,
/// once it has a value range, labels them in calibrated values. Holds what is measured and what to
/// draw; the subclasses say which axis and which edge.
class RulerBarLayoutItem : public ComponentItem, public QGraphicsLayoutItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsLayoutItem)

public:
    RulerBarLayoutItem(const QString& title, QGraphicsItem* parent);
    ~RulerBarLayoutItem() override;

    /// Decimals of calibrated labels, limited to 0 .. 2; shows at the next rebuild.
    void setLabelPrecision(int precision);
    int labelPrecision() const { return m_labelPrecision; }

    /// Headroom factor of a value axis; below 1 and NaN count as 1.
    void setZoom(double zoom);
    double zoom() const { return m_span.zoom; }

    /// Writes the stored range, each end truncated toward zero and limited to what an int holds; -1
    /// means there is none. Null pointers are ignored.
    void getValueRange(int* start, int* end) const;

    /// Lets the ruler measure the image's other axis. Set right after construction: what has been
    /// taken from the image before stays.
    void setCrossAxis(bool crossAxis) { m_crossAxis = crossAxis; }

    /// Every tick line, in build order.
    const QVector<QLineF>& ticks() const { return m_ticks; }
    /// The ticks that carry a label, and one text for each.
    const QVector<QLineF>& labelledTicks() const { return m_labelledTicks; }
    const QStringList& labels() const { return m_labels; }

    /// Also moves the item and rebuilds steps and ticks.
    void setGeometry(const QRectF& rect) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;

public Q_SLOTS:
    /// Size of the whole image, in pixels; shows at the next rebuild.
    void changedActualSize(QSize size);
    /// The part of the image that is shown, in image pixels; rounded. A rectangle without a pixel
    /// along the measured axis leaves the ruler without ticks until the next good one.
    void changedActualRect(QRectF rect);
    void changedTitleName(QString title);
    /// Calibrated values at unit 0 (start) and at the unit equal to the count (end); a negative
    /// one means none.
    void changedShowValueRange(qreal, qreal);

protected:
    virtual void updateCount() = 0;
    virtual void updateVisibleSpan() = 0;
    virtual void rebuildTicks() = 0;
    virtual void computeSteps() = 0;
    virtual void drawTitle(QPainter* painter) = 0;
    virtual void drawLabels(QPainter* painter) = 0;

    void drawContents(QPainter* painter) override;

    /// Keeps `built` and makes its labels.
    void storeTicks(const RulerTicks& built);

    /// Baseline origin of a label `textSize` large whose tick ends at `tickEnd`.
    using LabelOrigin = QPoint (*)(const QPointF& tickEnd, const QSizeF& textSize);
    /// Draws every label where `origin` puts it.
    void drawLabelsAt(QPainter* painter, LabelOrigin origin) const;

    /// Sets the title's pixel size on the painter's font and answers the font.
    static QFont useTitleFont(QPainter* painter);
    /// Width of `text`, height of a line.
    static QSizeF textSize(const QFont& font, const QString& text);

    QString m_title;
    RulerSteps m_steps;
    RulerSpan m_span;
    QSize m_imageSize { 400, 400 }; ///< the whole measured image, in pixels
    QRect m_visibleRect { 0, 0, 400, 400 }; ///< the part of it that is shown
    bool m_crossAxis = false;
    int m_count = 400; ///< units along the measured axis

private:
    QVector<QLineF> m_ticks;
    QVector<QLineF> m_labelledTicks;
    QStringList m_labels;
    ValueRange m_range;
    int m_labelPrecision = 1;
};
