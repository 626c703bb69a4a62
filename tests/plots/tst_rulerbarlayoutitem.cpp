#include "plots/rulerbarlayoutitem.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QPainter>
#include <QtTest>

#include <limits>

namespace {

/// Writes down which of its operations are called, and draws nothing of its own.
class ProbeRuler : public RulerBarLayoutItem
{
public:
    explicit ProbeRuler(const QString& title = QString())
        : RulerBarLayoutItem(title, nullptr)
    {
    }

    QStringList calls;
    QRect seenRect() const { return m_visibleRect; }
    QSize seenImageSize() const { return m_imageSize; }
    QString seenTitle() const { return m_title; }

protected:
    void updateCount() override { calls << "count"; }
    void updateVisibleSpan() override { calls << "span"; }
    void rebuildTicks() override
    {
        calls << "ticks";
        RulerTicks built;
        built.all = { QLineF(1, 2, 3, 4), QLineF(5, 6, 7, 8) };
        built.labelled = { QLineF(5, 6, 7, 8) };
        built.labelledNumbers = { 80 };
        storeTicks(built);
    }
    void computeSteps() override { calls << "steps"; }
    void drawTitle(QPainter*) override { calls << "title"; }
    void drawLabels(QPainter*) override { calls << "labels"; }
};

} // namespace

class TestRulerBarLayoutItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsUncalibratedAndWithoutTicks();
    void metaObject_signatures();
    void metacast_findsTheLayoutPart();
    void layout_hintsAndGeometry();
    void actualSize_onlyUpdatesTheCount();
    void actualRect_roundsAndRebuilds();
    void actualRect_computesStepsWhenTheSizeChanges_data();
    void actualRect_computesStepsWhenTheSizeChanges();
    void actualRect_isBounded();
    void title_isStored();
    void valueRange_isStoredAndRebuilds();
    void valueRange_widensDownward();
    void getValueRange_truncatesAndSaturates();
    void precision_isLimitedAndShowsAtTheNextRebuild();
    void zoom_isAtLeastOne_data();
    void zoom_isAtLeastOne();
    void drawing_ticksLabelsTitle();
    void shownChanges_repaint();
    void changesThatWaitForARebuild_doNotRepaint();
};

void TestRulerBarLayoutItem::startsUncalibratedAndWithoutTicks()
{
    ProbeRuler ruler("Gray");
    QCOMPARE(ruler.seenTitle(), QString("Gray"));
    QCOMPARE(ruler.seenImageSize(), QSize(400, 400));
    QCOMPARE(ruler.seenRect(), QRect(QPoint(0, 0), QPoint(399, 399)));
    QCOMPARE(ruler.labelPrecision(), 1);
    QVERIFY(ruler.zoom() == 1.0);
    QVERIFY(ruler.ticks().isEmpty());
    QVERIFY(ruler.labelledTicks().isEmpty());
    QVERIFY(ruler.labels().isEmpty());
    int start = 0;
    int end = 0;
    ruler.getValueRange(&start, &end);
    QCOMPARE(start, -1);
    QCOMPARE(end, -1);
    QVERIFY(ruler.calls.isEmpty());
    QVERIFY(ruler.graphicsItem() == &ruler);
}

void TestRulerBarLayoutItem::metaObject_signatures()
{
    const QMetaObject& meta = RulerBarLayoutItem::staticMetaObject;
    const int first = meta.methodOffset();
    QCOMPARE(meta.methodCount() - first, 4);
    const QList<QByteArray> signatures { "changedActualSize(QSize)", "changedActualRect(QRectF)",
        "changedTitleName(QString)", "changedShowValueRange(qreal,qreal)" };
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(meta.indexOfSlot(signatures.at(i)), first + i);
    }
    QCOMPARE(meta.method(first).parameterNames(), QList<QByteArray> { "size" });
    QCOMPARE(meta.method(first + 1).parameterNames(), QList<QByteArray> { "rect" });
    QCOMPARE(meta.method(first + 2).parameterNames(), QList<QByteArray> { "title" });
    QCOMPARE(meta.method(first + 3).parameterNames(), (QList<QByteArray> { "", "" }));
}

void TestRulerBarLayoutItem::metacast_findsTheLayoutPart()
{
    ProbeRuler ruler;
    void* const layoutPart = static_cast<QGraphicsLayoutItem*>(&ruler);
    void* const own = static_cast<RulerBarLayoutItem*>(&ruler);
    QVERIFY(ruler.qt_metacast("QGraphicsLayoutItem") == layoutPart);
    QVERIFY(ruler.qt_metacast("org.qt-project.Qt.QGraphicsLayoutItem") == layoutPart);
    QVERIFY(ruler.qt_metacast("RulerBarLayoutItem") == own);
    QVERIFY(ruler.qt_metacast("QWidget") == nullptr);
}

