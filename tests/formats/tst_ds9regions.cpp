#include "formats/ds9regions.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// The boxes of a region file, read by the description of the format alone: "box(x,y,width,height,
/// angle)" with x and y of the middle, where (1, 1) is the middle of the bottom left pixel. Answers
/// the image pixels whose middle lies inside the first box, counted from the top left.
QVector<QPoint> pixelsInside(const QByteArray& text, const QSize& imageSize)
{
    const QRegularExpression pattern(QStringLiteral("box\\(([^,]*),([^,]*),([^,]*),([^,]*),0\\)"));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(text));
    const double x = match.captured(1).toDouble();
    const double y = match.captured(2).toDouble();
    const double width = match.captured(3).toDouble();
    const double height = match.captured(4).toDouble();
    QVector<QPoint> inside;
    for (int row = 0; row < imageSize.height(); ++row) {
        for (int column = 0; column < imageSize.width(); ++column) {
            const double pixelX = column + 1;
            const double pixelY = imageSize.height() - row;
            if (qAbs(pixelX - x) < width / 2.0 && qAbs(pixelY - y) < height / 2.0) {
                inside.append(QPoint(column, row));
            }
        }
    }
    return inside;
}

} // namespace

/// Region files of this system's own, and what other programs write in the same format.
class TestDs9Regions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_countsFromOneAndFromTheBottom();
    void text_holdsThePixelsOfTheRegion_data();
    void text_holdsThePixelsOfTheRegion();
    void text_readsBackAsTheSameRegions();
    void read_takesEverySpelling_data();
    void read_takesEverySpelling();
    void read_turnsBoxes_data();
    void read_turnsBoxes();
    void read_snapsToTheNearestBorder_data();
    void read_snapsToTheNearestBorder();
    void read_takesAFileOfAnotherProgram();
};

void TestDs9Regions::text_countsFromOneAndFromTheBottom()
{
    // In an image 100 high, row 20 is number 80 from the bottom. Columns 10 to 13 are the numbers
    // 11 to 14, their middle is 12.5; rows 20 to 22 are 80 to 78.
    QCOMPARE(ds9Text({ QRect(10, 20, 4, 3), QRect(0, 99, 1, 1) }, 100),
        QByteArray("# Region file format: DS9 version 4.1\n"
                   "image\n"
                   "box(12.5,79,4,3,0) # text={ROI 1}\n"
                   "box(1,1,1,1,0) # text={ROI 2}\n"));
    QCOMPARE(ds9Text({}, 100), QByteArray("# Region file format: DS9 version 4.1\nimage\n"));
}

void TestDs9Regions::text_holdsThePixelsOfTheRegion_data()
{
    QTest::addColumn<QRect>("region");
    QTest::newRow("top left pixel") << QRect(0, 0, 1, 1);
    QTest::newRow("bottom right pixel") << QRect(8, 6, 1, 1);
    QTest::newRow("even sides") << QRect(1, 2, 4, 2);
    QTest::newRow("odd sides") << QRect(3, 1, 5, 3);
    QTest::newRow("all") << QRect(0, 0, 9, 7);
}

void TestDs9Regions::text_holdsThePixelsOfTheRegion()
{
    QFETCH(QRect, region);
    QVector<QPoint> expected;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            expected.append(QPoint(x, y));
        }
    }
    QCOMPARE(pixelsInside(ds9Text({ region }, 7), QSize(9, 7)), expected);
}

void TestDs9Regions::text_readsBackAsTheSameRegions()
{
    const QSize sizes[] = { QSize(1, 1), QSize(640, 481), QSize(2147483647, 2147483647) };
    for (const QSize& size : sizes) {
        const int right = size.width() - 1;
        const int bottom = size.height() - 1;
        const QVector<QRect> regions { QRect(0, 0, 1, 1), QRect(QPoint(0, 0), size),
            QRect(right, bottom, 1, 1),
            QRect(QPoint(right / 3, bottom / 2), QPoint(right, bottom)) };
        const QByteArray saved = ds9Text(regions, size.height());
        const Ds9Regions loaded = readDs9(saved, size);
        QCOMPARE(loaded.regions, regions);
        QCOMPARE(loaded.skipped(), 0);
        QCOMPARE(ds9Text(loaded.regions, size.height()), saved);
    }
}

