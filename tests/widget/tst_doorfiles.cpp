#include "support/sampleframes.h"
#include "support/tiffwriter.h"
#include "widget/cvkintensitywidget.h"
#include "widget/preview.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

using Widget = CVKIntensityWidget;
using WidgetCall = std::function<void(Widget*)>;

Q_DECLARE_METATYPE(WidgetCall)

namespace {

template <class Sample>
TiffImage tiffLine(const std::vector<Sample>& samples, int channels, int format)
{
    TiffImage image;
    image.width = int(samples.size()) / channels;
    image.bits = 8 * int(sizeof(Sample));
    image.samples = channels;
    image.format = format;
    image.photometric = channels >= 3 ? 2 : 1;
    image.pixels = QByteArray(
        reinterpret_cast<const char*>(samples.data()), int(samples.size() * sizeof(Sample)));
    return image;
}

/// Calls `action` at the first change of the cross-hair, and counts what it is told.
class ActingListener : public Widget::Listener
{
public:
    explicit ActingListener(std::function<void()> action)
        : m_action(std::move(action))
    {
    }
    void imageChanged() override { ++told; }
    void viewChanged() override { ++told; }
    void crossHairChanged() override
    {
        ++told;
        if (const auto action = std::exchange(m_action, nullptr)) {
            action();
        }
    }
    void regionsChanged() override { ++told; }
    void selectionChanged() override { ++told; }
    void settingsChanged() override { ++told; }

    int told = 0;

private:
    std::function<void()> m_action;
};

quint16 sharedSamples[64 * 48];

Widget::Frame sharedFrame()
{
    Widget::Frame frame;
    frame.samples = sharedSamples;
    frame.width = 64;
    frame.height = 48;
    frame.bytesPerSample = 2;
    return frame;
}

} // namespace

/// Files through the exported widget, and each member called twice and out of the listener.
class TestDoorFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void loadPage_showsOnePage();
    void loadPage_refusesOthers();
    void imageInfo_tellsWhatWasChanged();
    void imageInfo_isOfTheLoadedImage_data();
    void imageInfo_isOfTheLoadedImage();
    void preview_isThatOfFaithfulReading();
    void members_twice_data();
    void members_twice();
    void members_duringACallOfTheListener_data();
    void members_duringACallOfTheListener();
    void listener_withALoopOfItsOwn();
    void listener_replacedDuringItsCall();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void addCalls();

    QTemporaryDir m_folder;
    std::unique_ptr<Widget> m_widget;
};

void TestDoorFiles::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    for (int i = 0; i < 64 * 48; ++i) {
        sharedSamples[i] = quint16(i % 997 * 3);
    }
    TiffWriter writer;
    writer.addImage(tiffLine<quint8>({ 7, 8 }, 1, 1));
    writer.addImage(tiffLine<quint16>({ 500, 600, 700 }, 1, 1));
    QVERIFY(writeFile(path("pages.tif"), writer.file()));
    QVERIFY(writeFile(path("color.tif"), tiffOf(tiffLine<quint8>({ 0, 255, 0 }, 3, 1))));
    QVERIFY(writeFile(path("signed.tif"), tiffOf(tiffLine<qint16>({ 5, 32767 }, 1, 2))));
    QVERIFY(writeFile(path("float.tif"), tiffOf(tiffLine<float>({ 70000.0F, 2.0F }, 1, 3))));
    QVERIFY(writeFile(path("half.tif"), tiffOf(tiffLine<float>({ 0.5F }, 1, 3))));
}

void TestDoorFiles::init()
{
    m_widget = std::make_unique<Widget>();
    m_widget->setReading(Widget::Reading::Faithful);
    m_widget->resize(1000, 700);
    m_widget->show();
}

void TestDoorFiles::cleanup()
{
    m_widget.reset();
}

