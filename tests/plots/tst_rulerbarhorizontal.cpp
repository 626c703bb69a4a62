#include "plots/rulerbarhorizontal.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtTest>

#include <limits>

namespace {

QVector<RecordingPaintDevice::Entry> drawn(
    RulerBarLayoutItem& ruler, RecordingPaintDevice::Kind kind)
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    painter.setFont(largeItalicFont()); // the size is replaced by the ruler's own
    ruler.paint(&painter, nullptr, nullptr);
    return recorded.of(kind);
}

} // namespace

class TestRulerBarHorizontal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeImage_labelsEveryMajorTickButTheFirst();
    void calibrated_labelsValues();
    void valueAxis_0to255();
    void beforeTheFirstGeometry_ticksAreOneUnitApart();
    void scrolled_startsAtTheVisibleUnit();
    void widerThanTheLayoutAllows_fillsTheItem();
    void crossAxis_measuresTheRows();
    void crossAxis_startsAtTheTopRow();
    void imageSize_showsAtTheNextRebuild();
    void badRectangles_data();
    void badRectangles();
    void hugeRectangles_data();
    void hugeRectangles();
    void hugeRectangle_isMeasuredUpToTheBound();
    void noWidth_hasNoTicks();
    void drawing_labelsAreCentredUnderTheirTicks();
    void drawing_titleIsCentred();
    void drawing_emptyTitleDrawsNothing();
    void metaObject_addsNothing();
};

void TestRulerBarHorizontal::wholeImage_labelsEveryMajorTickButTheFirst()
{
    RulerBarHorizontal ruler("Pixel Number", nullptr);
    place(ruler, 400.0, 50.0);
    QCOMPARE(ruler.ticks().size(), 20);
    QCOMPARE(ruler.ticks().at(0), QLineF(0, 0, 0, 6));
    QCOMPARE(ruler.ticks().at(1), QLineF(20, 0, 20, 3));
    QCOMPARE(ruler.labels(), (QStringList { "80", "160", "240", "320" }));
    QCOMPARE(ruler.labelledTicks().first(), QLineF(80, 0, 80, 6));
}

void TestRulerBarHorizontal::calibrated_labelsValues()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    ruler.changedShowValueRange(500.0, 900.0);
    QCOMPARE(ruler.labels(), (QStringList { "580.0", "660.0", "740.0", "820.0" }));
    ruler.changedShowValueRange(-1.0, 900.0);
    QCOMPARE(ruler.labels(), (QStringList { "80", "160", "240", "320" }));
}

void TestRulerBarHorizontal::valueAxis_0to255()
{
    RulerBarHorizontal ruler("Gray", nullptr);
    place(ruler, 400.0, 50.0);
    ruler.setLabelPrecision(0);
    ruler.changedShowValueRange(0.0, 255.0);
    QCOMPARE(ruler.labels(), (QStringList { "51", "102", "153", "204" })); // 80 * 255 / 400 = 51
}

void TestRulerBarHorizontal::beforeTheFirstGeometry_ticksAreOneUnitApart()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    ruler.setZoom(1.0);
    QCOMPARE(ruler.ticks().size(), 400);
    QCOMPARE(ruler.ticks().at(5), QLineF(5, 0, 5, 6));
    QCOMPARE(ruler.labels().first(), QString("5"));
}

void TestRulerBarHorizontal::scrolled_startsAtTheVisibleUnit()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    ruler.changedActualSize(QSize(1000, 300));
    ruler.changedActualRect(QRectF(50.0, 0.0, 400.0, 300.0));
    QCOMPARE(ruler.ticks().first(), QLineF(10, 0, 10, 3)); // unit 60
    QCOMPARE(ruler.labels(), (QStringList { "80", "160", "240", "320", "400" }));
}

void TestRulerBarHorizontal::widerThanTheLayoutAllows_fillsTheItem()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 1200.0, 50.0);
    QCOMPARE(ruler.geometry().width(), 1000.0); // the layout's maximum
    QCOMPARE(ruler.ticks().size(), 20); // every 20 units = 60 pixels
    QCOMPARE(ruler.ticks().last(), QLineF(1140, 0, 1140, 3));
}

