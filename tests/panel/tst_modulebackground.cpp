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

/// What is painted with one image.
struct Tiles
{
    int count;
    QRectF last;
};

Tiles tilesOf(const QVector<Entry>& entries, const QColor& color)
{
    Tiles tiles { 0, QRectF() };
    for (const Entry& entry : entries) {
        if (colorOf(entry) == color) {
            ++tiles.count;
            tiles.last = entry.rect;
        }
    }
    return tiles;
}

} // namespace

/// How one image gets into the application's resources and out of them. Not in a namespace: the
/// macros declare what the resource compiler defines outside of any.
struct Skin
{
    void (*add)();
    void (*remove)();
};

#define VKINTENSITY_SKIN(name)                                                                     \
    {                                                                                              \
        [] { Q_INIT_RESOURCE(name); }, [] { Q_CLEANUP_RESOURCE(name); }                            \
    }

static const Skin skins[]
    = { VKINTENSITY_SKIN(moduel_m), VKINTENSITY_SKIN(module_ml), VKINTENSITY_SKIN(module_mr),
          VKINTENSITY_SKIN(module_bm), VKINTENSITY_SKIN(module_bl), VKINTENSITY_SKIN(module_br) };

static void addSkins()
{
    for (const Skin& skin : skins) {
        skin.add();
    }
}

static void removeSkins()
{
    for (const Skin& skin : skins) {
        skin.remove();
    }
}

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
    void missingImage_leavesItsPartOut_data();
    void missingImage_leavesItsPartOut();
    void imagesAreLoadedForEveryPaint();
    void panelWithoutArea_data();
    void panelWithoutArea();
};

void TestModuleBackground::cleanup()
{
    addSkins(); // whatever the test did with them
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
    removeSkins();
    QVERIFY(painted(290, 360).isEmpty());
}

void TestModuleBackground::missingImage_leavesItsPartOut_data()
{
    QTest::addColumn<int>("missing");
    QTest::addColumn<QVector<int>>("counts"); // centre, left, right, bottom, the two corners
    QTest::addColumn<QRectF>("lastLeft");
    QTest::addColumn<QRectF>("lastRight");
    QTest::addColumn<QRectF>("lastBottom");
    const QRectF left(0, 280, 6, 67);
    const QRectF right(282, 270, 8, 71);
    const QRectF bottom(236, 351, 37, 9);
    const QRectF none;
    QTest::newRow("centre") << 0 << QVector<int> { 0, 5, 4, 6, 1, 1 } << left << right << bottom;
    QTest::newRow("left") << 1 << QVector<int> { 20, 0, 4, 6, 1, 1 } << none << right << bottom;
    QTest::newRow("right") << 2 << QVector<int> { 20, 5, 0, 6, 1, 1 } << left << none << bottom;
    QTest::newRow("bottom") << 3 << QVector<int> { 20, 5, 4, 0, 1, 1 } << left << right << none;
    // Without its corner an edge runs to the end, uncut; the bottom one then starts at the left.
    QTest::newRow("bottom left") << 4 << QVector<int> { 20, 6, 4, 7, 0, 1 } << QRectF(0, 350, 6, 70)
                                 << right << QRectF(270, 351, 3, 9);
    QTest::newRow("bottom right") << 5 << QVector<int> { 20, 5, 4, 7, 1, 0 } << left
                                  << QRectF(282, 270, 8, 90) << QRectF(281, 351, 45, 9);
}

void TestModuleBackground::missingImage_leavesItsPartOut()
{
    QFETCH(int, missing);
    QFETCH(QVector<int>, counts);
    QFETCH(QRectF, lastLeft);
    QFETCH(QRectF, lastRight);
    QFETCH(QRectF, lastBottom);
    skins[missing].remove();
    const QVector<Entry> entries = painted(290, 360);
    const QColor colors[]
        = { centreColor, leftColor, rightColor, bottomColor, bottomLeftColor, bottomRightColor };
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(tilesOf(entries, colors[i]).count, counts.at(i));
    }
    QCOMPARE(tilesOf(entries, leftColor).last, lastLeft);
    QCOMPARE(tilesOf(entries, rightColor).last, lastRight);
    QCOMPARE(tilesOf(entries, bottomColor).last, lastBottom);
}

void TestModuleBackground::imagesAreLoadedForEveryPaint()
{
    QCOMPARE(painted(290, 360).size(), 37);
    removeSkins();
    QCOMPARE(painted(290, 360).size(), 0);
    addSkins();
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
