#include "analysis/imageintensityanalysis.h"
#include "support/sampleimages.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Writes down every signal of an engine, with the buffers' contents at the time of the call.
class SignalLog : public QObject
{
public:
    explicit SignalLog(ImageIntensityAnalysis& engine)
    {
        using Engine = ImageIntensityAnalysis;
        const auto add = [this](const QString& line) { lines << line; };
        connect(&engine, &Engine::updateImage, this, [=] { add("image"); });
        connect(&engine, &Engine::newHistogramSize, this,
            [=](int size) { add(QString("size %1").arg(size)); });
        connect(&engine, &Engine::updateRoiIntensityInfo, this,
            [=](int selected, const IntensityInfo& info) {
                infos << info;
                add(QString("info %1").arg(selected));
            });
        connect(&engine, &Engine::updateRoiIntensityHistogram, this,
            [=](uint* data, int maxSize, uint min, uint max) {
                add(QString("bins [%1] %2 %3 %4")
                        .arg(listed(data, data && max >= min ? int(max - min) + 1 : 0))
                        .arg(maxSize)
                        .arg(min)
                        .arg(max));
            });
        connect(&engine, QOverload<uchar*, int>::of(&Engine::updateLineVertical), this,
            [=](uchar* data, int size) { add("vertical [" + listed(data, size) + "]"); });
        connect(&engine, QOverload<uchar*, int>::of(&Engine::updateLineHorizontal), this,
            [=](uchar* data, int size) { add("horizontal [" + listed(data, size) + "]"); });
        connect(&engine, QOverload<uchar*, int, int, int>::of(&Engine::updateLineVertical), this,
            [=](uchar* data, int size, int offset, int count) {
                add(QString("vertical [%1] %2 %3").arg(listed(data, size)).arg(offset).arg(count));
            });
        connect(&engine, QOverload<uchar*, int, int, int>::of(&Engine::updateLineHorizontal), this,
            [=](uchar* data, int size, int offset, int count) {
                add(QString("horizontal [%1] %2 %3")
                        .arg(listed(data, size))
                        .arg(offset)
                        .arg(count));
            });
        connect(&engine, &Engine::updateLineValueRange, this,
            [=](qreal min, qreal max) { add(QString("range %1 %2").arg(min).arg(max)); });
    }

    QStringList lines;
    QVector<IntensityInfo> infos;

    QStringList take() { return std::exchange(lines, QStringList()); }

private:
    template <class Value>
    static QString listed(const Value* values, int count)
    {
        QStringList texts;
        for (int i = 0; i < count; ++i) {
            texts << QString::number(values[i]);
        }
        return texts.join(' ');
    }
};

QVector<int> displayBytes(const ImageIntensityAnalysis& engine, int count)
{
    QVector<int> bytes;
    for (int i = 0; i < count; ++i) {
        bytes << engine.displayBuffer[i];
    }
    return bytes;
}

QRectF cornerRect(double left, double top, double right, double bottom)
{
    return QRectF(QPointF(left, top), QPointF(right + 1.0, bottom + 1.0));
}

} // namespace

class TestImageIntensityAnalysis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAnImage();
    void metaObject_listsSignalsAndSlotsInOrder();
    void signals_connectByTheirSignatures();
    void withoutAnImageEverySlotIsSilent();
    void setImageData_emitsSizeThenImage();
    void setImageData_inTheConstructor();
    void setImageData_rendersEachDepth();
    void setImageData_reducesColourToGray();
    void setImageData_uniformImageIsLevel255();
    void setImageData_displayBufferLength_data();
    void setImageData_displayBufferLength();
    void setImageData_rowsArePackedThoughQtPads();
    void setImageData_keepsTheQImageObject();
    void setImageData_keepsAnchorAndRoi();
    void setImageData_imagesWithoutPixelsAreOnlyRemembered();
    void setImageData_otherDepthsAreBlack_data();
    void setImageData_otherDepthsAreBlack();
    void setImageData_otherDepthAfterAnImageIsBlack();
    void setImageData_interleavedChannels();
    void setImageData_fullRangeShowsNothing();
    void setImageData_wideRangeIsRendered();
    void setImageData_closedByAReceiver();
    void changedAnchorPosition_sendsTheLines();
    void changedAnchorPosition_rounds_data();
    void changedAnchorPosition_rounds();
    void changedAnchorPosition_outsideSendsTheOldLines();
    void changedDrawRect_sendsTheShownPart();
    void changedDrawRect_roundsEachEdge();
    void changedDrawRect_survivesAnyRectangle();
    void lines_stopAfterClose();
    void lines_afterAnEmptyRecordNameTheBuffersLengths();
    void lines_closedByAReceiver();
    void changedColors_paintsThroughThePalette();
    void changedColors_countOfEntries_data();
    void changedColors_countOfEntries();
    void changedColors_appliesColorIndex();
    void changedColors_onAnEmptyRecord();
    void changedColors_onAReplacedRecord();
    void changedColors_afterClose();
    void histogramRequest_sendsTheWholeImage();
    void histogramRequest_stillAnswersAfterClose();
    void histogramRequest_ofAWideRangeCarriesNull();
    void roi_statisticsAndHistogram();
    void roi_ofEachDepth();
    void roi_pointsAreIgnoredAndEmptyOnesAreNot();
    void roi_uniformKeepsTheLastRatio();
    void roi_edgeEqualToTheSizeIsAccepted();
    void roi_edgeBeyondSendsThePreviousBins();
    void roi_nullAfterRounding();
    void roi_negativeTop();
    void roi_survivesAnyRectangle();
    void roi_ofOtherDepths();
    void roi_withoutAnImage();
    void roi_nestedRequest();
    void roi_closedByAReceiver();
    void roi_otherImageSetByAReceiver();
    void changedColors_convertsThePresentPixels();
    void changedColors_convertsThroughThePresentMap_data();
    void changedColors_convertsThroughThePresentMap();
    void changedColors_convertsEachTime();
    void loadScope_sameColoursAreOnlyAnnounced();
    void loadScope_otherColoursAreConverted();
    void loadScope_outlivesItsEngine();
};

