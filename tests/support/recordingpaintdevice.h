#pragma once

#include <QBrush>
#include <QFont>
#include <QLineF>
#include <QPaintDevice>
#include <QPen>
#include <QPixmap>
#include <QRectF>
#include <QStringList>
#include <QTransform>
#include <QVector>

#include <memory>

/// A paint device that draws nothing and writes down what it was asked to draw, in order, each
/// with the pen, brush and transform of that moment. Coordinates are as passed to the painter,
/// before the transform.
class RecordingPaintDevice : public QPaintDevice
{
public:
    enum Kind { Line, Rect, Pixmap, Text, Path };

    struct Entry
    {
        Kind kind;
        QLineF line; ///< of a line
        QRectF rect; ///< of a rectangle, or the target of a pixmap
        QRectF source; ///< the part of a pixmap
        QPixmap pixmap;
        QPointF position; ///< baseline origin of a text
        QString text;
        QFont font;
        QPen pen;
        QBrush brush;
        QTransform transform;
    };

    explicit RecordingPaintDevice(const QSize& size = QSize(2000, 2000));
    ~RecordingPaintDevice() override;

    const QVector<Entry>& entries() const { return m_entries; }
    QVector<Entry> of(Kind kind) const;
    QVector<QLineF> lines() const;
    QVector<QRectF> rects() const;
    QStringList texts() const;
    void clear() { m_entries.clear(); }

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    friend class RecordingPaintEngine;
    QSize m_size;
    QVector<Entry> m_entries;
    std::unique_ptr<QPaintEngine> m_engine;
};
