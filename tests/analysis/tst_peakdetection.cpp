#include "plainpeaks.h"
#include "analysis/peakdetection.h"
#include "support/simdtargets.h"

#include <QtTest>

#include <cmath>
#include <random>
#include <vector>

namespace {

using Profile = std::vector<uchar>;

DetectedPeaks detect(const Profile& samples)
{
    return detectPeaks(samples.data(), int(samples.size()));
}

QVector<int> indicesOf(const DetectedPeaks& detected)
{
    QVector<int> indices;
    for (const Peak& peak : detected.peaks) {
        indices.append(peak.index);
    }
    return indices;
}

/// What differs from the plain loops; empty when nothing does.
QString difference(const Profile& samples)
{
    const DetectedPeaks detected = detect(samples);
    const plain::Peaks expected = plain::detectPeaks(samples.data(), int(samples.size()));
    if (detected.scale != expected.scale || detected.rowSum != expected.rowSum) {
        return QString("scale %1 (%2), not %3 (%4)")
            .arg(detected.scale)
            .arg(detected.rowSum)
            .arg(expected.scale)
            .arg(expected.rowSum);
    }
    if (detected.peaks.size() != int(expected.peaks.size())) {
        return QString("%1 peaks, not %2").arg(detected.peaks.size()).arg(expected.peaks.size());
    }
    for (int i = 0; i < detected.peaks.size(); ++i) {
        const Peak& peak = detected.peaks.at(i);
        const plain::Peak& plainPeak = expected.peaks[size_t(i)];
        if (peak.index != plainPeak.index || peak.value != plainPeak.value || peak.link != -1
            || peak.label != QPointF(-1.0, -1.0)) {
            return QString("peak %1 at %2").arg(i).arg(peak.index);
        }
    }
    return QString();
}

template <class Value>
Profile profile(size_t count, Value value)
{
    Profile samples(count);
    for (size_t i = 0; i < count; ++i) {
        samples[i] = uchar(value(i));
    }
    return samples;
}

/// Profiles of one length that differ in how many maxima they have and where.
std::vector<Profile> shapes(size_t count)
{
    std::mt19937 random(uint(count) + 7);
    const double length = double(count);
    return {
        profile(count, [&](size_t) { return random() % 256; }),
        profile(count, [&](size_t) { return random() % 2; }),
        profile(count, [&](size_t) { return random() % 50 == 0 ? 255 : 3; }),
        profile(count, [&](size_t i) { return (i / 5) % 2 * 100; }), // plateaus
        profile(count, [&](size_t i) { return i * 255 / count; }), // rising
        profile(count, [&](size_t i) { return 255 - i * 255 / count; }), // falling
        profile(count, [](size_t) { return 42; }),
        profile(count, [](size_t i) { return i % 7 * 30; }), // sawtooth
        profile(count, [&](size_t i) { return 255.0 * std::sin(3.14159 * double(i) / length); }),
        profile(count, [&](size_t i) { return 120 + 100 * std::sin(0.2 * double(i)); }),
        profile(count, [&](size_t i) { return i == count / 2 ? 255 : 0; }),
        profile(count, [](size_t) { return 255; }),
    };
}

} // namespace

class TestPeakDetection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoPeaks();
    void oneSample();
    void rising_takesEverySample();
    void flat_takesEverySample();
    void ties_goToTheSmallerScale();
    void ranking_prefersManyScalesThenLargeValues();
    void ranking_completesALevel();
    void ranking_stopsAfterEnoughPeaks();
    void everyShapeAndLength_equalsThePlainLoops();
};

void TestPeakDetection::twoPeaks()
{
    // 5 samples, 3 scales: scale 1 has maxima at 1 and 3, scale 2 none.
    const DetectedPeaks detected = detect({ 0, 5, 0, 5, 0 });
    QCOMPARE(detected.scale, 1);
    QCOMPARE(detected.rowSum, -2);
    QCOMPARE(indicesOf(detected), (QVector<int> { 1, 3 }));
    QCOMPARE(detected.peaks.first().value, 5);
    QCOMPARE(detected.peaks.first().link, -1);
    QCOMPARE(detected.peaks.first().label, QPointF(-1.0, -1.0));
}

void TestPeakDetection::oneSample()
{
    const DetectedPeaks detected = detect({ 9 });
    QCOMPARE(detected.scale, 0);
    QCOMPARE(detected.rowSum, 0);
    QCOMPARE(indicesOf(detected), QVector<int> { 0 });
}

void TestPeakDetection::rising_takesEverySample()
{
    const DetectedPeaks detected = detect({ 1, 4, 6, 8, 9, 12 });
    QCOMPARE(detected.scale, 0);
    QCOMPARE(indicesOf(detected), (QVector<int> { 5, 4, 3, 2, 1, 0 })); // largest first
}

