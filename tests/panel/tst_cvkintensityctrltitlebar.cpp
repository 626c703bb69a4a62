#include "panel/cvkintensityctrltitlebar.h"

#include "panel/formtree.h"
#include "base/screenscale.h"
#include "support/recordingpaintdevice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

/// The sizes of a title bar, in pixels.
struct Sizes
{
    int barWidth;
    int smallestHeight;
    int largestHeight;
    int labelWidth;
    int spacing;
};

/// Runs at 96 and at 144 dots per inch.
Sizes expectedSizes()
{
    return primaryDotsPerInch() == 96.0 ? Sizes { 290, 26, 28, 200, 10 }
                                        : Sizes { 435, 39, 42, 300, 15 };
}

} // namespace

class TestCVKIntensityCtrlTitleBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void metaObject_listsSignalAndSlot();
    void construction_setsFlagsAndSizes();
    void withoutTitle_pressesDoNothing();
    void title_buildsLabelAndButton();
    void title_centresThemAsAGroup();
    void secondTitle_storesTheIndexOnly();
    void leftPress_toggles();
    void leftPress_onTheLabel();
    void otherButtons_doNothing_data();
    void otherButtons_doNothing();
    void flexButton_setsTheState();
    void flexButton_andBarTakeTurns();
    void paint_drawsTheSkin();
    void paint_withoutSkin();
    void receiverDeletesTheBar();
    void close_deletesTheBar();

private:
    QLabel* label() const { return m_bar->findChild<QLabel*>(); }
    QPushButton* button() const { return m_bar->findChild<QPushButton*>("left_flex1"); }
    QVector<QRectF> painted() const;

    std::unique_ptr<QWidget> m_parent;
    CVKIntensityCtrlTitleBar* m_bar = nullptr;
};

void TestCVKIntensityCtrlTitleBar::init()
{
    Q_INIT_RESOURCE(skin); // a test takes it away
    m_parent = std::make_unique<QWidget>();
    m_bar = new CVKIntensityCtrlTitleBar(m_parent.get());
    m_bar->resize(expectedSizes().barWidth, expectedSizes().smallestHeight);
    m_parent->show();
}

void TestCVKIntensityCtrlTitleBar::cleanup()
{
    m_parent.reset();
}

QVector<QRectF> TestCVKIntensityCtrlTitleBar::painted() const
{
    RecordingPaintDevice recorded;
    m_bar->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    QVector<QRectF> rects;
    for (const RecordingPaintDevice::Entry& entry : recorded.entries()) {
        rects.append(entry.rect);
    }
    return rects;
}

void TestCVKIntensityCtrlTitleBar::metaObject_listsSignalAndSlot()
{
    const QMetaObject& meta = CVKIntensityCtrlTitleBar::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod state = meta.method(meta.methodOffset());
    QCOMPARE(state.methodSignature(), QByteArray("changeShrinkageState(bool)"));
    QCOMPARE(state.parameterNames().first(), QByteArray("shrinkageState"));
    const QMetaMethod clicked = meta.method(meta.methodOffset() + 1);
    QCOMPARE(clicked.methodSignature(), QByteArray("on_pbFlex_clicked(bool)"));
    QCOMPARE(clicked.parameterNames().first(), QByteArray("checked"));
}

void TestCVKIntensityCtrlTitleBar::construction_setsFlagsAndSizes()
{
    QCOMPARE(m_bar->windowType(), Qt::SubWindow);
    QVERIFY(m_bar->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(m_bar->minimumWidth(), expectedSizes().barWidth);
    QCOMPARE(m_bar->minimumHeight(), expectedSizes().smallestHeight);
    QCOMPARE(m_bar->maximumHeight(), expectedSizes().largestHeight);
    QCOMPARE(m_bar->moduleIndex(), 0);
    QVERIFY(!m_bar->isShrunk());
    QVERIFY(m_bar->stateByTitle().isEmpty());
    QVERIFY(m_bar->children().isEmpty());
}

void TestCVKIntensityCtrlTitleBar::withoutTitle_pressesDoNothing()
{
    QSignalSpy spy(m_bar, SIGNAL(changeShrinkageState(bool)));
    QTest::mousePress(m_bar, Qt::LeftButton);
    QVERIFY(spy.isEmpty());
    QVERIFY(!m_bar->isShrunk());
}

void TestCVKIntensityCtrlTitleBar::title_buildsLabelAndButton()
{
    m_bar->setTitle(3, "Data Histogram");
    QCOMPARE(m_bar->moduleIndex(), 3);
    QCOMPARE(label()->text(), QString("Data Histogram"));
    QCOMPARE(int(label()->font().weight()), int(QFont::Bold));
    QCOMPARE(label()->styleSheet(), QString("color: rgb(250, 250, 250);"));
    QCOMPARE(label()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(label()->minimumWidth(), expectedSizes().labelWidth);
    QCOMPARE(label()->maximumWidth(), expectedSizes().labelWidth);
    QVERIFY(button()->isCheckable());
    QVERIFY(!button()->isChecked());
    QCOMPARE(button()->minimumSize(), QSize(30, 24)); // at any scale
    QCOMPARE(button()->maximumSize(), QSize(30, 24));
    QCOMPARE(m_bar->stateByTitle(), (QMap<QString, bool> { { "Data Histogram", false } }));
}

void TestCVKIntensityCtrlTitleBar::title_centresThemAsAGroup()
{
    m_bar->setTitle(0, "Data Histogram");
    const auto* const layout = qobject_cast<QHBoxLayout*>(m_bar->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), expectedSizes().spacing);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 4);
    QCOMPARE(nameOf(layout->itemAt(0)), QString("0 x 0 h")); // a stretch
    QCOMPARE(layout->itemAt(1)->widget(), label());
    QCOMPARE(layout->itemAt(2)->widget(), button());
    QCOMPARE(nameOf(layout->itemAt(3)), QString("0 x 0 h"));
}

