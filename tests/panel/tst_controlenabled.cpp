#include "panel/controlenabled.h"

#include <QLabel>
#include <QtTest>

class TestControlEnabled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void disabledControl_isGrey();
    void enabledControl_hasThePanelsStyleSheet();
};

void TestControlEnabled::disabledControl_isGrey()
{
    QLabel control;
    setControlEnabled(&control, false, "color: red;");
    QVERIFY(!control.isEnabled());
    QCOMPARE(control.styleSheet(), QString("color: rgb(60, 60, 60);"));
}

void TestControlEnabled::enabledControl_hasThePanelsStyleSheet()
{
    QLabel control;
    setControlEnabled(&control, false, "color: red;");
    setControlEnabled(&control, true, "color: red;");
    QVERIFY(control.isEnabled());
    QCOMPARE(control.styleSheet(), QString("color: red;"));
    setControlEnabled(&control, true, QString());
    QVERIFY(control.styleSheet().isEmpty());
}

QTEST_MAIN(TestControlEnabled)
#include "tst_controlenabled.moc"
