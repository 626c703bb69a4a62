#include "image/imagedata.h"
#include "widget/readout.h"

#include <QtTest>

#include <cstring>
#include <limits>

class TestReadout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void countsRowsFromTheBottom();
    void readsTheFirstPixelOfTheNextRowAtXEqualsWidth();
    void limitsColumnAndRow();
    void readsZeroBehindTheLastRow();
    void scalesTheAxes();
    void readsZeroWithoutPixels();
    void columnChart_countsRowsFromTheBottomAlready();
    void rulerAxis_spreadsTheRangeOverTheImage();
    void rulerAxis_withoutRangeShowsPixels();

private:
    ImageData m_image; // 3 x 2: 10 11 12 / 20 21 22
};

void TestReadout::init()
{
    QVERIFY(m_image.allocate(3, 2, 8, 1));
    const uchar samples[] = { 10, 11, 12, 20, 21, 22 };
    std::memcpy(m_image.data, samples, sizeof samples);
}

void TestReadout::countsRowsFromTheBottom()
{
    QCOMPARE(readoutText(imageViewPixel(1, 0, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:1  Y:1\nData:11"));
    QCOMPARE(readoutText(imageViewPixel(2, 1, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:2  Y:0\nData:22"));
}

void TestReadout::readsTheFirstPixelOfTheNextRowAtXEqualsWidth()
{
    QCOMPARE(readoutText(imageViewPixel(3, 0, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:3  Y:1\nData:20"));
}

void TestReadout::limitsColumnAndRow()
{
    // The shown row is not limited, only the row that is read.
    QCOMPARE(readoutText(imageViewPixel(-5, -7, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:0  Y:8\nData:10"));
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    QCOMPARE(readoutText(imageViewPixel(most, least, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:3  Y:2147483649\nData:20"));
}

void TestReadout::readsZeroBehindTheLastRow()
{
    QCOMPARE(readoutText(imageViewPixel(0, 2, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:0  Y:-1\nData:0"));
}

void TestReadout::scalesTheAxes()
{
    const ReadoutAxis x { 1, 0.5, 400.0 };
    const ReadoutAxis y { 2, 2.0, -1.0 };
    QCOMPARE(
        readoutText(imageViewPixel(1, 0, 2), m_image, x, y), QString("X:400.5  Y:1.00\nData:11"));
}

void TestReadout::readsZeroWithoutPixels()
{
    ImageData empty;
    QCOMPARE(readoutText(imageViewPixel(1, 1, 0), empty, ReadoutAxis(), ReadoutAxis()),
        QString("X:0  Y:-2\nData:0"));
}

void TestReadout::columnChart_countsRowsFromTheBottomAlready()
{
    QCOMPARE(readoutText(columnChartPixel(1, 0, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:1  Y:0\nData:21"));
    QCOMPARE(readoutText(columnChartPixel(2, 1, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:2  Y:1\nData:12"));
    // A position of a longer column: the row is limited to 0, the shown number is not.
    QCOMPARE(readoutText(columnChartPixel(0, 7, 2), m_image, ReadoutAxis(), ReadoutAxis()),
        QString("X:0  Y:7\nData:10"));
}

void TestReadout::rulerAxis_spreadsTheRangeOverTheImage()
{
    const ReadoutAxis axis = rulerAxis(400, 1000, 1, 1.0, 300);
    QCOMPARE(axis.decimals, 1);
    QVERIFY(axis.scale == 2.0);
    QVERIFY(axis.offset == 400.0);
    QVERIFY(rulerAxis(400, 1000, 0, 1.2, 400).scale == 2.0); // (1200 - 400) / 400
    QVERIFY(rulerAxis(0, 0, 0, 1.0, 400).scale == 0.0);
}

void TestReadout::rulerAxis_withoutRangeShowsPixels()
{
    for (const ReadoutAxis& axis : { rulerAxis(-1, -1, 1, 1.0, 300), rulerAxis(-1, 5, 1, 1.0, 300),
             rulerAxis(5, -1, 1, 1.0, 300), rulerAxis(0, 100, 1, 1.0, 0) }) {
        QCOMPARE(axis.decimals, 0);
        QVERIFY(axis.scale == 1.0);
        QVERIFY(axis.offset == 0.0);
    }
}

QTEST_GUILESS_MAIN(TestReadout)
#include "tst_readout.moc"
