#include "base/pixelmemory.h"

#include <QtTest>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

constexpr size_t megabyte = size_t(1) << 20;

bool allZero(const PixelMemory& memory)
{
    return std::all_of(
        memory.data(), memory.data() + memory.size(), [](uchar byte) { return byte == 0; });
}

void fillWith(PixelMemory& memory, uchar byte)
{
    std::fill(memory.data(), memory.data() + memory.size(), byte);
    memory.markWritten(memory.size());
}

} // namespace

class TestPixelMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutABlock();
    void acquire_givesZeros_data();
    void acquire_givesZeros();
    void acquire_largeBlocksStartAtAHugePage();
    void acquire_ofTheSameSizeKeepsBlockAndContents();
    void acquire_ofAnotherSizeGivesFreshZeros();
    void acquire_impossibleSizeKeepsTheBlockInUse();
    void release_keepsASpare();
    void discard_forgetsTheBlock();
    void zeroFrom_clearsWhatWasWritten();
    void zeroFrom_leavesUnmarkedBytesAlone();
};

void TestPixelMemory::startsWithoutABlock()
{
    PixelMemory memory;
    QVERIFY(!memory.data());
    QCOMPARE(memory.size(), size_t(0));
    memory.zeroFrom(0);
    memory.markWritten(100);
    memory.release();
    memory.discard();
    QVERIFY(!memory.data());
}

void TestPixelMemory::acquire_givesZeros_data()
{
    QTest::addColumn<qulonglong>("byteCount");
    QTest::newRow("nothing") << qulonglong(0);
    QTest::newRow("one byte") << qulonglong(1);
    QTest::newRow("just below a large block") << qulonglong(4 * megabyte - 1);
    QTest::newRow("large block") << qulonglong(4 * megabyte);
    QTest::newRow("odd large block") << qulonglong(9 * megabyte + 12345);
}

void TestPixelMemory::acquire_givesZeros()
{
    QFETCH(qulonglong, byteCount);
    PixelMemory memory;
    QVERIFY(memory.acquire(size_t(byteCount)));
    QVERIFY(memory.data());
    QCOMPARE(qulonglong(memory.size()), byteCount);
    QVERIFY(allZero(memory));
    fillWith(memory, 7);
}

void TestPixelMemory::acquire_largeBlocksStartAtAHugePage()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(5 * megabyte));
    QCOMPARE(reinterpret_cast<std::uintptr_t>(memory.data()) % (2 * megabyte), std::uintptr_t(0));
}

void TestPixelMemory::acquire_ofTheSameSizeKeepsBlockAndContents()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    fillWith(memory, 7);
    const uchar* block = memory.data();
    QVERIFY(memory.acquire(10));
    QVERIFY(memory.data() == block);
    QCOMPARE(int(memory.data()[9]), 7);
}

void TestPixelMemory::acquire_ofAnotherSizeGivesFreshZeros()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    fillWith(memory, 7);
    QVERIFY(memory.acquire(11));
    QCOMPARE(memory.size(), size_t(11));
    QVERIFY(allZero(memory));
}

void TestPixelMemory::acquire_impossibleSizeKeepsTheBlockInUse()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    fillWith(memory, 7);
    const uchar* block = memory.data();
    QVERIFY(!memory.acquire(std::numeric_limits<size_t>::max()));
    QVERIFY(memory.data() == block);
    QCOMPARE(memory.size(), size_t(10));
    QCOMPARE(int(memory.data()[9]), 7);
}

void TestPixelMemory::release_keepsASpare()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    fillWith(memory, 7);
    const uchar* block = memory.data();
    memory.release();
    QVERIFY(!memory.data());
    QCOMPARE(memory.size(), size_t(0));

    QVERIFY(memory.acquire(10));
    QVERIFY(memory.data() == block);
    memory.zeroFrom(0);
    QVERIFY(allZero(memory));
}

void TestPixelMemory::discard_forgetsTheBlock()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    fillWith(memory, 7);
    memory.discard();
    QVERIFY(!memory.data());
    QVERIFY(memory.acquire(10));
    QVERIFY(allZero(memory));
}

void TestPixelMemory::zeroFrom_clearsWhatWasWritten()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    fillWith(memory, 7);
    memory.zeroFrom(4);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(memory.data()), 10),
        QByteArray("\7\7\7\7\0\0\0\0\0\0", 10));
}

void TestPixelMemory::zeroFrom_leavesUnmarkedBytesAlone()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(10));
    memory.markWritten(5);
    std::fill(memory.data(), memory.data() + 10, uchar(7)); // five more than announced
    memory.zeroFrom(0);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(memory.data()), 10),
        QByteArray("\0\0\0\0\0\7\7\7\7\7", 10));
}

QTEST_GUILESS_MAIN(TestPixelMemory)
#include "tst_pixelmemory.moc"