void TestImageIntensityAnalysis::startsWithoutAnImage()
{
    const ImageIntensityAnalysis engine(nullptr);
    QVERIFY(!engine.displayBuffer && !engine.displayImage && !engine.image);
    QVERIFY(!engine.parent());
    QCOMPARE(engine.drawRect, QRect());
    QCOMPARE(engine.anchor, QPoint(0, 0));
    QCOMPARE(engine.roiInfo.rect, QRect());
    QCOMPARE(engine.roiInfo.min, 0u);
    QCOMPARE(engine.roiInfo.max, 0u);
    QVERIFY(engine.roiInfo.mean == 0.0);
    QVERIFY(engine.roiInfo.signalToNoise == 0.0);
    QVERIFY(engine.roiInfo.standardDeviation == 0.0);
    QCOMPARE(engine.displayLow, 0);
    QCOMPARE(engine.displayHigh, 255);
    for (size_t i = 0; i < 256; ++i) {
        QCOMPARE(size_t(engine.palette[i].red), i);
        QCOMPARE(size_t(engine.palette[i].green), i);
        QCOMPARE(size_t(engine.palette[i].blue), i);
        QCOMPARE(size_t(engine.colorIndex[i]), i);
    }
}

void TestImageIntensityAnalysis::metaObject_listsSignalsAndSlotsInOrder()
{
    const QMetaObject& meta = ImageIntensityAnalysis::staticMetaObject;
    QVERIFY(meta.superClass() == &QObject::staticMetaObject);
    const QString palette = QMetaObject::normalizedType("QVector<QColor>"); // as this Qt spells it
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        methods << QString("%1 %2 %3")
                       .arg(isSignal ? "signal" : "slot",
                           QString::fromLatin1(method.methodSignature()),
                           QString::fromLatin1(method.parameterNames().join(',')));
    }
    QCOMPARE(methods,
        (QStringList {
            "signal updateImage() ",
            "signal newHistogramSize(int) size",
            "signal updateRoiIntensityInfo(int,IntensityInfo) selected,info",
            "signal updateRoiIntensityHistogram(uint*,int,uint,uint) data,maxSize,min,max",
            "signal updateLineVertical(uchar*,int) data,size",
            "signal updateLineVertical(uchar*,int,int,int) data,size,offset,count",
            "signal updateLineHorizontal(uchar*,int) data,size",
            "signal updateLineHorizontal(uchar*,int,int,int) data,size,offset,count",
            "signal updateLineValueRange(double,double) min,max", // as Qt writes qreal
            "slot changedDrawRect(QRectF) rect",
            "slot changedIntensityRoi(int,QRectF) selected,rect",
            "slot changedColors(" + palette + ") color",
            "slot changedAnchorPosition(QPointF) anchorImage",
            "slot sendUpdetaIntensityHistogramSignal() ",
        }));
}

void TestImageIntensityAnalysis::signals_connectByTheirSignatures()
{
    ImageIntensityAnalysis engine(nullptr);
    for (const char* signal : { SIGNAL(updateImage()), SIGNAL(newHistogramSize(int)),
             SIGNAL(updateRoiIntensityInfo(int, IntensityInfo)),
             SIGNAL(updateRoiIntensityHistogram(uint*, int, uint, uint)),
             SIGNAL(updateLineVertical(uchar*, int)),
             SIGNAL(updateLineVertical(uchar*, int, int, int)),
             SIGNAL(updateLineHorizontal(uchar*, int)),
             SIGNAL(updateLineHorizontal(uchar*, int, int, int)),
             SIGNAL(updateLineValueRange(qreal, qreal)) }) {
        QVERIFY2(connect(&engine, signal, this, SLOT(deleteLater())), signal);
        QVERIFY(disconnect(&engine, signal, this, SLOT(deleteLater())));
    }
}

void TestImageIntensityAnalysis::withoutAnImageEverySlotIsSilent()
{
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(nullptr);
    engine.changedAnchorPosition(QPointF(1.0, 1.0));
    engine.changedDrawRect(QRectF(0.0, 0.0, 5.0, 5.0));
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 5.0, 5.0));
    engine.changedColors({ Qt::red });
    engine.sendUpdetaIntensityHistogramSignal();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(engine.anchor, QPoint(0, 0));
    QCOMPARE(engine.drawRect, QRect());
    QCOMPARE(int(engine.palette[0].red), 255); // the palette is taken all the same
}

void TestImageIntensityAnalysis::setImageData_emitsSizeThenImage()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 2, { 10, 11, 12, 13, 14, 15, 16, 20 }));
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size 11", "image" }));
    QVERIFY(engine.image == &image);
    QCOMPARE(engine.drawRect, QRect(0, 0, 4, 2));
    QCOMPARE(engine.displayImage->size(), QSize(4, 2));
    QCOMPARE(engine.displayImage->format(), QImage::Format_RGB888);
    QVERIFY(engine.displayImage->constBits() == engine.displayBuffer);
    QCOMPARE(engine.displayImage->pixelColor(1, 0), QColor(25, 25, 25));
    QCOMPARE(engine.displayImage->pixelColor(3, 1), QColor(255, 255, 255));
}

void TestImageIntensityAnalysis::setImageData_inTheConstructor()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 85, 170, 255 }));
    const ImageIntensityAnalysis engine(&image);
    QCOMPARE(displayBytes(engine, 12),
        (QVector<int> { 0, 0, 0, 85, 85, 85, 170, 170, 170, 255, 255, 255 }));
}

