#include "panel/cvkdatahistogram.h"

#include "panel/eventcounter.h"
#include "panel/signallog.h"
#include "support/recordingpaintdevice.h"

#include <QComboBox>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <limits>
#include <memory>

namespace {

using Entry = RecordingPaintDevice::Entry;

constexpr int largestInt = std::numeric_limits<int>::max();
constexpr int smallestInt = std::numeric_limits<int>::min();

IntensityInfo sampleInfo()
{
    IntensityInfo info;
    info.rect = QRect(QPoint(10, 20), QPoint(29, 39));
    info.imageWidth = 200;
    info.imageHeight = 100;
    info.min = 7;
    info.max = 4294967295U;
    info.mean = 12.345678;
    info.signalToNoise = 10.0;
    info.standardDeviation = 1.23456;
    return info;
}

} // namespace

class TestCVKDataHistogram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void metaObject_listsSignalsAndSlots();
    void construction_hasNoRegionAndNoValues();
    void add_asksForARegion();
    void delete_asksForTheSelectedRegion();
    void delete_withNoneSelected_doesNothing();
    void comboBox_selectsRegions();
    void comboBox_backToNone_asksForTheWholeImage();
    void names_refillTheList();
    void names_sendMinusTwoWithDeleteEnabled();
    void noNames_resetTheList();
    void reset_sendsWhatTheEmptiedListSends();
    void styleSheet_isGivenToTheDeleteButton();

    void info_showsTheStatistics();
    void info_ofTheSelectedRegionSendsNothing();
    void info_roundTrip();
    void info_ofUnknownRegions_data();
    void info_ofUnknownRegions();
    void info_hostileRects_data();
    void info_hostileRects();
    void info_notANumber();

    void paint_withoutHistogram();
    void paint_drawsInOrder();
    void paint_texts();
    void paint_wideTextsStayInsideTheGroup();
    void paint_unevenStart();
    void paint_withoutRoom();
    void paint_extremeSizes();

    void histogram_isCopied();
    void histogram_schedulesARepaint();
    void histogram_nothingChanges_data();
    void histogram_nothingChanges();
    void histogram_longerThanAnnounced();
    void histogram_sizeArgumentIsNotTheLength_data();
    void histogram_sizeArgumentIsNotTheLength();
    void histogram_atTheUpperEndOfTheValues();
    void histogram_shorterThanTheLastOne();
    void histogram_flat();
    void histogram_countsAreSigned();
    void newSize_ofTheSameLengthKeepsTheCounts();
    void newSize_ofAnotherLengthIsFlat();
    void newSize_schedulesNoRepaint();
    void newSize_cleared_data();
    void newSize_cleared();
    void newSize_largest();
    void histogram_afterClearing();

    void shrinkage_hidesThePanel();
    void receiverDeletesThePanel();
    void close_deletesThePanel();

private:
    template <class Child>
    Child* child(const QString& name) const
    {
        return m_panel->findChild<Child*>(name);
    }
    QStringList values() const;
    QStringList entries() const;
    void choose(int index);
    void click(const QString& button);
    void send(QVector<uint> counts, uint min);
    QVector<Entry> painted() const;
    QVector<QLineF> paintedLines() const;
    QStringList paintedTexts() const;
    QRect frame() const;

    std::unique_ptr<CVKDataHistogram> m_panel;
    SignalLog m_log;
};

void TestCVKDataHistogram::init()
{
    m_panel = std::make_unique<CVKDataHistogram>();
    m_panel->setAttribute(Qt::WA_DeleteOnClose, false); // owned by the test
    m_panel->setFixedSize(290, 450);
    m_panel->show();
    using Panel = CVKDataHistogram;
    CVKDataHistogram* const panel = m_panel.get();
    connect(panel, &Panel::addRoiItem, this, [this] { m_log.add("add"); });
    connect(panel, &Panel::deleteRoiItem, this,
        [this](int index) { m_log.add(QString("delete %1").arg(index)); });
    connect(panel, &Panel::selectRoiItem, this,
        [this](int index) { m_log.add(QString("select %1").arg(index)); });
    connect(panel, &Panel::updateIntensityHistogram, this, [this] { m_log.add("whole"); });
}

