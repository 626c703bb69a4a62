#include "plots/rulerbarvertical.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtTest>

#include <limits>

namespace {

/// Opens the title's drawing, so that what it leaves on the painter can be seen.
class OpenRuler : public RulerBarVertical
{
public:
    using RulerBarVertical::drawTitle;
    using RulerBarVertical::RulerBarVertical;
};

} // namespace

class TestRulerBarVertical : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeImage_growsUpward();
    void scrolled_countsFromTheBottomOfTheImage();
    void valueAxis_withHeadroom();
    void tallerThanTheLayoutAllows_fillsTheItem();
    void crossAxis_measuresTheColumnsFromTheImageHeight();
    void crossAxis_calibratesOverTheWidth();
    void noHeight_hasNoTicks();
    void badRectangles_data();
    void badRectangles();
    void hugeRectanglesAndImages();
    void hugeRectangle_isMeasuredUpToTheBound();
    void drawing_labelsStandLeftOfTheirTicks();
    void drawing_titleReadsUpward();
    void drawing_titleTurnsThePainterBack();
    void drawing_emptyTitleDrawsNothing();
    void metaObject_addsNothing();
};

void TestRulerBarVertical::wholeImage_growsUpward()
{
    RulerBarVertical ruler(QString(), nullptr);
    place(ruler, 70.0, 400.0);
    QCOMPARE(ruler.ticks().size(), 21);
    QCOMPARE(ruler.ticks().at(0), QLineF(70, 401, 64, 401));
    QCOMPARE(ruler.ticks().at(1), QLineF(70, 381, 67, 381));
    QCOMPARE(ruler.labels(), (QStringList { "80", "160", "240", "320", "400" }));
    QCOMPARE(ruler.labelledTicks().first(), QLineF(70, 321, 64, 321));
}

void TestRulerBarVertical::scrolled_countsFromTheBottomOfTheImage()
{
    RulerBarVertical ruler(QString(), nullptr);
    place(ruler, 70.0, 400.0);
    ruler.changedActualSize(QSize(300, 1000));
    ruler.changedActualRect(QRectF(0.0, 100.0, 300.0, 400.0));
    QCOMPARE(ruler.labels(), (QStringList { "560", "640", "720", "800", "880" }));
    QCOMPARE(ruler.labelledTicks().first(), QLineF(70, 341, 64, 341));
}

void TestRulerBarVertical::valueAxis_withHeadroom()
{
    RulerBarVertical ruler("Gray", nullptr);
    ruler.setLabelPrecision(0);
    ruler.changedShowValueRange(0.0, 255.0);
    place(ruler, 90.0, 400.0);
    QCOMPARE(ruler.labels(), (QStringList { "51", "102", "153", "204", "255" }));
    ruler.setZoom(2.0); // half the height more below: tick 10 comes first
    QCOMPARE(ruler.labels(), (QStringList { "153", "204", "255", "306", "357" }));
    QCOMPARE(ruler.labelledTicks().first(), QLineF(90, 361, 84, 361));
}

void TestRulerBarVertical::tallerThanTheLayoutAllows_fillsTheItem()
{
    RulerBarVertical ruler(QString(), nullptr);
    place(ruler, 70.0, 1200.0);
    QCOMPARE(ruler.geometry().height(), 1000.0); // the layout's maximum
    QCOMPARE(ruler.ticks().size(), 21); // every 20 units = 60 pixels
    QCOMPARE(ruler.ticks().first(), QLineF(70, 1201, 64, 1201));
    QCOMPARE(ruler.ticks().last(), QLineF(70, 1, 64, 1));
}

void TestRulerBarVertical::crossAxis_measuresTheColumnsFromTheImageHeight()
{
    RulerBarVertical ruler(QString(), nullptr);
    ruler.setCrossAxis(true);
    place(ruler, 70.0, 400.0);
    ruler.changedActualSize(QSize(1000, 400));
    ruler.changedActualRect(QRectF(100.0, 0.0, 400.0, 300.0));
    // 400 columns from 100 on; 400 - 100 - 400 = 100 below zero, although the width is 1000
    QCOMPARE(ruler.ticks().first(), QLineF(70, 401, 67, 401));
    QCOMPARE(ruler.labels(), (QStringList { "-80", "0", "80", "160", "240" }));
}

void TestRulerBarVertical::crossAxis_calibratesOverTheWidth()
{
    RulerBarVertical ruler(QString(), nullptr);
    ruler.setCrossAxis(true);
    place(ruler, 70.0, 400.0);
    ruler.changedActualSize(QSize(800, 400));
    ruler.changedShowValueRange(500.0, 900.0);
    QCOMPARE(ruler.labels().first(), QString("540.0")); // 80 * 400 / 800 + 500
}

void TestRulerBarVertical::noHeight_hasNoTicks()
{
    RulerBarVertical ruler("Gray", nullptr);
    place(ruler, 70.0, 400.0);
    for (const double height : { 0.0, -30.0, std::numeric_limits<double>::quiet_NaN() }) {
        place(ruler, 90.0, height);
        QVERIFY(ruler.ticks().isEmpty());
        QVERIFY(ruler.labelledTicks().isEmpty());
        QVERIFY(ruler.labels().isEmpty());
        ruler.setZoom(1.2);
        QVERIFY(ruler.ticks().isEmpty());
        ruler.setZoom(1.0);
    }
    place(ruler, 70.0, 400.0);
    QCOMPARE(ruler.ticks().size(), 21);
}

