#include "widget/cvkintensitymdiwidget.h"
#include "widget/cvkintensitywidget.h"

#include <QPushButton>
#include <QScreen>
#include <QtTest>

/// Runs on a real X server, once for each of three screen scales; the environment says which and
/// what to expect.
class TestScreenScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnAndButtonsFollowTheScreen();
};

void TestScreenScale::columnAndButtonsFollowTheScreen()
{
    QCOMPARE(QGuiApplication::platformName(), QString("xcb"));
    const int dotsPerInch = qEnvironmentVariableIntValue("EXPECTED_DPI");
    const int columnWidth = qEnvironmentVariableIntValue("EXPECTED_COLUMN");
    const int buttonSide = qEnvironmentVariableIntValue("EXPECTED_BUTTON");
    QVERIFY(QGuiApplication::primaryScreen()->logicalDotsPerInch() == dotsPerInch);

    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QVERIFY(widget.getDpiMultiple() == float(dotsPerInch) / 96.0F);
    const auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    QCOMPARE(host->geometry(), QRect(columnWidth, 0, 1000 - columnWidth, 700));
    for (const char* const name : { "tool_Zoom_In", "tool_Zoom_Out" }) {
        QCOMPARE(host->findChild<QPushButton*>(name)->size(), QSize(buttonSide, buttonSide));
    }
}

QTEST_MAIN(TestScreenScale)
#include "tst_screenscale.moc"
