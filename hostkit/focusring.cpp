#include "focusring.h"

#include "vkintensityhost.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>

namespace vkintensityhost {

namespace {

// Two colours, so that one of them stands out on every ground.
const QColor lineColor(168, 236, 245);
const QColor edgeColor(11, 14, 17);

// Pixels at 96 dots per inch, from the control outward.
constexpr int gap = 2; // leaves the frame of the chosen palette to be seen
constexpr int lineWidth = 2;
constexpr int edgeWidth = 1;

int bandWidth()
{
    return scaledForScreen(lineWidth) + scaledForScreen(edgeWidth);
}

QRect inset(const QRect& rect, int margin)
{
    return rect.adjusted(margin, margin, -margin, -margin);
}

/// The band alone; what it surrounds is not part of the widget and is painted as if it were not
/// there.
class Ring : public QWidget
{
public:
    Ring()
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setAttribute(Qt::WA_NoChildEventsForParent); // a splitter would take it for one of its own
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), edgeColor);
        painter.fillRect(inset(rect(), scaledForScreen(edgeWidth)), lineColor);
    }

    void resizeEvent(QResizeEvent*) override
    {
        setMask(QRegion(rect()) - QRegion(inset(rect(), bandWidth())));
    }
};

bool isKeyboardReason(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

bool canHaveRing(const QWidget* control)
{
    return !control->isWindow() && (control->focusPolicy() & Qt::TabFocus)
        && control->window()->windowType() != Qt::Popup;
}

} // namespace

void FocusRing::install()
{
    static QPointer<FocusRing> installed;
    if (!installed) {
        installed = new FocusRing(qApp);
        qApp->installEventFilter(installed);
    }
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched->isWidgetType()) {
            takeFocus(static_cast<QWidget*>(watched), static_cast<QFocusEvent*>(event)->reason());
        }
        break;
    case QEvent::MouseButtonPress:
        m_isByKeyboard = false;
        hide();
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::ParentChange:
        if (watched == m_control) {
            hide();
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (watched == m_control) {
            place();
        }
        break;
    default: break;
    }
    return false;
}

/// A window that becomes active, or a closed popup, gives the focus back the way it was.
void FocusRing::takeFocus(QWidget* control, Qt::FocusReason reason)
{
    if (isKeyboardReason(reason)) {
        m_isByKeyboard = true;
    } else if (reason == Qt::MouseFocusReason) {
        m_isByKeyboard = false;
    }
    if (m_isByKeyboard && canHaveRing(control)) {
        showAround(control);
    } else {
        hide();
    }
}

void FocusRing::showAround(QWidget* control)
{
    m_control = control;
    if (!m_ring) {
        m_ring = new Ring;
    }
    if (m_ring->parentWidget() != control->parentWidget()) {
        m_ring->setParent(control->parentWidget());
    }
    place();
    m_ring->raise();
    m_ring->show();
}

void FocusRing::place()
{
    if (m_ring) {
        const QRect around = inset(m_control->geometry(), -scaledForScreen(gap) - bandWidth());
        m_ring->setGeometry(around & m_control->parentWidget()->rect());
    }
}

void FocusRing::hide()
{
    m_control.clear();
    if (m_ring) {
        m_ring->hide();
    }
}

} // namespace vkintensityhost
