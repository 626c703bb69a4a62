#include "image/faithfulsamples.h"
#include "image/imagedata.h"

#include <QtTest>

#include <vector>

namespace {

template <class Sample>
DecodedSamples decoded(const std::vector<Sample>& samples, int width, int height, int channels)
{
    DecodedSamples line;
    line.bytes = reinterpret_cast<const uchar*>(samples.data());
    line.bytesPerLine = qint64(samples.size() * sizeof(Sample)) / height;
    line.width = width;
    line.height = height;
    line.channels = channels;
    line.bytesPerSample = sizeof(Sample);
    return line;
}

} // namespace

class TestFaithfulSamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paddedRows();
    void lowBits_areTakenAwayWhereTheyAreZero();
    void refusals_leaveRecordAndReport();
};

void TestFaithfulSamples::paddedRows()
{
    const std::vector<quint16> samples { 1, 2, 99, 99, 3, 4, 99, 99 };
    ImageData image;
    ReadReport report;
    QVERIFY(takeFaithfully(decoded(samples, 2, 2, 1), image, report) == LoadProblem::None);
    for (const int y : { 0, 1 }) {
        QCOMPARE(image.pixelValue(0, y), 2 * y + 1);
        QCOMPARE(image.pixelValue(1, y), 2 * y + 2);
    }
    // Gray and alpha, one pixel a row.
    QVERIFY(takeFaithfully(decoded(samples, 1, 2, 2), image, report) == LoadProblem::None);
    QCOMPARE(image.pixelValue(0, 0), 1);
    QCOMPARE(image.pixelValue(0, 1), 3);
    QVERIFY(report.isAlphaDropped);
}

void TestFaithfulSamples::lowBits_areTakenAwayWhereTheyAreZero()
{
    std::vector<quint16> samples { 0xABC0, 0x1230 };
    DecodedSamples packed = decoded(samples, 2, 1, 1);
    packed.unusedLowBits = 4;
    ImageData image;
    ReadReport report;
    QVERIFY(takeFaithfully(packed, image, report) == LoadProblem::None);
    QCOMPARE(image.pixelValue(0, 0), 0xABC);
    QCOMPARE(image.pixelValue(1, 0), 0x123);
    samples[1] = 0x1231;
    QVERIFY(takeFaithfully(packed, image, report) == LoadProblem::None);
    QCOMPARE(image.pixelValue(0, 0), 0xABC0);
    QCOMPARE(image.pixelValue(1, 0), 0x1231);
}

void TestFaithfulSamples::refusals_leaveRecordAndReport()
{
    const std::vector<qint16> samples { 7, 5, -1, 7 };
    DecodedSamples signedSamples = decoded(samples, 2, 1, 2);
    signedSamples.kind = SampleKind::Signed;
    ImageData image;
    ReadReport report;
    QVERIFY(takeFaithfully(signedSamples, image, report) == LoadProblem::UnfaithfulValues);
    signedSamples.bytesPerSample = 8;
    QVERIFY(takeFaithfully(signedSamples, image, report) == LoadProblem::UnfaithfulDepth);
    signedSamples.kind = SampleKind::Floating;
    signedSamples.bytesPerSample = 2;
    QVERIFY(takeFaithfully(signedSamples, image, report) == LoadProblem::UnfaithfulDepth);
    for (const int channels : { 0, 5, -1 }) {
        signedSamples.channels = channels;
        QVERIFY(takeFaithfully(signedSamples, image, report) == LoadProblem::UnfaithfulChannels);
    }
    QVERIFY(!image.data);
    QVERIFY(!report.isAlphaDropped);
    QVERIFY(!report.isTypeConverted);
}

QTEST_GUILESS_MAIN(TestFaithfulSamples)
#include "tst_faithfulsamples.moc"
