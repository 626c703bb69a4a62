#include "image/imagedata.h"
#include "image/imageloadvk.h"
#include "base/pixelmemory.h"
#include "support/memorylimit.h"
#include "support/sampleframes.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

/// What happens when the system has no memory left for an image.
class TestAllocationFailure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pixelMemory_keepsTheBlockInUse();
    void pixelMemory_withoutABlockStaysWithout();
    void imageData_staysAsItWas();
    void rawLoader_leavesTheRecord();
};

void TestAllocationFailure::initTestCase()
{
    if (!limitLargeAllocations()) {
        QTest::qSkip("memory cannot be limited here", __FILE__, __LINE__);
    }
}

void TestAllocationFailure::pixelMemory_keepsTheBlockInUse()
{
    PixelMemory memory;
    QVERIFY(memory.acquire(16));
    memory.data()[15] = 7;
    QVERIFY(!memory.acquire(size_t(1) << 30));
    QCOMPARE(memory.size(), size_t(16));
    QCOMPARE(int(memory.data()[15]), 7);
}

void TestAllocationFailure::pixelMemory_withoutABlockStaysWithout()
{
    PixelMemory memory;
    QVERIFY(!memory.acquire(size_t(1) << 30));
    QVERIFY(!memory.data());
    QVERIFY(memory.acquire(16));
    memory.release();
    QVERIFY(!memory.acquire(size_t(1) << 30));
    QVERIFY(!memory.data());
    QVERIFY(memory.acquire(16));
}

void TestAllocationFailure::imageData_staysAsItWas()
{
    ImageData image;
    QVERIFY(image.allocate(3, 1, 8, 1));
    std::memcpy(image.data, "xyz", 3);
    const uchar* data = image.data;
    QVERIFY(!image.allocate(32768, 32768, 8, 1));
    QVERIFY(image.data == data);
    QCOMPARE(image.width, 3);
    QCOMPARE(image.height, 1);
    QCOMPARE(image.dataSize, 3);
    QCOMPARE(image.allocatedBytes(), size_t(3));
    QCOMPARE(image.pixelValue(2, 0), int('z'));

    ImageData empty;
    QVERIFY(!empty.allocate(32768, 32768, 8, 1));
    QVERIFY(!empty.data);
    QCOMPARE(empty.width, 0);
}

void TestAllocationFailure::rawLoader_leavesTheRecord()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("large.raw");
    QVERIFY(writeRawFile(path, rawFile(32768, 32768, 1, 1, "abc")));
    ImageData image;
    QVERIFY(image.allocate(3, 1, 8, 1));
    std::memcpy(image.data, "xyz", 3);
    ImageLoadVk loader;
    loader.filePath = path;
    QVERIFY(!loader.load(&image));
    QCOMPARE(image.width, 3);
    QCOMPARE(image.pixelValue(2, 0), int('z'));
}

QTEST_GUILESS_MAIN(TestAllocationFailure)
#include "tst_allocationfailure.moc"
