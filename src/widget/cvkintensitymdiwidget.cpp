#include "widget/cvkintensitymdiwidget.h"

#include "analysis/profilenumbers.h"
#include "canvas/imagelayoutitem.h"
#include "base/saturate.h"
#include "base/screenscale.h"
#include "plots/gradientcolorlayoutitem.h"
#include "plots/intensitycurveaxisitem.h"
#include "plots/intensitycurvehorizontal.h"
#include "plots/intensitycurvevertical.h"
#include "plots/rulerbarhorizontal.h"
#include "plots/rulerbarvertical.h"
#include "widget/canvaslayout.h"
#include "widget/placeitem.h"
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

/// The axis of `extent` pixels as a chart's pixel ruler reads it.
ReadoutAxis axisOf(const RulerBarHorizontal& ruler, int extent)
{
    int start = -1;
    int end = -1;
    ruler.getValueRange(&start, &end);
    return rulerAxis(start, end, ruler.labelPrecision(), ruler.zoom(), extent);
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
    m_rowChart.build(ProfileChart::Row, m_scene, tr("Gray"), tr("Pixel Number"));
    m_columnChart.build(ProfileChart::Column, m_scene, tr("Gray"), tr("Pixel Number"));
    applyDisplayMode();
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
QVector<Wire> CVKIntensityMdiWidget::imageViewWires() const
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
        { &m_imageItem->rectangles, SIGNAL(updateSelectedRoi(int, QRectF)), //
            engine, SLOT(changedIntensityRoi(int, QRectF)) },
        { m_zoomIn, SIGNAL(clicked()), m_imageItem, SLOT(zoomIn()) },
        { m_zoomOut, SIGNAL(clicked()), m_imageItem, SLOT(zoomOut()) },
    };
}

/// Every connection that a load makes and a close undoes, in that order.
QVector<Wire> CVKIntensityMdiWidget::loadedImageWires() const
{
    return imageViewWires() + m_rowChart.wires(m_imageItem, &m_analysis, this)
        + m_columnChart.wires(m_imageItem, &m_analysis, this);
}

bool CVKIntensityMdiWidget::loadImage(const QString& path)
{
    ReadReport report;
    return loadImage(path, ReadOptions(), &report);
}

bool CVKIntensityMdiWidget::loadImage(
    const QString& path, const ReadOptions& options, ReadReport* report)
{
    if (!m_imageItem || !m_loaders.load(path, &m_image, options, report)) {
        return false;
    }
    const bool isFaithful = options.reading == Reading::Faithful;
    if (isFaithful) {
        dropOpenImage();
    }
    m_analysis.setDisplayRowsPacked(isFaithful);
    showLoadedImage();
    return true;
}

LoadProblem CVKIntensityMdiWidget::showFrame(const FrameView& frame, const ReadOptions& options)
{
    const LoadProblem problem = copyFrame(frame, options, &m_image);
    if (problem == LoadProblem::None) {
        dropOpenImage();
        m_analysis.setDisplayRowsPacked(true);
        showLoadedImage();
    }
    return problem;
}

LoadProblem CVKIntensityMdiWidget::updateFrame(const FrameView& frame, const ReadOptions& options)
{
    const LoadProblem problem = overwriteWithFrame(frame, options, &m_image);
    if (problem == LoadProblem::None) {
        // Without levels, as the whole range of 32 bits has none, the engine follows no view.
        m_analysis.setDisplayRowsPacked(true);
        m_analysis.refreshImageData(
            roundedPoint(m_imageItem->anchor), roundedRect(m_imageItem->drawRect));
        updateGrayRange();
        updateReadoutOfView();
    }
    return problem;
}

/// Undoes what the image before has left: connections, also double ones, and regions.
void CVKIntensityMdiWidget::dropOpenImage()
{
    disconnectAll(loadedImageWires());
    m_imageItem->rectangles.clear();
}

