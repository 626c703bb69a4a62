#pragma once

#include "canvas/imagelayoutitem.h"
#include "plots/gradientcolorlayoutitem.h"
#include "plots/intensitycurveaxisitem.h"
#include "plots/intensitycurvehorizontal.h"
#include "plots/intensitycurvevertical.h"
#include "plots/rulerbarhorizontal.h"
#include "plots/rulerbarvertical.h"
#include "support/recordingpaintdevice.h"
#include "support/sampleframes.h"
#include "widget/cvkintensitymdiwidget.h"

#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QPainter>
#include <QPushButton>
#include <QtTest>

#include <vector>

/// The host with its parts, as the scene and the object names give them.
struct Host
{
    Host()
        : view(widget.findChild<QGraphicsView*>())
        , scene(view->scene())
        , zoomIn(widget.findChild<QPushButton*>("tool_Zoom_In"))
        , zoomOut(widget.findChild<QPushButton*>("tool_Zoom_Out"))
        , image(widget.imageItem())
        , readout(item<QGraphicsTextItem>())
        , leftCurve(item<IntensityCurveVertical>())
        , bottomCurve(item<IntensityCurveHorizontal>())
        , leftRuler(item<RulerBarVertical>())
        , bottomRuler(item<RulerBarHorizontal>(0))
        , grayRuler(item<RulerBarHorizontal>(1))
        , colorBar(item<GradientColorLayoutItem>())
        , rowChart(chart(0))
        , columnChart(chart(1))
    {
    }

    /// The scene's `index`th item of a type, in the order in which the items were added.
    template <class Item>
    Item* item(int index = 0) const
    {
        QVector<Item*> found;
        const QList<QGraphicsItem*> items = scene->items(Qt::AscendingOrder);
        for (QGraphicsItem* const candidate : items) {
            if (auto* const wanted = dynamic_cast<Item*>(candidate)) {
                found.append(wanted);
            }
        }
        return found.value(index);
    }

    /// The items of one 2D chart.
    struct Chart
    {
        IntensityCurveAxisItem* curve;
        RulerBarVertical* valueRuler;
        RulerBarHorizontal* pixelRuler;
    };

    /// 0: of the row, 1: of the column.
    Chart chart(int index) const
    {
        return { item<IntensityCurveAxisItem>(index), item<RulerBarVertical>(1 + index),
            item<RulerBarHorizontal>(2 + index) };
    }

    void click(const QPointF& scenePosition)
    {
        QTest::mouseClick(
            view->viewport(), Qt::LeftButton, Qt::NoModifier, view->mapFromScene(scenePosition));
    }

    /// Presses the left button at a place of the scene and moves the pointer by `step` from there.
    void drag(const QPointF& scenePosition, const QPoint& step)
    {
        QWidget* const viewport = view->viewport();
        const QPoint start = view->mapFromScene(scenePosition);
        QCursor::setPos(viewport->mapToGlobal(start));
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, start);
        const QPoint end = start + step;
        QCursor::setPos(viewport->mapToGlobal(end));
        QMouseEvent move(QEvent::MouseMove, end, viewport->mapToGlobal(end), Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, end);
    }

    QStringList paintedTexts()
    {
        RecordingPaintDevice recorded;
        QPainter painter(&recorded);
        scene->render(&painter);
        return recorded.texts();
    }

    QWidget window; // the host is made to be a child widget
    CVKIntensityMdiWidget widget { &window };
    QGraphicsView* view;
    QGraphicsScene* scene;
    QPushButton* zoomIn;
    QPushButton* zoomOut;
    ImageLayoutItem* image;
    QGraphicsTextItem* readout;
    IntensityCurveVertical* leftCurve;
    IntensityCurveHorizontal* bottomCurve;
    RulerBarVertical* leftRuler;
    RulerBarHorizontal* bottomRuler;
    RulerBarHorizontal* grayRuler;
    GradientColorLayoutItem* colorBar;
    Chart rowChart;
    Chart columnChart;
};

/// A connection that exists while an image is loaded.
struct Row
{
    const QObject* sender;
    const char* signal;
    const QObject* receiver;
    const char* slot;
};

