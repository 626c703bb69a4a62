#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace vkintensityhost {

/// Shows which control has the keyboard focus, by a ring around it that no style sheet of the
/// control can take away.
///
/// The ring comes with a key that moves the focus and goes with a press of the mouse. It lies
/// around the control, or over its edge where the control fills its parent. Popups and windows have
/// none.
class FocusRing : public QObject
{
public:
    /// Watches the application from now on; once for all calls.
    static void install();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;

    void takeFocus(QWidget* control, Qt::FocusReason reason);
    void showAround(QWidget* control);
    void place();
    void hide();

    QPointer<QWidget> m_control; ///< the one with the ring
    QPointer<QWidget> m_ring; ///< goes with the parent of the control
    bool m_isByKeyboard = false; ///< how the focus was moved last
};

} // namespace vkintensityhost
