#include "formats/ds9regions.h"

#include <QElapsedTimer>
#include <QTest>

#include <random>

/// Region files that are no region files, or mean harm.
class TestHostileRegions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_countsWhatItCannotRead_data();
    void read_countsWhatItCannotRead();
    void read_countsSkyCoordinates_data();
    void read_countsSkyCoordinates();
    void read_keepsRegionsInsideTheImage_data();
    void read_keepsRegionsInsideTheImage();
    void read_refusesOtherAngles_data();
    void read_refusesOtherAngles();
    void read_ofAnEmptyImageHasNoRegions();
    void read_endsAtTheMostRegions();
    void read_endsAtTheMostBytes();
    void read_survivesJunk();
};

void TestHostileRegions::read_countsWhatItCannotRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("broken");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("separators") << QByteArray(";;\n;\r\n;;") << 0;
    QTest::newRow("unknown shape") << QByteArray("blob(1,2,3)") << 1;
    QTest::newRow("three statements") << QByteArray("a;b;c\n") << 3;
    QTest::newRow("too few numbers") << QByteArray("box(1,2,3)") << 1;
    QTest::newRow("no numbers") << QByteArray("box()\nbox\nbox(,,,)") << 3;
    QTest::newRow("not closed") << QByteArray("box(2,2,2,2,0") << 1;
    QTest::newRow("not opened") << QByteArray("box 2,2,2,2,0)") << 1;
    QTest::newRow("something behind") << QByteArray("box(2,2,2,2,0) junk") << 1;
    QTest::newRow("letters") << QByteArray("box(a,b,c,e)") << 1;
    QTest::newRow("nan") << QByteArray("box(nan,2,2,2,0)") << 1;
    QTest::newRow("inf") << QByteArray("box(2,2,inf,2,0)\nbox(2,2,-infinity,2)") << 2;
    QTest::newRow("angle nan") << QByteArray("box(2,2,2,2,nan)") << 1;
    QTest::newRow("beyond doubles") << QByteArray("box(1e999,2,2,2,0)") << 1;
    QTest::newRow("hexadecimal") << QByteArray("box(0x2,2,2,2,0)") << 1;
    QTest::newRow("NUL in a number") << QByteArray("box(2,2,2,2\0,0)", 16) << 1;
    QTest::newRow("NUL in front") << QByteArray("\0box(2,2,2,2,0)", 16) << 1;
    QTest::newRow("NUL alone") << QByteArray("\0", 1) << 1;
    QTest::newRow("two signs") << QByteArray("+-box(2,2,2,2,0)") << 1;
    QTest::newRow("sign alone") << QByteArray("+\n-") << 2;
    QTest::newRow("bars alone") << QByteArray("||\nbox||") << 2;
    QTest::newRow("parentheses") << QByteArray("box(\nbox)\nbox)(\n()") << 4;
}

void TestHostileRegions::read_countsWhatItCannotRead()
{
    QFETCH(QByteArray, text);
    QFETCH(int, broken);
    const Ds9Regions found = readDs9(text, QSize(10, 10));
    QCOMPARE(found.regions.size(), 0);
    QCOMPARE(found.brokenLines, broken);
    QCOMPARE(found.skipped(), broken);
}

void TestHostileRegions::read_countsSkyCoordinates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("fk5") << QByteArray("fk5\nbox(2,2,2,2,0)");
    QTest::newRow("icrs") << QByteArray("ICRS;box(2,2,2,2,0)");
    QTest::newRow("galactic") << QByteArray("galactic\nbox(2,2,2,2)");
    QTest::newRow("second world system") << QByteArray("wcsb\nbox(2,2,2,2)");
    QTest::newRow("detector") << QByteArray("detector\nbox(2,2,2,2)");
    QTest::newRow("circle") << QByteArray("fk5\ncircle(2,2,2)");
    QTest::newRow("global in between") << QByteArray("fk5\nglobal color=red\nbox(2,2,2,2)");
    QTest::newRow("comment in between") << QByteArray("fk5\n# image\nbox(2,2,2,2)");
    QTest::newRow("seconds of arc") << QByteArray("image\nbox(2,2,2\",2\",0)");
    QTest::newRow("degrees") << QByteArray("image\nbox(2d,2d,2,2,0)");
    QTest::newRow("hours") << QByteArray("image\nbox(1:2:3,2,2,2,0)");
    QTest::newRow("note") << QByteArray("fk5\n# text(2,2) text={a}");
}

void TestHostileRegions::read_countsSkyCoordinates()
{
    QFETCH(QByteArray, text);
    const Ds9Regions found = readDs9(text, QSize(10, 10));
    QCOMPARE(found.regions.size(), 0);
    QCOMPARE(found.otherCoordinates, 1);
    QCOMPARE(found.skipped(), 1);
}

