#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "plots/gradientcolorlayoutitem.h"
#include "plots/intensitycurveaxisitem.h"
#include "plots/intensitycurvehorizontal.h"
#include "plots/intensitycurvevertical.h"
#include "plots/rulerbarhorizontal.h"
#include "plots/rulerbarvertical.h"
#include "support/sampleframes.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/cvkintensitywidget.h"

#include <QComboBox>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <functional>
#include <limits>
#include <memory>

using Widget = CVKIntensityWidget;

using FrameChange = std::function<void(Widget::Frame*)>;

Q_DECLARE_METATYPE(FrameChange)

namespace {

/// A frame with its samples, packed, and the raw file of the same pixels.
struct TestFrame
{
    int width = 0;
    int height = 0;
    int channels = 1;
    int bytesPerSample = 1;
    QByteArray bytes;

    Widget::Frame frame() const
    {
        Widget::Frame frame;
        frame.samples = bytes.constData();
        frame.width = width;
        frame.height = height;
        frame.channels = channels;
        frame.bytesPerSample = bytesPerSample;
        return frame;
    }

    RawFile rawFile() const { return ::rawFile(width, height, channels, bytesPerSample, bytes); }
};

/// Samples of an irregular pattern that differs with `seed`, below 2^bits.
TestFrame pattern(int width, int height, int channels, int bytesPerSample, uint seed, int bits)
{
    TestFrame frame { width, height, channels, bytesPerSample, QByteArray() };
    uint state = seed * 2654435761U + 1;
    const int count = width * height * channels;
    for (int i = 0; i < count; ++i) {
        state = state * 1664525U + 1013904223U;
        const uint value = state >> (32 - bits);
        char sample[4];
        std::memcpy(sample, &value, 4); // little-endian, as the samples of the test's machines
        frame.bytes.append(sample, bytesPerSample);
    }
    return frame;
}

/// Every number and picture that the widget shows.
struct Shown
{
    QImage display;
    QVector<QLineF> bottomStrip;
    QVector<QLineF> leftStrip;
    QVector<QLineF> rowCurve;
    QVector<QLineF> columnCurve;
    QVector<QLineF> ticks;
    QStringList grayLabels;
    QStringList valueLabels;
    QString readout;
    QStringList panel;
    QImage picture;
};

template <class Item>
Item* itemOf(const CVKIntensityMdiWidget& host)
{
    for (QGraphicsItem* const item : host.imageItem()->scene()->items()) {
        if (auto* const found = dynamic_cast<Item*>(item)) {
            return found;
        }
    }
    return nullptr;
}

/// The ruler of gray values under the palette bar: the one that is not a chart's.
QStringList grayRulerLabels(const CVKIntensityMdiWidget& host)
{
    for (QGraphicsItem* const item : host.imageItem()->scene()->items()) {
        auto* const ruler = dynamic_cast<RulerBarHorizontal*>(item);
        if (ruler && ruler->pos().y() == 31.0) {
            return ruler->labels();
        }
    }
    return {};
}

Shown shownBy(Widget& widget)
{
    QCoreApplication::processEvents();
    const auto& host = *widget.findChild<CVKIntensityMdiWidget*>();
    Shown shown;
    shown.display = host.analysis()->displayImage->copy();
    shown.bottomStrip = itemOf<IntensityCurveHorizontal>(host)->curveLines();
    shown.leftStrip = itemOf<IntensityCurveVertical>(host)->curveLines();
    shown.rowCurve = host.rowChart().curve->curveLines();
    shown.columnCurve = host.columnChart().curve->curveLines();
    shown.ticks = host.rowChart().curve->peakTicks();
    shown.grayLabels = grayRulerLabels(host);
    shown.valueLabels = host.rowChart().valueRuler->labels();
    shown.readout = itemOf<QGraphicsTextItem>(host)->toPlainText();
    for (const char* const name : { "labelValueX", "labelValueY", "labelValueCounts",
             "labelValueMean", "labelValueMin", "labelValueMax", "labelValueStandard" }) {
        shown.panel << widget.findChild<QLabel*>(name)->text();
    }
    shown.picture = widget.grab().toImage();
    return shown;
}

void compare(const Shown& a, const Shown& b)
{
    QCOMPARE(a.display, b.display);
    QCOMPARE(a.bottomStrip, b.bottomStrip);
    QCOMPARE(a.leftStrip, b.leftStrip);
    QCOMPARE(a.rowCurve, b.rowCurve);
    QCOMPARE(a.columnCurve, b.columnCurve);
    QCOMPARE(a.ticks, b.ticks);
    QCOMPARE(a.grayLabels, b.grayLabels);
    QCOMPARE(a.valueLabels, b.valueLabels);
    QCOMPARE(a.readout, b.readout);
    QCOMPARE(a.panel, b.panel);
    QCOMPARE(a.picture, b.picture);
}

std::unique_ptr<Widget> visibleWidget()
{
    auto widget = std::make_unique<Widget>();
    widget->setReading(Widget::Reading::Faithful);
    widget->resize(1100, 760);
    widget->show();
    return widget;
}

/// What a user may have set before the next frame comes.
void arrange(Widget& widget, Widget::View view)
{
    QVERIFY(widget.setRegions({ QRect(3, 4, 9, 7), QRect(10, 12, 8, 20) }));
    QVERIFY(widget.selectRegion(0));
    QVERIFY(widget.setCrossHair(QPoint(12, 9)));
    QVERIFY(widget.zoomIn());
    QVERIFY(widget.setCalibration(Widget::Calibration { 500, 2, Widget::Unit::Nanometers }));
    QVERIFY(widget.setPeakLabels({ true, 4 }));
    QVERIFY(widget.setView(view));
}

} // namespace