void TestRulerBarVertical::badRectangles_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("no height") << QRectF(0.0, 0.0, 400.0, 0.0);
    QTest::newRow("inverted") << QRectF(0.0, 400.0, 400.0, -400.0);
    QTest::newRow("height not a number")
        << QRectF(0.0, 0.0, 400.0, std::numeric_limits<double>::quiet_NaN());
}

void TestRulerBarVertical::badRectangles()
{
    QFETCH(QRectF, rect);
    RulerBarVertical ruler(QString(), nullptr);
    place(ruler, 70.0, 400.0);
    ruler.changedActualRect(rect);
    QVERIFY(ruler.ticks().isEmpty());
    QVERIFY(ruler.labelledTicks().isEmpty());
    QVERIFY(ruler.labels().isEmpty());
    ruler.changedActualRect(QRectF(0.0, 0.0, 400.0, 400.0));
    QCOMPARE(ruler.ticks().size(), 21);
}

void TestRulerBarVertical::hugeRectanglesAndImages()
{
    RulerBarVertical ruler(QString(), nullptr);
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const QSize& image : { QSize(largest, largest), QSize(smallest, smallest), QSize(0, 0) }) {
        ruler.changedActualSize(image);
        for (const double top : { -infinity, -1e300, 0.0, 1e300, infinity }) {
            for (const double height : { -infinity, 1.0, 1e300, infinity }) {
                place(ruler, 70.0, 400.0);
                ruler.changedActualRect(QRectF(0.0, top, 400.0, height));
                QVERIFY(ruler.ticks().size() <= 50);
                place(ruler, 70.0, 1e300);
                QVERIFY(ruler.ticks().size() <= 50);
            }
        }
    }
    ruler.changedActualSize(QSize(400, 400));
    place(ruler, 70.0, 400.0);
    ruler.changedActualRect(QRectF(0.0, 0.0, 400.0, 400.0));
    QCOMPARE(ruler.ticks().size(), 21);
}

void TestRulerBarVertical::hugeRectangle_isMeasuredUpToTheBound()
{
    RulerBarVertical ruler(QString(), nullptr);
    place(ruler, 70.0, 400.0);
    ruler.changedActualRect(QRectF(0.0, 0.0, 400.0, 1e300));
    // 2^30 rows, all but 400 below the image: a tick every 60,000,000 = 22.35 pixels, the first
    // number -17 at y = 380.98, the last number 0 at y = 1
    QCOMPARE(ruler.ticks().size(), 18);
    QCOMPARE(ruler.labels(), (QStringList { "-900000000", "-600000000", "-300000000", "0" }));
}

void TestRulerBarVertical::drawing_labelsStandLeftOfTheirTicks()
{
    RulerBarVertical ruler(QString(), nullptr);
    place(ruler, 70.0, 400.0);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    painter.setFont(largeItalicFont()); // the size is replaced by the ruler's own
    ruler.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.lines(), ruler.ticks());
    const QVector<RecordingPaintDevice::Entry> texts = recorded.of(RecordingPaintDevice::Text);
    QCOMPARE(texts.size(), 5);
    QFont font = largeItalicFont();
    font.setPixelSize(13);
    const QFontMetricsF metrics(font);
    const QStringList labels { "80", "160", "240", "320", "400" };
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(texts.at(i).text, labels.at(i));
        QCOMPARE(texts.at(i).font.pixelSize(), 13);
        QVERIFY(texts.at(i).font.italic());
        QCOMPARE(texts.at(i).pen.color(), QColor(Qt::white));
        const double x = 64.0 - metrics.horizontalAdvance(labels.at(i)) - 4.0;
        const double y = 321.0 - 80.0 * i + metrics.height() * 0.5 - 1.0;
        QCOMPARE(texts.at(i).position, QPointF(int(x), int(y)));
    }
}

void TestRulerBarVertical::drawing_titleReadsUpward()
{
    RulerBarVertical ruler("Gray", nullptr);
    ruler.setSize(70.0, 400.0);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    painter.setFont(largeItalicFont());
    ruler.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 1); // no ticks before the first geometry
    const RecordingPaintDevice::Entry title = recorded.entries().first();
    QCOMPARE(title.text, QString("Gray"));
    QCOMPARE(title.font.pixelSize(), 14);
    QVERIFY(title.font.italic());
    QFont font = largeItalicFont();
    font.setPixelSize(14);
    const QFontMetricsF metrics(font);
    const double x = -(400.0 + metrics.horizontalAdvance("Gray")) * 0.5;
    QCOMPARE(title.position, QPointF(int(x), int(metrics.height() + 4.0)));
    // right on the text is up on the ruler, down on the text is right
    QCOMPARE(title.transform.map(QPointF(10.0, 0.0)), QPointF(0.0, -10.0));
    QCOMPARE(title.transform.map(QPointF(0.0, 10.0)), QPointF(10.0, 0.0));
}

void TestRulerBarVertical::drawing_titleTurnsThePainterBack()
{
    OpenRuler ruler("Gray", nullptr);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    ruler.drawTitle(&painter);
    QCOMPARE(recorded.texts(), QStringList { "Gray" });
    QVERIFY(painter.transform().isIdentity());
}

void TestRulerBarVertical::drawing_emptyTitleDrawsNothing()
{
    RulerBarVertical ruler(QString(""), nullptr);
    place(ruler, 70.0, 400.0);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    ruler.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.texts().size(), 5);
    QCOMPARE(recorded.lines().size(), 21);
}

void TestRulerBarVertical::metaObject_addsNothing()
{
    const QMetaObject& meta = RulerBarVertical::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.className(), "RulerBarVertical");
}

QTEST_MAIN(TestRulerBarVertical)
#include "tst_rulerbarvertical.moc"