void TestRulerBarHorizontal::crossAxis_measuresTheRows()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    ruler.setCrossAxis(true);
    place(ruler, 500.0, 50.0);
    ruler.changedActualSize(QSize(400, 2000));
    ruler.changedActualRect(QRectF(0.0, 0.0, 400.0, 1000.0));
    // 1000 rows on 500 pixels: major 200, minor 40 = 20 pixels
    QCOMPARE(ruler.ticks().size(), 25);
    QCOMPARE(ruler.labels(), (QStringList { "200", "400", "600", "800" }));
    ruler.changedShowValueRange(100.0, 300.0); // over 2000 rows
    QCOMPARE(ruler.labels().first(), QString("120.0"));
}

void TestRulerBarHorizontal::crossAxis_startsAtTheTopRow()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    ruler.setCrossAxis(true);
    place(ruler, 400.0, 50.0);
    ruler.changedActualSize(QSize(400, 1000));
    ruler.changedActualRect(QRectF(0.0, 50.0, 300.0, 400.0));
    // rows 50 .. 449, a tick every 20: the first is row 60, 10 pixels in
    QCOMPARE(ruler.ticks().first(), QLineF(10, 0, 10, 3));
    QCOMPARE(ruler.labels(), (QStringList { "80", "160", "240", "320", "400" }));
}

void TestRulerBarHorizontal::imageSize_showsAtTheNextRebuild()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    ruler.changedShowValueRange(500.0, 900.0);
    ruler.changedActualSize(QSize(800, 100));
    QCOMPARE(ruler.labels().first(), QString("580.0"));
    ruler.setZoom(1.0);
    QCOMPARE(ruler.labels().first(), QString("540.0"));
}

void TestRulerBarHorizontal::badRectangles_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("no width") << QRectF(0.0, 0.0, 0.0, 400.0);
    QTest::newRow("inverted") << QRectF(400.0, 0.0, -400.0, 400.0);
    QTest::newRow("width not a number")
        << QRectF(0.0, 0.0, std::numeric_limits<double>::quiet_NaN(), 400.0);
    QTest::newRow("infinitely inverted")
        << QRectF(0.0, 0.0, -std::numeric_limits<double>::infinity(), 400.0);
}

void TestRulerBarHorizontal::badRectangles()
{
    QFETCH(QRectF, rect);
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    ruler.changedActualRect(rect);
    QVERIFY(ruler.ticks().isEmpty());
    QVERIFY(ruler.labelledTicks().isEmpty());
    QVERIFY(ruler.labels().isEmpty());
    ruler.changedActualRect(QRectF(0.0, 0.0, 400.0, 400.0));
    QCOMPARE(ruler.ticks().size(), 20);
    QCOMPARE(ruler.labels().size(), 4);
}

void TestRulerBarHorizontal::hugeRectangles_data()
{
    QTest::addColumn<QRectF>("rect");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("wide") << QRectF(0.0, 0.0, 1e300, 400.0);
    QTest::newRow("infinite") << QRectF(0.0, 0.0, infinity, infinity);
    QTest::newRow("far left") << QRectF(-1e300, 0.0, 400.0, 400.0);
    QTest::newRow("far right") << QRectF(1e300, 0.0, 1e300, 400.0);
    QTest::newRow("from end to end") << QRectF(-infinity, -infinity, infinity, infinity);
}

void TestRulerBarHorizontal::hugeRectangles()
{
    QFETCH(QRectF, rect);
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    ruler.changedActualRect(rect);
    QVERIFY(ruler.ticks().size() <= 50);
    place(ruler, 1e300, 50.0);
    QVERIFY(ruler.ticks().size() <= 50);
    place(ruler, 400.0, 50.0);
    ruler.changedActualRect(QRectF(0.0, 0.0, 400.0, 400.0));
    QCOMPARE(ruler.labels(), (QStringList { "80", "160", "240", "320" }));
}