void TestCVKDataHistogram::cleanup()
{
    m_panel.reset();
    m_log.taken();
}

QStringList TestCVKDataHistogram::values() const
{
    QStringList texts;
    for (const char* const name :
        { "labelValueX", "labelValueY", "labelValueCounts", "labelValueMean", "labelValueMin",
            "labelValueMax", "labelValueStandard", "labelValueNoise" }) {
        texts.append(child<QLabel>(name)->text());
    }
    return texts;
}

QStringList TestCVKDataHistogram::entries() const
{
    QStringList texts;
    const auto* const box = child<QComboBox>("comboBoxRoi");
    for (int i = 0; i < box->count(); ++i) {
        texts.append(box->itemText(i));
    }
    return texts;
}

void TestCVKDataHistogram::choose(int index)
{
    auto* const box = child<QComboBox>("comboBoxRoi");
    const bool isDown = index > box->currentIndex();
    while (box->currentIndex() != index) {
        QTest::keyClick(box, isDown ? Qt::Key_Down : Qt::Key_Up);
    }
}

void TestCVKDataHistogram::click(const QString& button)
{
    QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
}

/// Hands the panel counts of the values from `min` on.
void TestCVKDataHistogram::send(QVector<uint> counts, uint min)
{
    m_panel->updateRoiIntensityHistogram(
        counts.data(), int(counts.size()), min, min + uint(counts.size()) - 1);
}

QVector<Entry> TestCVKDataHistogram::painted() const
{
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    return recorded.entries();
}

QVector<QLineF> TestCVKDataHistogram::paintedLines() const
{
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    return recorded.lines();
}

QStringList TestCVKDataHistogram::paintedTexts() const
{
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    return recorded.texts();
}

/// Where the frame belongs: 12 and 8 pixels inside the placeholder, 24 and 23 smaller.
QRect TestCVKDataHistogram::frame() const
{
    const auto* const area = child<QWidget>("widgetHistogram");
    const QPoint corner = area->mapTo(m_panel.get(), QPoint(12, 8));
    return QRect(corner.x(), corner.y(), area->width() - 24, area->height() - 23);
}

void TestCVKDataHistogram::metaObject_listsSignalsAndSlots()
{
    const QMetaObject& meta = CVKDataHistogram::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isPrivate = method.access() == QMetaMethod::Private;
        signatures.append(QString(isPrivate ? "private " : "") + method.methodSignature() + ' '
            + method.parameterNames().join(','));
    }
    QCOMPARE(signatures,
        QStringList({ "addRoiItem() ", "deleteRoiItem(int) index", "selectRoiItem(int) index",
            "updateIntensityHistogram() ", "onShrinkaged(bool) shrinkaged",
            "updateItemNames(QStringList) itemNames", "newHistogramSize(int) size",
            "updateRoiIntensityInfo(int,IntensityInfo) selected,info",
            "updateRoiIntensityHistogram(uint*,int,uint,uint) data,maxSize,min,max",
            "private on_pushButtonAdd_clicked() ", "private on_pushButtonDelete_clicked() ",
            "private on_comboBoxRoi_currentIndexChanged(int) index" }));
}

void TestCVKDataHistogram::construction_hasNoRegionAndNoValues()
{
    QCOMPARE(entries(), QStringList({ "None Select" }));
    QCOMPARE(values().join(QString()), QString());
    QVERIFY(!child<QPushButton>("pushButtonDelete")->isEnabled());
    QCOMPARE(
        child<QPushButton>("pushButtonDelete")->styleSheet(), QString("color: rgb(60, 60, 60);"));
    QVERIFY(child<QPushButton>("pushButtonAdd")->isEnabled());
}

void TestCVKDataHistogram::add_asksForARegion()
{
    click("pushButtonAdd");
    QCOMPARE(m_log.taken(), QStringList({ "add" }));
    QCOMPARE(entries().size(), 1);
}

