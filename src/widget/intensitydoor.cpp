#include "widget/intensitydoor.h"

#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrlwidget.h"
#include "widget/cvkintensitymdiwidget.h"

#include <QGraphicsScene>

#include <utility>

IntensityDoor::IntensityDoor(CVKIntensityMdiWidget* host, CVKIntensityCtrlWidget* controlPanel,
    std::function<WidgetState()> state)
    : changes(std::move(state))
    , m_host(host)
    , m_controlPanel(controlPanel)
{
    watchHost();
    watchPanel();
}

/// Whatever a user can change at the canvas is announced by one of these signals.
void IntensityDoor::watchHost()
{
    const ImageLayoutItem* const imageItem = m_host->imageItem();
    const auto touch = [this] { changes.touch(); };
    QObject::connect(imageItem, &ImageLayoutItem::changeDrawRect, &changes, touch);
    QObject::connect(imageItem, &ImageLayoutItem::changeAnchorImagePosition, &changes, touch);
    QObject::connect(&imageItem->rectangles, &RectangleItems::updateSelectedRoi, &changes, touch);
    QObject::connect(&imageItem->rectangles, &RectangleItems::updateItemNames, &changes, touch);
    QObject::connect(imageItem->scene(), &QGraphicsScene::selectionChanged, &changes, touch);
}

/// The same for the panel.
void IntensityDoor::watchPanel()
{
    using Preferences = CVKDisplayPreferences;
    const auto touch = [this] { changes.touch(); };
    if (const Preferences* const panel = preferences()) {
        QObject::connect(panel, &Preferences::switchAxis, &changes, touch);
        QObject::connect(panel, &Preferences::switchDisplayType, &changes, touch);
        QObject::connect(panel, &Preferences::changeMaxPeaksCount, &changes, touch);
        QObject::connect(panel, &Preferences::changeShowPeaksState, &changes, touch);
        QObject::connect(panel, &Preferences::changePalette, &changes, touch);
        QObject::connect(panel, &Preferences::changeHorizontalRulerTitle, &changes, touch);
        QObject::connect(panel, &Preferences::changePixelsToWavelength, &changes, touch);
    }
    if (const CVKDataHistogram* const panel = dataHistogram()) {
        QObject::connect(panel, &CVKDataHistogram::selectRoiItem, &changes, touch);
        QObject::connect(panel, &CVKDataHistogram::updateIntensityHistogram, &changes, touch);
    }
}

CVKIntensityMdiWidget* IntensityDoor::imageHost() const
{
    return m_host && m_host->image().isLoaded() ? m_host.data() : nullptr;
}

CVKDisplayPreferences* IntensityDoor::preferences() const
{
    return m_controlPanel ? m_controlPanel->displayPreferences() : nullptr;
}

CVKDataHistogram* IntensityDoor::dataHistogram() const
{
    return m_controlPanel ? m_controlPanel->dataHistogram() : nullptr;
}
