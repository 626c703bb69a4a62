#include "imagecontrols.h"

#include "wheelnotches.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGraphicsView>
#include <QHash>
#include <QLineEdit>
#include <QVector>

#include <iterator>

namespace {

struct NamedControl
{
    const char* objectName;
    const char* spoken; ///< null where the control carries a text of its own
};

/// In the order in which they stand: the panel from top to bottom, then the canvas. The two fold
/// buttons share one object name.
constexpr NamedControl namedControls[] {
    { "Return", QT_TRANSLATE_NOOP("ImageControls", "Return to the gallery") },
    { "left_flex1", QT_TRANSLATE_NOOP("ImageControls", "Fold the display preferences") },
    { "radioButtonImage", nullptr },
    { "radioButton2D", nullptr },
    { "comboBoxDisplay", QT_TRANSLATE_NOOP("ImageControls", "Axis of the chart") },
    { "checkBoxPeak", nullptr },
    { "lineEditPeaks", QT_TRANSLATE_NOOP("ImageControls", "Number of peak labels") },
    { "pushButtonGray", QT_TRANSLATE_NOOP("ImageControls", "Gray palette") },
    { "pushButtonRed", QT_TRANSLATE_NOOP("ImageControls", "Red palette") },
    { "pushButtonGreen", QT_TRANSLATE_NOOP("ImageControls", "Green palette") },
    { "pushButtonBlue", QT_TRANSLATE_NOOP("ImageControls", "Blue palette") },
    { "pushButtonColor", QT_TRANSLATE_NOOP("ImageControls", "Color palette") },
    { "comboBoxType", QT_TRANSLATE_NOOP("ImageControls", "Label of the horizontal axis") },
    { "comboBoxUnits", QT_TRANSLATE_NOOP("ImageControls", "Unit of the wavelength") },
    { "lineEditXStart", QT_TRANSLATE_NOOP("ImageControls", "Wavelength of the first pixel") },
    { "lineEditPixelWidth", QT_TRANSLATE_NOOP("ImageControls", "Wavelength of one pixel") },
    { "pushButtonApply", nullptr },
    { "left_flex1", QT_TRANSLATE_NOOP("ImageControls", "Fold the data histogram") },
    { "comboBoxRoi", QT_TRANSLATE_NOOP("ImageControls", "Region of interest") },
    { "pushButtonAdd", QT_TRANSLATE_NOOP("ImageControls", "Add a region of interest") },
    { "pushButtonDelete", QT_TRANSLATE_NOOP("ImageControls", "Delete the region of interest") },
    { "tool_Zoom_In", QT_TRANSLATE_NOOP("ImageControls", "Zoom in") },
    { "tool_Zoom_Out", QT_TRANSLATE_NOOP("ImageControls", "Zoom out") },
};

constexpr char paletteProperty[] = "chosenPalette"; // of the intensity widget; empty: gray

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

ImageControls::ImageControls(QWidget* intensityWidget)
    : m_widget(intensityWidget)
{
}

void ImageControls::prepare()
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
        view->setAccessibleName(QCoreApplication::translate("ImageControls", "Image"));
    }
    nameControls();
    orderControls();
    rememberPalette();
}

/// The wheel over a box scrolls the column; it would else change settings that happen to come by
/// under the pointer.
void ImageControls::scrollInsteadOfChoosing()
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

/// The panel does not tell which palette is shown, so the click on its button is noted.
void ImageControls::rememberPalette()
{
    for (const QString& name : paletteNames()) {
        auto* button = m_widget->findChild<QAbstractButton*>("pushButton" + name);
        if (button) {
            QObject::connect(
                button, &QAbstractButton::clicked, m_widget, [widget = m_widget, name] {
                    widget->setProperty(paletteProperty, name.toLower());
                });
        }
    }
}