/// Frames from memory: the first one, and those that follow in its place.
class TestFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void showFrame_isTheSameAsLoadingARawFile_data();
    void showFrame_isTheSameAsLoadingARawFile();
    void updateFrame_isTheSameAsShowingTheFrame_data();
    void updateFrame_isTheSameAsShowingTheFrame();
    void updateFrame_keepsEverythingElse();
    void updateFrame_withoutARegion_showsItsHistogram();
    void updateFrame_withAnotherRange();
    void updateFrame_afterAFile();
    void updateFrame_afterAFileAsStored();
    void updateFrame_afterAFrameWithoutLevels();
    void updateFrame_tellsTheListenerOnce();
    void frames_withPaddedRows();
    void frames_ofColor();
    void frames_of32BitColor();
    void frames_areCopied();
    void frames_ofOddWidths();
    void badFrames_areRefused_data();
    void badFrames_areRefused();
    void otherFrames_areNotTheNextOne();
    void pixelLimit_holdsForFrames();
    void showFrame_closesTheImageBefore();
    void showFrame_withoutMemory();
    void manyFrames();

private:
    QTemporaryDir m_folder;
};

void TestFrames::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestFrames::showFrame_isTheSameAsLoadingARawFile_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("bits");
    QTest::newRow("8 bits") << 1 << 1 << 8;
    QTest::newRow("12 bits") << 1 << 2 << 12;
    QTest::newRow("16 bits") << 1 << 2 << 16;
    QTest::newRow("20 bits of 32") << 1 << 4 << 20;
    QTest::newRow("32 bits") << 1 << 4 << 32;
    QTest::newRow("color, 8 bits") << 3 << 1 << 8;
    QTest::newRow("color, 16 bits") << 3 << 2 << 16;
    QTest::newRow("color, 32 bits") << 3 << 4 << 32;
}

