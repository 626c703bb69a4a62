#include "support/recordingpaintdevice.h"

#include <QPaintEngine>
#include <QPainterPath>

class RecordingPaintEngine : public QPaintEngine
{
public:
    explicit RecordingPaintEngine(RecordingPaintDevice* device)
        : QPaintEngine(QPaintEngine::AllFeatures)
        , m_device(device)
    {
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& changed) override
    {
        if (changed.state() & DirtyPen) {
            m_pen = changed.pen();
        }
        if (changed.state() & DirtyBrush) {
            m_brush = changed.brush();
        }
        if (changed.state() & DirtyTransform) {
            m_transform = changed.transform();
        }
    }

    void drawLines(const QLineF* lines, int count) override
    {
        for (int i = 0; i < count; ++i) {
            append(RecordingPaintDevice::Line).line = lines[i];
        }
    }

    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            append(RecordingPaintDevice::Rect).rect = rects[i];
        }
    }

    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override
    {
        RecordingPaintDevice::Entry& entry = append(RecordingPaintDevice::Pixmap);
        entry.rect = target;
        entry.source = source;
        entry.pixmap = pixmap;
    }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        RecordingPaintDevice::Entry& entry = append(RecordingPaintDevice::Text);
        entry.position = position;
        entry.text = item.text();
        entry.font = item.font();
    }

    void drawPath(const QPainterPath& path) override
    {
        append(RecordingPaintDevice::Path).rect = path.boundingRect();
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode) override
    {
        QPolygonF polygon;
        for (int i = 0; i < count; ++i) {
            polygon << points[i];
        }
        append(RecordingPaintDevice::Path).rect = polygon.boundingRect();
    }

private:
    RecordingPaintDevice::Entry& append(RecordingPaintDevice::Kind kind)
    {
        RecordingPaintDevice::Entry entry;
        entry.kind = kind;
        entry.pen = m_pen;
        entry.brush = m_brush;
        entry.transform = m_transform;
        m_device->m_entries.append(entry);
        return m_device->m_entries.last();
    }

    RecordingPaintDevice* m_device;
    QPen m_pen;
    QBrush m_brush;
    QTransform m_transform;
};

RecordingPaintDevice::RecordingPaintDevice(const QSize& size)
    : m_size(size)
    , m_engine(new RecordingPaintEngine(this))
{
}

RecordingPaintDevice::~RecordingPaintDevice() = default;

QVector<RecordingPaintDevice::Entry> RecordingPaintDevice::of(Kind kind) const
{
    QVector<Entry> found;
    for (const Entry& entry : m_entries) {
        if (entry.kind == kind) {
            found.append(entry);
        }
    }
    return found;
}

QVector<QLineF> RecordingPaintDevice::lines() const
{
    QVector<QLineF> found;
    for (const Entry& entry : of(Line)) {
        found.append(entry.line);
    }
    return found;
}

QVector<QRectF> RecordingPaintDevice::rects() const
{
    QVector<QRectF> found;
    for (const Entry& entry : of(Rect)) {
        found.append(entry.rect);
    }
    return found;
}

QStringList RecordingPaintDevice::texts() const
{
    QStringList found;
    for (const Entry& entry : of(Text)) {
        found.append(entry.text);
    }
    return found;
}

QPaintEngine* RecordingPaintDevice::paintEngine() const
{
    return m_engine.get();
}

int RecordingPaintDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth: return m_size.width();
    case PdmHeight: return m_size.height();
    case PdmWidthMM: return m_size.width() * 254 / 960;
    case PdmHeightMM: return m_size.height() * 254 / 960;
    case PdmNumColors: return 1 << 24;
    case PdmDepth: return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY: return 96;
    case PdmDevicePixelRatio: return 1;
    case PdmDevicePixelRatioScaled: return int(QPaintDevice::devicePixelRatioFScale());
    }
    return 0;
}
