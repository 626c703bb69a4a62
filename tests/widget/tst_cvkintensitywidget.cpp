#include "support/sampleframes.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/cvkintensitywidget.h"

#include <QImage>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <new>
#include <vector>

class TestCVKIntensityWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metaObject_listsTheOneSignal();
    void construction_createsAFramelessWidgetWithItsHost();
    void parent_isPassedOn();
    void dpiMultiple_isOneAt96();
    void resize_putsTheHostBesideTheColumn();
    void resize_narrowerThanTheColumn();
    void paint_drawsTheColumnSkin();
    void load_showsTheImage();
    void load_refusesWhatTheHostRefuses();
    void load_withoutHost();
    void load_letsNothingBeThrown();
    void load_andClose_manyTimes();
    void close_beforeAnyLoad();
    void changeSize_isNeverEmitted();
    void outlivesNothing();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestCVKIntensityWidget::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    const std::vector<quint16> pixels { 100, 200, 300, 400, 500, 600 };
    QVERIFY(writeRawFile(path("frame.raw"), rawFrame(3, 2, 1, 2, bytesOf(pixels))));
    QVERIFY(writeFile(path("frame.xyz"), "VORLAK"));
}

void TestCVKIntensityWidget::metaObject_listsTheOneSignal()
{
    const QMetaObject& meta = CVKIntensityWidget::staticMetaObject;
    QCOMPARE(meta.className(), "CVKIntensityWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("sglChangeSize()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void TestCVKIntensityWidget::construction_createsAFramelessWidgetWithItsHost()
{
    CVKIntensityWidget widget;
    QVERIFY(widget.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(widget.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(widget.findChildren<CVKIntensityMdiWidget*>().size(), 1);
    QVERIFY(!widget.findChild<CVKIntensityMdiWidget*>()->isHidden());
}

void TestCVKIntensityWidget::parent_isPassedOn()
{
    QWidget parent;
    auto* const widget = new CVKIntensityWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
}

void TestCVKIntensityWidget::dpiMultiple_isOneAt96()
{
    CVKIntensityWidget widget;
    QVERIFY(widget.getDpiMultiple() == 1.0F);
}

void TestCVKIntensityWidget::resize_putsTheHostBesideTheColumn()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    const auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    QCOMPARE(host->geometry(), QRect(290, 0, 710, 700));
    widget.resize(800, 600);
    QCOMPARE(host->geometry(), QRect(290, 0, 510, 600));
}

void TestCVKIntensityWidget::resize_narrowerThanTheColumn()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    QVERIFY(widget.loadImage(path("frame.raw")));
    for (const QSize& size : { QSize(290, 100), QSize(100, 50), QSize(0, 0), QSize(291, 1) }) {
        widget.resize(size);
        widget.grab();
    }
    widget.resize(1000, 700);
    QCOMPARE(widget.findChild<CVKIntensityMdiWidget*>()->geometry(), QRect(290, 0, 710, 700));
}

void TestCVKIntensityWidget::paint_drawsTheColumnSkin()
{
    // The skin of this program: a red header of 40 rows, green body tiles, a blue border of 6
    // columns.
    CVKIntensityWidget widget;
    widget.resize(600, 300);
    const QImage shot = widget.grab().toImage();
    QCOMPARE(shot.pixelColor(0, 0), QColor(255, 0, 0));
    QCOMPARE(shot.pixelColor(283, 38), QColor(255, 0, 0));
    QCOMPARE(shot.pixelColor(0, 39), QColor(0, 255, 0)); // the body covers the header's last row
    QCOMPARE(shot.pixelColor(283, 299), QColor(0, 255, 0));
    QCOMPARE(shot.pixelColor(284, 0), QColor(0, 0, 255));
    QCOMPARE(shot.pixelColor(289, 299), QColor(0, 0, 255));
    QVERIFY(shot.pixelColor(290, 100) != QColor(0, 255, 0));
    QVERIFY(shot.pixelColor(290, 100) != QColor(0, 0, 255));
}

void TestCVKIntensityWidget::load_showsTheImage()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    QVERIFY(widget.loadImage(path("frame.raw")));
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    QCOMPARE(host->analysis()->displayImage->size(), QSize(3, 2));
    QCOMPARE(host->analysis()->anchor, QPoint(1, 1));
}

void TestCVKIntensityWidget::load_refusesWhatTheHostRefuses()
{
    CVKIntensityWidget widget;
    QVERIFY(!widget.loadImage(path("frame.xyz")));
    QVERIFY(!widget.loadImage(path("missing.raw")));
    QVERIFY(!widget.loadImage(QString()));
}

void TestCVKIntensityWidget::load_withoutHost()
{
    CVKIntensityWidget widget;
    delete widget.findChild<CVKIntensityMdiWidget*>();
    QVERIFY(!widget.loadImage(path("frame.raw")));
    widget.closeImage();
    widget.resize(500, 400);
    widget.grab();
}

void TestCVKIntensityWidget::load_letsNothingBeThrown()
{
    CVKIntensityWidget widget;
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    const auto connection = QObject::connect(host->analysis(),
        &ImageIntensityAnalysis::newHistogramSize, host, [] { throw std::bad_alloc(); });
    QVERIFY(!widget.loadImage(path("frame.raw")));
    QObject::disconnect(connection);
    QVERIFY(widget.loadImage(path("frame.raw")));
}

void TestCVKIntensityWidget::load_andClose_manyTimes()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    for (int i = 0; i < 20; ++i) {
        widget.closeImage();
        QVERIFY(widget.loadImage(path("frame.raw")));
    }
    QSignalSpy images(host->analysis(), SIGNAL(updateImage()));
    host->changedPalette(QVector<QColor>(256, Qt::red));
    QCOMPARE(images.size(), 1);
}

void TestCVKIntensityWidget::close_beforeAnyLoad()
{
    CVKIntensityWidget widget;
    widget.resize(600, 400);
    const QImage before = widget.grab().toImage();
    widget.closeImage();
    QCOMPARE(widget.grab().toImage(), before);
}

void TestCVKIntensityWidget::changeSize_isNeverEmitted()
{
    CVKIntensityWidget widget;
    QSignalSpy spy(&widget, SIGNAL(sglChangeSize()));
    widget.resize(1000, 700);
    widget.show();
    QVERIFY(widget.loadImage(path("frame.raw")));
    widget.resize(500, 600);
    widget.closeImage();
    QCOMPARE(spy.size(), 0);
}

void TestCVKIntensityWidget::outlivesNothing()
{
    auto widget = std::make_unique<CVKIntensityWidget>();
    widget->resize(1000, 700);
    widget->show();
    QVERIFY(widget->loadImage(path("frame.raw")));
    const QPointer<CVKIntensityMdiWidget> host = widget->findChild<CVKIntensityMdiWidget*>();
    widget.reset();
    QVERIFY(host.isNull());
}

QTEST_MAIN(TestCVKIntensityWidget)
#include "tst_cvkintensitywidget.moc"