void TestDoorFiles::loadPage_showsOnePage()
{
    QVERIFY(m_widget->loadPage(path("pages.tif"), 1));
    QCOMPARE(m_widget->rowProfile(0).values, QVector<quint32>({ 500, 600, 700 }));
    QCOMPARE(m_widget->imageInfo().page, 1);
    QCOMPARE(m_widget->imageInfo().pageCount, 2);
    QCOMPARE(m_widget->imageInfo().bitDepth, 16);
    QCOMPARE(m_widget->imageInfo().size, QSize(3, 1));
    QVERIFY(m_widget->loadImage(path("pages.tif"))); // the first one
    QCOMPARE(m_widget->imageInfo().page, 0);
    QCOMPARE(m_widget->rowProfile(0).values, QVector<quint32>({ 7, 8 }));
}

void TestDoorFiles::loadPage_refusesOthers()
{
    QVERIFY(m_widget->loadPage(path("pages.tif"), 1));
    for (const int page : { 2, -1, 65536 }) {
        QVERIFY(!m_widget->loadPage(path("pages.tif"), page));
        QCOMPARE(m_widget->loadProblem(), Widget::LoadProblem::NoSuchPage);
        QCOMPARE(m_widget->imageInfo().page, 1); // as it was
    }
    m_widget->setReading(Widget::Reading::AsStored);
    QVERIFY(!m_widget->loadPage(path("pages.tif"), 1));
    QCOMPARE(m_widget->loadProblem(), Widget::LoadProblem::NoSuchPage);
}

void TestDoorFiles::imageInfo_tellsWhatWasChanged()
{
    QVERIFY(m_widget->loadImage(path("color.tif")));
    QVERIFY(m_widget->imageInfo().isColorReduced);
    QVERIFY(!m_widget->imageInfo().isAlphaDropped);
    QCOMPARE(m_widget->imageInfo().channels, 3);
    QCOMPARE(m_widget->imageInfo().maximum, 149U); // (75 x 255) >> 7
    QVERIFY(m_widget->loadImage(path("signed.tif")));
    QVERIFY(m_widget->imageInfo().isTypeConverted);
    QCOMPARE(m_widget->imageInfo().sampleKind, Widget::SampleKind::Signed);
    QCOMPARE(m_widget->imageInfo().maximum, 32767U);
    QVERIFY(m_widget->loadImage(path("float.tif")));
    QVERIFY(m_widget->imageInfo().isTypeConverted);
    QCOMPARE(m_widget->imageInfo().sampleKind, Widget::SampleKind::Floating);
    QCOMPARE(m_widget->imageInfo().bitDepth, 32);
    QCOMPARE(m_widget->imageInfo().maximum, 70000U);
    QVERIFY(!m_widget->loadImage(path("half.tif")));
    QCOMPARE(m_widget->loadProblem(), Widget::LoadProblem::UnfaithfulValues);
    QCOMPARE(m_widget->imageInfo().file, path("float.tif"));
}

void TestDoorFiles::imageInfo_isOfTheLoadedImage_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bitDepth");
    for (quint64 orientation = 1; orientation <= 8; ++orientation) {
        TiffImage image = tiffLine<quint16>({ 500, 600, 700 }, 1, 1);
        image.further << TiffField { 274, tiffShort, { orientation } };
        // From 5 on rows of the file are columns of the picture.
        QTest::addRow("orientation %d", int(orientation))
            << tiffOf(image) << (orientation < 5 ? QSize(3, 1) : QSize(1, 3)) << 16;
    }
    QTest::newRow("BigTIFF") << tiffOf(tiffLine<quint16>({ 1, 2 }, 1, 1), false, true)
                             << QSize(2, 1) << 16;
    QTest::newRow("big-endian") << tiffOf(tiffLine<quint8>({ 1, 2 }, 1, 1), true) << QSize(2, 1)
                                << 8;
}

/// Size and depth are those of what is shown, whatever the header says.
void TestDoorFiles::imageInfo_isOfTheLoadedImage()
{
    QFETCH(QByteArray, file);
    QFETCH(QSize, size);
    QFETCH(int, bitDepth);
    QVERIFY(writeFile(path("turned.tif"), file));
    QVERIFY(m_widget->loadImage(path("turned.tif")));
    QCOMPARE(m_widget->imageInfo().size, size);
    QCOMPARE(m_widget->imageInfo().bitDepth, bitDepth);
    QCOMPARE(m_widget->columnProfile(0).values.size(), size.height());
    QCOMPARE(m_widget->visiblePixels(), QRect(QPoint(0, 0), size));
}