void TestCVKDataHistogram::delete_asksForTheSelectedRegion()
{
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    choose(2);
    m_log.taken();
    click("pushButtonDelete");
    QCOMPARE(m_log.taken(), QStringList({ "delete 1" }));
    QCOMPARE(entries().size(), 3); // the list follows the names only
}

void TestCVKDataHistogram::delete_withNoneSelected_doesNothing()
{
    click("pushButtonDelete"); // disabled
    m_panel->updateItemNames({ "ROI1" });
    QVERIFY(child<QPushButton>("pushButtonDelete")->isEnabled());
    m_log.taken();
    click("pushButtonDelete"); // enabled with "None Select"
    QCOMPARE(m_log.taken(), QStringList());
    child<QComboBox>("comboBoxRoi")->setCurrentIndex(-1);
    m_log.taken();
    click("pushButtonDelete");
    QCOMPARE(m_log.taken(), QStringList());
}

void TestCVKDataHistogram::comboBox_selectsRegions()
{
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    child<QPushButton>("pushButtonDelete")->setEnabled(false);
    m_log.taken();
    choose(1);
    QVERIFY(child<QPushButton>("pushButtonDelete")->isEnabled());
    choose(2);
    QCOMPARE(m_log.taken(), QStringList({ "select 0", "select 1" }));
}

void TestCVKDataHistogram::comboBox_backToNone_asksForTheWholeImage()
{
    m_panel->updateItemNames({ "ROI1" });
    m_panel->updateRoiIntensityInfo(0, sampleInfo());
    m_log.taken();
    choose(0);
    QCOMPARE(m_log.taken(), QStringList({ "whole" }));
    QCOMPARE(values().join(QString()), QString());
    QVERIFY(!child<QPushButton>("pushButtonDelete")->isEnabled());
}

void TestCVKDataHistogram::names_refillTheList()
{
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    QCOMPARE(entries(), QStringList({ "None Select", "ROI1", "ROI2" }));
    QCOMPARE(child<QComboBox>("comboBoxRoi")->currentIndex(), 0);
    QVERIFY(child<QPushButton>("pushButtonDelete")->isEnabled());
    QVERIFY(child<QPushButton>("pushButtonDelete")->styleSheet().isEmpty());
    QCOMPARE(m_log.taken(), QStringList({ "select -2", "whole" }));
    choose(2);
    m_log.taken();
    m_panel->updateItemNames({ "ROI1" });
    QCOMPARE(entries(), QStringList({ "None Select", "ROI1" }));
    QCOMPARE(m_log.taken(), QStringList({ "select -2", "whole" }));
}

void TestCVKDataHistogram::names_sendMinusTwoWithDeleteEnabled()
{
    m_panel->updateItemNames({ "ROI1" });
    choose(0);
    m_log.taken();
    QStringList states;
    const auto note = [&](const char* what) {
        const bool isEnabled = child<QPushButton>("pushButtonDelete")->isEnabled();
        states.append(QString("%1: %2 entries, Delete %3")
                          .arg(what)
                          .arg(entries().size())
                          .arg(isEnabled ? "enabled" : "disabled"));
    };
    connect(m_panel.get(), &CVKDataHistogram::selectRoiItem, this, [&] { note("select"); });
    connect(
        m_panel.get(), &CVKDataHistogram::updateIntensityHistogram, this, [&] { note("whole"); });
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    QCOMPARE(states,
        QStringList({ "select: 0 entries, Delete enabled", "whole: 1 entries, Delete disabled" }));
}

void TestCVKDataHistogram::noNames_resetTheList()
{
    m_panel->updateItemNames({ "ROI1" });
    m_panel->updateRoiIntensityInfo(0, sampleInfo());
    m_log.taken();
    m_panel->updateItemNames({});
    QCOMPARE(m_log.taken(), QStringList({ "select -2", "whole" }));
    construction_hasNoRegionAndNoValues();
}