void TestHostileRegions::read_keepsRegionsInsideTheImage_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::newRow("left") << QByteArray("box(1,5,3,2,0)");
    QTest::newRow("right") << QByteArray("box(10,5,3,2,0)");
    QTest::newRow("above") << QByteArray("box(5,10,2,3,0)");
    QTest::newRow("below") << QByteArray("box(5,1,2,3,0)");
    QTest::newRow("far away") << QByteArray("box(1e9,1e9,2,2,0)");
    QTest::newRow("beyond int") << QByteArray("box(1e18,5,2,2,0)");
    QTest::newRow("beyond everything") << QByteArray("box(1.7e308,-1.7e308,1.7e308,2,0)");
    QTest::newRow("larger than everything") << QByteArray("box(5,5,1.7e308,1.7e308,0)");
    QTest::newRow("no width") << QByteArray("box(5,5,0,2,0)");
    QTest::newRow("negative height") << QByteArray("box(5,5,2,-2,0)");
    QTest::newRow("between two borders") << QByteArray("box(5.5,5,0.5,2,0)");
    QTest::newRow("too high on its side") << QByteArray("box(5.5,5.5,11,2,90)");
}

void TestHostileRegions::read_keepsRegionsInsideTheImage()
{
    QFETCH(QByteArray, box);
    const Ds9Regions found = readDs9("image\n" + box, QSize(10, 10));
    QCOMPARE(found.regions.size(), 0);
    QCOMPARE(found.outside, 1);
    QCOMPARE(found.skipped(), 1);
}

void TestHostileRegions::read_refusesOtherAngles_data()
{
    QTest::addColumn<QByteArray>("angle");
    QTest::newRow("45") << QByteArray("45");
    QTest::newRow("1") << QByteArray("1");
    QTest::newRow("89.9") << QByteArray("89.9");
    QTest::newRow("-225") << QByteArray("-225");
}

void TestHostileRegions::read_refusesOtherAngles()
{
    QFETCH(QByteArray, angle);
    const Ds9Regions found = readDs9("image\nbox(5.5,5.5,2,2," + angle + ")", QSize(10, 10));
    QCOMPARE(found.regions.size(), 0);
    QCOMPARE(found.otherShapes, 1);
    QCOMPARE(found.skipped(), 1);
}

void TestHostileRegions::read_ofAnEmptyImageHasNoRegions()
{
    for (const QSize& size : { QSize(), QSize(0, 0), QSize(10, 0), QSize(-5, -5) }) {
        const Ds9Regions found = readDs9("image\nbox(1,1,1,1,0)", size);
        QCOMPARE(found.regions.size(), 0);
        QCOMPARE(found.outside, 1);
    }
}

void TestHostileRegions::read_endsAtTheMostRegions()
{
    QByteArray text = QByteArray("image\n") + QByteArray("box(5,5,2,2,0)\n").repeated(65536);
    Ds9Regions found = readDs9(text, QSize(10, 10));
    QCOMPARE(found.regions.size(), 65536);
    QCOMPARE(found.skipped(), 0);
    found = readDs9(text + "\n# end\nbox(5,5,2,2,0)\ncircle(1,1,1)\n", QSize(10, 10));
    QCOMPARE(found.regions.size(), 65536);
    QCOMPARE(found.brokenLines, 1);
    QCOMPARE(found.skipped(), 1);
}

void TestHostileRegions::read_endsAtTheMostBytes()
{
    // One region ends exactly at the limit; the next one begins behind it.
    const QByteArray region = "box(5,5,2,2,0)\n";
    const QByteArray begin = "image\n#";
    const int filling = (16 << 20) - int(begin.size()) - 1 - int(region.size());
    const QByteArray text = begin + QByteArray(filling, 'x') + "\n" + region;
    QCOMPARE(text.size(), 16 << 20);
    QCOMPARE(readDs9(text, QSize(10, 10)).regions.size(), 1);
    QCOMPARE(readDs9(text, QSize(10, 10)).skipped(), 0);
    const Ds9Regions found = readDs9(text + region, QSize(10, 10));
    QCOMPARE(found.regions.size(), 1);
    QCOMPARE(found.brokenLines, 1);
}

void TestHostileRegions::read_survivesJunk()
{
    constexpr char bytes[] = "box(1,2;3 4)#{}\"'\n\r+-|e.image fk5\0\xff\x80";
    const QByteArray alphabet(bytes, int(sizeof bytes) - 1);
    QByteArray junk(100 << 20, ' ');
    std::mt19937 random(7);
    for (char& byte : junk) {
        byte = alphabet.at(int(random() % uint(alphabet.size())));
    }
    QElapsedTimer timer;
    timer.start();
    const Ds9Regions found = readDs9(junk, QSize(1000, 1000));
    QVERIFY(found.brokenLines > 0);
    QVERIFY(timer.elapsed() < 60000); // seconds with sanitizers
    QCOMPARE(readDs9(QByteArray(100 << 20, 'x'), QSize(10, 10)).brokenLines, 1);
    QCOMPARE(readDs9(QByteArray(100 << 20, ';'), QSize(10, 10)).regions.size(), 0);
    QVERIFY(readDs9("box" + QByteArray(10 << 20, '('), QSize(10, 10)).brokenLines == 1);
    QVERIFY(readDs9("box(1,2,3,4)" + QByteArray(1 << 20, '|'), QSize(10, 10)).outside == 1);
}

QTEST_GUILESS_MAIN(TestHostileRegions)
#include "tst_hostileregions.moc"
