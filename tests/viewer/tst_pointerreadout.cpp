#include "pointerreadout.h"

#include "imagepage.h"
#include "pagecontrol.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QGraphicsView>
#include <QSignalSpy>
#include <QStatusBar>

/// Pixel under the pointer and zoom in the status line, and what goes in a narrow window.
class TestPointerReadout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void pixel_isToldWithItsValue();
    void pixel_hasAWavelength();
    void pixel_isClearedOutside();
    void pixel_followsTheView();
    void pixel_ofTheNextImage();
    void pixel_movesNothing();
    void widget_getsEveryEvent();
    void zoom_data();
    void zoom();
    void zoom_followsTheView();
    void narrowWindow_keepsWhatMatters();
    void message_isLegible();

private:
    QWidget* viewport() const
    {
        return m_viewer->intensity()->findChild<QGraphicsView*>()->viewport();
    }
    QPoint positionOf(const QPoint& pixel) const;
    void moveTo(const QPoint& pixel) const;
    QString text() const { return m_viewer->status("statusPixel"); }

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestPointerReadout::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestPointerReadout::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw"))); // 65 x 48 pixels
}

void TestPointerReadout::cleanup()
{
    m_viewer.reset();
}

/// In the viewport, where the widget says that this pixel is.
QPoint TestPointerReadout::positionOf(const QPoint& pixel) const
{
    const CVKIntensityWidget* image = m_viewer->intensity();
    for (int y = 0; y < viewport()->height(); y += 2) {
        for (int x = 0; x < viewport()->width(); x += 2) {
            const QPoint position(x, y);
            if (image->pixelAt(viewport()->mapTo(image, position)) == pixel) {
                return position;
            }
        }
    }
    return QPoint(-1, -1);
}

void TestPointerReadout::moveTo(const QPoint& pixel) const
{
    const QPoint position = positionOf(pixel);
    QVERIFY(position.x() >= 0);
    QTest::mouseMove(viewport(), QPoint(1, 1)); // a pointer that is there already sends nothing
    QTest::mouseMove(viewport(), position);
}

/// Sample i is (i % 65) + 256 (i % 7).
void TestPointerReadout::pixel_isToldWithItsValue()
{
    moveTo(QPoint(20, 10));
    // 650 + 20 = 670, 670 % 7 = 5; the row is counted from the bottom: 48 - 1 - 10.
    QCOMPARE(text(), QString("x 20, y 37: 1300"));
    moveTo(QPoint(64, 47)); // 48 * 65 - 1 = 3119, 3119 % 7 = 4
    QCOMPARE(text(), QString("x 64, y 0: 1088"));
}

void TestPointerReadout::pixel_hasAWavelength()
{
    using Widget = CVKIntensityWidget;
    Widget* image = m_viewer->intensity();
    QVERIFY(image->setCalibration(Widget::Calibration { 400, 3, Widget::Unit::Nanometers }));
    moveTo(QPoint(20, 10));
    QCOMPARE(text(), QString("x 20 (460 nm), y 37: 1300"));
    QVERIFY(image->setCalibration(Widget::Calibration { 5, 1, Widget::Unit::Micrometers }));
    QCOMPARE(text(), QString::fromUtf8("x 20 (25 µm), y 37: 1300"));
    QVERIFY(image->setCalibration(std::nullopt));
    QCOMPARE(text(), QString("x 20, y 37: 1300"));
}

void TestPointerReadout::pixel_isClearedOutside()
{
    moveTo(QPoint(20, 10));
    QVERIFY(!text().isEmpty());
    QTest::mouseMove(viewport(), QPoint(1, 1)); // beside the picture
    QVERIFY(text().isEmpty());
    moveTo(QPoint(20, 10));
    QVERIFY(!text().isEmpty());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(viewport(), &leave);
    QVERIFY(text().isEmpty());
    m_viewer->intensity()->zoomIn(); // must not bring back a pointer that has gone
    QVERIFY(text().isEmpty());
}

void TestPointerReadout::pixel_followsTheView()
{
    moveTo(QPoint(20, 10));
    const QPoint position = positionOf(QPoint(20, 10));
    m_viewer->action("actionZoomIn")->trigger();
    const CVKIntensityWidget* image = m_viewer->intensity();
    const auto pixel = image->pixelAt(viewport()->mapTo(image, position));
    QVERIFY(pixel && *pixel != QPoint(20, 10));
    QTRY_VERIFY(text().startsWith(QString("x %1, y %2:").arg(pixel->x()).arg(47 - pixel->y())));
    m_viewer->action("actionRowChart")->trigger();
    QTRY_VERIFY(text().isEmpty());
}

void TestPointerReadout::pixel_ofTheNextImage()
{
    moveTo(QPoint(20, 10));
    m_viewer->window->showNext();
    QVERIFY(text().startsWith("x ")); // the pointer has not moved
    m_viewer->window->showGallery(m_viewer->folder.path());
    QVERIFY(text().isEmpty());
    QVERIFY(m_viewer->status("statusZoom").isEmpty());
}

