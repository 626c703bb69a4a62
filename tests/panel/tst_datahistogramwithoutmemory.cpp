#include "panel/cvkdatahistogram.h"
#include "support/memorylimit.h"
#include "support/recordingpaintdevice.h"

#include <QtTest>

/// Both slots that allocate, in a process in which 256 MiB cannot be had.
class TestDataHistogramWithoutMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newSize_clears();
    void histogram_clears();

private:
    void verifyCleared();
    void sendFourCounts();

    CVKDataHistogram m_panel;
};

void TestDataHistogramWithoutMemory::initTestCase()
{
    m_panel.setAttribute(Qt::WA_DeleteOnClose, false);
    m_panel.show();
    if (!limitLargeAllocations()) {
        QTest::qSkip("memory cannot be limited here", __FILE__, __LINE__);
    }
}

void TestDataHistogramWithoutMemory::sendFourCounts()
{
    QVector<uint> counts { 0, 10, 20, 30 };
    m_panel.updateRoiIntensityHistogram(counts.data(), 4, 100, 103);
}

void TestDataHistogramWithoutMemory::verifyCleared()
{
    RecordingPaintDevice recorded;
    m_panel.render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    QVERIFY(recorded.lines().isEmpty());
    QCOMPARE(recorded.texts(), QStringList({ "0", "0" }));
}

void TestDataHistogramWithoutMemory::newSize_clears()
{
    sendFourCounts();
    m_panel.newHistogramSize(1 << 26);
    verifyCleared();
}

void TestDataHistogramWithoutMemory::histogram_clears()
{
    sendFourCounts();
    QVector<uint> counts { 0, 10, 20, 30 };
    m_panel.updateRoiIntensityHistogram(counts.data(), 1 << 26, 100, 103);
    verifyCleared();
    sendFourCounts(); // recovers
    RecordingPaintDevice recorded;
    m_panel.render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(recorded.texts(), QStringList({ "100", "103" }));
}

QTEST_MAIN(TestDataHistogramWithoutMemory)
#include "tst_datahistogramwithoutmemory.moc"