void TestFrames::showFrame_isTheSameAsLoadingARawFile()
{
    QFETCH(int, channels);
    QFETCH(int, bytes);
    QFETCH(int, bits);
    for (const auto reading : { Widget::Reading::Faithful, Widget::Reading::AsStored }) {
        const TestFrame frame = pattern(44, 36, channels, bytes, 5, bits);
        QVERIFY(writeRawFile(m_folder.filePath("frame.raw"), frame.rawFile()));
        const auto loaded = visibleWidget();
        const auto shown = visibleWidget();
        loaded->setReading(reading);
        shown->setReading(reading);
        QVERIFY(loaded->loadImage(m_folder.filePath("frame.raw")));
        QVERIFY(shown->showFrame(frame.frame()));
        QCOMPARE(shown->loadProblem(), Widget::LoadProblem::None);
        compare(shownBy(*shown), shownBy(*loaded));
        arrange(*loaded, Widget::View::Image);
        arrange(*shown, Widget::View::Image);
        compare(shownBy(*shown), shownBy(*loaded));
        const Widget::ImageInfo info = shown->imageInfo();
        QVERIFY(info.file.isEmpty());
        QCOMPARE(info.size, QSize(44, 36));
        QCOMPARE(info.channels, channels);
        QCOMPARE(info.bitDepth, 8 * bytes);
        QCOMPARE(info.isColorReduced, channels == 3);
        QCOMPARE(info.minimum, loaded->imageInfo().minimum);
        QCOMPARE(info.maximum, loaded->imageInfo().maximum);
    }
}

void TestFrames::updateFrame_isTheSameAsShowingTheFrame_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytes");
    for (const int bytes : { 1, 2, 4 }) {
        for (const int channels : { 1, 3 }) {
            for (const int view : { 0, 1, 2 }) {
                QTest::addRow("view %d, %d channels, %d bytes", view, channels, bytes)
                    << view << channels << bytes;
            }
        }
    }
}

void TestFrames::updateFrame_isTheSameAsShowingTheFrame()
{
    QFETCH(int, view);
    QFETCH(int, channels);
    QFETCH(int, bytes);
    const int bits = bytes == 4 ? 21 : 8 * bytes;
    const TestFrame first = pattern(45, 37, channels, bytes, 1, bits - 1);
    const TestFrame second = pattern(45, 37, channels, bytes, 2, bits);
    const auto updated = visibleWidget();
    const auto fresh = visibleWidget();
    QVERIFY(updated->showFrame(first.frame()));
    arrange(*updated, Widget::View(view));
    QVERIFY(updated->updateFrame(second.frame()));
    QVERIFY(fresh->showFrame(second.frame()));
    arrange(*fresh, Widget::View(view));
    compare(shownBy(*updated), shownBy(*fresh));
}

void TestFrames::updateFrame_keepsEverythingElse()
{
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(pattern(44, 36, 1, 2, 1, 16).frame()));
    arrange(*widget, Widget::View::ColumnChart);
    const QRect visible = widget->visiblePixels();
    const double zoom = widget->zoomFactor();
    QVERIFY(widget->updateFrame(pattern(44, 36, 1, 2, 2, 14).frame()));
    QCOMPARE(widget->visiblePixels(), visible);
    QVERIFY(widget->zoomFactor() == zoom);
    QCOMPARE(widget->crossHair(), std::optional<QPoint>(QPoint(12, 9)));
    QCOMPARE(widget->view(), Widget::View::ColumnChart);
    QCOMPARE(widget->regions(), QVector<QRect>({ QRect(3, 4, 9, 7), QRect(10, 12, 8, 20) }));
    QCOMPARE(widget->selectedRegion(), 0);
    QVERIFY(widget->calibration() == (Widget::Calibration { 500, 2, Widget::Unit::Nanometers }));
    QVERIFY(widget->peakLabels() == (Widget::PeakLabels { true, 4 }));
    const Widget::Statistics region = widget->statistics(QRect(3, 4, 9, 7));
    QCOMPARE(
        widget->findChild<QLabel*>("labelValueMean")->text(), QString::number(region.mean, 'f', 2));
}