/// Shows the record that a loader has just filled.
void CVKIntensityMdiWidget::showLoadedImage()
{
    m_imageItem->setImage(nullptr); // the engine is about to replace what the item points at
    m_analysis.setImageData(&m_image);
    m_imageItem->setImage(m_analysis.displayImage);
    updateGrayRange();
    // Deliberate: nothing is undone first, so a second load doubles every connection.
    connectAll(loadedImageWires());
    layOutImageView(size());
    layOutCharts(size());
    m_imageItem->resetAnchor();
    m_rowChart.reset();
    m_columnChart.reset();
    m_rowChart.valueRuler->setZoom(1.0);
    m_columnChart.valueRuler->setZoom(1.0);
}

void CVKIntensityMdiWidget::closeImage()
{
    if (!m_image.isLoaded()) {
        return;
    }
    dropOpenImage();
    m_imageItem->setImage(m_analysis.displayImage);
    m_analysis.setImageData(nullptr);
    m_image.release();
}

std::optional<QPoint> CVKIntensityMdiWidget::pixelAt(const QPoint& position) const
{
    if (!m_image.isLoaded() || m_displayType != 0) {
        return std::nullopt;
    }
    const QPointF scenePoint = m_view->mapToScene(m_view->viewport()->mapFrom(this, position));
    return m_imageItem->pixelAt(m_imageItem->mapFromScene(scenePoint));
}

void CVKIntensityMdiWidget::updateGrayRange()
{
    m_grayRuler->changedShowValueRange(
        double(m_analysis.histogram.min), double(m_analysis.histogram.max));
}

void CVKIntensityMdiWidget::switchAxis(int index)
{
    if (index == 0 || index == 1) {
        m_axis = index;
        applyDisplayMode();
    }
}

void CVKIntensityMdiWidget::switchDisplayType(int index)
{
    if (index == 0 || index == 1) {
        m_displayType = index;
        applyDisplayMode();
    }
}

void CVKIntensityMdiWidget::applyDisplayMode()
{
    const bool isImageView = m_displayType == 0;
    for (ComponentItem* const item : std::initializer_list<ComponentItem*> { m_imageItem,
             m_leftCurve, m_bottomCurve, m_leftRuler, m_bottomRuler, m_colorBar, m_grayRuler }) {
        item->setVisible(isImageView);
    }
    m_zoomPanel->setVisible(isImageView);
    m_rowChart.setVisible(!isImageView && m_axis == 0, shownImage());
    m_columnChart.setVisible(!isImageView && m_axis == 1, shownImage());
    refreshReadout();
}

/// Lets the visible view announce its anchor once more.
void CVKIntensityMdiWidget::refreshReadout()
{
    if (m_displayType == 0) {
        Q_EMIT m_imageItem->changeAnchorImagePosition(m_analysis.anchor);
    } else if (m_axis == 0) {
        Q_EMIT m_rowChart.curve->changeAnchorPosition(false, m_rowChart.curve->anchorIndex());
    } else {
        Q_EMIT m_columnChart.curve->changeAnchorPosition(true, m_columnChart.curve->anchorIndex());
    }
}

void CVKIntensityMdiWidget::updateReadoutOfView()
{
    if (m_displayType == 0) {
        changedAnchorImagePosition(QPointF(m_analysis.anchor));
    } else {
        const ProfileChart& chart = m_axis == 0 ? m_rowChart : m_columnChart;
        changedAnchorImagePosition(m_axis == 1, chart.curve->anchorIndex());
    }
}

void CVKIntensityMdiWidget::changedMaxPeaksCount(int count)
{
    m_rowChart.curve->changedMaxPeaksCount(count);
    m_columnChart.curve->changedMaxPeaksCount(count);
}

void CVKIntensityMdiWidget::changedShowPeaksState(bool isShow)
{
    m_rowChart.showPeaks(isShow);
    m_columnChart.showPeaks(isShow);
}