void TestCVKDataHistogram::reset_sendsWhatTheEmptiedListSends()
{
    m_panel->resetRoiList();
    QCOMPARE(m_log.taken(), QStringList({ "select -2", "whole" }));
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    m_panel->updateRoiIntensityInfo(1, sampleInfo());
    m_log.taken();
    m_panel->resetRoiList();
    QCOMPARE(m_log.taken(), QStringList({ "select -2", "whole" }));
    construction_hasNoRegionAndNoValues();
}

void TestCVKDataHistogram::styleSheet_isGivenToTheDeleteButton()
{
    m_panel->setStyleSheet("color: white;");
    m_panel->updateItemNames({ "ROI1" });
    QCOMPARE(child<QPushButton>("pushButtonDelete")->styleSheet(), QString("color: white;"));
}

void TestCVKDataHistogram::info_showsTheStatistics()
{
    m_panel->updateItemNames({ "ROI1" });
    m_panel->updateRoiIntensityInfo(0, sampleInfo());
    QCOMPARE(values(),
        QStringList(
            { "10 to 29", "60 to 79", "400", "12.35", "7", "4294967295", "1.235", "10.00000" }));
}

void TestCVKDataHistogram::info_ofTheSelectedRegionSendsNothing()
{
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    choose(2);
    m_log.taken();
    m_panel->updateRoiIntensityInfo(1, sampleInfo());
    QCOMPARE(m_log.taken(), QStringList());
    m_panel->updateRoiIntensityInfo(0, sampleInfo());
    QCOMPARE(m_log.taken(), QStringList({ "select 0" }));
    QCOMPARE(child<QComboBox>("comboBoxRoi")->currentIndex(), 1);
}

void TestCVKDataHistogram::info_roundTrip()
{
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    m_log.taken();
    // The sender selects the region that it is asked for and sends its statistics before it
    // returns.
    connect(m_panel.get(), &CVKDataHistogram::selectRoiItem, this, [this](int index) {
        IntensityInfo nested = sampleInfo();
        nested.min = 1;
        m_panel->updateRoiIntensityInfo(index, nested);
        m_log.add("nested " + values().at(4));
    });
    m_panel->updateRoiIntensityInfo(1, sampleInfo());
    QCOMPARE(m_log.taken(), QStringList({ "select 1", "nested 1" }));
    QCOMPARE(values().at(4), QString("7")); // the outer statistics come last
}

void TestCVKDataHistogram::info_ofUnknownRegions_data()
{
    QTest::addColumn<int>("selected");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<int>("index");
    QTest::newRow("none") << -1 << QStringList {} << 0;
    QTest::newRow("before none") << -2 << QStringList { "select -2" } << -1;
    QTest::newRow("behind the last") << 2 << QStringList { "select -2" } << -1;
    QTest::newRow("smallest") << smallestInt << QStringList { "select -2" } << -1;
    QTest::newRow("largest") << largestInt << QStringList { "select -2" } << -1;
}

void TestCVKDataHistogram::info_ofUnknownRegions()
{
    QFETCH(int, selected);
    QFETCH(QStringList, sent);
    QFETCH(int, index);
    m_panel->updateItemNames({ "ROI1", "ROI2" });
    m_log.taken();
    m_panel->updateRoiIntensityInfo(selected, sampleInfo());
    QCOMPARE(m_log.taken(), sent);
    QCOMPARE(child<QComboBox>("comboBoxRoi")->currentIndex(), index);
    QCOMPARE(values().first(), QString("10 to 29")); // shown all the same
}

