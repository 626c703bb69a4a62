#include "widget/cvkintensitywidget.h"

#include "wholenotches.h"

#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QtTest>

#include <limits>
#include <memory>

/// What hosts are told to copy: the style sheet and the filter of the wheel.
class TestHostCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void styleSheet_namesControlsThatThereAre();
    void styleSheet_leavesNoControlBlank();
    void styleSheet_paintsCanvasAndColumn();

    void wheel_wholeNotchesPass();
    void wheel_smallTurnsAreGathered();
    void wheel_turningBackStartsAnew();
    void wheel_nothingUpOrDownIsLeftOut();
    void wheel_hugeTurnsAreBounded();

private:
    QString m_styleSheet;
};

namespace {

/// Notes the angle of each turn of the wheel that reaches it.
class Wheeled : public QWidget
{
public:
    QVector<int> angles;

    void turn(int angle, int sideways = 0)
    {
        QWheelEvent event(QPointF(5, 5), mapToGlobal(QPoint(5, 5)), QPoint(),
            QPoint(sideways, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &event);
    }

protected:
    void wheelEvent(QWheelEvent* event) override { angles << event->angleDelta().y(); }
};

struct FilteredWheel
{
    FilteredWheel() { target.installEventFilter(&filter); }

    WholeNotches filter;
    Wheeled target;
};

std::unique_ptr<CVKIntensityWidget> styledWidget()
{
    auto widget = std::make_unique<CVKIntensityWidget>();
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->resize(1000, 700);
    widget->show();
    return widget;
}

} // namespace

void TestHostCode::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QFile page(VKINTENSITY_EMBEDDING_PAGE);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QRegularExpression block("^```css\n(.*?)^```$",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    m_styleSheet = block.match(QString::fromUtf8(page.readAll())).captured(1);
    QVERIFY(m_styleSheet.size() > 1000);
    qApp->setStyleSheet(m_styleSheet);
}

void TestHostCode::styleSheet_namesControlsThatThereAre()
{
    const auto widget = styledWidget();
    const QRegularExpression objectName("(Q[A-Za-z]+)#([A-Za-z0-9_]+)");
    auto matches = objectName.globalMatch(m_styleSheet);
    QStringList names;
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QWidget* named = widget->findChild<QWidget*>(match.captured(2));
        QVERIFY2(named, qPrintable(match.captured()));
        QVERIFY2(named->inherits(qPrintable(match.captured(1))), qPrintable(match.captured()));
        names << match.captured(2);
    }
    names.removeDuplicates();
    QCOMPARE(names.size(), 8);
}

void TestHostCode::styleSheet_leavesNoControlBlank()
{
    const auto widget = styledWidget();
    for (const char* name : { "Return", "tool_Zoom_In", "tool_Zoom_Out", "left_flex1" }) {
        const auto buttons = widget->findChildren<QPushButton*>(name);
        QVERIFY2(!buttons.isEmpty(), name);
        for (const QPushButton* button : buttons) {
            QVERIFY2(!button->text().isEmpty(), name);
        }
    }
    QCOMPARE(widget->findChild<QScrollBar*>("bar_ModuleWidget")->width(), 8);
}

void TestHostCode::styleSheet_paintsCanvasAndColumn()
{
    const QImage picture = styledWidget()->grab().toImage();
    QCOMPARE(QColor(picture.pixel(700, 350)).name(), QString("#1a1f26"));
    QCOMPARE(QColor(picture.pixel(250, 20)).name(), QString("#20252d")); // beside Return
}

void TestHostCode::wheel_wholeNotchesPass()
{
    FilteredWheel wheel;
    wheel.target.turn(120);
    wheel.target.turn(-120);
    wheel.target.turn(240);
    QCOMPARE(wheel.target.angles, (QVector<int> { 120, -120, 120, 120 }));
}

void TestHostCode::wheel_smallTurnsAreGathered()
{
    FilteredWheel wheel;
    for (int i = 0; i < 14; ++i) {
        wheel.target.turn(8);
    }
    QVERIFY(wheel.target.angles.isEmpty()); // 14 x 8 = 112
    wheel.target.turn(10); // 122
    QCOMPARE(wheel.target.angles, QVector<int> { 120 });
    wheel.target.turn(117); // with the 2 that were left: 119
    QCOMPARE(wheel.target.angles.size(), 1);
    wheel.target.turn(1);
    QCOMPARE(wheel.target.angles.size(), 2);
}

void TestHostCode::wheel_turningBackStartsAnew()
{
    FilteredWheel wheel;
    wheel.target.turn(100);
    wheel.target.turn(-119);
    QVERIFY(wheel.target.angles.isEmpty());
    wheel.target.turn(-1);
    QCOMPARE(wheel.target.angles, QVector<int> { -120 });
}

void TestHostCode::wheel_nothingUpOrDownIsLeftOut()
{
    FilteredWheel wheel;
    wheel.target.turn(0);
    wheel.target.turn(0, 120);
    QVERIFY(wheel.target.angles.isEmpty());
}

void TestHostCode::wheel_hugeTurnsAreBounded()
{
    FilteredWheel wheel;
    wheel.target.turn(std::numeric_limits<int>::max());
    QCOMPARE(wheel.target.angles, QVector<int>(10, 120));
    wheel.target.turn(std::numeric_limits<int>::min());
    QCOMPARE(wheel.target.angles.mid(10), QVector<int>(10, -120));
}

QTEST_MAIN(TestHostCode)
#include "tst_hostcode.moc"
