#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrlwidget.h"
#include "support/sampleframes.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/cvkintensitywidget.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
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
    void load_withoutTheControlPanel();
    void load_withoutOneOfThePanels();
    void load_resetsThePanels();
    void refusedLoad_leavesThePanels();
    void connections_ofThePreferences();
    void connections_ofTheHistogram();
    void histogram_isAskedForOnce();
    void panel_isDestroyedBeforeTheHost();
    void close_leavesThePanels();
    void addAndDelete_sendTheirSignalsInOrder();
    void load_convertsOnce();
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
    QVERIFY(writeRawFile(path("frame.raw"), rawFile(3, 2, 1, 2, bytesOf(pixels))));
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
    QCOMPARE(widget.findChildren<CVKIntensityCtrlWidget*>().size(), 1);
    QVERIFY(!widget.findChild<CVKIntensityCtrlWidget*>()->isHidden());
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
    QCOMPARE(widget.findChild<CVKIntensityCtrlWidget*>()->geometry(), QRect(0, 0, 290, 600));
    QCOMPARE(
        widget.findChild<QScrollArea*>("Scroll_ModuleWidget")->geometry(), QRect(0, 57, 290, 543));
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
    QCOMPARE(shot.pixelColor(283, 50), QColor(0, 255, 0));
    QCOMPARE(shot.pixelColor(2, 299), QColor(0, 255, 0)); // through the scroll area and its modules
    QCOMPARE(shot.pixelColor(284, 0), QColor(0, 0, 255));
    QCOMPARE(shot.pixelColor(289, 50), QColor(0, 0, 255));
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

void TestCVKIntensityWidget::load_withoutTheControlPanel()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    delete widget.findChild<CVKIntensityCtrlWidget*>();
    QVERIFY(!widget.findChild<QScrollArea*>("Scroll_ModuleWidget"));
    QVERIFY(!widget.loadImage(path("frame.raw")));
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    QVERIFY(!host->analysis()->displayImage);
    widget.resize(500, 400); // ignored
    QCOMPARE(host->geometry(), QRect(290, 0, 710, 700));
    widget.grab();
}

void TestCVKIntensityWidget::load_withoutOneOfThePanels()
{
    CVKIntensityWidget noHistogram;
    delete noHistogram.findChild<CVKDataHistogram*>();
    QVERIFY(!noHistogram.loadImage(path("frame.raw")));
    // The image is shown all the same.
    QVERIFY(noHistogram.findChild<CVKIntensityMdiWidget*>()->analysis()->displayImage);

    CVKIntensityWidget noPreferences;
    delete noPreferences.findChild<CVKDisplayPreferences*>();
    auto* const list = noPreferences.findChild<QComboBox*>("comboBoxRoi");
    list->addItem("left over");
    QVERIFY(!noPreferences.loadImage(path("frame.raw")));
    QCOMPARE(list->count(), 1); // the list came first
}

void TestCVKIntensityWidget::load_resetsThePanels()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    QVERIFY(widget.loadImage(path("frame.raw")));
    auto* const twoD = widget.findChild<QRadioButton*>("radioButton2D");
    auto* const axisType = widget.findChild<QComboBox*>("comboBoxType");
    auto* const regions = widget.findChild<QComboBox*>("comboBoxRoi");
    twoD->click();
    axisType->setCurrentIndex(1);
    widget.findChild<QPushButton*>("pushButtonAdd")->click();
    QCOMPARE(regions->count(), 2);
    widget.closeImage();

    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    auto* const preferences = widget.findChild<CVKDisplayPreferences*>();
    auto* const histogram = widget.findChild<CVKDataHistogram*>();
    QStringList order;
    connect(host->analysis(), &ImageIntensityAnalysis::newHistogramSize, this,
        [&](int size) { order << QString("bins %1").arg(size); });
    connect(histogram, &CVKDataHistogram::updateIntensityHistogram, this,
        [&] { order << QString("whole histogram, %1 in the list").arg(regions->count()); });
    connect(preferences, &CVKDisplayPreferences::switchDisplayType, this,
        [&](int type) { order << QString("display %1").arg(type); });
    QVERIFY(widget.loadImage(path("frame.raw")));
    // Clearing the list asks for region -2, filling it for the whole histogram, and then the load
    // asks for it itself.
    QCOMPARE(order,
        (QStringList { "bins 501", "whole histogram, 1 in the list",
            "whole histogram, 1 in the list", "display 0" }));
    QCOMPARE(regions->count(), 1);
    QCOMPARE(axisType->currentIndex(), 0);
    QVERIFY(!twoD->isChecked());
    QVERIFY(host->imageItem()->isVisible());
}

