#include "analysis/imageintensityanalysis.h"
#include "support/memorylimit.h"
#include "support/sampleimages.h"

#include <QSignalSpy>
#include <QtTest>

/// Histogram buffer and engine when the system has no memory left for their buffers.
class TestAnalysisWithoutMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void histogram_withoutBins();
    void histogram_withoutRoiBins();
    void engine_withoutADisplayBuffer();
    void engine_recoversWithTheNextImage();
};

void TestAnalysisWithoutMemory::initTestCase()
{
    if (!limitLargeAllocations()) {
        QTest::qSkip("memory cannot be limited here", __FILE__, __LINE__);
    }
}

void TestAnalysisWithoutMemory::histogram_withoutBins()
{
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 2, 1, { 5, 5 + 67108863 })); // 2^26 bins of 4 bytes
    HistogramData data(&image);
    QCOMPARE(data.size, 67108864u);
    QVERIFY(!data.histogram);
    QVERIFY(!data.hasLevels());
    data.fillHistogram(reinterpret_cast<const uint*>(image.data), 2);
    data.extractHorizontalLine(0);
    QCOMPARE(int(data.horizontalLine[1]), 0);
    data.calcRoiHistogram(5, 6, QRect(0, 0, 2, 1));

    QVERIFY(setGrayImage<uint>(image, 2, 1, { 5, 6 }));
    data.setImageData(&image);
    QVERIFY(data.hasLevels());
    QCOMPARE(data.histogram[1], 1u);
}

void TestAnalysisWithoutMemory::histogram_withoutRoiBins()
{
    HistogramData data(nullptr);
    data.prepareRoiHistogram(0, 10);
    QVERIFY(data.roiHistogram);
    data.prepareRoiHistogram(0, 67108863);
    QVERIFY(!data.roiHistogram);
    QCOMPARE(data.roiSize, 67108864u);
    QVERIFY(!data.roiBins(0, 67108863));
}

void TestAnalysisWithoutMemory::engine_withoutADisplayBuffer()
{
    ImageData image;
    QVERIFY(image.allocate(10000, 10000, 8, 1)); // 100 MB, and 300 MB to show it
    ImageIntensityAnalysis engine(nullptr);
    QSignalSpy converted(&engine, SIGNAL(updateImage()));
    QSignalSpy sized(&engine, SIGNAL(newHistogramSize(int)));
    engine.setImageData(&image);
    QCOMPARE(sized.size(), 1);
    QCOMPARE(converted.size(), 0);
    QVERIFY(!engine.displayBuffer);
    QVERIFY(engine.displayImage);
    QVERIFY(engine.displayImage->isNull());
    engine.changedColors({ Qt::red });
    QCOMPARE(converted.size(), 0);

    QSignalSpy info(&engine, SIGNAL(updateRoiIntensityInfo(int, IntensityInfo)));
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 5.0, 5.0)); // no statistics without a display
    QCOMPARE(info.size(), 1);
    QVERIFY(engine.roiInfo.standardDeviation == 0.0);
    engine.changedAnchorPosition(QPointF(1.0, 1.0));
}

void TestAnalysisWithoutMemory::engine_recoversWithTheNextImage()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 1, 2, 3 }));
    ImageIntensityAnalysis engine(&image);
    const QImage* shown = engine.displayImage;
    ImageData large;
    QVERIFY(large.allocate(10000, 10000, 8, 1));
    engine.setImageData(&large);
    QVERIFY(engine.displayImage == shown);
    QVERIFY(shown->isNull());
    engine.setImageData(&image);
    QCOMPARE(shown->size(), QSize(4, 1));
    QCOMPARE(shown->pixelColor(3, 0), QColor(255, 255, 255));
}

QTEST_GUILESS_MAIN(TestAnalysisWithoutMemory)
#include "tst_analysiswithoutmemory.moc"