void TestRulerBarLayoutItem::layout_hintsAndGeometry()
{
    ProbeRuler ruler;
    ruler.setSize(400.0, 50.0);
    QVERIFY(ruler.calls.isEmpty()); // the size shows with the next geometry
    const QSizeF constraint(7.0, 9.0);
    QCOMPARE(ruler.sizeHint(Qt::MinimumSize, constraint), QSizeF(0.0, 0.0));
    QCOMPARE(ruler.sizeHint(Qt::PreferredSize, constraint), QSizeF(400.0, 50.0)); // no border
    QCOMPARE(ruler.sizeHint(Qt::MaximumSize, constraint), QSizeF(1000.0, 1000.0));
    QCOMPARE(ruler.sizeHint(Qt::MinimumDescent, constraint), constraint);
    ruler.setGeometry(QRectF(12.0, 34.0, 56.0, 78.0));
    QCOMPARE(ruler.pos(), QPointF(12.0, 34.0));
    QCOMPARE(ruler.geometry(), QRectF(12.0, 34.0, 56.0, 78.0));
    QCOMPARE(ruler.calls, (QStringList { "steps", "ticks" }));
}

void TestRulerBarLayoutItem::actualSize_onlyUpdatesTheCount()
{
    ProbeRuler ruler;
    ruler.changedActualSize(QSize(1024, 256));
    QCOMPARE(ruler.seenImageSize(), QSize(1024, 256));
    QCOMPARE(ruler.calls, QStringList { "count" });
}

void TestRulerBarLayoutItem::actualRect_roundsAndRebuilds()
{
    ProbeRuler ruler;
    // from (10.4, 20.6) to (110.6, 70.9): each corner is rounded, which makes it 101 wide
    ruler.changedActualRect(QRectF(10.4, 20.6, 100.2, 50.3));
    QCOMPARE(ruler.seenRect(), QRect(QPoint(10, 21), QPoint(110, 70)));
    QCOMPARE(ruler.seenRect().size(), QSize(101, 50));
    QCOMPARE(ruler.calls, (QStringList { "span", "steps", "ticks" }));
}

void TestRulerBarLayoutItem::actualRect_computesStepsWhenTheSizeChanges_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<bool>("computes");
    QTest::newRow("moved") << QRectF(50.0, 60.0, 400.0, 400.0) << false;
    QTest::newRow("hardly larger") << QRectF(0.0, 0.0, 400.0 + 1e-11, 400.0) << false;
    QTest::newRow("wider") << QRectF(0.0, 0.0, 401.0, 400.0) << true;
    QTest::newRow("taller") << QRectF(0.0, 0.0, 400.0, 401.0) << true;
    QTest::newRow("larger by less than a pixel") << QRectF(0.0, 0.0, 400.2, 400.0) << true;
    QTest::newRow("not a number") << QRectF(0.0, 0.0, std::numeric_limits<double>::quiet_NaN(),
        400.0) << true;
}

void TestRulerBarLayoutItem::actualRect_computesStepsWhenTheSizeChanges()
{
    QFETCH(QRectF, rect);
    QFETCH(bool, computes);
    ProbeRuler ruler; // shows 400 x 400
    ruler.changedActualRect(rect);
    QCOMPARE(ruler.calls,
        computes ? (QStringList { "span", "steps", "ticks" }) : (QStringList { "span", "ticks" }));
}

void TestRulerBarLayoutItem::actualRect_isBounded()
{
    ProbeRuler ruler;
    const double infinity = std::numeric_limits<double>::infinity();
    ruler.changedActualRect(QRectF(-infinity, 1e300, infinity, -infinity));
    QCOMPARE(ruler.seenRect().topLeft(), QPoint(-1073741824, 1073741824));
    ruler.changedActualRect(QRectF(1.0, 2.0, 3.0, 4.0));
    QCOMPARE(ruler.seenRect(), QRect(1, 2, 3, 4));
}

void TestRulerBarLayoutItem::title_isStored()
{
    ProbeRuler ruler("Pixel Number");
    ruler.changedTitleName("Wavelength (nm)");
    QCOMPARE(ruler.seenTitle(), QString("Wavelength (nm)"));
    QVERIFY(ruler.calls.isEmpty());
}

void TestRulerBarLayoutItem::valueRange_isStoredAndRebuilds()
{
    ProbeRuler ruler;
    ruler.changedShowValueRange(500.0, 900.0);
    QCOMPARE(ruler.calls, QStringList { "ticks" });
    QCOMPARE(ruler.ticks().size(), 2);
    QCOMPARE(ruler.labelledTicks(), (QVector<QLineF> { QLineF(5, 6, 7, 8) }));
    // one unit per minor step, 400 in all: 80 * 400 / 400 + 500
    QCOMPARE(ruler.labels(), QStringList { "580.0" });
    ruler.changedShowValueRange(-1.0, 900.0);
    QCOMPARE(ruler.labels(), QStringList { "80" });
}