void TestImageIntensityAnalysis::setImageData_rendersEachDepth()
{
    ImageData image;
    ImageIntensityAnalysis engine(nullptr);
    QVERIFY(setGrayImage<ushort>(image, 4, 1, { 1000, 1001, 1002, 1010 }));
    engine.setImageData(&image);
    const QVector<int> expected { 0, 0, 0, 25, 25, 25, 51, 51, 51, 255, 255, 255 };
    QCOMPARE(displayBytes(engine, 12), expected);
    QVERIFY(
        setGrayImage<uint>(image, 4, 1, { 3000000000u, 3000000001u, 3000000002u, 3000000010u }));
    engine.setImageData(&image);
    QCOMPARE(displayBytes(engine, 12), expected);
}

void TestImageIntensityAnalysis::setImageData_reducesColourToGray()
{
    ImageData image;
    QVERIFY(image.allocate(4, 1, 8, 3));
    const std::vector<uchar> samples { 255, 255, 255, 0, 0, 255, 0, 255, 0, 255, 0, 0 };
    std::memcpy(image.data, samples.data(), samples.size());
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(image.channels, 1);
    QCOMPARE(image.pixelValue(0, 0), 255);
    QCOMPARE(image.pixelValue(1, 0), 75);
    QCOMPARE(image.pixelValue(2, 0), 149);
    QCOMPARE(image.pixelValue(3, 0), 29);
    QCOMPARE(engine.histogram.min, 29u);
    QCOMPARE(engine.histogram.max, 255u);
    QCOMPARE(log.take(), (QStringList { "size 227", "image" }));
}

void TestImageIntensityAnalysis::setImageData_uniformImageIsLevel255()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 4, 1, { 77, 77, 77, 77 }));
    ImageIntensityAnalysis engine(&image);
    QCOMPARE(displayBytes(engine, 12), QVector<int>(12, 255));
    QVector<QColor> colors(256, Qt::black);
    colors[255] = QColor(1, 2, 3);
    engine.changedColors(colors);
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 1, 2, 3, 1, 2, 3 }));
}

void TestImageIntensityAnalysis::setImageData_displayBufferLength_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("bitDepth");
    for (const int bitDepth : { 8, 16, 32, 24, 64 }) {
        for (const int width : { 1, 2, 3, 4, 5, 7, 1023 }) {
            QTest::addRow("%d wide, depth %d", width, bitDepth) << width << 3 << bitDepth;
        }
    }
    QTest::newRow("one pixel") << 1 << 1 << 8;
    QTest::newRow("one column") << 1 << 100000 << 8;
    QTest::newRow("one row") << 100001 << 1 << 8;
}

void TestImageIntensityAnalysis::setImageData_displayBufferLength()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, bitDepth);
    ImageData image;
    QVERIFY(image.allocate(width, height, bitDepth, 1));
    ImageIntensityAnalysis engine(&image);
    QCOMPARE(engine.displayImage->size(), QSize(width, height));
    // Qt reads whole padded rows: past the buffer's end the sanitizer would stop here
    const QImage copy = engine.displayImage->convertToFormat(QImage::Format_RGB32);
    QCOMPARE(copy.size(), QSize(width, height));
    const int written = image.dataSize * 3;
    QCOMPARE(displayBytes(engine, written).size(), written);
}

void TestImageIntensityAnalysis::setImageData_rowsArePackedThoughQtPads()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 0, 51, 102, 153, 204, 255 }));
    ImageIntensityAnalysis engine(&image);
    QCOMPARE(displayBytes(engine, 18),
        (QVector<int> {
            0, 0, 0, 51, 51, 51, 102, 102, 102, 153, 153, 153, 204, 204, 204, 255, 255, 255 }));
    QCOMPARE(engine.displayImage->bytesPerLine(), 12);
    // the second row starts three bytes, one pixel, too late for Qt, and ends in the zeros behind
    QCOMPARE(engine.displayImage->pixelColor(0, 1), QColor(204, 204, 204));
    QCOMPARE(engine.displayImage->pixelColor(2, 1), QColor(0, 0, 0));
}

void TestImageIntensityAnalysis::setImageData_keepsTheQImageObject()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 1, 2, 3 }));
    ImageIntensityAnalysis engine(&image);
    QImage* shown = engine.displayImage;
    QVERIFY(setGrayImage<uchar>(image, 8, 2, std::vector<uchar>(16, 1)));
    QSize sizeAtSignal;
    connect(&engine, &ImageIntensityAnalysis::updateImage, this, [&] {
        const QImage copy = shown->copy(); // reads every pixel of what the pointer shows now
        sizeAtSignal = copy.size();
    });
    engine.setImageData(&image);
    QVERIFY(engine.displayImage == shown);
    QCOMPARE(sizeAtSignal, QSize(8, 2));
    engine.setImageData(nullptr);
    QVERIFY(engine.displayImage == shown);
    QCOMPARE(shown->size(), QSize(8, 2));
    QCOMPARE(shown->pixelColor(0, 0), QColor(255, 255, 255));
}

void TestImageIntensityAnalysis::setImageData_keepsAnchorAndRoi()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedAnchorPosition(QPointF(2.0, 0.0));
    engine.changedDrawRect(QRectF(1.0, 0.0, 2.0, 1.0));
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 1.0));
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size 31", "image" })); // no line is sent
    QCOMPARE(engine.anchor, QPoint(2, 0));
    QCOMPARE(engine.drawRect, QRect(0, 0, 4, 1));
    QCOMPARE(engine.roiInfo.max, 20u);
}

void TestImageIntensityAnalysis::setImageData_imagesWithoutPixelsAreOnlyRemembered()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    const uchar* buffer = engine.displayBuffer;
    ImageData empty;
    engine.setImageData(&empty);
    QVERIFY(engine.image == &empty);
    ImageData noWidth;
    QVERIFY(noWidth.allocate(0, 9, 16, 3));
    engine.setImageData(&noWidth);
    QVERIFY(engine.image == &noWidth);
    QCOMPARE(noWidth.channels, 3); // not even converted
    engine.setImageData(nullptr);
    QVERIFY(!engine.image);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(engine.displayBuffer == buffer);
    QCOMPARE(engine.histogram.size, 31u);
    QCOMPARE(engine.drawRect, QRect(0, 0, 4, 1));
}