void TestDs9Regions::read_takesEverySpelling_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("commas") << QByteArray("image\nbox(3,3,2,2,0)\n") << 1;
    QTest::newRow("spaces") << QByteArray("image\nbox 3 3 2 2 0\n") << 1;
    QTest::newRow("spaces and commas") << QByteArray("image\n  BOX ( 3 , 3, 2\t2 ,0 )  \n") << 1;
    QTest::newRow("no angle") << QByteArray("image\nbox(3,3,2,2)") << 1;
    QTest::newRow("no system") << QByteArray("box(3,3,2,2,0)") << 1;
    QTest::newRow("physical") << QByteArray("physical\nbox(3,3,2,2,0)") << 1;
    QTest::newRow("semicolons") << QByteArray("image;box(3,3,2,2,0);box(3,3,2,2,0)") << 2;
    QTest::newRow("system each") << QByteArray("image;box(3,3,2,2)\nimage;box(3,3,2,2)\n") << 2;
    QTest::newRow("CRLF") << QByteArray("image\r\nbox(3,3,2,2,0)\r\nbox(3,3,2,2,0)\r\n") << 2;
    QTest::newRow("CR") << QByteArray("image\rbox(3,3,2,2,0)\rbox(3,3,2,2,0)\r") << 2;
    QTest::newRow("included") << QByteArray("image\n+box(3,3,2,2,0)\n") << 1;
    QTest::newRow("joined") << QByteArray("image\nbox(3,3,2,2,0) ||\nbox(3,3,2,2,0) || # a\n") << 2;
    QTest::newRow("pixel units") << QByteArray("image\nbox(3i,3i,2p,2p,0)\n") << 1;
    QTest::newRow("exponents") << QByteArray("image\nbox(0.3e1,3.0,+2,2.e0,0)\n") << 1;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbfimage\nbox(3,3,2,2,0)\n") << 1;
    QTest::newRow("comments") << QByteArray("# a; box(3,3,2,2,0)\nimage # b\nbox(3,3,2,2,0)\n")
                              << 1;
    QTest::newRow("text with a separator")
        << QByteArray("image\nbox(3,3,2,2,0) # text={a; b # c} color=red; box(3,3,2,2,0)\n") << 2;
    QTest::newRow("text without its end")
        << QByteArray("image\nbox(3,3,2,2,0) # text={a; b\nbox(3,3,2,2,0)\n") << 2;
}

void TestDs9Regions::read_takesEverySpelling()
{
    QFETCH(QByteArray, text);
    QFETCH(int, count);
    const Ds9Regions found = readDs9(text, QSize(10, 10));
    // From 2 to 4, 1 being the middle of the first pixel: borders 1.5 and 3.5, nearest 2 and 4
    // from the left, and from the top 10 - 3.5 = 6.5 and 8.5, nearest 7 and 9.
    QCOMPARE(found.regions, QVector<QRect>(count, QRect(2, 7, 2, 2)));
    QCOMPARE(found.skipped(), 0);
}

void TestDs9Regions::read_turnsBoxes_data()
{
    QTest::addColumn<QByteArray>("angle");
    QTest::addColumn<bool>("isOnItsSide");
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("-0") << QByteArray("-0.0") << false;
    QTest::newRow("90") << QByteArray("90") << true;
    QTest::newRow("180") << QByteArray("180") << false;
    QTest::newRow("270") << QByteArray("270") << true;
    QTest::newRow("360") << QByteArray("360") << false;
    QTest::newRow("-90") << QByteArray("-90") << true;
    QTest::newRow("-270") << QByteArray("-270") << true;
    QTest::newRow("turned and turned back") << QByteArray("359.99999") << false;
    QTest::newRow("nearly upright") << QByteArray("90.00001") << true;
    QTest::newRow("many turns") << QByteArray("36000000090") << true;
}

