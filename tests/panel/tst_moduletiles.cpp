#include "panel/moduletiles.h"

#include <QtTest>

#include <limits>

class TestModuleTiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void centre_startsOneTileFromTheLeft();
    void centre_lastColumnMayPassTheRightMargin();
    void centre_lastRowIsCutOneTileAboveTheEdge();
    void centre_panelNoTallerThanTheTile();
    void centre_narrowPanelSkipsTheFirstRow_data();
    void centre_narrowPanelSkipsTheFirstRow();
    void side_isCutAtTheCorner();
    void side_thatEndsAtTheCornerIsNotCut();
    void side_withoutCornerRunsOverTheEdge();
    void side_standsAtItsColumn();
    void side_cornerAsTallAsThePanel();
    void bottom_isCutAtTheRightCorner();
    void bottom_withoutRightCornerRunsOverTheEdge();
    void bottom_withoutLeftCornerStartsAtTheLeftEdge();
    void bottom_cornersAsWideAsThePanel();
    void hostileSizes_data();
    void hostileSizes();
    void tilesOfOnePixel();
};

void TestModuleTiles::centre_startsOneTileFromTheLeft()
{
    const QVector<QRect> tiles = centreTiles(QSize(50, 60), QSize(300, 180));
    // Columns 50, 100, 150, 200 below 250; rows 0, 60 below 120.
    QCOMPARE(tiles.size(), 8);
    QCOMPARE(tiles.at(0), QRect(50, 0, 50, 60));
    QCOMPARE(tiles.at(1), QRect(100, 0, 50, 60));
    QCOMPARE(tiles.at(3), QRect(200, 0, 50, 60));
    QCOMPARE(tiles.at(4), QRect(50, 60, 50, 60));
    QCOMPARE(tiles.at(7), QRect(200, 60, 50, 60));
}

void TestModuleTiles::centre_lastColumnMayPassTheRightMargin()
{
    const QVector<QRect> tiles = centreTiles(QSize(50, 60), QSize(290, 120));
    QCOMPARE(tiles.size(), 4); // the margin begins at 240, the last tile ends at 250
    QCOMPARE(tiles.last(), QRect(200, 0, 50, 60));
}

void TestModuleTiles::centre_lastRowIsCutOneTileAboveTheEdge()
{
    const QVector<QRect> tiles = centreTiles(QSize(50, 60), QSize(150, 200));
    QCOMPARE(tiles,
        QVector<QRect>({ { 50, 0, 50, 60 }, { 50, 60, 50, 60 }, { 50, 120, 50, 20 } })); // to 140
}

void TestModuleTiles::centre_panelNoTallerThanTheTile()
{
    QVERIFY(centreTiles(QSize(50, 60), QSize(300, 59)).isEmpty());
    QVERIFY(centreTiles(QSize(50, 60), QSize(300, 60)).isEmpty());
    const QVector<QRect> tiles = centreTiles(QSize(50, 60), QSize(300, 61));
    QCOMPARE(tiles.size(), 4);
    QCOMPARE(tiles.first(), QRect(50, 0, 50, 1));
}

void TestModuleTiles::centre_narrowPanelSkipsTheFirstRow_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("two tiles") << 100;
    QTest::newRow("one tile") << 50;
    QTest::newRow("less than a tile") << 30;
}

void TestModuleTiles::centre_narrowPanelSkipsTheFirstRow()
{
    QFETCH(int, width);
    QCOMPARE(centreTiles(QSize(50, 60), QSize(width, 200)),
        QVector<QRect>({ { 50, 60, 50, 60 }, { 50, 120, 50, 20 } }));
}

void TestModuleTiles::side_isCutAtTheCorner()
{
    QCOMPARE(sideTiles(0, QSize(6, 70), 13, QSize(290, 200)),
        QVector<QRect>({ { 0, 0, 6, 70 }, { 0, 70, 6, 70 }, { 0, 140, 6, 47 } })); // to 187
}

void TestModuleTiles::side_thatEndsAtTheCornerIsNotCut()
{
    QCOMPARE(sideTiles(0, QSize(6, 70), 13, QSize(290, 153)),
        QVector<QRect>({ { 0, 0, 6, 70 }, { 0, 70, 6, 70 } }));
}

void TestModuleTiles::side_withoutCornerRunsOverTheEdge()
{
    QCOMPARE(sideTiles(0, QSize(6, 70), 0, QSize(290, 200)).last(), QRect(0, 140, 6, 70));
}