void TestImageIntensityAnalysis::setImageData_otherDepthsAreBlack_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("channels");
    QTest::newRow("24") << 24 << 1;
    QTest::newRow("64") << 64 << 1;
    QTest::newRow("64, three channels") << 64 << 3;
}

void TestImageIntensityAnalysis::setImageData_otherDepthsAreBlack()
{
    QFETCH(int, bitDepth);
    QFETCH(int, channels);
    ImageData image;
    QVERIFY(image.allocate(4, 2, bitDepth, channels));
    std::memset(image.data, 9, image.allocatedBytes());
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size 0" })); // nothing converted: no updateImage
    QCOMPARE(engine.displayImage->size(), QSize(4, 2));
    QCOMPARE(engine.displayImage->pixelColor(3, 1), QColor(0, 0, 0));
    engine.changedColors({ Qt::red });
    engine.changedAnchorPosition(QPointF(1.0, 1.0));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(engine.displayImage->pixelColor(3, 1), QColor(0, 0, 0));
}

void TestImageIntensityAnalysis::setImageData_otherDepthAfterAnImageIsBlack()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 16, 1, std::vector<uchar>(16, 7))); // shown white
    ImageIntensityAnalysis engine(&image);
    QVERIFY(image.allocate(2, 1, 64, 1)); // the same 48 display bytes
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size 1" }));
    QCOMPARE(displayBytes(engine, 48), QVector<int>(48, 0));
    engine.changedAnchorPosition(QPointF(1.0, 0.0));
    QCOMPARE(log.take(),
        (QStringList { "vertical [0]", "horizontal [0 0]", "vertical [0] 0 1",
            "horizontal [0 0] 0 2", "range 7 7" }));
}

void TestImageIntensityAnalysis::setImageData_interleavedChannels()
{
    ImageData image;
    QVERIFY(image.allocate(4, 1, 8, 2));
    const std::vector<uchar> samples { 0, 51, 102, 255, 9, 9, 9, 9 };
    std::memcpy(image.data, samples.data(), samples.size());
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size 256", "image" }));
    QCOMPARE(image.channels, 2);
    QCOMPARE(displayBytes(engine, 24),
        (QVector<int> { 0, 0, 0, 51, 51, 51, 102, 102, 102, 255, 255, 255 }) + QVector<int>(12, 0));
}

void TestImageIntensityAnalysis::setImageData_fullRangeShowsNothing()
{
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 4, 1, { 0, 1, 2, 4294967295u }));
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(&image);
    engine.changedColors({ Qt::red });
    engine.changedAnchorPosition(QPointF(0.0, 0.0));
    engine.sendUpdetaIntensityHistogramSignal();
    QCOMPARE(log.take(), (QStringList { "size 0" }));
    QCOMPARE(displayBytes(engine, 12), QVector<int>(12, 0));
}

void TestImageIntensityAnalysis::setImageData_wideRangeIsRendered()
{
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 4, 1, { 0, 1000000000, 2000000000, 4000000000u }));
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size -294967295", "image" }));
    QCOMPARE(displayBytes(engine, 12),
        (QVector<int> { 0, 0, 0, 63, 63, 63, 127, 127, 127, 255, 255, 255 }));
    engine.changedAnchorPosition(QPointF(1.0, 0.0));
    QCOMPARE(log.take(),
        (QStringList { "vertical [63]", "horizontal [0 63 127 255]", "vertical [63] 0 1",
            "horizontal [0 63 127 255] 0 4", "range 0 4e+09" }));
}

void TestImageIntensityAnalysis::setImageData_closedByAReceiver()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(nullptr);
    SignalLog log(engine);
    connect(&engine, &ImageIntensityAnalysis::newHistogramSize, this, [&] {
        engine.setImageData(nullptr);
        image.release();
    });
    engine.setImageData(&image);
    QCOMPARE(log.take(), (QStringList { "size 31" }));
    QVERIFY(!engine.displayImage);
}

void TestImageIntensityAnalysis::changedAnchorPosition_sendsTheLines()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedAnchorPosition(QPointF(1.0, 0.0));
    QCOMPARE(engine.anchor, QPoint(1, 0));
    QCOMPARE(log.take(),
        (QStringList { "vertical [51 204]", "horizontal [0 51 102]", "vertical [51 204] 0 2",
            "horizontal [0 51 102] 0 3", "range 10 20" }));
}

void TestImageIntensityAnalysis::changedAnchorPosition_rounds_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QPoint>("anchor");
    QTest::newRow("down") << QPointF(1.4, 0.4) << QPoint(1, 0);
    QTest::newRow("up") << QPointF(1.5, 0.5) << QPoint(2, 1);
    QTest::newRow("negative") << QPointF(-0.4, -3.6) << QPoint(0, -4);
    QTest::newRow("infinite") << QPointF(infinity, -infinity) << QPoint(1073741824, -1073741824);
    QTest::newRow("not a number") << QPointF(notANumber, notANumber) << QPoint(0, 0);
    QTest::newRow("huge") << QPointF(1e300, -1e300) << QPoint(1073741824, -1073741824);
    QTest::newRow("halves below 0 go up, too") << QPointF(-0.5, -1.5) << QPoint(0, -1);
}

void TestImageIntensityAnalysis::changedAnchorPosition_rounds()
{
    QFETCH(QPointF, position);
    QFETCH(QPoint, anchor);
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedAnchorPosition(position);
    QCOMPARE(engine.anchor, anchor);
    QCOMPARE(log.take().size(), 5);
}

