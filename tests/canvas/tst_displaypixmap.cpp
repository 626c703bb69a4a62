#include "canvas/displaypixmap.h"

#include <QImage>
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
    void takesTransparentImagesAsTheyAre();
};

void TestDisplayPixmap::copies_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("padded rows") << QSize(403, 7);
    QTest::newRow("one column") << QSize(1, 3000);
    QTest::newRow("large pages") << QSize(1500, 1000);
}

void TestDisplayPixmap::copies()
{
    QFETCH(QSize, size);
    const QImage image = colourful(size.width(), size.height());
    QPixmap pixmap(5, 6);
    copyToPixmap(image, pixmap);
    QCOMPARE(pixmap.toImage(), QPixmap::fromImage(image).toImage());
    QVERIFY(!pixmap.hasAlpha());
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

void TestDisplayPixmap::takesTransparentImagesAsTheyAre()
{
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30, 0));
    QPixmap pixmap(3, 2);
    copyToPixmap(image, pixmap);
    QCOMPARE(pixmap.toImage().pixelColor(0, 0).alpha(), 0);
}

QTEST_MAIN(TestDisplayPixmap)
#include "tst_displaypixmap.moc"
