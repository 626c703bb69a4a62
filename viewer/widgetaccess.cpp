#include "widgetaccess.h"

#include "wheelnotches.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGraphicsView>
#include <QHash>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVector>

#include <iterator>

namespace {

struct NamedControl
{
    const char* objectName;
    const char* spoken; ///< null where the control carries a text of its own
};

/// In the order in which the focus passes them: the buttons on the canvas, then the panel from top
/// to bottom. The two fold buttons share one object name.
constexpr NamedControl namedControls[] {
    { "tool_Zoom_In", QT_TRANSLATE_NOOP("WidgetAccess", "Zoom in") },
    { "tool_Zoom_Out", QT_TRANSLATE_NOOP("WidgetAccess", "Zoom out") },
    { "Return", QT_TRANSLATE_NOOP("WidgetAccess", "Return to the gallery") },
    { "left_flex1", QT_TRANSLATE_NOOP("WidgetAccess", "Fold the display preferences") },
    { "radioButtonImage", nullptr },
    { "radioButton2D", nullptr },
    { "comboBoxDisplay", QT_TRANSLATE_NOOP("WidgetAccess", "Axis of the chart") },
    { "checkBoxPeak", nullptr },
    { "lineEditPeaks", QT_TRANSLATE_NOOP("WidgetAccess", "Number of peak labels") },
    { "pushButtonGray", QT_TRANSLATE_NOOP("WidgetAccess", "Gray palette") },
    { "pushButtonRed", QT_TRANSLATE_NOOP("WidgetAccess", "Red palette") },
    { "pushButtonGreen", QT_TRANSLATE_NOOP("WidgetAccess", "Green palette") },
    { "pushButtonBlue", QT_TRANSLATE_NOOP("WidgetAccess", "Blue palette") },
    { "pushButtonColor", QT_TRANSLATE_NOOP("WidgetAccess", "Color palette") },
    { "comboBoxType", QT_TRANSLATE_NOOP("WidgetAccess", "Label of the horizontal axis") },
    { "comboBoxUnits", QT_TRANSLATE_NOOP("WidgetAccess", "Unit of the wavelength") },
    { "lineEditXStart", QT_TRANSLATE_NOOP("WidgetAccess", "Wavelength of the first pixel") },
    { "lineEditPixelWidth", QT_TRANSLATE_NOOP("WidgetAccess", "Wavelength of one pixel") },
    { "pushButtonApply", nullptr },
    { "left_flex1", QT_TRANSLATE_NOOP("WidgetAccess", "Fold the data histogram") },
    { "comboBoxRoi", QT_TRANSLATE_NOOP("WidgetAccess", "Region of interest") },
    { "pushButtonAdd", QT_TRANSLATE_NOOP("WidgetAccess", "Add a region of interest") },
    { "pushButtonDelete", QT_TRANSLATE_NOOP("WidgetAccess", "Delete the region of interest") },
};

constexpr char panelName[] = "Scroll_ModuleWidget";

/// The controls in that order; null for one that is not there.
QVector<QWidget*> controlsInOrder(const QWidget* parent)
{
    QHash<QString, int> used; // controls of this name that are taken
    QVector<QWidget*> controls;
    for (const NamedControl& named : namedControls) {
        const QString name = named.objectName;
        controls << parent->findChildren<QWidget*>(name).value(used[name]++);
    }
    return controls;
}

} // namespace

WidgetAccess::WidgetAccess(QWidget* intensityWidget)
    : m_widget(intensityWidget)
{
}

void WidgetAccess::prepare()
{
    if (!m_widget) {
        return;
    }
    for (QWidget* child : m_widget->findChildren<QWidget*>()) {
        child->setAcceptDrops(false); // the canvas would take a file and then do nothing with it
    }
    scrollInsteadOfChoosing();
    if (auto* view = m_widget->findChild<QGraphicsView*>()) {
        view->viewport()->installEventFilter(new WheelNotchFilter(view));
        view->setFocusPolicy(Qt::StrongFocus); // for arrow keys
        view->setAccessibleName(QCoreApplication::translate("WidgetAccess", "Image"));
    }
    nameControls();
    orderControls();
    keepPanelInPlace();
}

/// Beside its scroll bar the panel is a little wider than its column. Bringing a control into
/// sight, as the focus does, scrolls it up and down only.
void WidgetAccess::keepPanelInPlace()
{
    auto* panel = m_widget->findChild<QScrollArea*>(panelName);
    if (QScrollBar* bar = panel ? panel->horizontalScrollBar() : nullptr) {
        QObject::connect(bar, &QScrollBar::valueChanged, bar, [bar] { bar->setValue(0); });
    }
}

/// The wheel over a box scrolls the column; it would else change settings that happen to come by
/// under the pointer.
void WidgetAccess::scrollInsteadOfChoosing()
{
    for (QWidget* child : m_widget->findChildren<QWidget*>()) {
        if (!child->inherits("CVKDisplayPreferences")) {
            continue;
        }
        for (QComboBox* box : child->findChildren<QComboBox*>()) {
            box->installEventFilter(child);
        }
    }
}

void WidgetAccess::nameControls()
{
    const QVector<QWidget*> controls = controlsInOrder(m_widget);
    for (int i = 0; i < int(std::size(namedControls)); ++i) {
        const char* spoken = namedControls[i].spoken;
        if (controls[i] && spoken) {
            controls[i]->setAccessibleName(QCoreApplication::translate("WidgetAccess", spoken));
        }
    }
    if (auto* panel = m_widget->findChild<QWidget*>(panelName)) {
        panel->setAccessibleName(QCoreApplication::translate("WidgetAccess", "Panel"));
    }
}

void WidgetAccess::orderControls()
{
    constexpr int panelPlace = 3; // behind the canvas and the two zoom buttons
    QVector<QWidget*> controls = QVector<QWidget*> { canvas() } + controlsInOrder(m_widget);
    controls.insert(panelPlace, m_widget->findChild<QWidget*>(panelName));
    QWidget* previous = nullptr;
    for (QWidget* next : controls) {
        if (previous && next) {
            QWidget::setTabOrder(previous, next);
        }
        previous = next ? next : previous;
    }
}

QWidget* WidgetAccess::canvas() const
{
    return m_widget ? m_widget->findChild<QGraphicsView*>() : nullptr;
}

QWidget* WidgetAccess::picture() const
{
    auto* view = m_widget ? m_widget->findChild<QGraphicsView*>() : nullptr;
    return view ? view->viewport() : nullptr;
}

void WidgetAccess::layOutCanvas()
{
    const QWidget* view = canvas();
    if (QWidget* host = view ? view->parentWidget() : nullptr) {
        QResizeEvent again(host->size(), host->size());
        QCoreApplication::sendEvent(host, &again);
    }
}

void WidgetAccess::showStatistics()
{
    auto* panel = m_widget ? m_widget->findChild<QScrollArea*>(panelName) : nullptr;
    auto* last = panel ? panel->findChild<QWidget*>("labelValueNoise") : nullptr;
    auto* first = panel ? panel->findChild<QWidget*>("comboBoxRoi") : nullptr;
    if (first && last && last->isVisible()) {
        panel->ensureWidgetVisible(last);
        panel->ensureWidgetVisible(first); // in sight in any case, with the buttons beside it
    }
}

void WidgetAccess::releaseReturnButton()
{
    if (auto* button = m_widget ? m_widget->findChild<QAbstractButton*>("Return") : nullptr) {
        button->setChecked(false);
    }
}