void TestImageIntensityAnalysis::changedAnchorPosition_outsideSendsTheOldLines()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedAnchorPosition(QPointF(2.0, 1.0));
    SignalLog log(engine);
    engine.changedAnchorPosition(QPointF(-1.0, 2.0));
    QCOMPARE(log.take(),
        (QStringList { "vertical [102 255]", "horizontal [153 204 255]", "vertical [102 255] 0 2",
            "horizontal [153 204 255] 0 3", "range 10 20" }));
    engine.changedAnchorPosition(QPointF(0.0, 2.0)); // only the column is inside
    QCOMPARE(
        log.take().mid(0, 2), (QStringList { "vertical [0 153]", "horizontal [153 204 255]" }));
}

void TestImageIntensityAnalysis::changedDrawRect_roundsEachEdge()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedDrawRect(QRectF(0.25, 0.25, 2.25, 1.25)); // to 2.5 and 1.5, that is 3 and 2
    QCOMPARE(engine.drawRect, QRect(0, 0, 3, 2));
}

void TestImageIntensityAnalysis::changedDrawRect_sendsTheShownPart()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedDrawRect(QRectF(0.6, 1.0, 2.0, 1.2));
    QCOMPARE(engine.drawRect, QRect(1, 1, 2, 1));
    QCOMPARE(log.take(),
        (QStringList { "vertical [0 153]", "horizontal [0 51 102]", "vertical [0 153] 1 1",
            "horizontal [0 51 102] 1 2", "range 10 20" }));
    // The vertical line goes by the top, the horizontal one by the left.
    engine.changedDrawRect(QRectF(2.0, 1.0, 1.0, 1.0));
    QCOMPARE(log.take(),
        (QStringList { "vertical [0 153]", "horizontal [0 51 102]", "vertical [0 153] 1 1",
            "horizontal [0 51 102] 2 1", "range 10 20" }));
}

void TestImageIntensityAnalysis::changedDrawRect_survivesAnyRectangle()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    for (const double number : { infinity, -infinity, notANumber, 1e300, -1e300, 4e9, -4e9 }) {
        engine.changedDrawRect(QRectF(number, number, number, number));
        engine.changedDrawRect(QRectF(0.0, 0.0, number, -number));
        engine.changedDrawRect(QRectF(number, -number, 1.0, 1.0));
    }
    QCOMPARE(log.take().size(), 7 * 3 * 5);
}

void TestImageIntensityAnalysis::lines_stopAfterClose()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    engine.setImageData(nullptr);
    SignalLog log(engine);
    engine.changedAnchorPosition(QPointF(1.0, 1.0));
    engine.changedDrawRect(QRectF(0.0, 0.0, 2.0, 2.0));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(engine.anchor, QPoint(1, 1)); // the guard passes, the lines stop
    QCOMPARE(engine.drawRect, QRect(0, 0, 2, 2));
}

void TestImageIntensityAnalysis::lines_afterAnEmptyRecordNameTheBuffersLengths()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedAnchorPosition(QPointF(0.0, 0.0));
    QVERIFY(image.allocate(0, 500, 8, 1)); // what an empty raw file leaves
    engine.setImageData(&image);
    SignalLog log(engine);
    engine.changedAnchorPosition(QPointF(0.0, 0.0));
    QCOMPARE(log.take(),
        (QStringList { "vertical [0 153]", "horizontal []", "vertical [0 153] 0 2",
            "horizontal [] 0 3", "range 10 20" }));
}

void TestImageIntensityAnalysis::lines_closedByAReceiver()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 12, 14, 16, 18, 20 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    connect(&engine, QOverload<uchar*, int>::of(&ImageIntensityAnalysis::updateLineHorizontal),
        this, [&] { engine.setImageData(nullptr); });
    engine.changedAnchorPosition(QPointF(1.0, 0.0));
    QCOMPARE(log.take(), (QStringList { "vertical [51 204]", "horizontal [0 51 102]" }));
}

void TestImageIntensityAnalysis::changedColors_paintsThroughThePalette()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 1, 254, 255 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedColors({ QColor(10, 20, 30), QColor(40, 50, 60) });
    QCOMPARE(log.take(), (QStringList { "image" }));
    QCOMPARE(displayBytes(engine, 12),
        (QVector<int> { 10, 20, 30, 40, 50, 60, 254, 254, 254, 255, 255, 255 }));
    engine.changedColors({});
    QCOMPARE(log.take(), (QStringList { "image" }));
}

void TestImageIntensityAnalysis::changedColors_countOfEntries_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("changed");
    QTest::newRow("10") << 10 << 10;
    QTest::newRow("256") << 256 << 256;
    QTest::newRow("300") << 300 << 256;
}

void TestImageIntensityAnalysis::changedColors_countOfEntries()
{
    QFETCH(int, given);
    QFETCH(int, changed);
    ImageIntensityAnalysis engine(nullptr);
    engine.changedColors(QVector<QColor>(given, QColor(3, 5, 7)));
    for (int i = 0; i < 256; ++i) {
        const PaletteEntry entry = engine.palette[size_t(i)];
        QCOMPARE(int(entry.red), i < changed ? 3 : i);
        QCOMPARE(int(entry.green), i < changed ? 5 : i);
        QCOMPARE(int(entry.blue), i < changed ? 7 : i);
    }
}

void TestImageIntensityAnalysis::changedColors_appliesColorIndex()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 1, 254, 255 }));
    ImageIntensityAnalysis engine(&image);
    engine.colorIndex[1] = 200;
    engine.changedColors({});
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 200, 200, 200 }));
}

void TestImageIntensityAnalysis::changedColors_onAnEmptyRecord()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 1, 254, 255 }));
    ImageIntensityAnalysis engine(&image);
    QVERIFY(image.allocate(5, 0, 8, 1));
    engine.setImageData(&image);
    SignalLog log(engine);
    engine.changedColors(QVector<QColor>(256, Qt::red));
    QCOMPARE(log.take(), (QStringList { "image" })); // no pixel, but the signal
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 1, 1, 1 }));
    image.release();
    engine.changedColors(QVector<QColor>(256, Qt::red));
    QCOMPARE(log.take(), QStringList());
}