void TestPointerReadout::pixel_movesNothing()
{
    QVector<QRect> places;
    const auto take = [this, &places] {
        QCoreApplication::sendPostedEvents();
        places.clear();
        for (const QWidget* part : m_viewer->window->statusBar()->findChildren<QWidget*>()) {
            places << part->geometry();
        }
        return places;
    };
    const QVector<QRect> before = take();
    for (const QPoint& pixel : { QPoint(0, 47), QPoint(64, 0), QPoint(10, 30) }) {
        moveTo(pixel);
        QCOMPARE(take(), before);
    }
    QTest::mouseMove(viewport(), QPoint(1, 1));
    QCOMPARE(take(), before);
    const QLabel* label = m_viewer->window->findChild<QLabel*>("statusPixel");
    QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance("x 64, y 47: 1600"));
}

/// A drag on the picture goes on to move the cross-hair.
void TestPointerReadout::widget_getsEveryEvent()
{
    QTest::mouseClick(
        viewport(), Qt::LeftButton, Qt::NoModifier, positionOf(QPoint(20, 10)) + QPoint(1, 1));
    QCOMPARE(m_viewer->intensity()->crossHair(), std::optional<QPoint>(QPoint(20, 10)));
}

void TestPointerReadout::zoom_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("text");
    QTest::newRow("half as large again") << 1.5 << "150 %";
    QTest::newRow("smallest pixels") << 0.004 << "0.4 %";
    QTest::newRow("with decimals") << 0.0994 << "9.9 %";
    QTest::newRow("without decimals") << 0.104 << "10 %";
    QTest::newRow("largest pixels") << 40.0 << "4000 %";
    QTest::newRow("no image") << 0.0 << QString();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << QString();
}

void TestPointerReadout::zoom()
{
    QFETCH(double, factor);
    QTEST(zoomText(factor), "text");
}

void TestPointerReadout::zoom_followsTheView()
{
    const CVKIntensityWidget* image = m_viewer->intensity();
    QVERIFY(image->zoomFactor() > 0.0);
    QCOMPARE(m_viewer->status("statusZoom"), zoomText(image->zoomFactor()));
    const QString fitted = m_viewer->status("statusZoom");
    m_viewer->action("actionZoomIn")->trigger();
    QTRY_VERIFY(m_viewer->status("statusZoom") != fitted);
    QCOMPARE(m_viewer->status("statusZoom"), zoomText(image->zoomFactor()));
    m_viewer->action("actionRowChart")->trigger();
    QTRY_VERIFY(m_viewer->status("statusZoom").isEmpty());
    m_viewer->action("actionImageView")->trigger();
    QTRY_COMPARE(m_viewer->status("statusZoom"), zoomText(image->zoomFactor()));
}

void TestPointerReadout::narrowWindow_keepsWhatMatters()
{
    const auto isShown = [this](const char* name) {
        return m_viewer->window->findChild<QWidget*>(name)->isVisible();
    };
    m_viewer->window->resize(1280, 700);
    QCoreApplication::processEvents();
    for (const char* name : { "statusPixel", "statusZoom", "statusImageSize", "statusLoadTime",
             "statusSettingsKept" }) {
        QVERIFY2(isShown(name), name);
    }
    m_viewer->window->resize(m_viewer->window->minimumSize());
    QCoreApplication::processEvents();
    QCOMPARE(m_viewer->window->width(), 640);
    QVERIFY(isShown("statusPixel") && isShown("statusZoom"));
    QVERIFY(!isShown("statusSettingsKept"));
    const QWidget* name = m_viewer->window->findChild<QLabel*>("statusFileName");
    QVERIFY2(name->width() >= 100, qPrintable(QString::number(name->width())));
    for (const char* part : { "statusPixel", "statusZoom" }) {
        const QWidget* label = m_viewer->window->findChild<QLabel*>(part);
        QVERIFY2(label->width() >= label->sizeHint().width(), part); // nothing is cut off
        QVERIFY(label->geometry().right() < m_viewer->window->width());
    }
}

void TestPointerReadout::message_isLegible()
{
    m_viewer->window->resize(640, 700);
    QStatusBar* bar = m_viewer->window->statusBar();
    bar->showMessage(QString(60, 'n'));
    QCoreApplication::processEvents();
    int left = bar->width();
    QString leftmost;
    for (const QWidget* part : bar->findChildren<QLabel*>()) {
        const int x = part->mapTo(bar, QPoint()).x();
        if (part->isVisible() && x < left) {
            left = x;
            leftmost = part->objectName();
        }
    }
    QVERIFY2(left >= bar->fontMetrics().horizontalAdvance(QString(60, 'n')), qPrintable(leftmost));
    bar->clearMessage();
    QCoreApplication::processEvents();
    QVERIFY(m_viewer->window->findChild<QLabel*>("statusPixel")->isVisible());
}

QTEST_MAIN(TestPointerReadout)
#include "tst_pointerreadout.moc"