void TestFrames::updateFrame_withoutARegion_showsItsHistogram()
{
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(pattern(44, 36, 1, 2, 1, 9).frame()));
    QVERIFY(widget->updateFrame(pattern(44, 36, 1, 2, 2, 9).frame()));
    const auto fresh = visibleWidget();
    QVERIFY(fresh->showFrame(pattern(44, 36, 1, 2, 2, 9).frame()));
    compare(shownBy(*widget), shownBy(*fresh));
}

void TestFrames::updateFrame_withAnotherRange()
{
    const auto widget = visibleWidget();
    const QByteArray flat(64, char(7));
    const TestFrame uniform { 8, 8, 1, 1, flat };
    QVERIFY(widget->showFrame(pattern(8, 8, 1, 1, 3, 8).frame()));
    QVERIFY(widget->updateFrame(uniform.frame()));
    QCOMPARE(widget->imageInfo().minimum, 7U);
    QCOMPARE(widget->imageInfo().maximum, 7U);
    const auto& host = *widget->findChild<CVKIntensityMdiWidget*>();
    QCOMPARE(host.analysis()->displayImage->pixelColor(3, 3), QColor(Qt::white));
    QVERIFY(widget->updateFrame(pattern(8, 8, 1, 1, 3, 8).frame()));
    QVERIFY(widget->imageInfo().maximum > 7);
    // The full range of 32 bits has neither counts nor levels.
    const quint32 values[4] { 0, 0xFFFFFFFFU, 5, 6 };
    const TestFrame full { 2, 2, 1, 4,
        QByteArray(reinterpret_cast<const char*>(values), sizeof(values)) };
    QVERIFY(widget->showFrame(pattern(2, 2, 1, 4, 3, 9).frame()));
    QVERIFY(widget->updateFrame(full.frame()));
    QCOMPARE(widget->imageInfo().maximum, 0xFFFFFFFFU);
    const auto fresh = visibleWidget();
    QVERIFY(fresh->showFrame(full.frame()));
    const Shown black = shownBy(*widget);
    QCOMPARE(black.display, shownBy(*fresh).display);
    QCOMPARE(black.display.pixelColor(1, 0), QColor(Qt::black));
    QCOMPARE(black.readout, QString("X:1  Y:0\nData:6")); // the cross-hair of the frame before
    QCOMPARE(black.bottomStrip.first().y1(), black.bottomStrip.last().y2()); // level 0
    QVERIFY(widget->updateFrame(pattern(2, 2, 1, 4, 3, 9).frame()));
    QVERIFY(widget->rowProfile(0).levels.contains(uchar(0)));
}

void TestFrames::updateFrame_afterAFile()
{
    const TestFrame frame = pattern(44, 36, 1, 2, 5, 12);
    QVERIFY(writeRawFile(m_folder.filePath("file.raw"), frame.rawFile()));
    const auto widget = visibleWidget();
    QVERIFY(widget->loadImage(m_folder.filePath("file.raw")));
    QVERIFY(widget->updateFrame(pattern(44, 36, 1, 2, 6, 12).frame()));
    QVERIFY(widget->imageInfo().file.isEmpty());
}

void TestFrames::updateFrame_afterAFileAsStored()
{
    QVERIFY(writeRawFile(m_folder.filePath("odd.raw"), pattern(45, 37, 1, 2, 5, 12).rawFile()));
    const auto widget = visibleWidget();
    widget->setReading(Widget::Reading::AsStored); // shown slanted
    QVERIFY(widget->loadImage(m_folder.filePath("odd.raw")));
    const TestFrame next = pattern(45, 37, 1, 2, 6, 12);
    QVERIFY(widget->updateFrame(next.frame()));
    const auto fresh = visibleWidget();
    QVERIFY(fresh->showFrame(next.frame()));
    compare(shownBy(*widget), shownBy(*fresh));
}