void TestRulerBarHorizontal::hugeRectangle_isMeasuredUpToTheBound()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    ruler.changedActualRect(QRectF(0.0, 0.0, 1e300, 400.0));
    // 2^30 columns: a tick every 60,000,000 = 22.35 pixels, every fifth one major
    QCOMPARE(ruler.ticks().size(), 18); // x = 0 .. 379.98
    QCOMPARE(ruler.labels(), (QStringList { "300000000", "600000000", "900000000" }));
}

void TestRulerBarHorizontal::noWidth_hasNoTicks()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    for (const double width : { 0.0, -20.0, std::numeric_limits<double>::quiet_NaN() }) {
        place(ruler, width, 50.0);
        QVERIFY(ruler.ticks().isEmpty());
        QVERIFY(ruler.labels().isEmpty());
    }
    place(ruler, 400.0, 50.0);
    QCOMPARE(ruler.ticks().size(), 20);
}

void TestRulerBarHorizontal::drawing_labelsAreCentredUnderTheirTicks()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    place(ruler, 400.0, 50.0);
    QCOMPARE(drawn(ruler, RecordingPaintDevice::Line).size(), 20);
    const QVector<RecordingPaintDevice::Entry> texts = drawn(ruler, RecordingPaintDevice::Text);
    QCOMPARE(texts.size(), 4);
    QFont font = largeItalicFont();
    font.setPixelSize(13);
    const QFontMetricsF metrics(font);
    const QStringList labels { "80", "160", "240", "320" };
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(texts.at(i).text, labels.at(i));
        QCOMPARE(texts.at(i).font.pixelSize(), 13);
        QVERIFY(texts.at(i).font.italic());
        QCOMPARE(texts.at(i).pen.color(), QColor(Qt::white));
        const double x = 80.0 * (i + 1) - metrics.horizontalAdvance(labels.at(i)) * 0.5;
        const double y = 6.0 + metrics.height() * 0.5 + 6.0;
        QCOMPARE(texts.at(i).position, QPointF(int(x), int(y)));
    }
}

void TestRulerBarHorizontal::drawing_titleIsCentred()
{
    RulerBarHorizontal ruler("Pixel Number", nullptr);
    place(ruler, 400.0, 50.0);
    const RecordingPaintDevice::Entry title = drawn(ruler, RecordingPaintDevice::Text).last();
    QCOMPARE(title.text, QString("Pixel Number"));
    QCOMPARE(title.font.pixelSize(), 14);
    QVERIFY(title.font.italic());
    QCOMPARE(title.pen.color(), QColor(Qt::white));
    QVERIFY(title.transform.isIdentity());
    QFont font = largeItalicFont();
    font.setPixelSize(14);
    const QFontMetricsF metrics(font);
    const double x = (400.0 - metrics.horizontalAdvance("Pixel Number")) * 0.5;
    QCOMPARE(title.position, QPointF(int(x), int(50.0 - metrics.height())));
}

void TestRulerBarHorizontal::drawing_emptyTitleDrawsNothing()
{
    RulerBarHorizontal ruler(QString(), nullptr);
    QVERIFY(drawn(ruler, RecordingPaintDevice::Text).isEmpty());
    ruler.changedTitleName("nm");
    QCOMPARE(drawn(ruler, RecordingPaintDevice::Text).size(), 1);
    ruler.changedTitleName(QString(""));
    place(ruler, 400.0, 50.0);
    QCOMPARE(drawn(ruler, RecordingPaintDevice::Text).size(), 4);
    QCOMPARE(drawn(ruler, RecordingPaintDevice::Line).size(), 20);
}

void TestRulerBarHorizontal::metaObject_addsNothing()
{
    const QMetaObject& meta = RulerBarHorizontal::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.className(), "RulerBarHorizontal");
}

QTEST_MAIN(TestRulerBarHorizontal)
#include "tst_rulerbarhorizontal.moc"
