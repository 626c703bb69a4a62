#include "wheelnotches.h"

#include <QWheelEvent>
#include <QWidget>
#include <QtTest>

#include <limits>

namespace {

/// Notes what the filter lets through.
class WheelTarget : public QWidget
{
public:
    QVector<QPoint> angles;
    QPointF lastPosition;

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        angles << event->angleDelta();
        lastPosition = event->position();
    }
};

} // namespace

class TestWheelNotches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeNotchesPass();
    void smallAnglesAreGathered();
    void aTurnForgetsTheRest();
    void zeroIsNothing();
    void hugeAnglesAreLimited();
    void restCanBeForgotten();

    void filter_sendsWholeNotches();
    void filter_keepsNothingBackOfAPlainWheel();
    void filter_takesSidewaysAndEmptyEvents();
    void filter_startsANewGestureAtZero();

private:
    void turn(const QPoint& angle, Qt::ScrollPhase phase = Qt::NoScrollPhase);

    WheelTarget* m_target = nullptr;
};

void TestWheelNotches::wholeNotchesPass()
{
    WheelNotches notches;
    QCOMPARE(notches.take(120), 1);
    QCOMPARE(notches.take(-120), -1);
    QCOMPARE(notches.take(360), 3);
}

void TestWheelNotches::smallAnglesAreGathered()
{
    WheelNotches notches;
    int taken = 0;
    for (int i = 0; i < 60; ++i) { // 60 x 8 = 480
        taken += notches.take(8);
    }
    QCOMPARE(taken, 4);
    QCOMPARE(notches.take(100), 0);
    QCOMPARE(notches.take(150), 2); // 250, and 10 stay
    QCOMPARE(notches.take(109), 0);
    QCOMPARE(notches.take(1), 1);
}

void TestWheelNotches::aTurnForgetsTheRest()
{
    WheelNotches notches;
    QCOMPARE(notches.take(119), 0);
    QCOMPARE(notches.take(-119), 0); // not 0 once more and then one short of a notch
    QCOMPARE(notches.take(-1), -1);
}

void TestWheelNotches::zeroIsNothing()
{
    WheelNotches notches;
    QCOMPARE(notches.take(0), 0);
    QCOMPARE(notches.take(119), 0);
    QCOMPARE(notches.take(0), 0);
    QCOMPARE(notches.take(1), 1);
}

void TestWheelNotches::hugeAnglesAreLimited()
{
    WheelNotches notches;
    QCOMPARE(notches.take(119), 0);
    QCOMPARE(notches.take(std::numeric_limits<int>::max()), 10); // 119 + 1200
    QCOMPARE(notches.take(std::numeric_limits<int>::min()), -10);
}

void TestWheelNotches::restCanBeForgotten()
{
    WheelNotches notches;
    QCOMPARE(notches.take(119), 0);
    notches.forgetRest();
    QCOMPARE(notches.take(119), 0);
}

void TestWheelNotches::turn(const QPoint& angle, Qt::ScrollPhase phase)
{
    QWheelEvent event(QPointF(3, 4), m_target->mapToGlobal(QPoint(3, 4)), QPoint(), angle,
        Qt::NoButton, Qt::NoModifier, phase, false);
    QCoreApplication::sendEvent(m_target, &event);
    QVERIFY(event.isAccepted());
}

void TestWheelNotches::filter_sendsWholeNotches()
{
    WheelTarget target;
    m_target = &target;
    target.installEventFilter(new WheelNotchFilter(&target));
    turn(QPoint(0, 50));
    turn(QPoint(0, 50));
    QVERIFY(target.angles.isEmpty());
    turn(QPoint(0, 50));
    QCOMPARE(target.angles, QVector<QPoint>({ QPoint(0, 120) }));
    QCOMPARE(target.lastPosition, QPointF(3, 4));
    turn(QPoint(0, -250));
    QCOMPARE(target.angles, QVector<QPoint>({ QPoint(0, 120), QPoint(0, -120), QPoint(0, -120) }));
}

void TestWheelNotches::filter_keepsNothingBackOfAPlainWheel()
{
    WheelTarget target;
    m_target = &target;
    target.installEventFilter(new WheelNotchFilter(&target));
    for (const int angle : { 120, 120, -120 }) {
        turn(QPoint(0, angle));
    }
    QCOMPARE(target.angles, QVector<QPoint>({ QPoint(0, 120), QPoint(0, 120), QPoint(0, -120) }));
}

void TestWheelNotches::filter_takesSidewaysAndEmptyEvents()
{
    WheelTarget target;
    m_target = &target;
    target.installEventFilter(new WheelNotchFilter(&target));
    turn(QPoint(0, 0));
    turn(QPoint(120, 0));
    QVERIFY(target.angles.isEmpty());
}

void TestWheelNotches::filter_startsANewGestureAtZero()
{
    WheelTarget target;
    m_target = &target;
    target.installEventFilter(new WheelNotchFilter(&target));
    turn(QPoint(0, 100), Qt::ScrollUpdate);
    turn(QPoint(0, 0), Qt::ScrollEnd);
    turn(QPoint(0, 100), Qt::ScrollBegin);
    QVERIFY(target.angles.isEmpty());
    turn(QPoint(0, 20), Qt::ScrollUpdate);
    QCOMPARE(target.angles.size(), 1);
}

QTEST_MAIN(TestWheelNotches)
#include "tst_wheelnotches.moc"