void TestCVKDataHistogram::info_hostileRects_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<int>("imageHeight");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("one pixel") << QRect(5, 6, 1, 1) << 100
                               << QStringList { "5 to 5", "93 to 93", "1" };
    QTest::newRow("no pixels") << QRect(5, 6, 0, 5) << 100
                               << QStringList { "5 to 4", "89 to 93", "0" };
    QTest::newRow("negative corners")
        << QRect(QPoint(-1, -4), QPoint(3, 2)) << 10 << QStringList { "-1 to 3", "7 to 13", "35" };
    QTest::newRow("no image") << QRect(0, 0, 2, 2) << 0
                              << QStringList { "0 to 1", "-2 to -1", "4" };
    QTest::newRow("more than an int") << QRect(0, 0, 100000, 100000) << 100000
                                      << QStringList { "0 to 99999", "0 to 99999", "10000000000" };
    QTest::newRow("upper limits") << QRect(QPoint(0, 0), QPoint(largestInt, largestInt))
                                  << smallestInt
                                  << QStringList { "0 to 2147483647", "-4294967296 to -2147483649",
                                         "4611686018427387904" }; // 2^31 squared
    QTest::newRow("all limits") << QRect(
        QPoint(smallestInt, smallestInt), QPoint(largestInt, largestInt))
                                << largestInt
                                << QStringList { "-2147483648 to 2147483647", "-1 to 4294967294",
                                       "4611686018427387904" }; // extents are limited to 2^31
    QTest::newRow("turned round") << QRect(QPoint(10, 20), QPoint(7, 39)) << 100
                                  << QStringList { "10 to 7", "60 to 79", "-40" };
}

void TestCVKDataHistogram::info_hostileRects()
{
    QFETCH(QRect, rect);
    QFETCH(int, imageHeight);
    m_panel->updateItemNames({ "ROI1" });
    IntensityInfo info = sampleInfo();
    info.rect = rect;
    info.imageHeight = imageHeight;
    m_panel->updateRoiIntensityInfo(0, info);
    QTEST(QStringList(values().mid(0, 3)), "shown");
}

void TestCVKDataHistogram::info_notANumber()
{
    m_panel->updateItemNames({ "ROI1" });
    IntensityInfo info = sampleInfo();
    info.mean = std::numeric_limits<double>::quiet_NaN();
    info.standardDeviation = std::numeric_limits<double>::infinity();
    info.signalToNoise = -0.000001;
    m_panel->updateRoiIntensityInfo(0, info);
    QCOMPARE(values().at(3), QString("nan"));
    QCOMPARE(values().at(6), QString("inf"));
    QCOMPARE(values().at(7), QString("-0.00000"));
}

void TestCVKDataHistogram::paint_withoutHistogram()
{
    QCOMPARE(paintedTexts(), QStringList({ "0", "0" }));
    QVERIFY(paintedLines().isEmpty());
}

void TestCVKDataHistogram::paint_drawsInOrder()
{
    send({ 0, 30 }, 5);
    const QVector<Entry> all = painted();
    int next = 0;
    while (next < all.size() && all.at(next).kind == RecordingPaintDevice::Pixmap) {
        ++next;
    }
    // 290 x 450 on the test's skin: 4 columns and 7 rows, 7 left, 5 right, 6 below, 2 corners.
    QCOMPARE(next, 28 + 7 + 5 + 6 + 2);
    QCOMPARE(all.at(next).kind, RecordingPaintDevice::Rect);
    QCOMPARE(all.at(next).rect, QRectF(frame()));
    QCOMPARE(all.at(next).pen, QPen(Qt::white, 1));
    QCOMPARE(all.at(next).brush, QBrush(Qt::NoBrush));
    for (int i = 1; i <= 2; ++i) {
        QCOMPARE(all.at(next + i).kind, RecordingPaintDevice::Text);
        QCOMPARE(all.at(next + i).pen, QPen(Qt::white, 1));
        QCOMPARE(all.at(next + i).font.pixelSize(), 11);
    }
    QCOMPARE(all.at(next + 1).text, QString("5"));
    QCOMPARE(all.at(next + 2).text, QString("6"));
    QCOMPARE(all.size(), next + 3 + frame().width() - 3);
    for (int i = next + 3; i < all.size(); ++i) {
        QCOMPARE(all.at(i).kind, RecordingPaintDevice::Line);
        QCOMPARE(all.at(i).pen, QPen(QColor(40, 128, 140), 1));
    }
}

