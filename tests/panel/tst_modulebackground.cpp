#include "panel/modulebackground.h"
#include "support/recordingpaintdevice.h"

#include <QPainter>
#include <QtTest>

#include <limits>

namespace {

using Entry = RecordingPaintDevice::Entry;

QVector<Entry> painted(int width, int height)
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    paintModuleBackground(&painter, width, height);
    return recorded.entries();
}

/// Which image an entry shows: the skins of the test differ in colour.
QColor colorOf(const Entry& entry)
{
    return entry.pixmap.toImage().pixelColor(0, 0);
}

const QColor centreColor(20, 20, 20);
const QColor leftColor(0, 0, 30);
const QColor rightColor(0, 30, 0);
const QColor bottomColor(30, 0, 0);
const QColor bottomLeftColor(10, 0, 0);
const QColor bottomRightColor(0, 10, 0);

} // namespace

/// The skins: centre 50 x 60, left 6 x 70, right 8 x 90, bottom 45 x 9, left corner 11 x 13, right
/// corner 17 x 19.
class TestModuleBackground : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void paintsTheSixPartsInOrder();
    void drawsEachImageWhole();
    void panelShorterThanTheCentreTile_hasEdgesAndCornersOnly();
    void leavesPenAndBrushAlone();
    void missingImages_areLeftOut();
    void imagesAreLoadedForEveryPaint();
    void panelWithoutArea_data();
    void panelWithoutArea();
};

void TestModuleBackground::cleanup()
{
    Q_INIT_RESOURCE(skin); // whatever the test did with it
}

void TestModuleBackground::paintsTheSixPartsInOrder()
{
    const QVector<Entry> entries = painted(290, 360);
    struct Part
    {
        QColor color;
        int count;
        QRectF first;
        QRectF last;
    };
    const Part parts[] = {
        { centreColor, 20, { 50, 0, 50, 60 }, { 200, 240, 50, 60 } }, // 4 columns, 5 rows
        { leftColor, 5, { 0, 0, 6, 70 }, { 0, 280, 6, 67 } }, // to 360 - 13
        { rightColor, 4, { 282, 0, 8, 90 }, { 282, 270, 8, 71 } }, // to 360 - 19
        { bottomColor, 6, { 11, 351, 45, 9 }, { 236, 351, 37, 9 } }, // to 290 - 17
        { bottomLeftColor, 1, { 0, 347, 11, 13 }, { 0, 347, 11, 13 } },
        { bottomRightColor, 1, { 273, 341, 17, 19 }, { 273, 341, 17, 19 } },
    };
    int next = 0;
    for (const Part& part : parts) {
        QVERIFY(next + part.count <= entries.size());
        QCOMPARE(entries.at(next).rect, part.first);
        for (int i = 0; i < part.count; ++i) {
            QCOMPARE(colorOf(entries.at(next)), part.color);
            ++next;
        }
        QCOMPARE(entries.at(next - 1).rect, part.last);
    }
    QCOMPARE(entries.size(), next);
}

void TestModuleBackground::drawsEachImageWhole()
{
    const QVector<Entry> entries = painted(290, 360);
    QCOMPARE(entries.first().source, QRectF(0, 0, 50, 60));
    QCOMPARE(entries.at(24).source, QRectF(0, 0, 6, 70)); // into a height of 67
    QCOMPARE(entries.at(34).source, QRectF(0, 0, 45, 9)); // into a width of 37
}

void TestModuleBackground::panelShorterThanTheCentreTile_hasEdgesAndCornersOnly()
{
    const QVector<Entry> entries = painted(290, 60);
    QCOMPARE(colorOf(entries.first()), leftColor);
    QCOMPARE(entries.first().rect, QRectF(0, 0, 6, 47));
    QCOMPARE(entries.size(), 1 + 1 + 6 + 2);
}

void TestModuleBackground::leavesPenAndBrushAlone()
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    painter.setPen(Qt::green);
    painter.setBrush(Qt::yellow);
    paintModuleBackground(&painter, 290, 360);
    QCOMPARE(painter.pen(), QPen(Qt::green));
    QCOMPARE(painter.brush(), QBrush(Qt::yellow));
}

void TestModuleBackground::missingImages_areLeftOut()
{
    Q_CLEANUP_RESOURCE(skin);
    QVERIFY(painted(290, 360).isEmpty());
}

void TestModuleBackground::imagesAreLoadedForEveryPaint()
{
    QCOMPARE(painted(290, 360).size(), 37);
    Q_CLEANUP_RESOURCE(skin);
    QCOMPARE(painted(290, 360).size(), 0);
    Q_INIT_RESOURCE(skin);
    QCOMPARE(painted(290, 360).size(), 37);
}

void TestModuleBackground::panelWithoutArea_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("no width") << 0 << 360;
    QTest::newRow("no height") << 290 << 0;
    QTest::newRow("negative") << -290 << -360;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << std::numeric_limits<int>::min();
}

void TestModuleBackground::panelWithoutArea()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QVERIFY(painted(width, height).isEmpty());
}

QTEST_MAIN(TestModuleBackground)
#include "tst_modulebackground.moc"
