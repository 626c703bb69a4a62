#include "samplethumbnail.h"

#include <QtTest>

namespace {

template <class Sample>
SampleFrame frameOf(const QVector<Sample>& samples, int width, int height, int channels = 1)
{
    SampleFrame frame;
    frame.bytes = reinterpret_cast<const uchar*>(samples.constData());
    frame.width = width;
    frame.height = height;
    frame.channels = channels;
    frame.bytesPerChannel = sizeof(Sample);
    frame.bytesPerLine = qint64(width) * channels * qint64(sizeof(Sample));
    return frame;
}

/// The levels of the first line of a grey picture.
QVector<int> levels(const QImage& picture)
{
    QVector<int> found;
    for (int x = 0; x < picture.width(); ++x) {
        found << qGray(picture.pixel(x, 0));
    }
    return found;
}

} // namespace

class TestSampleThumbnail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void size_data();
    void size();
    void pixels_areMeansStretchedFromBlackToWhite();
    void cells_ofAnUnevenFrameShareAllPixels();
    void depths_areReadWhole();
    void lines_mayBePadded();
    void colours_areStretchedTogether();
    void flatFrame_isMiddleGray();
    void nothingKnown_isNull();
};

void TestSampleThumbnail::size_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("thumbnail");
    QTest::newRow("wide") << QSize(1024, 256) << QSize(160, 40);
    QTest::newRow("square") << QSize(2048, 2048) << QSize(120, 120);
    QTest::newRow("small stays") << QSize(12, 9) << QSize(12, 9);
    QTest::newRow("exactly") << QSize(160, 120) << QSize(160, 120);
    QTest::newRow("higher by one") << QSize(160, 121) << QSize(158, 120);
    QTest::newRow("one line") << QSize(60000, 1) << QSize(160, 1);
    QTest::newRow("one column") << QSize(1, 60000) << QSize(1, 120);
}

void TestSampleThumbnail::size()
{
    QFETCH(QSize, image);
    QFETCH(QSize, thumbnail);
    QCOMPARE(thumbnailSize(image, QSize(160, 120)), thumbnail);
}

void TestSampleThumbnail::pixels_areMeansStretchedFromBlackToWhite()
{
    // Means 15, 25 and 35: of four pixels each.
    const QVector<quint8> samples { 10, 20, 20, 30, 30, 40, 20, 10, 30, 20, 40, 30 };
    const QImage picture = stretchedThumbnail(frameOf(samples, 6, 2), QSize(3, 1));
    QCOMPARE(picture.size(), QSize(3, 1));
    QCOMPARE(picture.format(), QImage::Format_Grayscale8);
    QCOMPARE(levels(picture), (QVector<int> { 0, 128, 255 })); // 127.5 rounds up
}

void TestSampleThumbnail::cells_ofAnUnevenFrameShareAllPixels()
{
    // Seven pixels for three cells: two, two and three.
    const QVector<quint8> samples { 1, 1, 2, 2, 3, 3, 3 };
    QCOMPARE(levels(stretchedThumbnail(frameOf(samples, 7, 1), QSize(3, 1))),
        (QVector<int> { 0, 128, 255 }));
}

void TestSampleThumbnail::depths_areReadWhole()
{
    const QVector<quint16> deep { 100, 1100, 4100 }; // a quarter of the way
    QCOMPARE(levels(stretchedThumbnail(frameOf(deep, 3, 1), QSize(3, 1))),
        (QVector<int> { 0, 64, 255 })); // 63.75
    const QVector<quint32> deeper { 0xFFFFFFFFu, 0u, 0xFFFFFFFFu, 0xFFFFFFFFu };
    QCOMPARE(
        levels(stretchedThumbnail(frameOf(deeper, 4, 1), QSize(2, 1))), (QVector<int> { 0, 255 }));
}

void TestSampleThumbnail::lines_mayBePadded()
{
    const QVector<quint8> samples { 0, 8, 99, 99, 4, 12, 99, 99 };
    SampleFrame frame = frameOf(samples, 2, 2);
    frame.bytesPerLine = 4;
    const QImage picture = stretchedThumbnail(frame, QSize(2, 2));
    QCOMPARE(qGray(picture.pixel(0, 0)), 0);
    QCOMPARE(qGray(picture.pixel(1, 0)), 170); // 8 of 12
    QCOMPARE(qGray(picture.pixel(0, 1)), 85);
    QCOMPARE(qGray(picture.pixel(1, 1)), 255);
}

void TestSampleThumbnail::colours_areStretchedTogether()
{
    const QVector<quint16> samples { 1000, 2000, 3000, 1000, 1000, 1000 }; // blue, green, red
    SampleFrame frame = frameOf(samples, 2, 1, 3);
    frame.shown = { 2, 1, 0 };
    const QImage picture = stretchedThumbnail(frame, QSize(2, 1));
    QCOMPARE(picture.pixel(0, 0), qRgb(255, 128, 0));
    QCOMPARE(picture.pixel(1, 0), qRgb(0, 0, 0));
}

void TestSampleThumbnail::flatFrame_isMiddleGray()
{
    QCOMPARE(levels(stretchedThumbnail(frameOf(QVector<quint16> { 7, 7 }, 2, 1), QSize(2, 1))),
        (QVector<int> { 128, 128 }));
}

void TestSampleThumbnail::nothingKnown_isNull()
{
    const QVector<quint8> samples(12, 5);
    SampleFrame frame = frameOf(samples, 2, 2);
    frame.bytesPerChannel = 3;
    QVERIFY(stretchedThumbnail(frame, QSize(2, 2)).isNull());
    frame.bytesPerChannel = 1;
    QVERIFY(stretchedThumbnail(frame, QSize(0, 2)).isNull());
    frame.width = 0;
    QVERIFY(stretchedThumbnail(frame, thumbnailSize(QSize(0, 2), QSize(9, 9))).isNull());
}

QTEST_GUILESS_MAIN(TestSampleThumbnail)
#include "tst_samplethumbnail.moc"