void TestDs9Regions::read_turnsBoxes()
{
    QFETCH(QByteArray, angle);
    QFETCH(bool, isOnItsSide);
    // Middle at the border between pixels 10 and 11 both ways.
    const Ds9Regions found = readDs9("image\nbox(10.5,10.5,8,2," + angle + ")\n", QSize(20, 20));
    QCOMPARE(found.skipped(), 0);
    QCOMPARE(
        found.regions, QVector<QRect>({ isOnItsSide ? QRect(9, 6, 2, 8) : QRect(6, 9, 8, 2) }));
}

void TestDs9Regions::read_snapsToTheNearestBorder_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QRect>("pixels");
    QTest::newRow("on borders") << QByteArray("box(2.5,2.5,2,2,0)") << QRect(1, 7, 2, 2);
    QTest::newRow("a bit to the right") << QByteArray("box(2.9,2.5,2,2,0)") << QRect(1, 7, 2, 2);
    QTest::newRow("more to the right") << QByteArray("box(3.1,2.5,2,2,0)") << QRect(2, 7, 2, 2);
    QTest::newRow("a bit up") << QByteArray("box(2.5,2.9,2,2,0)") << QRect(1, 7, 2, 2);
    QTest::newRow("more up") << QByteArray("box(2.5,3.1,2,2,0)") << QRect(1, 6, 2, 2);
    QTest::newRow("each edge by itself") << QByteArray("box(2.5,2.5,2.8,2,0)") << QRect(1, 7, 2, 2);
    QTest::newRow("wider") << QByteArray("box(2.5,2.5,3.2,2,0)") << QRect(0, 7, 4, 2);
    QTest::newRow("just over the corner") << QByteArray("box(1.6,1.6,3,3,0)") << QRect(0, 7, 3, 3);
}

void TestDs9Regions::read_snapsToTheNearestBorder()
{
    QFETCH(QByteArray, box);
    QFETCH(QRect, pixels);
    const Ds9Regions found = readDs9("image\n" + box + "\n", QSize(10, 10));
    QCOMPARE(found.regions, QVector<QRect>({ pixels }));
}

void TestDs9Regions::read_takesAFileOfAnotherProgram()
{
    const QByteArray text
        = "# Region file format: DS9 version 4.1\n"
          "global color=green dashlist=8 3 width=1 font=\"helvetica 10 normal roman\" select=1 "
          "highlite=1 dash=0 fixed=0 edit=1 move=1 delete=1 include=1 source=1\n"
          "image\n"
          "circle(50,50,10)\n"
          "box(10.5,90.5,20,20,0) # color=red text={lamp}\n"
          "-box(10.5,10.5,4,4,0)\n"
          "polygon(1,1,5,1,5,5) # width=3\n"
          "box(50,50,10,10,45)\n"
          "box(50,50,10,10,20,20,0)\n"
          "# text(12,12) text={a note}\n"
          "fk5\n"
          "box(12:34:56.7,-1:02:03,10\",5\",0)\n"
          "image\n"
          "box(50,50,10\",10\",0)\n";
    const Ds9Regions found = readDs9(text, QSize(100, 100));
    QCOMPARE(found.regions, QVector<QRect>({ QRect(0, 0, 20, 20) }));
    QCOMPARE(found.otherShapes, 6); // circle, -box, polygon, 45 degrees, ring of boxes, text
    QCOMPARE(found.otherCoordinates, 2);
    QCOMPARE(found.outside, 0);
    QCOMPARE(found.brokenLines, 0);
    QCOMPARE(found.skipped(), 8);
}

QTEST_GUILESS_MAIN(TestDs9Regions)
#include "tst_ds9regions.moc"