void TestImageIntensityAnalysis::changedColors_onAReplacedRecord()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 20 }));
    ImageIntensityAnalysis engine(&image);
    QVERIFY(setGrayImage<ushort>(image, 50, 50, std::vector<ushort>(2500, 15)));
    engine.changedColors({ Qt::red }); // before the engine hears of the new image
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 127, 127, 127, 127, 127, 127 }));
    QVERIFY(setGrayImage<uint>(image, 50, 50, std::vector<uint>(2500, 4000000000u)));
    engine.changedColors({ Qt::red }); // a value outside the map has level 0
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 255, 0, 0, 255, 0, 0 }));
}

void TestImageIntensityAnalysis::changedColors_afterClose()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 1, 254, 255 }));
    ImageIntensityAnalysis engine(&image);
    engine.setImageData(nullptr);
    SignalLog log(engine);
    engine.changedColors({ Qt::red });
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(displayBytes(engine, 3), (QVector<int> { 0, 0, 0 }));
    QCOMPARE(int(engine.palette[0].red), 255);
}

void TestImageIntensityAnalysis::histogramRequest_sendsTheWholeImage()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 12, 12, 13 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.sendUpdetaIntensityHistogramSignal();
    QCOMPARE(log.take(), (QStringList { "bins [1 0 2 1] 4 10 13" }));
}

void TestImageIntensityAnalysis::histogramRequest_stillAnswersAfterClose()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 12, 12, 13 }));
    ImageIntensityAnalysis engine(&image);
    engine.setImageData(nullptr);
    image.release();
    SignalLog log(engine);
    engine.sendUpdetaIntensityHistogramSignal();
    QCOMPARE(log.take(), (QStringList { "bins [1 0 2 1] 4 10 13" }));
}

void TestImageIntensityAnalysis::histogramRequest_ofAWideRangeCarriesNull()
{
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 2, 1, { 5, 100000004 }));
    ImageIntensityAnalysis engine(&image);
    QVector<bool> nulls;
    connect(&engine, &ImageIntensityAnalysis::updateRoiIntensityHistogram, this,
        [&](uint* data, int maxSize, uint min, uint max) {
            nulls << !data;
            QCOMPARE(maxSize, 100000000);
            QCOMPARE(min, 5u);
            QCOMPARE(max, 100000004u);
        });
    engine.sendUpdetaIntensityHistogramSignal();
    QCOMPARE(nulls, QVector<bool> { true });
}

void TestImageIntensityAnalysis::roi_statisticsAndHistogram()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 2, { 1, 10, 20, 50, 9, 9, 9, 9 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedIntensityRoi(3, QRectF(1.0, 0.0, 2.0, 1.0));
    QCOMPARE(log.lines,
        (QStringList { "info 3", "bins [1 0 0 0 0 0 0 0 0 0 1] 50 10 20" })); // 50 bins: 1..50
    const IntensityInfo& info = log.infos.first();
    QCOMPARE(info.rect, QRect(1, 0, 2, 1));
    QCOMPARE(info.imageWidth, 4);
    QCOMPARE(info.imageHeight, 2);
    QCOMPARE(info.min, 10u);
    QCOMPARE(info.max, 20u);
    QVERIFY(info.mean == 15.0);
    QVERIFY(info.standardDeviation == 5.0);
    QVERIFY(info.signalToNoise == 3.0);
    QVERIFY(engine.roiInfo.mean == 15.0);
}

void TestImageIntensityAnalysis::roi_ofEachDepth()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 3, 1, { 10010, 10020, 0 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 1.0));
    QVERIFY(engine.roiInfo.mean == 10015.0);
    QVERIFY(engine.roiInfo.standardDeviation == 5.0);
    QVERIFY(engine.roiInfo.signalToNoise == 2003.0);
    QVERIFY(setGrayImage<uint>(image, 3, 1, { 4000000010u, 4000000020u, 4000000000u }));
    engine.setImageData(&image);
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 1.0));
    QCOMPARE(engine.roiInfo.min, 4000000010u);
    QVERIFY(engine.roiInfo.mean == 4000000015.0);
    QVERIFY(engine.roiInfo.standardDeviation == 5.0);
    QVERIFY(engine.roiInfo.signalToNoise == 800000003.0);
}

void TestImageIntensityAnalysis::roi_pointsAreIgnoredAndEmptyOnesAreNot()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 8, std::vector<uchar>(32, 9)));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedIntensityRoi(0, QRectF(1.0, 1.0, 0.0, 0.0));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(engine.roiInfo.imageWidth, 0);

    engine.changedIntensityRoi(0, QRectF(1.0, 1.0, 0.0, 5.0));
    QCOMPARE(log.take(), (QStringList { "info 0", "bins [] 1 255 0" })); // null: no bins
    const IntensityInfo& info = log.infos.first();
    QCOMPARE(info.min, 255u);
    QCOMPARE(info.max, 0u);
    QVERIFY(std::isnan(info.mean));
    QVERIFY(std::isnan(info.standardDeviation));
    QVERIFY(info.signalToNoise == 0.0);
    QVERIFY(!engine.histogram.roiHistogram);
}

void TestImageIntensityAnalysis::roi_uniformKeepsTheLastRatio()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 20, 20, 20 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedIntensityRoi(0, QRectF(1.0, 0.0, 3.0, 1.0));
    QVERIFY(engine.roiInfo.standardDeviation == 0.0);
    QVERIFY(engine.roiInfo.signalToNoise == 0.0); // none before
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 1.0));
    QVERIFY(engine.roiInfo.signalToNoise == 3.0);
    engine.changedIntensityRoi(0, QRectF(1.0, 0.0, 3.0, 1.0));
    QVERIFY(engine.roiInfo.standardDeviation == 0.0);
    QVERIFY(engine.roiInfo.mean == 20.0);
    QVERIFY(engine.roiInfo.signalToNoise == 3.0);
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 0.0, 5.0)); // bottom 4: beyond the height
    QVERIFY(engine.roiInfo.signalToNoise == 3.0);
}

