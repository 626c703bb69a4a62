#include "canvas/displaypixmap.h"
#include "support/recordingpaintdevice.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QtTest>

namespace {

/// Every pixel another colour, as far as there are enough.
QImage colourful(int width, int height, int seed = 0)
{
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const uint number = uint(y * width + x + seed) * 2654435u;
            image.setPixelColor(
                x, y, QColor(int(number & 255), int(number >> 8 & 255), int(number >> 16 & 255)));
        }
    }
    return image;
}

} // namespace

class TestDisplayPixmap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copies_data();
    void copies();
    void paintsOverAPixmapOfTheSameSize();
    void leavesSharedCopiesAlone();
    void leavesImagesTakenFromItAlone();
    void takesTransparentImagesAsTheyAre();
    void drawsAPart();
    void drawsImagesLongerThanThePainterCounts_data();
    void drawsImagesLongerThanThePainterCounts();
    void drawsAPartAcrossTwoPieces();
};

void TestDisplayPixmap::copies_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("padded rows") << QSize(403, 7);
    QTest::newRow("one column") << QSize(1, 3000);
    QTest::newRow("large pages") << QSize(1500, 1000);
    QTest::newRow("as long as a painter reaches") << QSize(32767, 1);
    QTest::newRow("one longer") << QSize(32768, 1);
    QTest::newRow("long column") << QSize(1, 100000);
    QTest::newRow("long rows") << QSize(70000, 3);
}

void TestDisplayPixmap::copies()
{
    QFETCH(QSize, size);
    const QImage image = colourful(size.width(), size.height());
    QPixmap pixmap(5, 6);
    for (int time = 0; time < 2; ++time) { // new, and over the old one
        copyToPixmap(image, pixmap);
        QCOMPARE(pixmap.toImage(), QPixmap::fromImage(image).toImage());
        QVERIFY(!pixmap.hasAlpha());
    }
}

void TestDisplayPixmap::paintsOverAPixmapOfTheSameSize()
{
    QPixmap pixmap;
    copyToPixmap(colourful(403, 7), pixmap);
    const qint64 key = pixmap.cacheKey();
    const uchar* const bytes = pixmap.toImage().constBits();
    const QImage next = colourful(403, 7, 12345);
    copyToPixmap(next, pixmap);
    QCOMPARE(pixmap.toImage(), QPixmap::fromImage(next).toImage());
    QCOMPARE(pixmap.toImage().constBits(), bytes);
    QVERIFY(pixmap.cacheKey() != key); // whoever caches pixmaps sees that it changed
}

void TestDisplayPixmap::leavesSharedCopiesAlone()
{
    QPixmap pixmap;
    const QImage first = colourful(40, 30);
    copyToPixmap(first, pixmap);
    const QPixmap kept = pixmap;
    copyToPixmap(colourful(40, 30, 777), pixmap);
    QCOMPARE(kept.toImage(), QPixmap::fromImage(first).toImage());
}

void TestDisplayPixmap::leavesImagesTakenFromItAlone()
{
    QPixmap pixmap;
    const QImage first = colourful(40, 30);
    copyToPixmap(first, pixmap);
    const QImage taken = pixmap.toImage(); // shares the pixels
    copyToPixmap(colourful(40, 30, 777), pixmap);
    QCOMPARE(taken, QPixmap::fromImage(first).toImage());
    QCOMPARE(pixmap.toImage(), QPixmap::fromImage(colourful(40, 30, 777)).toImage());
}

void TestDisplayPixmap::takesTransparentImagesAsTheyAre()
{
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30, 0));
    QPixmap pixmap(3, 2);
    copyToPixmap(image, pixmap);
    QCOMPARE(pixmap.toImage().pixelColor(0, 0).alpha(), 0);
}

void TestDisplayPixmap::drawsAPart()
{
    const QPixmap pixmap = QPixmap::fromImage(colourful(40, 30));
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    drawPixmapPart(painter, QRectF(1.0, 1.0, 80.0, 60.0), pixmap, QRectF(2.0, 3.0, 20.0, 15.0));
    QCOMPARE(recorded.entries().size(), 1);
    QCOMPARE(recorded.entries().first().rect, QRectF(1.0, 1.0, 80.0, 60.0));
    QCOMPARE(recorded.entries().first().source, QRectF(2.0, 3.0, 20.0, 15.0));
}

void TestDisplayPixmap::drawsImagesLongerThanThePainterCounts_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("row") << Qt::Horizontal;
    QTest::newRow("column") << Qt::Vertical;
}

void TestDisplayPixmap::drawsImagesLongerThanThePainterCounts()
{
    QFETCH(Qt::Orientation, orientation);
    const bool isRow = orientation == Qt::Horizontal;
    // 100000 pixels, of which each tenth has a level of its own: 5, 25, 45 .. 185.
    QImage image(isRow ? 100000 : 2, isRow ? 2 : 100000, QImage::Format_RGB888);
    for (int i = 0; i < 100000; ++i) {
        const int level = i / 10000 * 20 + 5;
        for (int j = 0; j < 2; ++j) {
            image.setPixelColor(isRow ? i : j, isRow ? j : i, QColor(level, level, level));
        }
    }
    QPixmap pixmap;
    copyToPixmap(image, pixmap);
    QImage canvas(400, 400, QImage::Format_RGB32);
    canvas.fill(Qt::red);
    QPainter painter(&canvas);
    drawPixmapPart(painter, QRectF(0.0, 0.0, 400.0, 400.0), pixmap, QRectF(image.rect()));
    painter.end();
    for (int tenth = 0; tenth < 10; ++tenth) {
        const int level = tenth * 20 + 5;
        const int middle = tenth * 40 + 20;
        QCOMPARE(canvas.pixelColor(isRow ? middle : 200, isRow ? 200 : middle),
            QColor(level, level, level));
    }
    for (int i = 0; i < 400; ++i) { // nothing is left out between the pieces
        QVERIFY(canvas.pixelColor(isRow ? i : 200, isRow ? 200 : i) != QColor(Qt::red));
    }
}

void TestDisplayPixmap::drawsAPartAcrossTwoPieces()
{
    QImage image(40000, 1, QImage::Format_RGB888);
    for (int x = 0; x < 40000; ++x) {
        image.setPixelColor(x, 0, QColor(x & 255, x >> 8, 7));
    }
    const QPixmap pixmap = QPixmap::fromImage(image);
    QImage canvas(100, 1, QImage::Format_RGB32);
    QPainter painter(&canvas);
    drawPixmapPart(painter, QRectF(0.0, 0.0, 100.0, 1.0), pixmap, QRectF(32700.0, 0.0, 100.0, 1.0));
    painter.end();
    for (int x = 0; x < 100; ++x) {
        QCOMPARE(canvas.pixelColor(x, 0), QColor((32700 + x) & 255, (32700 + x) >> 8, 7));
    }
}

QTEST_MAIN(TestDisplayPixmap)
#include "tst_displaypixmap.moc"