void TestCVKDataHistogram::paint_texts()
{
    send({ 0, 30 }, 65534);
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    const QVector<Entry> texts = recorded.of(RecordingPaintDevice::Text);
    QCOMPARE(recorded.texts(), QStringList({ "65534", "65535" }));
    const QFontMetricsF metrics(texts.first().font);
    const double width = metrics.horizontalAdvance("65534");
    const int y = int(frame().bottom() + metrics.height());
    QCOMPARE(texts.at(0).position, QPointF(int(frame().left() - width / 2), y));
    QCOMPARE(texts.at(1).position, QPointF(int(frame().right() - width / 2), y));
}

void TestCVKDataHistogram::paint_wideTextsStayInsideTheGroup()
{
    send({ 0, 30 }, 4294967294U);
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    const QVector<Entry> texts = recorded.of(RecordingPaintDevice::Text);
    const QRect group = child<QGroupBox>("groupBoxHistogram")->geometry();
    const double width = QFontMetricsF(texts.first().font).horizontalAdvance("4294967295");
    QVERIFY(frame().left() - width / 2 < group.left()); // does not fit under the end
    QVERIFY(texts.at(0).position.x() == group.left() + 2.0);
    QVERIFY(texts.at(1).position.x() == int(group.right() - width - 2));
}

void TestCVKDataHistogram::paint_unevenStart()
{
    QVector<uint> counts;
    for (int i = 0; i < frame().width() - 1; ++i) { // one sample a column
        counts.append(uint(i));
    }
    send(counts, 0);
    const QVector<QLineF> lines = paintedLines();
    const double left = frame().left();
    const double bottom = frame().bottom();
    const double step = double(frame().height() - 2) / (int(counts.size()) - 1);
    QVERIFY(lines.at(0) == QLineF(left + 2, bottom, left + 3, bottom - 1.0 * step));
    QVERIFY(lines.at(1) == QLineF(left + 3, bottom - 1.0 * step, left + 4, bottom - 3.0 * step));
    QVERIFY(lines.last().x2() == frame().right());
    QVERIFY(qAbs(lines.last().y2() - (frame().top() + 1)) < 1e-9);
}

void TestCVKDataHistogram::paint_withoutRoom()
{
    send({ 0, 10, 20, 30 }, 0);
    QWidget parent;
    m_panel->setParent(&parent);
    m_panel->setMinimumSize(0, 0);
    m_panel->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    m_panel->resize(20, 450);
    m_panel->show();
    parent.show();
    QVERIFY(frame().width() < 2);
    QCOMPARE(paintedLines().size(), 1);
    m_panel->resize(0, 0);
    QVERIFY(paintedLines().size() <= 1);
    m_panel->setParent(nullptr);
}

void TestCVKDataHistogram::paint_extremeSizes()
{
    send({ 0, 10, 20, 30 }, 0);
    m_panel->setFixedSize(3000, 450);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(paintedLines().size(), frame().width() - 3);
    QVERIFY(frame().width() > 2800);
}

void TestCVKDataHistogram::histogram_isCopied()
{
    QVector<uint> counts { 0, 10, 20, 30 };
    m_panel->updateRoiIntensityHistogram(counts.data(), 4, 100, 103);
    const QVector<QLineF> lines = paintedLines();
    QVERIFY(!lines.isEmpty());
    counts.fill(7);
    QCOMPARE(paintedLines(), lines);
    QCOMPARE(paintedTexts(), QStringList({ "100", "103" }));
}

void TestCVKDataHistogram::histogram_schedulesARepaint()
{
    QCoreApplication::processEvents();
    EventCounter paints(m_panel.get(), QEvent::Paint);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    send({ 0, 30 }, 5);
    QCOMPARE(paints.count, 0); // not at once
    QTRY_COMPARE(paints.count, 1);
}