void TestImageIntensityAnalysis::roi_edgeEqualToTheSizeIsAccepted()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedIntensityRoi(0, cornerRect(1, 0, 2, 2));
    // 20, 30 / 40, none / none, none
    QCOMPARE(engine.roiInfo.rect, QRect(QPoint(1, 0), QPoint(2, 2)));
    QCOMPARE(engine.roiInfo.min, 20u);
    QCOMPARE(engine.roiInfo.max, 40u);
    QVERIFY(engine.roiInfo.mean == 25.0); // (0 + 10 + 20) / 6 + 20
    const QStringList lines = log.take();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.first(), QString("info 0"));
    QCOMPARE(engine.histogram.roiHistogram[0] + engine.histogram.roiHistogram[10]
            + engine.histogram.roiHistogram[20],
        3u);
}

void TestImageIntensityAnalysis::roi_edgeBeyondSendsThePreviousBins()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 12, 12, 40 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedIntensityRoi(0, cornerRect(3, 0, 5, 0)); // before any region: no bins
    QCOMPARE(log.take(), (QStringList { "bins [] 31 0 0" }));
    engine.changedIntensityRoi(0, cornerRect(0, 0, 2, 0));
    QCOMPARE(log.take(), (QStringList { "info 0", "bins [1 0 2] 31 10 12" }));
    engine.changedIntensityRoi(1, cornerRect(3, 0, 5, 0)); // right edge width + 1
    QCOMPARE(log.take(), (QStringList { "bins [1 0 2] 31 10 12" }));
    engine.changedIntensityRoi(1, cornerRect(0, 0, 2, 2)); // bottom edge height + 1
    QCOMPARE(log.take(), (QStringList { "bins [1 0 2] 31 10 12" }));
    QCOMPARE(engine.roiInfo.rect, QRect(0, 0, 3, 1));
}

void TestImageIntensityAnalysis::roi_nullAfterRounding()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 12, 12, 40 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedIntensityRoi(0, cornerRect(0, 0, 2, 0));
    SignalLog log(engine);
    engine.changedIntensityRoi(0, QRectF(1.0, 0.0, 0.3, 0.3)); // rounds to nothing
    QCOMPARE(log.take(), (QStringList { "bins [0 0 0] 31 10 12" }));
}

void TestImageIntensityAnalysis::roi_negativeTop()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedIntensityRoi(0, cornerRect(0, -1, 1, 0)); // row -1 is outside, row 0 is 10, 20
    QCOMPARE(log.take(), (QStringList { "info 0", "bins [1 0 0 0 0 0 0 0 0 0 1] 31 10 20" }));
    QVERIFY(engine.roiInfo.mean == 12.5); // (0 + 10) / 4 + 10
    engine.changedIntensityRoi(0, cornerRect(-1, 0, 0, 1)); // none, 10 / 20, 30
    QCOMPARE(engine.roiInfo.min, 10u);
    QCOMPARE(engine.roiInfo.max, 30u);
    QVERIFY(engine.roiInfo.mean == 17.5); // (0 + 10 + 20) / 4 + 10
}

void TestImageIntensityAnalysis::roi_survivesAnyRectangle()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    for (const double number : { infinity, -infinity, notANumber, 1e300, -1e300, 4e9, -4e9 }) {
        engine.changedIntensityRoi(0, QRectF(number, number, number, number));
        engine.changedIntensityRoi(0, QRectF(0.0, 0.0, number, -number));
        engine.changedIntensityRoi(0, QRectF(number, -number, 1.0, 1.0));
        engine.changedIntensityRoi(0, QRectF(-4e9, -4e9, 4e9 + 1.0, 4e9 + 1.0));
    }
    QVERIFY(log.take().size() >= 7 * 4);
}

void TestImageIntensityAnalysis::roi_ofOtherDepths()
{
    ImageData image;
    QVERIFY(image.allocate(4, 4, 64, 1));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.changedIntensityRoi(2, QRectF(0.0, 0.0, 2.0, 2.0));
    // nothing computed, nothing counted, and both signals
    QCOMPARE(log.take(), (QStringList { "info 2", "bins [0] 0 0 0" }));
    QCOMPARE(log.infos.first().rect, QRect(0, 0, 2, 2));
    QVERIFY(log.infos.first().mean == 0.0);
}

void TestImageIntensityAnalysis::roi_withoutAnImage()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 10, 20, 30, 40 }));
    ImageIntensityAnalysis engine(&image);
    SignalLog log(engine);
    engine.setImageData(nullptr);
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 2.0));
    engine.setImageData(&image);
    image.release();
    log.take();
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 2.0));
    QCOMPARE(log.take(), QStringList());
}

void TestImageIntensityAnalysis::roi_nestedRequest()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 12, 12, 40 }));
    ImageIntensityAnalysis engine(&image);
    bool nested = false;
    connect(&engine, &ImageIntensityAnalysis::updateRoiIntensityInfo, this, [&] {
        if (!std::exchange(nested, true)) {
            engine.changedIntensityRoi(7, cornerRect(2, 0, 3, 0));
        }
    });
    SignalLog log(engine);
    engine.changedIntensityRoi(1, cornerRect(0, 0, 1, 0));
    const QStringList lines = log.take();
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QString("info 7"));
    QVERIFY(lines[1].endsWith("31 12 40"));
    QCOMPARE(lines[2], QString("info 1"));
    // the outer steps go on with the range of the inner region, and count the outer one
    QVERIFY(lines[3].startsWith("bins [1 0 0"));
    QVERIFY(lines[3].endsWith("31 12 40"));
    QCOMPARE(log.infos[1].min, 10u); // copied before the inner request changed it
}