void TestDoorFiles::preview_isThatOfFaithfulReading()
{
    Widget::LoadProblem problem = Widget::LoadProblem::BadFrame;
    const QImage picture = Widget::preview(path("signed.tif"), QSize(100, 100), 0, &problem);
    QCOMPARE(problem, Widget::LoadProblem::None);
    QCOMPARE(picture.size(), QSize(2, 1));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(1, 0), QColor(Qt::white));
    QVERIFY(Widget::preview(path("half.tif"), QSize(100, 100), 0, &problem).isNull());
    QCOMPARE(problem, Widget::LoadProblem::UnfaithfulValues);
    QVERIFY(Widget::preview(path("signed.tif"), QSize(100, 100), 1, &problem).isNull());
    QCOMPARE(problem, Widget::LoadProblem::OverPixelLimit);
    QVERIFY(Widget::preview(path("none.tif"), QSize(100, 100)).isNull());
}

void TestDoorFiles::addCalls()
{
    QTest::addColumn<WidgetCall>("call");
    const auto row = [](const char* name, const WidgetCall& call) { QTest::newRow(name) << call; };
    row("loadImage", [this](Widget* w) { QVERIFY(w->loadImage(path("signed.tif"))); });
    row("loadPage", [this](Widget* w) { QVERIFY(w->loadPage(path("pages.tif"), 1)); });
    row("a refused load", [this](Widget* w) { QVERIFY(!w->loadImage(path("half.tif"))); });
    row("closeImage", [](Widget* w) { w->closeImage(); });
    row("showFrame", [](Widget* w) { QVERIFY(w->showFrame(sharedFrame())); });
    row("updateFrame", [](Widget* w) { QVERIFY(w->updateFrame(sharedFrame())); });
    row("setReading", [](Widget* w) { w->setReading(Widget::Reading::AsStored); });
    row("setPixelLimit", [](Widget* w) { w->setPixelLimit(5); });
    row("imageInfo", [](Widget* w) { QVERIFY(w->imageInfo().isValid()); });
    row("preview",
        [this](Widget*) { QVERIFY(!Widget::preview(path("signed.tif"), QSize(9, 9)).isNull()); });
    row("setView", [](Widget* w) { QVERIFY(w->setView(Widget::View::ColumnChart)); });
    row("setChartAxis", [](Widget* w) { QVERIFY(w->setChartAxis(Widget::Axis::Column)); });
    row("zoomIn", [](Widget* w) { QVERIFY(w->zoomIn()); });
    row("zoomOut", [](Widget* w) { w->zoomOut(); });
    row("fit", [](Widget* w) { QVERIFY(w->fit()); });
    row("setCrossHair", [](Widget* w) { QVERIFY(w->setCrossHair(QPoint(5, 6))); });
    row("value", [](Widget* w) { QVERIFY(w->value(QPoint(5, 6))); });
    row("setColorPalette", [](Widget* w) { QVERIFY(w->setColorPalette("Gray")); });
    row("setCalibration", [](Widget* w) { QVERIFY(w->setCalibration(Widget::Calibration())); });
    row("no calibration", [](Widget* w) { QVERIFY(w->setCalibration(std::nullopt)); });
    row("setPeakLabels", [](Widget* w) { QVERIFY(w->setPeakLabels({ true, 7 })); });
    row("addRegion", [](Widget* w) { QVERIFY(w->addRegion(QRect(1, 1, 3, 3))); });
    row("setRegion", [](Widget* w) { QVERIFY(w->setRegion(0, QRect(1, 1, 3, 3))); });
    row("setRegions", [](Widget* w) { QVERIFY(w->setRegions({ QRect(1, 1, 3, 3) })); });
    row("selectRegion", [](Widget* w) { QVERIFY(w->selectRegion(0)); });
    row("select none", [](Widget* w) { QVERIFY(w->selectRegion(-1)); });
    row("statistics", [](Widget* w) { QVERIFY(w->statistics(QRect(1, 1, 3, 3)).isValid()); });
    row("histogram", [](Widget* w) { QVERIFY(w->histogram(QRect(1, 1, 3, 3)).isValid()); });
    row("peaks", [](Widget* w) { QVERIFY(!w->peaks(w->rowProfile(3), 2).isEmpty()); });
    row("columnProfile", [](Widget* w) { QVERIFY(w->columnProfile(3).isValid()); });
}