void ImageControls::nameControls()
{
    const QVector<QWidget*> controls = controlsInOrder(m_widget);
    for (int i = 0; i < int(std::size(namedControls)); ++i) {
        const char* spoken = namedControls[i].spoken;
        if (controls[i] && spoken) {
            controls[i]->setAccessibleName(QCoreApplication::translate("ImageControls", spoken));
        }
    }
    if (auto* panel = m_widget->findChild<QWidget*>("Scroll_ModuleWidget")) {
        panel->setAccessibleName(QCoreApplication::translate("ImageControls", "Panel"));
    }
}

void ImageControls::orderControls()
{
    constexpr int zoomButtons = 2; // stand on the canvas, which is passed before them
    QVector<QWidget*> controls = controlsInOrder(m_widget);
    controls.insert(controls.size() - zoomButtons, canvas());
    QWidget* previous = nullptr;
    for (QWidget* next : controls) {
        if (previous && next) {
            QWidget::setTabOrder(previous, next);
        }
        previous = next ? next : previous;
    }
}

template <class Control>
Control* ImageControls::control(const QString& name) const
{
    auto* found = m_widget ? m_widget->findChild<Control*>(name) : nullptr;
    return found && found->isEnabled() ? found : nullptr;
}

void ImageControls::click(const QString& name)
{
    if (auto* button = control<QAbstractButton>(name)) {
        button->click();
    }
}

bool ImageControls::canZoom() const
{
    const auto* button = control<QAbstractButton>("tool_Zoom_In");
    return button && button->isVisible();
}

void ImageControls::zoomIn()
{
    if (canZoom()) {
        click("tool_Zoom_In");
    }
}

void ImageControls::zoomOut()
{
    if (canZoom()) {
        click("tool_Zoom_Out");
    }
}

void ImageControls::showView(ImageView view)
{
    if (view == ImageView::Image) {
        click("radioButtonImage");
        return;
    }
    click("radioButton2D"); // enables the box
    if (auto* axis = control<QComboBox>("comboBoxDisplay")) {
        axis->setCurrentIndex(view == ImageView::Row ? 0 : 1);
    }
}

ImageView ImageControls::shownView() const
{
    const auto* chart = control<QAbstractButton>("radioButton2D");
    if (!chart || !chart->isChecked()) {
        return ImageView::Image;
    }
    const auto* axis = control<QComboBox>("comboBoxDisplay");
    return axis && axis->currentIndex() == 1 ? ImageView::Column : ImageView::Row;
}

void ImageControls::choosePalette(const QString& name)
{
    click("pushButton" + name);
}

void ImageControls::forgetPalette()
{
    if (m_widget) {
        m_widget->setProperty(paletteProperty, QString());
    }
}

ControlSettings ImageControls::settings() const
{
    ControlSettings settings;
    const auto* peaks = control<QAbstractButton>("checkBoxPeak");
    const auto* peakCount = control<QLineEdit>("lineEditPeaks");
    const auto* type = control<QComboBox>("comboBoxType");
    const auto* unit = control<QComboBox>("comboBoxUnits");
    const auto* start = control<QLineEdit>("lineEditXStart");
    const auto* width = control<QLineEdit>("lineEditPixelWidth");
    const ImageView view = shownView();
    if (view != ImageView::Image) {
        settings.view = view == ImageView::Row ? "x" : "y";
        const bool arePeaksShown = peaks && peaks->isChecked() && peakCount;
        settings.peakCount = arePeaksShown ? peakCount->text().toInt() : 0;
    }
    if (type && type->currentIndex() == 1 && unit && start && width) {
        settings.hasWavelength = true;
        settings.wavelengthStart = start->text().toInt();
        settings.pixelWidth = qMax(width->text().toInt(), 1); // a field may just be empty
        settings.wavelengthUnit = unit->currentIndex() == 1 ? "nm" : "um";
    }
    settings.palette = m_widget ? m_widget->property(paletteProperty).toString() : QString();
    return settings;
}

int ImageControls::regionCount() const
{
    const auto* regions = control<QComboBox>("comboBoxRoi");
    return regions ? qMax(regions->count() - 1, 0) : 0; // behind "None Select"
}

QWidget* ImageControls::canvas() const
{
    return m_widget ? m_widget->findChild<QGraphicsView*>() : nullptr;
}
