#include "wheelnotches.h"

#include <QCoreApplication>
#include <QWheelEvent>

#include <algorithm>

int WheelNotches::take(int angle)
{
    constexpr int most = mostAtOnce * notch;
    const bool turnsBack = (angle < 0 && m_rest > 0) || (angle > 0 && m_rest < 0);
    const int sum = (turnsBack ? 0 : m_rest) + std::clamp(angle, -most, most);
    m_rest = sum % notch;
    return sum / notch;
}

bool WheelNotchFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || m_isSending) {
        return false;
    }
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    if (wheel.phase() == Qt::ScrollBegin) {
        m_notches.forgetRest(); // of the gesture before
    }
    const int count = m_notches.take(wheel.angleDelta().y());
    for (int i = 0; i < std::abs(count); ++i) {
        send(watched, wheel, count > 0 ? WheelNotches::notch : -WheelNotches::notch);
    }
    event->accept(); // else it would be offered to the widgets around
    return true;
}

void WheelNotchFilter::send(QObject* target, const QWheelEvent& wheel, int angle)
{
    QWheelEvent whole(wheel.position(), wheel.globalPosition(), QPoint(), QPoint(0, angle),
        wheel.buttons(), wheel.modifiers(), Qt::NoScrollPhase, false);
    m_isSending = true;
    QCoreApplication::sendEvent(target, &whole);
    m_isSending = false;
}
