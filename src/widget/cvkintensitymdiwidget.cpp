#include "widget/cvkintensitymdiwidget.h"

#include "canvas/imagelayoutitem.h"
#include "image/saturate.h"
#include "panel/scaledpixels.h"
#include "plots/gradientcolorlayoutitem.h"
#include "plots/intensitycurvehorizontal.h"
#include "plots/intensitycurvevertical.h"
#include "plots/rulerbarhorizontal.h"
#include "plots/rulerbarvertical.h"
#include "widget/canvaslayout.h"
#include "widget/readout.h"

#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QGridLayout>
#include <QImage>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr float zoomButtonPixels = 40.0F; // at 96 dots per inch

/// Resizes an item and hands it its place. The rectangle is the item's size and place in one.
template <class Item>
void place(Item* item, const QRect& rect)
{
    item->setSize(rect.width(), rect.height());
    item->setGeometry(QRectF(rect));
}

} // namespace

CVKIntensityMdiWidget::CVKIntensityMdiWidget(QWidget* parent)
    : QWidget(parent)
    , m_analysis(nullptr)
{
    // Palettes travel through connections made by signature.
    qRegisterMetaType<QVector<QColor>>("QVector<QColor>");
    setAttribute(Qt::WA_DeleteOnClose, true);
    m_background.load(QStringLiteral(":res/skin/mdi_bk.jpg"));
    buildCanvas();
    buildImageView();
}

CVKIntensityMdiWidget::~CVKIntensityMdiWidget()
{
    delete m_scene; // the image item points at the engine's display image: it goes first
}

void CVKIntensityMdiWidget::buildCanvas()
{
    m_scene = new QGraphicsScene();
    m_scene->setBackgroundBrush(QBrush(m_background));
    m_view = new QGraphicsView(m_scene);
    m_view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_view->setContentsMargins(0, 0, 0, 0);
    m_view->setStyleSheet(QStringLiteral("border: 0px;"));
    m_view->horizontalScrollBar()->setEnabled(false);
    m_view->verticalScrollBar()->setEnabled(false);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* const grid = new QGridLayout();
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_view);
    setLayout(grid);

    m_readout = new QGraphicsTextItem();
    QFont font = m_readout->font();
    font.setPixelSize(13);
    m_readout->setFont(font);
    m_readout->setDefaultTextColor(Qt::white);
    m_scene->addItem(m_readout);
}

void CVKIntensityMdiWidget::buildZoomPanel()
{
    const int side = scaledPixels(zoomButtonPixels, primaryDotsPerInch());
    // No text and no icon: the application's style sheet draws the buttons by their object names.
    m_zoomIn = new QPushButton();
    m_zoomIn->setObjectName(QStringLiteral("tool_Zoom_In"));
    m_zoomIn->setToolTip(tr("Zoom In"));
    m_zoomOut = new QPushButton();
    m_zoomOut->setObjectName(QStringLiteral("tool_Zoom_Out"));
    m_zoomOut->setToolTip(tr("Zoom Out"));
    auto* const column = new QVBoxLayout();
    column->setSpacing(1);
    for (QPushButton* const button : { m_zoomIn, m_zoomOut }) {
        button->setFixedSize(side, side);
        column->addWidget(button, 0);
    }
    column->addStretch();
    m_zoomPanel = new QWidget(this);
    m_zoomPanel->setLayout(column);
    m_zoomPanel->adjustSize();
}

void CVKIntensityMdiWidget::buildImageView()
{
    buildZoomPanel();
    m_imageItem = new ImageLayoutItem(m_analysis.displayImage);
    m_leftCurve = new IntensityCurveVertical(nullptr);
    m_bottomCurve = new IntensityCurveHorizontal(nullptr);
    m_leftRuler = new RulerBarVertical(tr(""), nullptr);
    m_bottomRuler = new RulerBarHorizontal(tr("Pixel Number"), nullptr);
    m_colorBar = new GradientColorLayoutItem(nullptr);
    m_grayRuler = new RulerBarHorizontal(tr("Gray"), nullptr);
    m_grayRuler->setLabelPrecision(0);
    updateGrayRange();

    m_scene->addItem(m_imageItem);
    m_scene->addItem(m_bottomCurve);
    m_scene->addItem(m_leftCurve);
    m_scene->addItem(m_bottomRuler);
    m_scene->addItem(m_leftRuler);
    m_scene->addItem(m_colorBar);
    m_scene->addItem(m_grayRuler);
}

