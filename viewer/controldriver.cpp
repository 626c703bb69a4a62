#include "controldriver.h"

#include "regionplacement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScrollArea>

namespace {

constexpr int handleReach = 3; // of a region's handles around its rectangle, in canvas units
constexpr int imageBorder = 1; // around the image, in canvas units
constexpr int indicatorReach = 8; // into a button's box or disc, from its left edge

void sendMouse(QWidget* target, QEvent::Type type, const QPoint& position, Qt::MouseButton button,
    Qt::MouseButtons held)
{
    QMouseEvent event(type, position, target->mapToGlobal(position), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

/// Moves there without a button, so that the target knows what is under the pointer, and presses.
void pressAt(QWidget* target, const QPoint& position)
{
    sendMouse(target, QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton);
    sendMouse(target, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void releaseAt(QWidget* target, const QPoint& position)
{
    sendMouse(target, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void drag(QWidget* target, const QPoint& from, const QPoint& to)
{
    pressAt(target, from);
    sendMouse(target, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    releaseAt(target, to);
}

void sendKey(QWidget* target, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(target, &event);
    }
}

/// Scrolls the panel as far as needed to reach the control.
void bringIntoView(QWidget* control)
{
    for (QWidget* parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(control);
        }
    }
}

QList<QGraphicsItem*> regionItems(const QGraphicsView& view)
{
    QList<QGraphicsItem*> regions;
    for (QGraphicsItem* item : view.items()) {
        const auto* object = dynamic_cast<const QObject*>(item);
        if (object && object->inherits("RectangleItem")) {
            regions << item;
        }
    }
    return regions;
}

/// The rectangle of a region in units of the image item, without its handles.
QRectF regionRect(const QGraphicsItem& region)
{
    const QRectF around = region.mapRectToParent(region.boundingRect());
    return around.adjusted(handleReach, handleReach, -handleReach, -handleReach);
}

/// First and last number of a label such as "10 to 29"; false for any other text.
bool readSpan(const QString& text, int* first, int* last)
{
    static const QRegularExpression pattern("\\A(-?[0-9]+)\\D*[^-0-9](-?[0-9]+)\\z");
    const QRegularExpressionMatch match = pattern.match(text);
    *first = match.captured(1).toInt();
    *last = match.captured(2).toInt();
    return match.hasMatch();
}

} // namespace

ControlDriver::ControlDriver(QWidget* intensityWidget, const QSize& imageSize)
    : m_widget(intensityWidget)
    , m_imageSize(imageSize)
{
}

QString ControlDriver::apply(const ControlSettings& settings)
{
    for (const QRect& pixels : settings.regions) { // only the image view shows them
        drawRegion(pixels);
    }
    if (settings.hasWavelength) {
        setWavelength(settings);
    }
    if (!settings.view.isEmpty()) {
        setView(settings.view);
    }
    if (settings.peakCount > 0) {
        showPeaks(settings.peakCount);
    }
    if (!settings.palette.isEmpty()) {
        setPalette(settings.palette);
    }
    return m_problem;
}

/// The control of this name, scrolled into view; null, with a problem, where there is none that
/// can be used, and after any problem.
template <class Control>
Control* ControlDriver::control(const char* name)
{
    auto* found = m_widget->findChild<Control*>(name);
    if (!m_problem.isEmpty()) {
        return nullptr;
    }
    if (!found || !found->isEnabled()) {
        const QString lack = found ? ControlDriver::tr("the control %1 is disabled")
                                   : ControlDriver::tr("there is no control %1");
        m_problem = lack.arg(name);
        return nullptr;
    }
    bringIntoView(found);
    return found;
}

void ControlDriver::click(const char* buttonName)
{
    if (auto* button = control<QAbstractButton>(buttonName)) {
        const QPoint position(qMin(indicatorReach, button->width() / 2), button->height() / 2);
        pressAt(button, position);
        releaseAt(button, position);
    }
}

void ControlDriver::chooseRow(const char* comboBoxName, int row)
{
    auto* box = control<QComboBox>(comboBoxName);
    if (!box) {
        return;
    }
    box->setFocus();
    sendKey(box, Qt::Key_Home, Qt::NoModifier, QString());
    for (int i = 0; i < row; ++i) {
        sendKey(box, Qt::Key_Down, Qt::NoModifier, QString());
    }
    if (box->currentIndex() != row) {
        m_problem = tr("the control %1 has no entry %2").arg(comboBoxName).arg(row + 1);
    }
}

void ControlDriver::type(const char* lineEditName, int number)
{
    auto* edit = control<QLineEdit>(lineEditName);
    if (!edit) {
        return;
    }
    const QString text = QString::number(number);
    edit->setFocus();
    sendKey(edit, Qt::Key_A, Qt::ControlModifier, QString());
    for (const QChar digit : text) {
        sendKey(edit, Qt::Key_0 + digit.digitValue(), Qt::NoModifier, digit);
    }
    if (edit->text() != text) {
        m_problem = tr("the control %1 does not take %2").arg(lineEditName, text);
    }
}

void ControlDriver::setWavelength(const ControlSettings& settings)
{
    chooseRow("comboBoxType", 1);
    if (!settings.wavelengthUnit.isEmpty()) {
        chooseRow("comboBoxUnits", settings.wavelengthUnit == "nm" ? 1 : 0);
    }
    type("lineEditXStart", settings.wavelengthStart);
    type("lineEditPixelWidth", settings.pixelWidth);
    click("pushButtonApply");
}

void ControlDriver::setView(const QString& view)
{
    if (view == "image") {
        click("radioButtonImage");
        return;
    }
    click("radioButton2D");
    chooseRow("comboBoxDisplay", view == "y" ? 1 : 0);
}

void ControlDriver::showPeaks(int count)
{
    type("lineEditPeaks", count);
    click("pushButtonApply");
    const auto* box = control<QCheckBox>("checkBoxPeak");
    if (box && !box->isChecked()) {
        click("checkBoxPeak");
    }
}

void ControlDriver::setPalette(const QString& palette)
{
    const QString name = "pushButton" + palette.left(1).toUpper() + palette.mid(1);
    click(qPrintable(name));
}

/// Adds a region and drags first one of its corners into place, then the one across from it.
void ControlDriver::drawRegion(const QRect& pixels)
{
    const auto* view = m_widget->findChild<QGraphicsView*>();
    QGraphicsItem* region = view ? addRegion(*view) : nullptr;
    const QGraphicsItem* image = region ? region->parentItem() : nullptr;
    if (!image) {
        m_problem = m_problem.isEmpty() ? tr("the canvas takes no region") : m_problem;
        return;
    }
    const QSizeF border(2.0 * imageBorder, 2.0 * imageBorder);
    const QSize content = (image->boundingRect().size() - border).toSize();
    const RegionCorners corners = regionCorners(pixels, m_imageSize, content);
    const auto onScreen
        = [&](const QPointF& unit) { return view->mapFromScene(image->mapToScene(unit)); };
    drag(view->viewport(), onScreen(regionRect(*region).topLeft()), onScreen(corners.topLeft));
    const QPoint across = cornerAcross(regionRect(*region), corners.topLeft);
    drag(view->viewport(), onScreen(across), onScreen(corners.bottomRight));
    reportRegion();
}

/// Presses the Add button; the region that came of it, or null.
QGraphicsItem* ControlDriver::addRegion(const QGraphicsView& view)
{
    const QList<QGraphicsItem*> before = regionItems(view);
    click("pushButtonAdd");
    for (QGraphicsItem* region : regionItems(view)) {
        if (!before.contains(region)) {
            return region;
        }
    }
    return nullptr;
}

/// Notes what the panel says about the selected region. The panel counts rows from the bottom.
void ControlDriver::reportRegion()
{
    const auto* box = control<QComboBox>("comboBoxRoi");
    const auto* columns = control<QLabel>("labelValueX");
    const auto* rows = control<QLabel>("labelValueY");
    if (!box || !columns || !rows) {
        return;
    }
    int first = 0;
    int last = 0;
    if (!readSpan(rows->text(), &first, &last)) {
        m_problem = tr("the panel does not tell where the region is");
        return;
    }
    const int bottomRow = m_imageSize.height() - 1;
    m_report << tr("%1: x %2, y %3 (from the top %4 to %5)")
                    .arg(box->currentText(), columns->text(), rows->text())
                    .arg(bottomRow - last)
                    .arg(bottomRow - first);
}
