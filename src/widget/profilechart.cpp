#include "widget/profilechart.h"

#include "canvas/imagelayoutitem.h"
#include "plots/intensitycurveaxisitem.h"
#include "plots/rulerbarhorizontal.h"
#include "plots/rulerbarvertical.h"
#include "widget/canvaslayout.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/placeitem.h"

#include <QGraphicsScene>
#include <QImage>

namespace {
constexpr double peakHeadroom = 1.2; // full scale over the largest level while labels are shown
}

void ProfileChart::build(
    Axis chartAxis, QGraphicsScene* scene, const QString& valueTitle, const QString& pixelTitle)
{
    axis = chartAxis;
    curve = new IntensityCurveAxisItem(nullptr);
    valueRuler = new RulerBarVertical(valueTitle, nullptr);
    pixelRuler = new RulerBarHorizontal(pixelTitle, nullptr);
    valueRuler->changedShowValueRange(0.0, 255.0);
    valueRuler->setLabelPrecision(0);
    curve->setReversed(axis == Column);
    pixelRuler->setCrossAxis(axis == Column);
    scene->addItem(curve);
    scene->addItem(valueRuler);
    scene->addItem(pixelRuler);
}

void ProfileChart::layOut(const QSize& canvas)
{
    const ProfileChartLayout layout = profileChartLayout(canvas);
    placeItem(curve, layout.curve);
    placeItem(pixelRuler, layout.pixelRuler);
    placeItem(valueRuler, layout.valueRuler);
}

void ProfileChart::setVisible(bool visible, const QImage* shownImage)
{
    curve->setVisible(visible);
    valueRuler->setVisible(visible);
    pixelRuler->setVisible(visible);
    if (visible) {
        curve->rebuildCurve(); // it kept what it had while it was hidden
    }
    if (shownImage) {
        pixelRuler->changedActualRect(QRectF(shownImage->rect()));
    }
}

void ProfileChart::reset()
{
    curve->resetPeaks();
    curve->centerAnchor();
}

void ProfileChart::showPeaks(bool isShow)
{
    const double fullScale = isShow ? peakHeadroom : 1.0;
    curve->setValueScale(fullScale);
    curve->rebuildCurve();
    curve->changedShowPeaksState(isShow);
    valueRuler->setZoom(fullScale);
}

QVector<Wire> ProfileChart::wires(const ImageLayoutItem* imageItem,
    const ImageIntensityAnalysis* engine, const CVKIntensityMdiWidget* host) const
{
    const char* const line = axis == Row ? SIGNAL(updateLineHorizontal(uchar*, int))
                                         : SIGNAL(updateLineVertical(uchar*, int));
    return {
        { imageItem, SIGNAL(changeImageSize(QSize)), pixelRuler, SLOT(changedActualSize(QSize)) },
        { imageItem, SIGNAL(changeDrawRect(QRectF)), pixelRuler, SLOT(changedActualRect(QRectF)) },
        { engine, line, curve, SLOT(updateCurve(uchar*, int)) },
        { engine, SIGNAL(updateLineValueRange(qreal, qreal)), //
            valueRuler, SLOT(changedShowValueRange(qreal, qreal)) },
        { curve, SIGNAL(changeAnchorPosition(bool, int)), //
            host, SLOT(changedAnchorImagePosition(bool, int)) },
    };
}