void TestPeakDetection::flat_takesEverySample()
{
    const DetectedPeaks detected = detect(Profile(300, 7));
    QCOMPARE(detected.scale, 0);
    QCOMPARE(detected.peaks.size(), 300); // a whole level, also beyond 200
}

void TestPeakDetection::ties_goToTheSmallerScale()
{
    // 9 samples, 5 scales. The one peak is a maximum at each of the scales 1 to 4.
    const DetectedPeaks detected = detect({ 0, 0, 0, 0, 5, 0, 0, 0, 0 });
    QCOMPARE(detected.scale, 1);
    QCOMPARE(detected.rowSum, -1);
    QCOMPARE(indicesOf(detected), QVector<int> { 4 });
}

void TestPeakDetection::ranking_prefersManyScalesThenLargeValues()
{
    // Scale 1: all four. Scale 2: 9 has no left neighbour, 3 lies below 9 and 7 below 8; 8 stands
    // between 7 and 0: one.
    const DetectedPeaks detected = detect({ 0, 9, 0, 3, 0, 7, 0, 8, 0, 0 });
    QCOMPARE(detected.scale, 1);
    QCOMPARE(detected.rowSum, -4);
    QCOMPARE(indicesOf(detected), (QVector<int> { 1, 7, 5, 3 })); // by value: 9, 8, 7, 3

    // Humps of 3 up, 3 down. Scales 1 and 2 see the tops alone; scale 3 the tops and, beside them,
    // the 2s whose neighbours are both 1: 4, 8, 10 and 14.
    const DetectedPeaks humps = detect({ 0, 1, 2, 9, 2, 1, 0, 1, 2, 8, 2, 1, 0, 1, 2, 7, 2, 1, 0 });
    QCOMPARE(humps.scale, 3);
    QCOMPARE(humps.rowSum, -7);
    QCOMPARE(indicesOf(humps), (QVector<int> { 3, 9, 15, 4, 8, 10, 14 })); // levels 3 and 1

    // A pair alike is hidden from scale 1; at scales 2 and 3 both samples are maxima.
    const DetectedPeaks plateau = detect({ 0, 0, 0, 5, 5, 0, 0, 0 });
    QCOMPARE(plateau.scale, 2);
    QCOMPARE(plateau.rowSum, -2);
    QCOMPARE(indicesOf(plateau), (QVector<int> { 3, 4 })); // level 2 is empty, level 1 holds both
}

void TestPeakDetection::ranking_completesALevel()
{
    // 601 samples, every other one a peak: 300 of them in one level.
    const DetectedPeaks detected = detect(profile(601, [](size_t i) { return i % 2 ? 9 : 1; }));
    QCOMPARE(detected.scale, 1);
    QCOMPARE(detected.peaks.size(), 300);
}

void TestPeakDetection::ranking_stopsAfterEnoughPeaks()
{
    // The humps from above, 250 of them: level 3 holds their tops, which are enough, and level 1
    // is left out.
    const Profile hump { 0, 1, 2, 9, 2, 1 };
    Profile humps = profile(1501, [&](size_t i) { return hump[i % 6]; });
    const DetectedPeaks detected = detect(humps);
    QCOMPARE(detected.scale, 3);
    QCOMPARE(detected.peaks.size(), 250);
    QCOMPARE(detected.peaks.last().value, 9);
    // With 100 of them both levels are taken: 100 tops, and the 2s but for the first and the last.
    humps.resize(601);
    QCOMPARE(detect(humps).peaks.size(), 100 + 198);
    // Pairs: 998 has no right neighbour at scale 2, so one of 400 is missing.
    const DetectedPeaks pairs
        = detect(profile(1000, [](size_t i) { return i % 5 == 2 || i % 5 == 3 ? 200 : 10; }));
    QCOMPARE(pairs.scale, 2);
    QCOMPARE(pairs.peaks.size(), 399);
}

void TestPeakDetection::everyShapeAndLength_equalsThePlainLoops()
{
    std::vector<size_t> lengths;
    for (size_t count = 1; count <= 70; ++count) {
        lengths.push_back(count);
    }
    lengths.insert(lengths.end(), { 127, 128, 129, 255, 256, 257, 400, 700, 1001 });
    forEachSimdTarget([&](const char* target) {
        for (const size_t count : lengths) {
            for (const Profile& samples : shapes(count)) {
                const QString found = difference(samples);
                QVERIFY2(found.isEmpty(),
                    qPrintable(QString("%1, %2 samples: %3").arg(target).arg(count).arg(found)));
            }
        }
    });
}

QTEST_GUILESS_MAIN(TestPeakDetection)
#include "tst_peakdetection.moc"