void TestCVKDataHistogram::histogram_nothingChanges_data()
{
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<uint>("min");
    QTest::addColumn<uint>("max");
    QTest::newRow("no data") << false << 0U << 1U;
    QTest::newRow("no data, other length") << false << 0U << 100U;
    QTest::newRow("turned round") << true << 1U << 0U;
    QTest::newRow("far turned round") << true << 4294967295U << 0U;
    QTest::newRow("more than 2^26") << true << 0U << 67108864U;
    QTest::newRow("the whole range") << true << 0U << 4294967295U;
}

void TestCVKDataHistogram::histogram_nothingChanges()
{
    QFETCH(bool, hasData);
    QFETCH(uint, min);
    QFETCH(uint, max);
    send({ 0, 10, 20, 30 }, 100);
    const QVector<QLineF> lines = paintedLines();
    QTRY_VERIFY(!m_panel->testAttribute(Qt::WA_PendingUpdate));
    QCoreApplication::processEvents();
    EventCounter paints(m_panel.get(), QEvent::Paint);
    uint count = 5;
    for (const int maxSize : { 4, 0, -1, 1000, largestInt, smallestInt }) {
        m_panel->updateRoiIntensityHistogram(hasData ? &count : nullptr, maxSize, min, max);
    }
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    QCOMPARE(paintedLines(), lines);
    QCOMPARE(paintedTexts(), QStringList({ "100", "103" }));
}

void TestCVKDataHistogram::histogram_longerThanAnnounced()
{
    // A region left over from an image with more values than the present one.
    m_panel->newHistogramSize(2);
    QVector<uint> counts(1000, 0);
    counts[999] = 30;
    m_panel->updateRoiIntensityHistogram(counts.data(), 2, 0, 999);
    QCOMPARE(paintedTexts(), QStringList({ "0", "999" }));
    QVERIFY(paintedLines().last().y1() == frame().bottom());
    QVERIFY(paintedLines().first().y1() == frame().bottom());
}

void TestCVKDataHistogram::histogram_sizeArgumentIsNotTheLength_data()
{
    QTest::addColumn<int>("maxSize");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("smallest") << smallestInt;
    QTest::newRow("too small") << 3;
    QTest::newRow("larger") << 65536;
    QTest::newRow("largest") << largestInt;
}

void TestCVKDataHistogram::histogram_sizeArgumentIsNotTheLength()
{
    send({ 0, 10, 20, 30 }, 100);
    const QVector<QLineF> lines = paintedLines();
    m_panel->newHistogramSize(0);
    QFETCH(int, maxSize);
    QVector<uint> counts { 0, 10, 20, 30 };
    m_panel->updateRoiIntensityHistogram(counts.data(), maxSize, 7, 10);
    QCOMPARE(paintedLines(), lines);
    QCOMPARE(paintedTexts(), QStringList({ "7", "10" }));
}

void TestCVKDataHistogram::histogram_atTheUpperEndOfTheValues()
{
    QVector<uint> counts { 0, 30 };
    m_panel->updateRoiIntensityHistogram(counts.data(), 2, 4294967294U, 4294967295U);
    QCOMPARE(paintedTexts(), QStringList({ "4294967294", "4294967295" }));
    QVERIFY(paintedLines().first().y1() == frame().bottom());
}

void TestCVKDataHistogram::histogram_shorterThanTheLastOne()
{
    send(QVector<uint>(1000, 500), 0);
    send({ 0, 30 }, 5); // the 998 counts behind these are not looked at
    const QVector<QLineF> lines = paintedLines();
    QVERIFY(lines.first().y1() == frame().bottom());
    for (const QLineF& line : lines) {
        QVERIFY(line.y2() <= frame().bottom() && line.y2() > frame().top());
    }
}

void TestCVKDataHistogram::histogram_flat()
{
    send(QVector<uint>(256, 9), 0);
    const QVector<QLineF> lines = paintedLines();
    QCOMPARE(lines.size(), frame().width() - 3);
    for (const QLineF& line : lines) {
        QVERIFY(line.y1() == frame().bottom() && line.y2() == frame().bottom());
    }
}