void TestImageIntensityAnalysis::roi_closedByAReceiver()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 12, 12, 40 }));
    ImageIntensityAnalysis engine(&image);
    connect(&engine, &ImageIntensityAnalysis::updateRoiIntensityInfo, this, [&] {
        engine.setImageData(nullptr);
        image.release();
    });
    SignalLog log(engine);
    engine.changedIntensityRoi(1, cornerRect(0, 0, 1, 0));
    QCOMPARE(log.take(), (QStringList { "info 1", "bins [] 31 10 12" })); // no bins of this range
}

void TestImageIntensityAnalysis::roi_otherImageSetByAReceiver()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 10, 11, 12, 40 }));
    ImageIntensityAnalysis engine(&image);
    engine.changedIntensityRoi(0, cornerRect(0, 0, 1, 0)); // two bins
    ImageData small;
    QVERIFY(setGrayImage<uchar>(small, 1, 1, { 3 }));
    connect(&engine, &ImageIntensityAnalysis::updateRoiIntensityInfo, this,
        [&] { engine.setImageData(&small); });
    SignalLog log(engine);
    engine.changedIntensityRoi(0, cornerRect(0, 0, 3, 0)); // its range has 31 values
    QCOMPARE(log.lines.last(), QString("bins [] 1 10 40")); // not the two old bins
}

void TestImageIntensityAnalysis::changedColors_convertsThePresentPixels()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 85, 170, 255 }));
    ImageIntensityAnalysis engine(&image);
    image.data[1] = 255; // in the same memory
    engine.changedColors({});
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 255, 255, 255 }));
}

void TestImageIntensityAnalysis::changedColors_convertsThroughThePresentMap_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("largest");
    QTest::newRow("8 bits") << 8 << 255;
    QTest::newRow("16 bits") << 16 << 65535;
    QTest::newRow("32 bits, few bins") << 32 << 255;
    QTest::newRow("32 bits, many bins") << 32 << 1000000;
}

void TestImageIntensityAnalysis::changedColors_convertsThroughThePresentMap()
{
    QFETCH(int, bitDepth);
    QFETCH(int, largest);
    const int width = 100000; // many more than the bins' first few, and not a chunk's multiple
    ImageData image;
    QVERIFY(image.allocate(width, 1, bitDepth, 1));
    const auto put = [&](int x, uint value) {
        const size_t sampleBytes = size_t(bitDepth) / 8;
        uchar* const sample = image.data + size_t(x) * sampleBytes;
        switch (bitDepth) {
        case 8: *sample = uchar(value); break;
        case 16: *reinterpret_cast<ushort*>(sample) = ushort(value); break;
        case 32: *reinterpret_cast<uint*>(sample) = value; break;
        }
    };
    put(1, uint(largest));
    put(width - 1, uint(largest));
    ImageIntensityAnalysis engine(&image);
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 255, 255, 255 }));

    engine.histogram.displayMap[largest] = 9;
    engine.changedColors({});
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 9, 9, 9 }));
    QCOMPARE(int(engine.displayBuffer[3 * width - 1]), 9);

    engine.histogram.displayMap[largest] = 255; // as it was
    engine.changedColors({});
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 255, 255, 255 }));
}

void TestImageIntensityAnalysis::changedColors_convertsEachTime()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 85, 170, 255 }));
    ImageIntensityAnalysis engine(&image);
    QSignalSpy updates(&engine, SIGNAL(updateImage()));
    engine.displayBuffer[3] = 7; // not what the pixels show
    engine.changedColors({});
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 85, 85, 85 }));
    engine.histogram.buildDisplayMap(0, 51); // a fifth of the levels
    engine.changedColors({});
    QCOMPARE(displayBytes(engine, 6), (QVector<int> { 0, 0, 0, 17, 17, 17 }));
    QCOMPARE(updates.size(), 2);
}

void TestImageIntensityAnalysis::loadScope_sameColoursAreOnlyAnnounced()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 85, 170, 255 }));
    ImageIntensityAnalysis engine(nullptr);
    QSignalSpy updates(&engine, SIGNAL(updateImage()));
    {
        const ImageIntensityAnalysis::LoadScope scope(&engine);
        engine.setImageData(&image);
        engine.displayBuffer[3] = 7;
        engine.changedColors({});
        QCOMPARE(int(engine.displayBuffer[3]), 7);
        QCOMPARE(updates.size(), 2);
    }
    engine.changedColors({}); // the load is over
    QCOMPARE(int(engine.displayBuffer[3]), 85);
    const ImageIntensityAnalysis::LoadScope scope(&engine);
    engine.displayBuffer[3] = 7;
    engine.changedColors({}); // nothing was converted within this load
    QCOMPARE(int(engine.displayBuffer[3]), 85);
    QCOMPARE(updates.size(), 4);
}

void TestImageIntensityAnalysis::loadScope_otherColoursAreConverted()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 0, 85, 170, 255 }));
    ImageIntensityAnalysis engine(nullptr);
    const ImageIntensityAnalysis::LoadScope scope(&engine);
    engine.setImageData(&image);
    engine.changedColors({ Qt::red });
    QCOMPARE(displayBytes(engine, 3), (QVector<int> { 255, 0, 0 }));
    ImageData other;
    QVERIFY(setGrayImage<uchar>(other, 4, 1, { 255, 0, 0, 0 }));
    engine.setImageData(&other); // another image in the same colours
    QCOMPARE(displayBytes(engine, 3), (QVector<int> { 255, 255, 255 }));
}

void TestImageIntensityAnalysis::loadScope_outlivesItsEngine()
{
    auto engine = std::make_unique<ImageIntensityAnalysis>(nullptr);
    const ImageIntensityAnalysis::LoadScope scope(engine.get());
    engine.reset(); // the sanitizer sees a scope that touches it at its end
}

QTEST_GUILESS_MAIN(TestImageIntensityAnalysis)
#include "tst_imageintensityanalysis.moc"
