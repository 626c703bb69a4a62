#include "widget/cvkintensitywidget.h"

#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrlwidget.h"
#include "base/screenscale.h"
#include "widget/columnskin.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/intensitydoor.h"
#include "widget/wire.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QResizeEvent>

CVKIntensityWidget::CVKIntensityWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose, true);
    setWindowFlags(Qt::FramelessWindowHint);
    m_applicationDirectory = QDir(QCoreApplication::applicationDirPath()).path();
    m_bodySkin.load(QStringLiteral(":img_mdi_res/skin/mdi_mod_body.png"));
    m_headerSkin.load(QStringLiteral(":img_mdi_res/skin/mdi_mod_header.png"));
    m_borderSkin.load(QStringLiteral(":img_mdi_res/skin/mdi_mod_border.png"));
    createIntensityUI();
    m_door = std::make_unique<IntensityDoor>(m_host, m_controlPanel, [this] { return state(); });
}

CVKIntensityWidget::~CVKIntensityWidget()
{
    delete m_controlPanel; // its signals feed the host: it goes first
}

bool CVKIntensityWidget::createIntensityUI()
{
    if (m_host || m_controlPanel) {
        return false;
    }
    m_host = new CVKIntensityMdiWidget(this);
    m_host->show();
    m_controlPanel = new CVKIntensityCtrlWidget(this);
    m_controlPanel->show();
    connectPreferences();
    connectHistogram();
    return true;
}

void CVKIntensityWidget::connectPreferences()
{
    const CVKDisplayPreferences* const preferences = m_controlPanel->displayPreferences();
    if (!preferences) {
        return;
    }
    const CVKIntensityMdiWidget* const host = m_host;
    // Deliberate: changeVerticalRulerTitle(QString) is left out, although the host has the slot.
    connectAll({
        { preferences, SIGNAL(switchAxis(int)), host, SLOT(switchAxis(int)) },
        { preferences, SIGNAL(switchDisplayType(int)), host, SLOT(switchDisplayType(int)) },
        { preferences, SIGNAL(changeMaxPeaksCount(int)), host, SLOT(changedMaxPeaksCount(int)) },
        { preferences, SIGNAL(changeShowPeaksState(bool)), //
            host, SLOT(changedShowPeaksState(bool)) },
        { preferences, SIGNAL(changePalette(QVector<QColor>)), //
            host, SLOT(changedPalette(QVector<QColor>)) },
        { preferences, SIGNAL(changeHorizontalRulerTitle(QString)), //
            host, SLOT(changedHorizontalRulerTitle(QString)) },
        { preferences, SIGNAL(changePixelsToWavelength(qreal, qreal)), //
            host, SLOT(changedPixelsToWavelength(qreal, qreal)) },
    });
}

void CVKIntensityWidget::connectHistogram()
{
    CVKDataHistogram* const histogram = m_controlPanel->dataHistogram();
    const ImageLayoutItem* const imageItem = m_host->imageItem();
    if (!histogram || !imageItem) {
        return;
    }
    const RectangleItems* const regions = &imageItem->rectangles;
    const ImageIntensityAnalysis* const engine = m_host->analysis();
    connectAll({
        { histogram, SIGNAL(addRoiItem()), regions, SLOT(addItem()) },
        { histogram, SIGNAL(deleteRoiItem(int)), regions, SLOT(deleteItem(int)) },
        { histogram, SIGNAL(selectRoiItem(int)), regions, SLOT(selectItem(int)) },
        { regions, SIGNAL(updateItemNames(QStringList)), //
            histogram, SLOT(updateItemNames(QStringList)) },
        { engine, SIGNAL(newHistogramSize(int)), histogram, SLOT(newHistogramSize(int)) },
        { engine, SIGNAL(updateRoiIntensityInfo(int, IntensityInfo)), //
            histogram, SLOT(updateRoiIntensityInfo(int, IntensityInfo)) },
        { engine, SIGNAL(updateRoiIntensityHistogram(uint*, int, uint, uint)), //
            histogram, SLOT(updateRoiIntensityHistogram(uint*, int, uint, uint)) },
        { histogram, SIGNAL(updateIntensityHistogram()), //
            engine, SLOT(sendUpdetaIntensityHistogramSignal()) }, // spelled so on purpose
    });
    Q_EMIT histogram->updateIntensityHistogram();
}

float CVKIntensityWidget::getDpiMultiple()
{
    return dpiMultiple(primaryDotsPerInch());
}

void CVKIntensityWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintColumnSkin(
        painter, m_headerSkin, m_bodySkin, m_borderSkin, height(), primaryDotsPerInch());
}

void CVKIntensityWidget::resizeEvent(QResizeEvent* event)
{
    if (!m_controlPanel) {
        return;
    }
    const int columnWidth = scaledPixels(panelColumnPixels, primaryDotsPerInch());
    const QSize window = event->size();
    if (m_host) {
        m_host->move(columnWidth, 0);
        m_host->resize(window.width() - columnWidth, window.height());
    }
    m_controlPanel->resize(columnWidth, window.height());
    QWidget::resizeEvent(event);
}
