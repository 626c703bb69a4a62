#include "loadfixture.h"

/// Faithful reading of the camera's raw format.
class TestFaithfulRawFiles : public QObject, private LoadFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void rawFiles_data();
    void rawFiles();
    void rawAlphaIsDropped();
    void rawWideColorIsReduced();
    void rawCutShortHasZeros();
    void rawHugeAndCutShortIsRefused();
};

void TestFaithfulRawFiles::rawFiles_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::addColumn<LoadProblem>("problem");
    QTest::newRow("gray 8") << 3 << 2 << 1 << 1 << LoadProblem::None;
    QTest::newRow("gray 16") << 3 << 2 << 1 << 2 << LoadProblem::None;
    QTest::newRow("gray 32") << 3 << 2 << 1 << 4 << LoadProblem::None;
    QTest::newRow("color 16") << 3 << 2 << 3 << 2 << LoadProblem::None;
    QTest::newRow("no width") << 0 << 2 << 1 << 1 << LoadProblem::NoPixels;
    QTest::newRow("no height") << 3 << 0 << 1 << 1 << LoadProblem::NoPixels;
    QTest::newRow("no channels") << 3 << 2 << 0 << 1 << LoadProblem::NoPixels;
    QTest::newRow("no bytes") << 3 << 2 << 1 << 0 << LoadProblem::NoPixels;
    QTest::newRow("24 bits") << 3 << 2 << 1 << 3 << LoadProblem::UnfaithfulDepth;
    QTest::newRow("64 bits") << 3 << 2 << 1 << 8 << LoadProblem::UnfaithfulDepth;
    QTest::newRow("five channels") << 3 << 2 << 5 << 1 << LoadProblem::UnfaithfulChannels;
    QTest::newRow("255 channels") << 3 << 2 << 255 << 2 << LoadProblem::UnfaithfulChannels;
}

void TestFaithfulRawFiles::rawFiles()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, channels);
    QFETCH(int, bytesPerChannel);
    QFETCH(LoadProblem, problem);
    QByteArray bytes(width * height * channels * bytesPerChannel, '\0');
    for (int i = 0; i < int(bytes.size()); ++i) {
        bytes[i] = char(i * 37 + 11);
    }
    const RawFile frame = rawFile(width, height, channels, bytesPerChannel, bytes);
    QVERIFY(writeRawFile(path("frame.raw"), frame));
    const bool isGood = problem == LoadProblem::None;
    QCOMPARE(load("frame.raw"), isGood);
    QVERIFY(report.problem == problem);
    if (isGood) {
        QCOMPARE(pixels(), bytes);
        QCOMPARE(image.channels, channels);
        QCOMPARE(report.channels, channels);
    } else {
        QVERIFY(recordIsUntouched());
        QVERIFY(load("frame.raw", ReadOptions())); // as stored it loads
    }
}

void TestFaithfulRawFiles::rawAlphaIsDropped()
{
    QVERIFY(writeRawFile(path("two.raw"), rawFile(2, 2, 2, 1, "aAbBcCdD")));
    QVERIFY(load("two.raw"));
    QCOMPARE(image.channels, 1);
    QCOMPARE(pixels(), QByteArray("abcd"));
    QCOMPARE(report.channels, 2);
    QVERIFY(report.isAlphaDropped);
    const QByteArray deep = bytesOf<quint16>({ 1, 2, 3, 99, 4, 5, 6, 99 });
    QVERIFY(writeRawFile(path("four.raw"), rawFile(1, 2, 4, 2, deep)));
    QVERIFY(load("four.raw"));
    QCOMPARE(image.channels, 3);
    QCOMPARE(pixels(), bytesOf<quint16>({ 1, 2, 3, 4, 5, 6 }));
    QCOMPARE(report.channels, 4);
}

void TestFaithfulRawFiles::rawWideColorIsReduced()
{
    const QByteArray white = bytesOf<quint32>({ 4294967295u, 4294967295u, 4294967295u });
    QVERIFY(writeRawFile(path("white.raw"), rawFile(1, 1, 3, 4, white)));
    QVERIFY(load("white.raw"));
    QCOMPARE(image.channels, 1);
    QCOMPARE(report.channels, 3);
    QCOMPARE(pixels(), bytesOf<quint32>({ 4294967295u })); // 128 / 128 of it
}

void TestFaithfulRawFiles::rawCutShortHasZeros()
{
    RawFile frame = rawFile(2, 2, 1, 1, "abc");
    frame.dataSize = 4;
    QVERIFY(writeRawFile(path("short.raw"), frame));
    QVERIFY(load("short.raw"));
    QCOMPARE(pixels(), QByteArray("abc\0", 4));
    frame = rawFile(2, 2, 2, 1, "aAb");
    frame.dataSize = 8;
    QVERIFY(writeRawFile(path("short.raw"), frame));
    QVERIFY(load("short.raw"));
    QCOMPARE(pixels(), QByteArray("ab\0\0", 4));
}

void TestFaithfulRawFiles::rawHugeAndCutShortIsRefused()
{
    RawFile frame = rawFile(16384, 16385, 1, 1, "abc"); // one row above 256 MiB
    frame.dataSize = 16384u * 16385u;
    QVERIFY(writeRawFile(path("huge.raw"), frame));
    QVERIFY(!load("huge.raw"));
    QVERIFY(report.problem == LoadProblem::NotReadable);
    QVERIFY(recordIsUntouched());
    frame.height = 16384; // exactly 256 MiB
    QVERIFY(writeRawFile(path("huge.raw"), frame));
    QVERIFY(load("huge.raw"));
    image.release();
}

QTEST_GUILESS_MAIN(TestFaithfulRawFiles)
#include "tst_faithfulrawfiles.moc"