void TestRulerBarLayoutItem::valueRange_widensDownward()
{
    ProbeRuler ruler;
    int start = 0;
    int end = 0;
    ruler.changedShowValueRange(600.0, 602.0);
    ruler.getValueRange(&start, &end);
    QCOMPARE(start, 597);
    QCOMPARE(end, 602);
    ruler.changedShowValueRange(0.0, 3.0);
    ruler.getValueRange(&start, &end);
    QCOMPARE(start, -2);
    QCOMPARE(end, 3);
    QCOMPARE(ruler.labels(), QStringList { "80" }); // counts as uncalibrated
    ruler.changedShowValueRange(600.0, -1.0);
    ruler.getValueRange(&start, &end);
    QCOMPARE(start, -1);
    QCOMPARE(end, -1);
}

void TestRulerBarLayoutItem::getValueRange_truncatesAndSaturates()
{
    ProbeRuler ruler;
    int start = 0;
    int end = 0;
    ruler.changedShowValueRange(400.9, 700.2);
    ruler.getValueRange(&start, nullptr);
    ruler.getValueRange(nullptr, &end);
    ruler.getValueRange(nullptr, nullptr);
    QCOMPARE(start, 400);
    QCOMPARE(end, 700);
    ruler.changedShowValueRange(1e12, std::numeric_limits<double>::infinity());
    ruler.getValueRange(&start, &end);
    QCOMPARE(start, 2147483647);
    QCOMPARE(end, 2147483647);
    ruler.changedShowValueRange(1500000000.0, 2000000000.0); // both fit
    ruler.getValueRange(&start, &end);
    QCOMPARE(start, 1500000000);
    QCOMPARE(end, 2000000000);
    ruler.changedShowValueRange(0.0, std::numeric_limits<double>::quiet_NaN());
    ruler.getValueRange(&start, &end);
    QCOMPARE(end, 0);
}

void TestRulerBarLayoutItem::precision_isLimitedAndShowsAtTheNextRebuild()
{
    ProbeRuler ruler;
    ruler.changedShowValueRange(500.0, 900.0);
    ruler.setLabelPrecision(5);
    QCOMPARE(ruler.labelPrecision(), 2);
    QCOMPARE(ruler.labels(), QStringList { "580.0" });
    ruler.setZoom(1.0);
    QCOMPARE(ruler.labels(), QStringList { "580.00" });
    ruler.setLabelPrecision(-1);
    QCOMPARE(ruler.labelPrecision(), 0);
    ruler.setZoom(1.0);
    QCOMPARE(ruler.labels(), QStringList { "580" });
}

void TestRulerBarLayoutItem::zoom_isAtLeastOne_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("stored");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("headroom") << 1.2 << 1.2;
    QTest::newRow("below one") << 0.5 << 1.0;
    QTest::newRow("zero") << 0.0 << 1.0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 1.0;
    QTest::newRow("infinite") << infinity << infinity;
    QTest::newRow("minus infinite") << -infinity << 1.0;
}

void TestRulerBarLayoutItem::zoom_isAtLeastOne()
{
    QFETCH(double, zoom);
    QFETCH(double, stored);
    ProbeRuler ruler;
    ruler.setZoom(zoom);
    QVERIFY(ruler.zoom() == stored);
    QCOMPARE(ruler.calls, QStringList { "ticks" });
}

void TestRulerBarLayoutItem::drawing_ticksLabelsTitle()
{
    ProbeRuler ruler;
    ruler.setZoom(1.0);
    ruler.calls.clear();
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    ruler.paint(&painter, nullptr, nullptr);
    QCOMPARE(ruler.calls, (QStringList { "labels", "title" }));
    QCOMPARE(recorded.entries().size(), 2); // no frame
    QCOMPARE(recorded.lines(), (QVector<QLineF> { QLineF(1, 2, 3, 4), QLineF(5, 6, 7, 8) }));
    QCOMPARE(recorded.entries().first().pen.color(), QColor(Qt::white));
    QCOMPARE(recorded.entries().first().pen.width(), 1);
}

void TestRulerBarLayoutItem::shownChanges_repaint()
{
    ProbeRuler ruler;
    QVERIFY(repaints(ruler, [&] { ruler.changedActualRect(QRectF(0.0, 0.0, 100.0, 50.0)); }));
    QVERIFY(repaints(ruler, [&] { ruler.changedTitleName("nm"); }));
    QVERIFY(repaints(ruler, [&] { ruler.changedShowValueRange(500.0, 900.0); }));
    QVERIFY(repaints(ruler, [&] { ruler.setZoom(1.2); }));
}

void TestRulerBarLayoutItem::changesThatWaitForARebuild_doNotRepaint()
{
    ProbeRuler ruler;
    QVERIFY(!repaints(ruler, [&] { ruler.changedActualSize(QSize(1024, 256)); }));
    QVERIFY(!repaints(ruler, [&] { ruler.setLabelPrecision(2); }));
}

QTEST_MAIN(TestRulerBarLayoutItem)
#include "tst_rulerbarlayoutitem.moc"