void TestFrames::updateFrame_afterAFrameWithoutLevels()
{
    TestFrame full = pattern(45, 37, 1, 4, 3, 9);
    const quint32 largest = 0xFFFFFFFFU;
    std::memcpy(full.bytes.data(), &largest, 4);
    std::memset(full.bytes.data() + 4, 0, 4);
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(pattern(90, 80, 1, 4, 1, 9).frame()));
    QVERIFY(widget->setCrossHair(QPoint(80, 70)));
    QVERIFY(widget->showFrame(full.frame()));
    QCOMPARE(widget->crossHair(), std::optional<QPoint>(QPoint(22, 36)));
    QVERIFY(widget->setCrossHair(QPoint(3, 4)));
    QCOMPARE(widget->crossHair(), std::optional<QPoint>(QPoint(3, 4)));
    QVERIFY(widget->zoomIn());
    const TestFrame next = pattern(45, 37, 1, 4, 5, 9);
    QVERIFY(widget->updateFrame(next.frame()));
    const auto fresh = visibleWidget();
    QVERIFY(fresh->showFrame(next.frame()));
    QVERIFY(fresh->setCrossHair(QPoint(3, 4)));
    QVERIFY(fresh->zoomIn());
    compare(shownBy(*widget), shownBy(*fresh));
}

void TestFrames::updateFrame_tellsTheListenerOnce()
{
    class Counter : public Widget::Listener
    {
    public:
        void imageChanged() override { ++images; }
        void viewChanged() override { ++others; }
        void crossHairChanged() override { ++others; }
        void regionsChanged() override { ++others; }
        void selectionChanged() override { ++others; }
        void settingsChanged() override { ++others; }
        int images = 0;
        int others = 0;
    };
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(pattern(44, 36, 1, 2, 1, 12).frame()));
    QVERIFY(widget->addRegion(QRect(1, 1, 4, 4)));
    Counter counter;
    widget->setListener(&counter);
    QVERIFY(widget->updateFrame(pattern(44, 36, 1, 2, 2, 12).frame()));
    QCoreApplication::processEvents();
    QCOMPARE(counter.images, 1);
    QCOMPARE(counter.others, 0);
}

void TestFrames::frames_withPaddedRows()
{
    const TestFrame packed = pattern(5, 4, 1, 2, 1, 16);
    QByteArray padded;
    for (int row = 0; row < 4; ++row) {
        padded += packed.bytes.mid(row * 10, 10) + QByteArray(3, char(0x55));
    }
    Widget::Frame frame = packed.frame();
    frame.samples = padded.constData();
    frame.bytesPerLine = 13; // not even a multiple of the sample
    const auto a = visibleWidget();
    const auto b = visibleWidget();
    QVERIFY(a->showFrame(packed.frame()));
    QVERIFY(b->showFrame(frame));
    compare(shownBy(*b), shownBy(*a));
    QVERIFY(b->updateFrame(pattern(5, 4, 1, 2, 9, 16).frame()));
    QVERIFY(b->updateFrame(frame));
    compare(shownBy(*b), shownBy(*a));
}

void TestFrames::frames_ofColor()
{
    // blue, green, red: (15 x 255) >> 7 = 29, (75 x 255) >> 7 = 149, (38 x 255) >> 7 = 75
    const uchar bytes[] { 255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255 };
    const TestFrame frame { 4, 1, 3, 1,
        QByteArray(reinterpret_cast<const char*>(bytes), sizeof(bytes)) };
    const auto widget = visibleWidget();
    for (const bool isUpdate : { false, true }) {
        QVERIFY(isUpdate ? widget->updateFrame(frame.frame()) : widget->showFrame(frame.frame()));
        QCOMPARE(widget->rowProfile(0).values, QVector<quint32>({ 29, 149, 75, 255 }));
    }
}