void TestModuleTiles::side_standsAtItsColumn()
{
    const QVector<QRect> tiles = sideTiles(284, QSize(6, 70), 13, QSize(290, 100));
    QCOMPARE(tiles, QVector<QRect>({ { 284, 0, 6, 70 }, { 284, 70, 6, 17 } }));
}

void TestModuleTiles::side_cornerAsTallAsThePanel()
{
    QVERIFY(sideTiles(0, QSize(6, 70), 200, QSize(290, 200)).isEmpty());
    QVERIFY(sideTiles(0, QSize(6, 70), 900, QSize(290, 200)).isEmpty());
}

void TestModuleTiles::bottom_isCutAtTheRightCorner()
{
    QCOMPARE(bottomTiles(QSize(45, 9), 11, 17, QSize(200, 300)),
        QVector<QRect>({ { 11, 291, 45, 9 }, { 56, 291, 45, 9 }, { 101, 291, 45, 9 },
            { 146, 291, 37, 9 } })); // to 183
}

void TestModuleTiles::bottom_withoutRightCornerRunsOverTheEdge()
{
    const QVector<QRect> tiles = bottomTiles(QSize(45, 9), 11, 0, QSize(200, 300));
    QCOMPARE(tiles.size(), 5);
    QCOMPARE(tiles.last(), QRect(191, 291, 45, 9));
}

void TestModuleTiles::bottom_withoutLeftCornerStartsAtTheLeftEdge()
{
    QCOMPARE(bottomTiles(QSize(45, 9), 0, 17, QSize(62, 300)),
        QVector<QRect>({ { 0, 291, 45, 9 } })); // ends where the corner begins
}

void TestModuleTiles::bottom_cornersAsWideAsThePanel()
{
    QVERIFY(bottomTiles(QSize(45, 9), 100, 100, QSize(200, 300)).isEmpty());
    QVERIFY(bottomTiles(QSize(45, 9), 100, 900, QSize(200, 300)).isEmpty());
}

void TestModuleTiles::hostileSizes_data()
{
    QTest::addColumn<QSize>("tile");
    QTest::addColumn<QSize>("panel");
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    QTest::newRow("null tile") << QSize(0, 0) << QSize(290, 360);
    QTest::newRow("tile without width") << QSize(0, 10) << QSize(290, 360);
    QTest::newRow("tile without height") << QSize(10, 0) << QSize(290, 360);
    QTest::newRow("invalid tile") << QSize() << QSize(290, 360);
    QTest::newRow("negative tile") << QSize(-10, -10) << QSize(290, 360);
    QTest::newRow("huge tile") << QSize(largest, largest) << QSize(290, 360);
    QTest::newRow("empty panel") << QSize(10, 10) << QSize(0, 0);
    QTest::newRow("negative panel") << QSize(10, 10) << QSize(smallest, smallest);
    QTest::newRow("huge panel") << QSize(10, 10) << QSize(largest, largest);
    QTest::newRow("panel above the limit") << QSize(10, 10) << QSize(1048577, 1048577);
}

void TestModuleTiles::hostileSizes()
{
    QFETCH(QSize, tile);
    QFETCH(QSize, panel);
    QVERIFY(centreTiles(tile, panel).isEmpty());
    QVERIFY(sideTiles(0, tile, 13, panel).isEmpty());
    QVERIFY(bottomTiles(tile, 11, 17, panel).isEmpty());
}

void TestModuleTiles::tilesOfOnePixel()
{
    // A panel at four times the usual scale: columns 1..1158 of rows 0..448.
    QCOMPARE(centreTiles(QSize(1, 1), QSize(1160, 450)).size(), 1158 * 449);
    QVERIFY(centreTiles(QSize(1, 1), QSize(1025, 1024)).isEmpty()); // more than 2^20
    QCOMPARE(sideTiles(0, QSize(1, 1), 0, QSize(2000, 2000)).size(), 2000);
    QCOMPARE(bottomTiles(QSize(1, 1), 0, 0, QSize(2000, 2000)).size(), 2000);
    QCOMPARE(sideTiles(0, QSize(1, 1), 0, QSize(1, 1048576)).size(), 1048576);
}

QTEST_GUILESS_MAIN(TestModuleTiles)
#include "tst_moduletiles.moc"
