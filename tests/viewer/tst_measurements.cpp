#include "measurements.h"

#include <QtTest>

#include <cmath>

/// Types of the intensity widget as plain data. Arithmetic alone; regions of a widget are tested
/// with the export.
class TestMeasurements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void source();
    void calibration();
    void statistics();
    void histogram();
    void profile_hasTheWavelengthOfEachPixel();
    void profile_withoutACalibrationCountsPixels();
    void peaks();
};

void TestMeasurements::source()
{
    CVKIntensityWidget::ImageInfo info;
    info.file = "/data/a.tif";
    info.size = QSize(30, 20);
    info.bitDepth = 16;
    info.page = 2;
    const MeasurementSource source = measurementSource(info);
    QCOMPARE(source.file, QString("/data/a.tif"));
    QCOMPARE(source.size, QSize(30, 20));
    QCOMPARE(source.bits, 16);
    QCOMPARE(source.page, 2);
}

void TestMeasurements::calibration()
{
    CVKIntensityWidget::Calibration set;
    set.start = 400;
    set.pixelWidth = 2;
    QCOMPARE(positionUnit(set), QString("um"));
    set.unit = CVKIntensityWidget::Unit::Nanometers;
    const auto measured = measuredCalibration(set);
    QVERIFY(measured.has_value());
    QCOMPARE(measured->start, 400.0);
    QCOMPARE(measured->width, 2.0);
    QCOMPARE(measured->unit, QString("nm"));
    QVERIFY(!measuredCalibration(std::nullopt).has_value());
    QVERIFY(positionUnit(std::nullopt).isEmpty());
}

void TestMeasurements::statistics()
{
    CVKIntensityWidget::Statistics of;
    of.rect = QRect(1, 2, 3, 4);
    of.pixels = 12;
    of.mean = 5.5;
    of.minimum = 1;
    of.maximum = 4294967295u;
    of.deviation = 0.1;
    of.signalToNoise = 55.0;
    const RegionStatistics measured = regionStatistics(of);
    QCOMPARE(measured.rect, QRect(1, 2, 3, 4));
    QCOMPARE(measured.pixels, qint64(12));
    QVERIFY(measured.mean == 5.5 && measured.deviation == 0.1 && measured.signalToNoise == 55.0);
    QCOMPARE(measured.minimum, 1u);
    QCOMPARE(measured.maximum, 4294967295u);
}

void TestMeasurements::histogram()
{
    const MeasuredHistogram measured = measuredHistogram({ 7, { 1, 0, 3 } });
    QCOMPARE(measured.first, 7u);
    QCOMPARE(measured.counts, (QVector<quint32> { 1, 0, 3 }));
}

void TestMeasurements::profile_hasTheWavelengthOfEachPixel()
{
    CVKIntensityWidget::Profile row;
    row.index = 9;
    row.values = { 5, 6, 7 };
    row.isCalibrated = true;
    row.start = 400.0;
    row.step = 2.0;
    MeasuredProfile measured = measuredProfile(row);
    QCOMPARE(measured.axis, MeasuredProfile::Axis::Row);
    QCOMPARE(measured.index, 9);
    QCOMPARE(measured.values, row.values);
    QCOMPARE(measured.positions, (QVector<double> { 400.0, 402.0, 404.0 }));
    QVERIFY(!measured.peaks.has_value());
    row.axis = CVKIntensityWidget::Axis::Column; // wavelengths grow upward
    measured = measuredProfile(row);
    QCOMPARE(measured.axis, MeasuredProfile::Axis::Column);
    QCOMPARE(measured.positions, (QVector<double> { 404.0, 402.0, 400.0 }));
}

void TestMeasurements::profile_withoutACalibrationCountsPixels()
{
    CVKIntensityWidget::Profile column;
    column.axis = CVKIntensityWidget::Axis::Column;
    column.values = { 5, 6, 7 };
    QCOMPARE(measuredProfile(column).positions, (QVector<double> { 0.0, 1.0, 2.0 }));
    QVERIFY(measuredProfile(CVKIntensityWidget::Profile()).positions.isEmpty());
}

void TestMeasurements::peaks()
{
    const QVector<MeasuredPeak> measured = measuredPeaks({ { 1, 30, 460.0, 900 } });
    QCOMPARE(int(measured.size()), 1);
    QCOMPARE(measured[0].rank, 1);
    QCOMPARE(measured[0].pixel, 30);
    QCOMPARE(measured[0].position, 460.0);
    QCOMPARE(measured[0].value, 900u);
}

QTEST_GUILESS_MAIN(TestMeasurements)
#include "tst_measurements.moc"