inline QVector<Row> imageViewRows(Host& host)
{
    const ImageIntensityAnalysis* const engine = host.widget.analysis();
    return {
        { host.image, SIGNAL(changeAnchorPosition(QPointF)), host.leftCurve,
            SLOT(changedAnchorPosition(QPointF)) },
        { host.image, SIGNAL(changeAnchorPosition(QPointF)), host.bottomCurve,
            SLOT(changedAnchorPosition(QPointF)) },
        { host.image, SIGNAL(changeImageSize(QSize)), host.bottomRuler,
            SLOT(changedActualSize(QSize)) },
        { host.image, SIGNAL(changeDrawRect(QRectF)), host.bottomRuler,
            SLOT(changedActualRect(QRectF)) },
        { host.image, SIGNAL(changeImageSize(QSize)), host.leftRuler,
            SLOT(changedActualSize(QSize)) },
        { host.image, SIGNAL(changeDrawRect(QRectF)), host.leftRuler,
            SLOT(changedActualRect(QRectF)) },
        { host.leftCurve, SIGNAL(scrollDistance(int)), host.image,
            SLOT(scrollDistanceVertical(int)) },
        { host.bottomCurve, SIGNAL(scrollDistance(int)), host.image,
            SLOT(scrollDistanceHorizontal(int)) },
        { engine, SIGNAL(updateImage()), host.image, SLOT(updateImage()) },
        { host.colorBar, SIGNAL(changeColors(QVector<QColor>)), engine,
            SLOT(changedColors(QVector<QColor>)) },
        { host.image, SIGNAL(changeDrawRect(QRectF)), engine, SLOT(changedDrawRect(QRectF)) },
        { host.image, SIGNAL(changeAnchorImagePosition(QPointF)), engine,
            SLOT(changedAnchorPosition(QPointF)) },
        { engine, SIGNAL(updateLineVertical(uchar*, int, int, int)), host.leftCurve,
            SLOT(updateCurve(uchar*, int, int, int)) },
        { engine, SIGNAL(updateLineHorizontal(uchar*, int, int, int)), host.bottomCurve,
            SLOT(updateCurve(uchar*, int, int, int)) },
        { host.image, SIGNAL(changeAnchorImagePosition(QPointF)), &host.widget,
            SLOT(changedAnchorImagePosition(QPointF)) },
        { &host.image->rectangles, SIGNAL(updateSelectedRoi(int, QRectF)), engine,
            SLOT(changedIntensityRoi(int, QRectF)) },
        { host.zoomIn, SIGNAL(clicked()), host.image, SLOT(zoomIn()) },
        { host.zoomOut, SIGNAL(clicked()), host.image, SLOT(zoomOut()) },
    };
}

inline QVector<Row> chartRows(Host& host, const Host::Chart& chart, const char* lineSignal)
{
    const ImageIntensityAnalysis* const engine = host.widget.analysis();
    return {
        { host.image, SIGNAL(changeImageSize(QSize)), chart.pixelRuler,
            SLOT(changedActualSize(QSize)) },
        { host.image, SIGNAL(changeDrawRect(QRectF)), chart.pixelRuler,
            SLOT(changedActualRect(QRectF)) },
        { engine, lineSignal, chart.curve, SLOT(updateCurve(uchar*, int)) },
        { engine, SIGNAL(updateLineValueRange(qreal, qreal)), chart.valueRuler,
            SLOT(changedShowValueRange(qreal, qreal)) },
        { chart.curve, SIGNAL(changeAnchorPosition(bool, int)), &host.widget,
            SLOT(changedAnchorImagePosition(bool, int)) },
    };
}

/// Of the image view, the row's chart and the column's chart, in this order.
inline QVector<Row> loadedImageRows(Host& host)
{
    return imageViewRows(host)
        + chartRows(host, host.rowChart, SIGNAL(updateLineHorizontal(uchar*, int)))
        + chartRows(host, host.columnChart, SIGNAL(updateLineVertical(uchar*, int)));
}

inline QVector<QColor> ramp(int red, int green, int blue)
{
    QVector<QColor> colors;
    for (int i = 0; i < 256; ++i) {
        colors.append(QColor(i * red / 255, i * green / 255, i * blue / 255));
    }
    return colors;
}

/// Writes a frame of 512 x 512 pixels of 16 bits: 1000 + x in every row, but 5000 in the whole of
/// row 128.
inline bool writeSquareFrame(const QString& path)
{
    std::vector<quint16> square(512 * 512);
    for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 512; ++x) {
            square[size_t(y * 512 + x)] = quint16(y == 128 ? 5000 : 1000 + x);
        }
    }
    return writeRawFile(path, rawFile(512, 512, 1, 2, bytesOf(square)));
}

/// Shows the host 1000 x 800 large with the frame.
inline void openFrame(Host& host, const QString& path)
{
    host.window.resize(1100, 900);
    host.widget.resize(1000, 800);
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
    QVERIFY(host.widget.loadImage(path));
}
