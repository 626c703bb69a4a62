#include "analysis/displaylevels.h"
#include "analysis/previewlevels.h"
#include "image/imagedata.h"
#include "support/sampleimages.h"

#include <QtTest>

namespace {

/// The levels of a preview of `size` pixels; empty when there is none.
QVector<int> levelsOf(const ImageData& image, const QSize& size, int bytesPerLine = 0)
{
    const int lineBytes = bytesPerLine > 0 ? bytesPerLine : size.width();
    QVector<uchar> bytes(lineBytes * qMax(size.height(), 1), uchar(99));
    QVector<int> levels;
    if (fillPreview(image, size, bytes.data(), lineBytes)) {
        for (const uchar byte : bytes) {
            levels << byte;
        }
    }
    return levels;
}

template <class Sample>
QVector<int> levelsOf(
    int width, int height, const std::vector<Sample>& samples, const QSize& size, int line = 0)
{
    ImageData image;
    return setGrayImage(image, width, height, samples) ? levelsOf(image, size, line)
                                                       : QVector<int>();
}

} // namespace

class TestPreviewLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void size_data();
    void size();
    void wholeImage_hasTheDisplayLevels();
    void wholeImage_ofEveryDepth();
    void reduced_meansAreStretchedFromBlackToWhite();
    void reduced_unevenCellsShareAllPixels();
    void reduced_ofEveryDepth();
    void flatImage_isWhite_data();
    void flatImage_isWhite();
    void lines_mayBePadded();
    void nothingKnown_isRefused();
};

void TestPreviewLevels::size_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("preview");
    QTest::newRow("wide") << QSize(1024, 256) << QSize(160, 40);
    QTest::newRow("square") << QSize(2048, 2048) << QSize(120, 120);
    QTest::newRow("small stays") << QSize(12, 9) << QSize(12, 9);
    QTest::newRow("exactly") << QSize(160, 120) << QSize(160, 120);
    QTest::newRow("higher by one") << QSize(160, 121) << QSize(158, 120);
    QTest::newRow("one line") << QSize(60000, 1) << QSize(160, 1);
    QTest::newRow("one column") << QSize(1, 60000) << QSize(1, 120);
    QTest::newRow("largest") << QSize(2147483647, 2147483647) << QSize(120, 120);
}

void TestPreviewLevels::size()
{
    QFETCH(QSize, image);
    QFETCH(QSize, preview);
    QCOMPARE(previewSize(image, QSize(160, 120)), preview);
}

void TestPreviewLevels::wholeImage_hasTheDisplayLevels()
{
    const std::vector<uchar> samples { 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20 };
    const QVector<int> levels { 0, 25, 51, 76, 102, 127, 153, 178, 204, 229, 255 };
    QCOMPARE(levelsOf(11, 1, samples, QSize(11, 1)), levels);
}

void TestPreviewLevels::wholeImage_ofEveryDepth()
{
    // 611 is bin 511 of 1023: 127.37
    QCOMPARE(levelsOf(3, 1, std::vector<ushort> { 1123, 611, 100 }, QSize(3, 1)),
        (QVector<int> { 255, 127, 0 }));
    QCOMPARE(levelsOf(1, 3, std::vector<uint> { 4294967295u, 0, 2147483648u }, QSize(1, 3)),
        (QVector<int> { 255, 0, 127 })); // 127.5
}

void TestPreviewLevels::reduced_meansAreStretchedFromBlackToWhite()
{
    // Means 15, 25 and 35: of four pixels each.
    const std::vector<uchar> samples { 10, 20, 20, 30, 30, 40, 20, 10, 30, 20, 40, 30 };
    QCOMPARE(levelsOf(6, 2, samples, QSize(3, 1)), (QVector<int> { 0, 127, 255 })); // 127.5
}

void TestPreviewLevels::reduced_unevenCellsShareAllPixels()
{
    // Seven pixels for three cells: two, two and three.
    const std::vector<uchar> samples { 1, 1, 2, 4, 4, 4, 7 };
    // Means 1, 3 and 5.
    QCOMPARE(levelsOf(7, 1, samples, QSize(3, 1)), (QVector<int> { 0, 127, 255 }));
}

void TestPreviewLevels::reduced_ofEveryDepth()
{
    const std::vector<ushort> deep { 100, 100, 1000, 1200, 4100, 4100 }; // a quarter of the way
    QCOMPARE(levelsOf(6, 1, deep, QSize(3, 1)), (QVector<int> { 0, 63, 255 })); // 63.75
    const std::vector<uint> deeper { 4294967295u, 0u, 4294967295u, 4294967295u };
    QCOMPARE(levelsOf(4, 1, deeper, QSize(2, 1)), (QVector<int> { 0, 255 }));
}

void TestPreviewLevels::flatImage_isWhite_data()
{
    QTest::addColumn<uint>("value");
    QTest::newRow("zero") << 0u;
    QTest::newRow("seven") << 7u;
    QTest::newRow("largest") << 4294967295u;
    QTest::newRow("large and odd") << 4294967291u;
}

void TestPreviewLevels::flatImage_isWhite()
{
    QFETCH(uint, value);
    const std::vector<uint> samples(7 * 5, value);
    QCOMPARE(levelsOf(7, 5, samples, QSize(7, 5)), QVector<int>(35, 255));
    // Cells of 4 to 12 pixels: their means must not differ by a rounding.
    QCOMPARE(levelsOf(7, 5, samples, QSize(3, 2)), QVector<int>(6, 255));
}

void TestPreviewLevels::lines_mayBePadded()
{
    const std::vector<uchar> samples { 0, 8, 4, 12 };
    QCOMPARE(levelsOf(2, 2, samples, QSize(2, 2), 4),
        (QVector<int> { 0, 170, 99, 99, 85, 255, 99, 99 })); // 8 and 4 of 12
}

void TestPreviewLevels::nothingKnown_isRefused()
{
    ImageData image;
    QVERIFY(levelsOf(image, QSize(1, 1)).isEmpty());
    for (const int depth : { 24, 64 }) {
        QVERIFY(image.allocate(4, 4, depth, 1));
        QVERIFY(levelsOf(image, QSize(2, 2)).isEmpty());
    }
    QVERIFY(image.allocate(4, 4, 8, 3));
    QVERIFY(levelsOf(image, QSize(2, 2)).isEmpty());
    QVERIFY(image.allocate(0, 4, 8, 1));
    QVERIFY(levelsOf(image, QSize(1, 1)).isEmpty());
    QVERIFY(image.allocate(4, 4, 8, 1));
    QVERIFY(levelsOf(image, QSize(0, 2)).isEmpty());
    QVERIFY(levelsOf(image, QSize(5, 2)).isEmpty());
    QVERIFY(!levelsOf(image, QSize(2, 2)).isEmpty());
}

QTEST_GUILESS_MAIN(TestPreviewLevels)
#include "tst_previewlevels.moc"