void TestCVKIntensityWidget::refusedLoad_leavesThePanels()
{
    CVKIntensityWidget widget;
    QVERIFY(widget.loadImage(path("frame.raw")));
    auto* const twoD = widget.findChild<QRadioButton*>("radioButton2D");
    twoD->click();
    widget.findChild<QPushButton*>("pushButtonAdd")->click();
    for (const char* const name : { "frame.xyz", "missing.raw" }) {
        QVERIFY(!widget.loadImage(path(name)));
        QVERIFY(twoD->isChecked());
        QCOMPARE(widget.findChild<QComboBox*>("comboBoxRoi")->currentText(), QString("ROI 1"));
    }
}

void TestCVKIntensityWidget::connections_ofThePreferences()
{
    CVKIntensityWidget widget;
    const auto* const preferences = widget.findChild<CVKDisplayPreferences*>();
    const auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    const std::vector<std::pair<const char*, const char*>> rows {
        { SIGNAL(switchAxis(int)), SLOT(switchAxis(int)) },
        { SIGNAL(switchDisplayType(int)), SLOT(switchDisplayType(int)) },
        { SIGNAL(changeMaxPeaksCount(int)), SLOT(changedMaxPeaksCount(int)) },
        { SIGNAL(changeShowPeaksState(bool)), SLOT(changedShowPeaksState(bool)) },
        { SIGNAL(changePalette(QVector<QColor>)), SLOT(changedPalette(QVector<QColor>)) },
        { SIGNAL(changeHorizontalRulerTitle(QString)), SLOT(changedHorizontalRulerTitle(QString)) },
        { SIGNAL(changePixelsToWavelength(qreal, qreal)),
            SLOT(changedPixelsToWavelength(qreal, qreal)) },
    };
    for (const auto& row : rows) {
        QVERIFY2(QObject::disconnect(preferences, row.first, host, row.second), row.first);
        QVERIFY2(!QObject::disconnect(preferences, row.first, host, row.second), row.first);
    }
    // Left out on purpose.
    QVERIFY(!QObject::disconnect(preferences, SIGNAL(changeVerticalRulerTitle(QString)), host,
        SLOT(changedVerticalRulerTitle(QString))));
    QVERIFY(!QObject::disconnect(preferences, nullptr, host, nullptr));
}

void TestCVKIntensityWidget::connections_ofTheHistogram()
{
    CVKIntensityWidget widget;
    const QObject* const histogram = widget.findChild<CVKDataHistogram*>();
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    const QObject* const regions = &host->imageItem()->rectangles;
    const QObject* const engine = host->analysis();
    struct Row
    {
        const QObject* sender;
        const char* signal;
        const QObject* receiver;
        const char* slot;
    };
    const std::vector<Row> rows {
        { histogram, SIGNAL(addRoiItem()), regions, SLOT(addItem()) },
        { histogram, SIGNAL(deleteRoiItem(int)), regions, SLOT(deleteItem(int)) },
        { histogram, SIGNAL(selectRoiItem(int)), regions, SLOT(selectItem(int)) },
        { regions, SIGNAL(updateItemNames(QStringList)), histogram,
            SLOT(updateItemNames(QStringList)) },
        { engine, SIGNAL(newHistogramSize(int)), histogram, SLOT(newHistogramSize(int)) },
        { engine, SIGNAL(updateRoiIntensityInfo(int, IntensityInfo)), histogram,
            SLOT(updateRoiIntensityInfo(int, IntensityInfo)) },
        { engine, SIGNAL(updateRoiIntensityHistogram(uint*, int, uint, uint)), histogram,
            SLOT(updateRoiIntensityHistogram(uint*, int, uint, uint)) },
        { histogram, SIGNAL(updateIntensityHistogram()), engine,
            SLOT(sendUpdetaIntensityHistogramSignal()) },
    };
    for (const Row& row : rows) {
        QVERIFY2(QObject::disconnect(row.sender, row.signal, row.receiver, row.slot), row.signal);
        QVERIFY2(!QObject::disconnect(row.sender, row.signal, row.receiver, row.slot), row.signal);
    }
}

void TestCVKIntensityWidget::histogram_isAskedForOnce()
{
    // While the widget is built the engine has no histogram yet, so nothing comes back; the panel
    // shows 0 under both ends until the first load.
    CVKIntensityWidget widget;
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    QSignalSpy sent(host->analysis(), SIGNAL(updateRoiIntensityHistogram(uint*, int, uint, uint)));
    Q_EMIT widget.findChild<CVKDataHistogram*>()->updateIntensityHistogram();
    QCOMPARE(sent.size(), 0);
    QVERIFY(widget.loadImage(path("frame.raw")));
    QCOMPARE(sent.size(), 2);
}

void TestCVKIntensityWidget::panel_isDestroyedBeforeTheHost()
{
    auto widget = std::make_unique<CVKIntensityWidget>();
    const QPointer<CVKIntensityMdiWidget> host = widget->findChild<CVKIntensityMdiWidget*>();
    bool hostWasThere = false;
    connect(widget->findChild<CVKIntensityCtrlWidget*>(), &QObject::destroyed, this,
        [&] { hostWasThere = !host.isNull(); });
    widget.reset();
    QVERIFY(hostWasThere);
    QVERIFY(host.isNull());
}

