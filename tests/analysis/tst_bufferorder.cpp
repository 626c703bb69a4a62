#include "analysis/histogramdata.h"
#include "support/addresssanitizer.h"
#include "support/sampleimages.h"

#include <QtTest>

#include <algorithm>

#if defined(VKINTENSITY_ADDRESS_SANITIZER)
/// Of the sanitizer's allocator; not every compiler comes with the header.
extern "C" int __sanitizer_install_malloc_and_free_hooks(
    void (*mallocHook)(const volatile void*, size_t), void (*freeHook)(const volatile void*));
#endif

namespace {

constexpr size_t megabyte = size_t(1) << 20;

/// Blocks of a megabyte and more that are held at the same time. In fixed memory: the hooks run
/// inside the allocator.
struct LargeBlocks
{
    struct Block
    {
        const volatile void* address = nullptr;
        size_t byteCount = 0;
    };

    void add(const volatile void* address, size_t byteCount)
    {
        if (byteCount >= megabyte && count < int(std::size(blocks))) {
            blocks[count++] = { address, byteCount };
            held += byteCount;
            largestHeld = std::max(largestHeld, held);
        }
    }

    void remove(const volatile void* address)
    {
        for (int i = 0; i < count; ++i) {
            if (blocks[i].address == address) {
                held -= blocks[i].byteCount;
                blocks[i] = blocks[--count];
                return;
            }
        }
    }

    Block blocks[64];
    int count = 0;
    size_t held = 0;
    size_t largestHeld = 0;
};

LargeBlocks largeBlocks;

} // namespace

/// A buffer that is replaced by one of another size is freed first: both never exist together.
class TestBufferOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void binsAndMap_areFreedFirst();
    void roiBins_areFreedFirst();
    void lines_areFreedFirst();
};

void TestBufferOrder::initTestCase()
{
#if defined(VKINTENSITY_ADDRESS_SANITIZER)
    __sanitizer_install_malloc_and_free_hooks(
        [](const volatile void* address, size_t byteCount) { largeBlocks.add(address, byteCount); },
        [](const volatile void* address) { largeBlocks.remove(address); });
#else
    QTest::qSkip("only the address sanitizer tells what is allocated", __FILE__, __LINE__);
#endif
}

void TestBufferOrder::init()
{
    largeBlocks = LargeBlocks();
}

void TestBufferOrder::binsAndMap_areFreedFirst()
{
    ImageData first;
    QVERIFY(setGrayImage<uint>(first, 2, 1, { 0, 5 * 1048576 - 1 })); // 20 MB of bins, 5 of levels
    ImageData second;
    QVERIFY(setGrayImage<uint>(second, 2, 1, { 0, 6 * 1048576 - 1 })); // 24 MB and 6
    HistogramData data(&first);
    QVERIFY(largeBlocks.largestHeld >= 25 * megabyte);
    data.setImageData(&second);
    // The large blocks come with 2 MB more, to start at a page's boundary. With both of either
    // kind it would be 35 and more.
    QVERIFY(largeBlocks.largestHeld >= 30 * megabyte);
    QVERIFY(largeBlocks.largestHeld <= 34 * megabyte);
}

void TestBufferOrder::roiBins_areFreedFirst()
{
    HistogramData data(nullptr);
    data.prepareRoiHistogram(0, 1048575); // 4 MB, and 2 for the boundary
    data.prepareRoiHistogram(0, 2097151); // 8 MB
    QVERIFY(largeBlocks.largestHeld >= 8 * megabyte);
    QVERIFY(largeBlocks.largestHeld <= 10 * megabyte);
}

void TestBufferOrder::lines_areFreedFirst()
{
    ImageData first;
    QVERIFY(first.allocate(2000000, 1, 8, 1));
    ImageData second;
    QVERIFY(second.allocate(3000000, 1, 8, 1));
    largeBlocks = LargeBlocks(); // the records are not what is counted
    HistogramData data(&first);
    data.setImageData(&second);
    QVERIFY(largeBlocks.largestHeld >= 3000000);
    QVERIFY(largeBlocks.largestHeld < 5000000);
}

QTEST_GUILESS_MAIN(TestBufferOrder)
#include "tst_bufferorder.moc"