void TestDoorFiles::members_twice_data()
{
    addCalls();
}

/// The second call finds what the first one has done: nothing is told, except of images, frames and
/// what each call does again.
void TestDoorFiles::members_twice()
{
    QFETCH(WidgetCall, call);
    QVERIFY(m_widget->showFrame(sharedFrame()));
    QVERIFY(m_widget->setRegions({ QRect(2, 2, 5, 5), QRect(9, 9, 5, 5) }));
    call(m_widget.get());
    ActingListener listener(nullptr);
    m_widget->setListener(&listener);
    call(m_widget.get());
    QCoreApplication::processEvents();
    const QByteArray name = QTest::currentDataTag();
    const bool isNewEachTime = name == "loadImage" || name == "loadPage" || name == "showFrame"
        || name == "updateFrame" || name == "zoomIn" || name == "addRegion";
    QCOMPARE(listener.told > 0, isNewEachTime);
}

void TestDoorFiles::members_duringACallOfTheListener_data()
{
    addCalls();
}

void TestDoorFiles::members_duringACallOfTheListener()
{
    QFETCH(WidgetCall, call);
    QVERIFY(m_widget->showFrame(sharedFrame()));
    QVERIFY(m_widget->setRegions({ QRect(2, 2, 5, 5), QRect(9, 9, 5, 5) }));
    bool isCalled = false;
    ActingListener listener([&] {
        call(m_widget.get());
        isCalled = true;
    });
    m_widget->setListener(&listener);
    QVERIFY(m_widget->setCrossHair(QPoint(30, 20)));
    QVERIFY(isCalled);
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
    }
    const int told = listener.told;
    QCoreApplication::processEvents();
    QCOMPARE(listener.told, told); // all is told, and nothing twice
    QVERIFY(!m_widget->imageInfo().isValid() || m_widget->crossHair());
    m_widget->grab();
}

void TestDoorFiles::listener_withALoopOfItsOwn()
{
    QVERIFY(m_widget->showFrame(sharedFrame()));
    int turns = 0;
    ActingListener listener([&] {
        QVERIFY(m_widget->setCrossHair(QPoint(1, 1)));
        QEventLoop loop;
        QTimer::singleShot(60, &loop, &QEventLoop::quit);
        QTimer idle; // as often as the loop is free of other events
        connect(&idle, &QTimer::timeout, [&turns] { ++turns; });
        idle.start(0);
        loop.exec();
    });
    m_widget->setListener(&listener);
    QVERIFY(m_widget->setCrossHair(QPoint(30, 20)));
    QVERIFY(turns > 0);
    QCOMPARE(listener.told, 1);
    QCoreApplication::processEvents();
    QCOMPARE(listener.told, 2); // what was changed in the call is told once
}

void TestDoorFiles::listener_replacedDuringItsCall()
{
    QVERIFY(m_widget->showFrame(sharedFrame()));
    ActingListener second(nullptr);
    ActingListener first([&] { m_widget->setListener(&second); });
    m_widget->setListener(&first);
    QVERIFY(m_widget->loadImage(path("signed.tif"))); // image, view and cross-hair, then others
    QCOMPARE(second.told, 0);
    QCoreApplication::processEvents();
    QCOMPARE(second.told, 0);
    QVERIFY(m_widget->setCrossHair(QPoint(0, 0)));
    QCOMPARE(second.told, 1);
}

QTEST_MAIN(TestDoorFiles)
#include "tst_doorfiles.moc"
