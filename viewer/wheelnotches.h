#pragma once

#include <QObject>

class QWheelEvent;

/// Gathers the small angles of a trackpad or a fine wheel into the notches of a plain one.
class WheelNotches
{
public:
    static constexpr int notch = 120; ///< of a plain wheel, in eighths of a degree
    static constexpr int mostAtOnce = 10; ///< notches out of one event

    /// Adds `angle`, in eighths of a degree, and takes the whole notches out: positive away from
    /// the user. The rest is kept for the next angle, unless that turns the other way.
    int take(int angle);

    void forgetRest() { m_rest = 0; }

private:
    int m_rest = 0; // nearer to 0 than a notch
};

/// Installed on the viewport of the canvas: each whole notch reaches it as an event of its own, and
/// nothing else does. The canvas zooms one step an event whatever its angle, so that a trackpad
/// would run away, and out on an angle of 0.
class WheelNotchFilter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void send(QObject* target, const QWheelEvent& wheel, int angle);

    WheelNotches m_notches;
    bool m_isSending = false;
};