void TestFrames::frames_of32BitColor()
{
    const quint32 most = 0xFFFFFFFFU;
    const quint32 values[3] { most, most, most };
    const TestFrame frame { 1, 1, 3, 4,
        QByteArray(reinterpret_cast<const char*>(values), sizeof(values)) };
    const auto widget = visibleWidget();
    for (const bool isUpdate : { false, true }) {
        QVERIFY(isUpdate ? widget->updateFrame(frame.frame()) : widget->showFrame(frame.frame()));
        QCOMPARE(widget->value(QPoint(0, 0)), std::optional<quint32>(most)); // 128 x most / 128
    }
    widget->setReading(Widget::Reading::AsStored);
    for (const bool isUpdate : { false, true }) {
        QVERIFY(isUpdate ? widget->updateFrame(frame.frame()) : widget->showFrame(frame.frame()));
        // 128 x (2^32 - 1) modulo 2^32 is 2^32 - 128; shifted by seven bits: 2^25 - 1
        QCOMPARE(widget->value(QPoint(0, 0)), std::optional<quint32>(33554431U));
    }
}

void TestFrames::frames_areCopied()
{
    TestFrame frame = pattern(8, 8, 1, 1, 1, 8);
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(frame.frame()));
    const auto before = widget->value(QPoint(2, 0));
    frame.bytes.fill(char(*before ^ 0xFF));
    QCOMPARE(widget->value(QPoint(2, 0)), before);
}

void TestFrames::frames_ofOddWidths()
{
    for (int width = 1; width <= 9; ++width) {
        TestFrame frame = pattern(width, 5, 1, 1, uint(width), 8);
        frame.bytes[0] = 0; // black and white are there
        frame.bytes[1] = char(255);
        const auto widget = visibleWidget();
        QVERIFY(widget->showFrame(frame.frame()));
        const auto& host = *widget->findChild<CVKIntensityMdiWidget*>();
        const QImage& display = *host.analysis()->displayImage;
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < width; ++x) {
                const int level = uchar(frame.bytes.at(y * width + x));
                QCOMPARE(display.pixelColor(x, y).red(), level);
            }
        }
    }
}

void TestFrames::badFrames_areRefused_data()
{
    QTest::addColumn<FrameChange>("change");
    const auto row
        = [](const char* name, const FrameChange& change) { QTest::newRow(name) << change; };
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    row("no samples", [](Widget::Frame* frame) { frame->samples = nullptr; });
    row("no width", [](Widget::Frame* frame) { frame->width = 0; });
    row("no height", [](Widget::Frame* frame) { frame->height = 0; });
    row("negative width", [=](Widget::Frame* frame) { frame->width = least; });
    row("negative height", [=](Widget::Frame* frame) { frame->height = least; });
    row("no channels", [](Widget::Frame* frame) { frame->channels = 0; });
    row("two channels", [](Widget::Frame* frame) { frame->channels = 2; });
    row("four channels", [](Widget::Frame* frame) { frame->channels = 4; });
    row("three bytes", [](Widget::Frame* frame) { frame->bytesPerSample = 3; });
    row("eight bytes", [](Widget::Frame* frame) { frame->bytesPerSample = 8; });
    row("no bytes", [=](Widget::Frame* frame) { frame->bytesPerSample = least; });
    row("short rows", [](Widget::Frame* frame) { frame->bytesPerLine = 15; });
    row("backward rows", [](Widget::Frame* frame) { frame->bytesPerLine = -16; });
    row("endless rows",
        [](Widget::Frame* frame) { frame->bytesPerLine = std::numeric_limits<qint64>::max(); });
    row("a huge image", [=](Widget::Frame* frame) {
        frame->width = most;
        frame->height = most;
        frame->bytesPerLine = 0;
    });
}

void TestFrames::badFrames_areRefused()
{
    QFETCH(FrameChange, change);
    const TestFrame good = pattern(8, 8, 1, 2, 1, 16);
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(good.frame()));
    const Shown before = shownBy(*widget);
    Widget::Frame bad = good.frame();
    change(&bad);
    QVERIFY(!widget->showFrame(bad));
    QVERIFY(widget->loadProblem() == Widget::LoadProblem::BadFrame
        || widget->loadProblem() == Widget::LoadProblem::TooLarge);
    QVERIFY(!widget->updateFrame(bad));
    QCOMPARE(widget->loadProblem(), Widget::LoadProblem::BadFrame);
    compare(shownBy(*widget), before);
}

