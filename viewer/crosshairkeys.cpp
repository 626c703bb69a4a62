#include "crosshairkeys.h"

#include "imagepage.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcut>

#include <algorithm>
#include <iterator>

namespace {

struct Arrow
{
    Qt::Key key;
    QPoint step; ///< in image pixels, y downward
};

const Arrow arrows[] {
    { Qt::Key_Left, QPoint(-1, 0) },
    { Qt::Key_Right, QPoint(1, 0) },
    { Qt::Key_Up, QPoint(0, -1) },
    { Qt::Key_Down, QPoint(0, 1) },
};

constexpr int largeStep = 10; // pixels, with Shift

bool isArrow(const QKeyEvent& key)
{
    return std::any_of(std::begin(arrows), std::end(arrows),
        [&key](const Arrow& arrow) { return key.key() == arrow.key; });
}

/// Whether arrow keys mean something in the widget: they move a text cursor, choose, or scroll.
bool usesArrows(const QWidget* focused)
{
    return qobject_cast<const QLineEdit*>(focused) || qobject_cast<const QComboBox*>(focused)
        || qobject_cast<const QAbstractSpinBox*>(focused)
        || qobject_cast<const QAbstractSlider*>(focused)
        || qobject_cast<const QRadioButton*>(focused) || qobject_cast<const QMenuBar*>(focused)
        || qobject_cast<const QScrollArea*>(focused);
}

} // namespace

CrossHairKeys::CrossHairKeys(ImagePage* page)
    : QObject(page)
    , m_page(page)
{
    for (const Arrow& arrow : arrows) {
        // Shortcuts, since buttons and the canvas would take the keys; they rest while the page is
        // not in front.
        auto* small = new QShortcut(QKeySequence(arrow.key), page);
        auto* large = new QShortcut(QKeySequence(int(Qt::SHIFT) + int(arrow.key)), page);
        connect(small, &QShortcut::activated, this, [this, arrow] { move(arrow.step); });
        connect(
            large, &QShortcut::activated, this, [this, arrow] { move(largeStep * arrow.step); });
    }
    page->window()->installEventFilter(this);
}

QVector<HelpLine> CrossHairKeys::help()
{
    return {
        { tr("Arrows"), tr("Move the cross-hair") },
        { tr("Shift+Arrows"), tr("Move it by 10 pixels") },
    };
}

/// Asked before a key becomes a shortcut.
bool CrossHairKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isArrow(*static_cast<QKeyEvent*>(event))
        && usesArrows(m_page->window()->focusWidget())) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void CrossHairKeys::move(const QPoint& pixels)
{
    CVKIntensityWidget* image = m_page->intensityWidget();
    if (const std::optional<QPoint> from = image->crossHair()) {
        const QSize size = image->imageInfo().size;
        const QPoint to = *from + pixels;
        image->setCrossHair(
            QPoint(qBound(0, to.x(), size.width() - 1), qBound(0, to.y(), size.height() - 1)));
    }
}