void TestCVKIntensityWidget::close_leavesThePanels()
{
    CVKIntensityWidget widget;
    QVERIFY(widget.loadImage(path("frame.raw")));
    widget.findChild<QPushButton*>("pushButtonAdd")->click();
    const auto* const regions = widget.findChild<QComboBox*>("comboBoxRoi");
    const auto* const mean = widget.findChild<QLabel*>("labelValueMean");
    const QString shown = mean->text();
    QVERIFY(!shown.isEmpty());
    widget.closeImage();
    QCOMPARE(regions->currentText(), QString("ROI 1"));
    QCOMPARE(mean->text(), shown);
    // The names stand for nothing any more, and neither choosing nor deleting one does harm.
    widget.findChild<QPushButton*>("pushButtonDelete")->click();
    QCOMPARE(regions->currentText(), QString("ROI 1"));
}

void TestCVKIntensityWidget::addAndDelete_sendTheirSignalsInOrder()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    QVERIFY(widget.loadImage(path("frame.raw")));
    auto* const histogram = widget.findChild<CVKDataHistogram*>();
    auto* const host = widget.findChild<CVKIntensityMdiWidget*>();
    auto* const regions = &host->imageItem()->rectangles;
    QStringList order;
    connect(histogram, &CVKDataHistogram::addRoiItem, this, [&] { order << "add"; });
    connect(histogram, &CVKDataHistogram::deleteRoiItem, this,
        [&](int index) { order << QString("delete %1").arg(index); });
    connect(histogram, &CVKDataHistogram::selectRoiItem, this,
        [&](int index) { order << QString("select %1").arg(index); });
    connect(
        histogram, &CVKDataHistogram::updateIntensityHistogram, this, [&] { order << "whole"; });
    connect(regions, &RectangleItems::updateItemNames, this,
        [&](const QStringList& names) { order << "names " + names.join(','); });
    connect(regions, &RectangleItems::updateSelectedRoi, this,
        [&](int index) { order << QString("selected %1").arg(index); });
    connect(host->analysis(), &ImageIntensityAnalysis::updateRoiIntensityInfo, this,
        [&](int index) { order << QString("info %1").arg(index); });
    connect(host->analysis(), &ImageIntensityAnalysis::updateRoiIntensityHistogram, this,
        [&] { order << "counts"; });

    // This program is connected last, so it hears of an outer signal after what that one caused.
    QTest::mouseClick(widget.findChild<QPushButton*>("pushButtonAdd"), Qt::LeftButton);
    const QStringList firstAdd = order;
    order.clear();
    QTest::mouseClick(widget.findChild<QPushButton*>("pushButtonAdd"), Qt::LeftButton);
    const QStringList secondAdd = order;
    order.clear();
    QTest::mouseClick(widget.findChild<QPushButton*>("pushButtonDelete"), Qt::LeftButton);
    const QStringList secondDelete = order;
    order.clear();
    QTest::mouseClick(widget.findChild<QPushButton*>("pushButtonDelete"), Qt::LeftButton);

    // The list is refilled: cleared (-2), "None Select" (the whole image), and the names. Then the
    // collection selects the new region; the statistics move the list to it, which selects it
    // once more: the inner round comes first.
    QCOMPARE(firstAdd,
        (QStringList { "select -2", "counts", "whole", "names ROI 1", "info 0", "counts",
            "selected 0", "select 0", "info 0", "counts", "selected 0", "add" }));
    QCOMPARE(secondAdd,
        (QStringList { "select -2", "counts", "whole", "names ROI 1,ROI 2", "info 1", "counts",
            "selected 1", "select 1", "info 1", "counts", "selected 1", "add" }));
    QCOMPARE(secondDelete,
        (QStringList { "select -2", "counts", "whole", "names ROI 1", "info 0", "counts",
            "selected 0", "select 0", "info 0", "counts", "selected 0", "delete 1" }));
    QCOMPARE(order, (QStringList { "select -2", "counts", "whole", "names ", "delete 0" }));
    QCOMPARE(widget.findChild<QLabel*>("labelValueMean")->text(), QString());
    QVERIFY(!widget.findChild<QPushButton*>("pushButtonDelete")->isEnabled());
}

void TestCVKIntensityWidget::load_convertsOnce()
{
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    ImageIntensityAnalysis* const engine = widget.findChild<CVKIntensityMdiWidget*>()->analysis();
    int conversions = 0;
    connect(engine, &ImageIntensityAnalysis::updateImage, this, [&] {
        conversions += engine->displayBuffer[0] == 77 ? 0 : 1;
        engine->displayBuffer[0] = 77; // not what the pixel shows
    });
    QVERIFY(widget.loadImage(path("frame.raw")));
    QCOMPARE(conversions, 1); // the reset's grey is not converted again
    // The same grey announced later on is.
    widget.findChild<CVKDisplayPreferences*>()->resetDefaults();
    QCOMPARE(conversions, 2);
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