/// The connections of the image view, in the order in which they are made.
QVector<CVKIntensityMdiWidget::Wire> CVKIntensityMdiWidget::imageViewWires() const
{
    const ImageIntensityAnalysis* const engine = &m_analysis;
    return {
        { m_imageItem, SIGNAL(changeAnchorPosition(QPointF)), //
            m_leftCurve, SLOT(changedAnchorPosition(QPointF)) },
        { m_imageItem, SIGNAL(changeAnchorPosition(QPointF)), //
            m_bottomCurve, SLOT(changedAnchorPosition(QPointF)) },
        { m_imageItem, SIGNAL(changeImageSize(QSize)), //
            m_bottomRuler, SLOT(changedActualSize(QSize)) },
        { m_imageItem, SIGNAL(changeDrawRect(QRectF)), //
            m_bottomRuler, SLOT(changedActualRect(QRectF)) },
        { m_imageItem, SIGNAL(changeImageSize(QSize)), //
            m_leftRuler, SLOT(changedActualSize(QSize)) },
        { m_imageItem, SIGNAL(changeDrawRect(QRectF)), //
            m_leftRuler, SLOT(changedActualRect(QRectF)) },
        { m_leftCurve, SIGNAL(scrollDistance(int)), //
            m_imageItem, SLOT(scrollDistanceVertical(int)) },
        { m_bottomCurve, SIGNAL(scrollDistance(int)), //
            m_imageItem, SLOT(scrollDistanceHorizontal(int)) },
        { engine, SIGNAL(updateImage()), m_imageItem, SLOT(updateImage()) },
        { m_colorBar, SIGNAL(changeColors(QVector<QColor>)), //
            engine, SLOT(changedColors(QVector<QColor>)) },
        { m_imageItem, SIGNAL(changeDrawRect(QRectF)), engine, SLOT(changedDrawRect(QRectF)) },
        { m_imageItem, SIGNAL(changeAnchorImagePosition(QPointF)), //
            engine, SLOT(changedAnchorPosition(QPointF)) },
        { engine, SIGNAL(updateLineVertical(uchar*, int, int, int)), //
            m_leftCurve, SLOT(updateCurve(uchar*, int, int, int)) },
        { engine, SIGNAL(updateLineHorizontal(uchar*, int, int, int)), //
            m_bottomCurve, SLOT(updateCurve(uchar*, int, int, int)) },
        { m_imageItem, SIGNAL(changeAnchorImagePosition(QPointF)), //
            this, SLOT(changedAnchorImagePosition(QPointF)) },
        { m_zoomIn, SIGNAL(clicked()), m_imageItem, SLOT(zoomIn()) },
        { m_zoomOut, SIGNAL(clicked()), m_imageItem, SLOT(zoomOut()) },
    };
}

bool CVKIntensityMdiWidget::loadImage(const QString& path)
{
    if (!m_imageItem || !m_loaders.load(path, &m_image)) {
        return false;
    }
    m_imageItem->setImage(nullptr); // the engine is about to replace what the item points at
    m_analysis.setImageData(&m_image);
    m_imageItem->setImage(m_analysis.displayImage);
    updateGrayRange();
    // Deliberate: nothing is undone first, so a second load doubles every connection.
    for (const Wire& wire : imageViewWires()) {
        connect(wire.sender, wire.signal, wire.receiver, wire.slot);
    }
    layOutImageView(size());
    m_imageItem->resetAnchor();
    return true;
}

void CVKIntensityMdiWidget::closeImage()
{
    if (!m_image.isLoaded()) {
        return;
    }
    for (const Wire& wire : imageViewWires()) {
        disconnect(wire.sender, wire.signal, wire.receiver, wire.slot);
    }
    m_imageItem->setImage(m_analysis.displayImage);
    m_analysis.setImageData(nullptr);
    m_image.release();
}

void CVKIntensityMdiWidget::updateGrayRange()
{
    m_grayRuler->changedShowValueRange(
        double(m_analysis.histogram.min), double(m_analysis.histogram.max));
}

void CVKIntensityMdiWidget::changedPalette(QVector<QColor> pal)
{
    m_colorBar->changedPalette(pal);
}

void CVKIntensityMdiWidget::changedVerticalRulerTitle(QString title)
{
    m_leftRuler->changedTitleName(title);
}

void CVKIntensityMdiWidget::changedHorizontalRulerTitle(QString title)
{
    m_bottomRuler->changedTitleName(title);
}

void CVKIntensityMdiWidget::changedAnchorImagePosition(QPointF anchor)
{
    const QPoint pixel = roundedPoint(anchor);
    updateReadout(pixel.x(), pixel.y());
}

void CVKIntensityMdiWidget::updateReadout(int x, int y)
{
    if (!m_image.isLoaded()) {
        return;
    }
    m_readout->setPlainText(
        readoutText(imageViewPixel(x, y, m_image.height), m_image, ReadoutAxis(), ReadoutAxis()));
    placeReadout(height());
    update();
}

void CVKIntensityMdiWidget::resizeEvent(QResizeEvent* event)
{
    const QSize canvas = event->size();
    m_view->setFixedSize(canvas);
    m_scene->setSceneRect(0.0, 0.0, canvas.width(), canvas.height());
    layOutImageView(canvas);
    placeReadout(canvas.height());
}

/// Puts the read-out into the bottom left corner of a canvas of `canvasHeight` units. Runs after
/// each text, too: the first one has two lines where there was one, and would reach below the
/// canvas.
void CVKIntensityMdiWidget::placeReadout(int canvasHeight)
{
    m_readout->setPos(0.0, canvasHeight - m_readout->boundingRect().height() - 10.0);
}

void CVKIntensityMdiWidget::layOutImageView(const QSize& canvas)
{
    const QImage* const shown = m_imageItem->image;
    if (!shown || shown->isNull()) {
        return;
    }
    const QSize area = imageAreaSize(canvas, shown->size());
    m_imageItem->setSize(area.width(), area.height());
    const ImageViewLayout layout = imageViewLayout(canvas, roundedSize(m_imageItem->size));
    m_imageItem->setGeometry(QRectF(layout.image));
    place(m_bottomRuler, layout.bottomRuler);
    place(m_leftRuler, layout.leftRuler);
    place(m_bottomCurve, layout.bottomCurve);
    place(m_leftCurve, layout.leftCurve);
    m_colorBar->setSize(layout.image.width(), layout.colorBar.height());
    m_colorBar->setGeometry(QRectF(layout.colorBar));
    place(m_grayRuler, layout.grayRuler);
    m_zoomPanel->move(
        canvas.width() - m_zoomPanel->width(), (canvas.height() - m_zoomPanel->height()) / 2);
}