void CVKIntensityMdiWidget::changedPixelsToWavelength(double startX, double pixelWidth)
{
    if (!m_image.isLoaded()) {
        return;
    }
    const double rowEnd = wavelengthRange(startX, pixelWidth, m_image.width).end;
    m_bottomRuler->changedShowValueRange(startX, rowEnd);
    m_rowChart.pixelRuler->changedShowValueRange(startX, rowEnd);
    m_rowChart.curve->changedShowValueRange(startX, rowEnd);
    // Deliberate: the column gets wavelengths, too.
    const double columnEnd = wavelengthRange(startX, pixelWidth, m_image.height).end;
    m_leftRuler->changedShowValueRange(startX, columnEnd);
    m_columnChart.pixelRuler->changedShowValueRange(startX, columnEnd);
    m_columnChart.curve->changedShowValueRange(startX, columnEnd);
    refreshReadout();
}

void CVKIntensityMdiWidget::changedPalette(QVector<QColor> pal)
{
    m_colorBar->changedPalette(pal);
}

void CVKIntensityMdiWidget::changedVerticalRulerTitle(QString title)
{
    m_leftRuler->changedTitleName(title); // the charts' value rulers keep theirs
}

void CVKIntensityMdiWidget::changedHorizontalRulerTitle(QString title)
{
    m_bottomRuler->changedTitleName(title);
    m_rowChart.pixelRuler->changedTitleName(title);
    m_columnChart.pixelRuler->changedTitleName(title);
}

void CVKIntensityMdiWidget::changedAnchorImagePosition(QPointF anchor)
{
    const QPoint pixel = roundedPoint(anchor);
    updateReadout(pixel.x(), pixel.y());
}

void CVKIntensityMdiWidget::changedAnchorImagePosition(bool isHorizontal, int position)
{
    const QPoint anchor = m_analysis.anchor;
    if (isHorizontal) {
        updateReadout(anchor.x(), position);
    } else {
        updateReadout(position, anchor.y());
    }
}

void CVKIntensityMdiWidget::updateReadout(int x, int y)
{
    if (!m_image.isLoaded()) {
        return;
    }
    const ReadoutPixel pixel = m_columnChart.curve->isVisible()
        ? columnChartPixel(x, y, m_image.height)
        : imageViewPixel(x, y, m_image.height);
    m_readout->setPlainText(
        readoutText(pixel, m_image, axisOf(*m_rowChart.pixelRuler, m_image.width),
            axisOf(*m_columnChart.pixelRuler, m_image.height)));
    update();
}

void CVKIntensityMdiWidget::resizeEvent(QResizeEvent* event)
{
    const QSize canvas = event->size();
    m_view->setFixedSize(canvas);
    m_scene->setSceneRect(0.0, 0.0, canvas.width(), canvas.height());
    layOutCharts(canvas);
    layOutImageView(canvas);
    // Deliberate: here alone, so a text of another height stays where the last one was placed.
    m_readout->setPos(0.0, canvas.height() - m_readout->boundingRect().height() - 10.0);
}

/// The display image, or null when there is none.
const QImage* CVKIntensityMdiWidget::shownImage() const
{
    const QImage* const image = m_imageItem->image;
    return image && !image->isNull() ? image : nullptr;
}

void CVKIntensityMdiWidget::layOutCharts(const QSize& canvas)
{
    if (shownImage()) {
        m_rowChart.layOut(canvas);
        m_columnChart.layOut(canvas);
    }
}

void CVKIntensityMdiWidget::layOutImageView(const QSize& canvas)
{
    const QImage* const shown = shownImage();
    if (!shown) {
        return;
    }
    const QSize area = imageAreaSize(canvas, shown->size());
    m_imageItem->setSize(area.width(), area.height());
    const ImageViewLayout layout = imageViewLayout(canvas, roundedSize(m_imageItem->size));
    m_imageItem->setGeometry(QRectF(layout.image));
    placeItem(m_bottomRuler, layout.bottomRuler);
    placeItem(m_leftRuler, layout.leftRuler);
    placeItem(m_bottomCurve, layout.bottomCurve);
    placeItem(m_leftCurve, layout.leftCurve);
    m_colorBar->setSize(layout.image.width(), layout.colorBar.height());
    m_colorBar->setGeometry(QRectF(layout.colorBar));
    placeItem(m_grayRuler, layout.grayRuler);
    m_zoomPanel->move(
        canvas.width() - m_zoomPanel->width(), (canvas.height() - m_zoomPanel->height()) / 2);
}