void TestCVKIntensityCtrlTitleBar::secondTitle_storesTheIndexOnly()
{
    m_bar->setTitle(0, "first");
    QTest::mousePress(m_bar, Qt::LeftButton);
    const QList<QObject*> children = m_bar->children();
    m_bar->setTitle(5, "second");
    QCOMPARE(m_bar->moduleIndex(), 5);
    QCOMPARE(m_bar->children(), children);
    QCOMPARE(label()->text(), QString("first"));
    QVERIFY(m_bar->isShrunk());
    QCOMPARE(m_bar->stateByTitle(), (QMap<QString, bool> { { "first", false } }));
}

void TestCVKIntensityCtrlTitleBar::leftPress_toggles()
{
    m_bar->setTitle(0, "title");
    QSignalSpy spy(m_bar, SIGNAL(changeShrinkageState(bool)));
    for (const bool isShrunk : { true, false, true }) {
        QTest::mousePress(m_bar, Qt::LeftButton, {}, QPoint(2, 2)); // beside the label
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.takeFirst().first().toBool(), isShrunk);
        QCOMPARE(m_bar->isShrunk(), isShrunk);
        QCOMPARE(button()->isChecked(), isShrunk);
        QTest::mouseRelease(m_bar, Qt::LeftButton, {}, QPoint(2, 2));
        QVERIFY(spy.isEmpty());
    }
}

void TestCVKIntensityCtrlTitleBar::leftPress_onTheLabel()
{
    m_bar->setTitle(0, "title");
    QSignalSpy spy(m_bar, SIGNAL(changeShrinkageState(bool)));
    QTest::mouseClick(label(), Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QVERIFY(m_bar->isShrunk());
}

void TestCVKIntensityCtrlTitleBar::otherButtons_doNothing_data()
{
    QTest::addColumn<int>("mouseButton");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void TestCVKIntensityCtrlTitleBar::otherButtons_doNothing()
{
    QFETCH(int, mouseButton);
    m_bar->setTitle(0, "title");
    QSignalSpy spy(m_bar, SIGNAL(changeShrinkageState(bool)));
    QTest::mousePress(m_bar, Qt::MouseButton(mouseButton), {}, QPoint(2, 2));
    QVERIFY(spy.isEmpty());
    QVERIFY(!m_bar->isShrunk());
    QVERIFY(!button()->isChecked());
}

void TestCVKIntensityCtrlTitleBar::flexButton_setsTheState()
{
    m_bar->setTitle(0, "title");
    QSignalSpy spy(m_bar, SIGNAL(changeShrinkageState(bool)));
    for (const bool isShrunk : { true, false }) {
        QTest::mouseClick(button(), Qt::LeftButton);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.takeFirst().first().toBool(), isShrunk);
        QCOMPARE(m_bar->isShrunk(), isShrunk);
        QCOMPARE(button()->isChecked(), isShrunk);
    }
}

void TestCVKIntensityCtrlTitleBar::flexButton_andBarTakeTurns()
{
    m_bar->setTitle(0, "title");
    QSignalSpy spy(m_bar, SIGNAL(changeShrinkageState(bool)));
    QTest::mousePress(m_bar, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseClick(button(), Qt::LeftButton);
    QTest::mousePress(m_bar, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.at(0).first().toBool(), true);
    QCOMPARE(spy.at(1).first().toBool(), false);
    QCOMPARE(spy.at(2).first().toBool(), true);
}

void TestCVKIntensityCtrlTitleBar::paint_drawsTheSkin()
{
    m_bar->resize(500, expectedSizes().largestHeight);
    const double height = expectedSizes().largestHeight;
    // The ends are 5 and 7 wide, the middle 40.
    QVector<QRectF> expected { { 0, 0, 5, height }, { 493, 0, 7, height } };
    for (int x = 5; x < 485; x += 40) {
        expected.append(QRectF(x, 0, 40, height));
    }
    expected.append(QRectF(485, 0, 8, height));
    QCOMPARE(painted(), expected);
}

void TestCVKIntensityCtrlTitleBar::paint_withoutSkin()
{
    Q_CLEANUP_RESOURCE(skin);
    QVERIFY(!painted().isEmpty()); // the skin was loaded by the constructor
    m_bar = new CVKIntensityCtrlTitleBar(m_parent.get());
    m_bar->show();
    QVERIFY(painted().isEmpty());
}

void TestCVKIntensityCtrlTitleBar::receiverDeletesTheBar()
{
    for (const bool isByButton : { true, false }) {
        QPointer<CVKIntensityCtrlTitleBar> bar(new CVKIntensityCtrlTitleBar(m_parent.get()));
        bar->setTitle(0, "title");
        bar->show();
        connect(bar, &CVKIntensityCtrlTitleBar::changeShrinkageState, bar,
            [&bar] { delete bar.data(); });
        QWidget* const target
            = isByButton ? bar->findChild<QPushButton*>() : static_cast<QWidget*>(bar);
        QTest::mousePress(target, Qt::LeftButton, {}, QPoint(2, 2));
        if (isByButton) {
            QTest::mouseRelease(target, Qt::LeftButton, {}, QPoint(2, 2));
        }
        QVERIFY(!bar);
    }
}

void TestCVKIntensityCtrlTitleBar::close_deletesTheBar()
{
    const QPointer<CVKIntensityCtrlTitleBar> bar(m_bar);
    bar->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!bar);
}

QTEST_MAIN(TestCVKIntensityCtrlTitleBar)
#include "tst_cvkintensityctrltitlebar.moc"