void TestFrames::otherFrames_areNotTheNextOne()
{
    const auto widget = visibleWidget();
    QVERIFY(!widget->updateFrame(pattern(8, 8, 1, 2, 1, 16).frame())); // nothing is open
    QVERIFY(widget->showFrame(pattern(8, 8, 1, 2, 1, 16).frame()));
    QVERIFY(!widget->updateFrame(pattern(8, 9, 1, 2, 1, 16).frame()));
    QVERIFY(!widget->updateFrame(pattern(9, 8, 1, 2, 1, 16).frame()));
    QVERIFY(!widget->updateFrame(pattern(8, 8, 1, 1, 1, 8).frame()));
    QVERIFY(!widget->updateFrame(pattern(8, 8, 1, 4, 1, 16).frame()));
    QCOMPARE(widget->loadProblem(), Widget::LoadProblem::BadFrame);
    QVERIFY(widget->updateFrame(pattern(8, 8, 3, 2, 1, 16).frame())); // as gray values
    widget->closeImage();
    QVERIFY(!widget->updateFrame(pattern(8, 8, 1, 2, 1, 16).frame()));
}

void TestFrames::pixelLimit_holdsForFrames()
{
    const auto widget = visibleWidget();
    widget->setPixelLimit(63);
    QVERIFY(!widget->showFrame(pattern(8, 8, 1, 2, 1, 16).frame()));
    QCOMPARE(widget->loadProblem(), Widget::LoadProblem::OverPixelLimit);
    widget->setPixelLimit(64);
    QVERIFY(widget->showFrame(pattern(8, 8, 1, 2, 1, 16).frame()));
    widget->setPixelLimit(1);
    QVERIFY(!widget->updateFrame(pattern(8, 8, 1, 2, 1, 16).frame()));
    QCOMPARE(widget->loadProblem(), Widget::LoadProblem::OverPixelLimit);
}

void TestFrames::showFrame_closesTheImageBefore()
{
    const auto widget = visibleWidget();
    widget->setReading(Widget::Reading::AsStored); // frames replace in any case
    QVERIFY(widget->showFrame(pattern(80, 80, 1, 2, 1, 16).frame()));
    QVERIFY(widget->addRegion(QRect(1, 1, 5, 5)));
    QVERIFY(widget->showFrame(pattern(80, 80, 1, 2, 2, 16).frame()));
    QVERIFY(widget->regions().isEmpty());
    QCOMPARE(widget->findChild<QComboBox*>("comboBoxRoi")->count(), 1);
    const double fitting = widget->zoomFactor();
    QTest::mouseClick(widget->findChild<QPushButton*>("tool_Zoom_In"), Qt::LeftButton);
    QCOMPARE(widget->zoomFactor(), fitting * 1.5);
}

void TestFrames::showFrame_withoutMemory()
{
    const auto widget = visibleWidget();
    QVERIFY(widget->showFrame(pattern(8, 8, 1, 2, 1, 16).frame()));
    const Shown before = shownBy(*widget);
    uchar sample = 0;
    Widget::Frame frame;
    frame.samples = &sample;
    frame.width = 65536;
    frame.height = 32768; // 2^31 bytes: more than a record holds
    QVERIFY(!widget->showFrame(frame));
    QCOMPARE(widget->loadProblem(), Widget::LoadProblem::TooLarge);
    compare(shownBy(*widget), before);
}

void TestFrames::manyFrames()
{
    const auto widget = visibleWidget();
    for (uint i = 0; i < 30; ++i) {
        const TestFrame frame = pattern(20 + int(i % 3), 20, 1, 1, i, 8);
        QVERIFY(widget->updateFrame(frame.frame()) || widget->showFrame(frame.frame()));
        QVERIFY(i % 5 != 0 || widget->addRegion(QRect(0, 0, 3, 3)));
    }
    QCOMPARE(widget->imageInfo().size, QSize(22, 20));
}

QTEST_MAIN(TestFrames)
#include "tst_frames.moc"