void TestCVKDataHistogram::histogram_countsAreSigned()
{
    send({ 0, 0xFFFFFFFFU }, 0); // 0 and -1
    const QVector<QLineF> lines = paintedLines();
    QVERIFY(lines.first().y1() == frame().top() + 1.0);
}

void TestCVKDataHistogram::newSize_ofTheSameLengthKeepsTheCounts()
{
    send({ 0, 10, 20, 30 }, 100);
    const QVector<QLineF> lines = paintedLines();
    m_panel->newHistogramSize(4);
    QCOMPARE(paintedLines(), lines);
}

void TestCVKDataHistogram::newSize_ofAnotherLengthIsFlat()
{
    send({ 5, 10, 20, 30 }, 100);
    m_panel->newHistogramSize(3);
    QCOMPARE(paintedTexts(), QStringList({ "100", "103" })); // the values are not touched
    QCOMPARE(paintedLines().size(), frame().width() - 3);
    for (const QLineF& line : paintedLines()) {
        QVERIFY(line.y2() == frame().bottom());
    }
}

void TestCVKDataHistogram::newSize_schedulesNoRepaint()
{
    send({ 5, 10, 20, 30 }, 100);
    QTRY_VERIFY(!m_panel->testAttribute(Qt::WA_PendingUpdate));
    QCoreApplication::processEvents();
    EventCounter paints(m_panel.get(), QEvent::Paint);
    m_panel->newHistogramSize(3);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
}

void TestCVKDataHistogram::newSize_cleared_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("smallest") << smallestInt;
    QTest::newRow("more than 2^26") << 67108865;
    QTest::newRow("largest") << largestInt;
}

void TestCVKDataHistogram::newSize_cleared()
{
    QFETCH(int, size);
    send({ 5, 10, 20, 30 }, 100);
    QVERIFY(!paintedLines().isEmpty());
    m_panel->newHistogramSize(size);
    QVERIFY(paintedLines().isEmpty());
    QCOMPARE(paintedTexts(), QStringList({ "0", "0" }));
}

void TestCVKDataHistogram::newSize_largest()
{
    m_panel->newHistogramSize(67108864);
    QCOMPARE(paintedLines().size(), frame().width() - 3);
    QVERIFY(paintedLines().last().y2() == frame().bottom());
}

void TestCVKDataHistogram::histogram_afterClearing()
{
    send({ 5, 10, 20, 30 }, 100);
    const QVector<QLineF> lines = paintedLines();
    m_panel->newHistogramSize(-1);
    send({ 5, 10, 20, 30 }, 100);
    QCOMPARE(paintedLines(), lines);
}

void TestCVKDataHistogram::shrinkage_hidesThePanel()
{
    m_panel->onShrinkaged(true);
    QVERIFY(m_panel->isHidden());
    m_panel->onShrinkaged(false);
    QVERIFY(!m_panel->isHidden());
}

void TestCVKDataHistogram::receiverDeletesThePanel()
{
    using Panel = CVKDataHistogram;
    QPointer<Panel> panel(new Panel);
    panel->show();
    connect(panel, &Panel::addRoiItem, panel, [&panel] { delete panel.data(); });
    QTest::mouseClick(panel->findChild<QPushButton*>("pushButtonAdd"), Qt::LeftButton);
    QVERIFY(!panel);

    panel = new Panel;
    panel->show();
    panel->updateItemNames({ "ROI1" });
    panel->updateRoiIntensityInfo(0, sampleInfo());
    connect(panel, &Panel::deleteRoiItem, panel, [&panel] { delete panel.data(); });
    QTest::mouseClick(panel->findChild<QPushButton*>("pushButtonDelete"), Qt::LeftButton);
    QVERIFY(!panel);
}

void TestCVKDataHistogram::close_deletesThePanel()
{
    const QPointer<CVKDataHistogram> panel(new CVKDataHistogram);
    panel->show();
    panel->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!panel);
}

QTEST_MAIN(TestCVKDataHistogram)
#include "tst_cvkdatahistogram.moc"
