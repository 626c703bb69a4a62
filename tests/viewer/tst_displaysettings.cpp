#include "displaysettings.h"

#include "appearance.h"
#include "rawframe.h"

#include <QComboBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using Widget = CVKIntensityWidget;

/// Settings taken from a widget and put back, in a window of 900 x 600.
class TestDisplaySettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void nothing_changesNothing();
    void regions_areExactPixels_data();
    void regions_areExactPixels();
    void region_outsideIsNamed();
    void region_outsideKeepsTheOthers();
    void everything_comesBack();
    void chart_behindTheImageComesBack();
    void selection_comesBack();
    void noSelection_comesBack();
    void badNumbers_areProblems_data();
    void badNumbers_areProblems();
    void withoutAnImage();

private:
    void load(int width, int height);

    QTemporaryDir m_folder;
    std::unique_ptr<Widget> m_widget;
};

Q_DECLARE_METATYPE(DisplaySettings)

/// 8 bits a sample, rising along the row.
void TestDisplaySettings::load(int width, int height)
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    for (int i = 0; i < width * height; ++i) {
        frame.bytes.append(char(i % width % 251));
    }
    QString problem;
    const QString path = m_folder.filePath("frame.raw");
    QVERIFY2(writeRawFrame(path, frame, &problem), qPrintable(problem));
    QVERIFY(m_widget->loadImage(path));
}

void TestDisplaySettings::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestDisplaySettings::init()
{
    m_widget = std::make_unique<Widget>();
    m_widget->setAttribute(Qt::WA_DeleteOnClose, false);
    m_widget->setReading(Widget::Reading::Faithful);
    m_widget->resize(900, 600);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    load(1000, 800);
}

void TestDisplaySettings::nothing_changesNothing()
{
    QVERIFY(DisplaySettings().isEmpty());
    const QImage before = m_widget->grab().toImage();
    QVERIFY(applySettings(DisplaySettings(), m_widget.get()).isEmpty());
    QCOMPARE(m_widget->grab().toImage(), before);
}

void TestDisplaySettings::regions_areExactPixels_data()
{
    QTest::addColumn<QRect>("region");
    QTest::newRow("in the middle") << QRect(100, 100, 300, 300);
    QTest::newRow("odd numbers") << QRect(333, 17, 77, 501);
    QTest::newRow("whole image") << QRect(0, 0, 1000, 800);
    QTest::newRow("last pixel") << QRect(999, 799, 1, 1);
}

/// The image is shown smaller than it is, which does not matter.
void TestDisplaySettings::regions_areExactPixels()
{
    QFETCH(QRect, region);
    DisplaySettings settings;
    settings.regions << region;
    QVERIFY(!settings.isEmpty());
    QVERIFY(applySettings(settings, m_widget.get()).isEmpty());
    QCOMPARE(m_widget->regions(), QVector<QRect> { region });
    QCOMPARE(m_widget->findChild<QLabel*>("labelValueX")->text(),
        QString("%1 to %2").arg(region.left()).arg(region.right()));
    QCOMPARE(m_widget->findChild<QLabel*>("labelValueY")->text(), // counted from the bottom
        QString("%1 to %2").arg(799 - region.bottom()).arg(799 - region.top()));
}

void TestDisplaySettings::region_outsideIsNamed()
{
    DisplaySettings settings;
    settings.regions << QRect(900, 0, 101, 10);
    QCOMPARE(applySettings(settings, m_widget.get()),
        QString("the region 900,0,101,10 does not lie inside the image of 1000x800 pixels"));
    QVERIFY(m_widget->regions().isEmpty());
}

void TestDisplaySettings::region_outsideKeepsTheOthers()
{
    DisplaySettings settings;
    settings.regions << QRect(10, 10, 20, 20) << QRect(2000, 0, 5, 5) << QRect(50, 60, 70, 80);
    settings.palette = "Red";
    QVERIFY(applySettings(settings, m_widget.get()).contains("2000,0,5,5"));
    QCOMPARE(
        m_widget->regions(), (QVector<QRect> { QRect(10, 10, 20, 20), QRect(50, 60, 70, 80) }));
    QCOMPARE(m_widget->colorPalette(), QString("Red"));
}

void TestDisplaySettings::everything_comesBack()
{
    DisplaySettings settings;
    settings.view = Widget::View::ColumnChart;
    settings.peakLabels = Widget::PeakLabels { true, 7 };
    settings.calibration = Widget::Calibration { 300, 2, Widget::Unit::Nanometers };
    settings.palette = "Blue";
    settings.regions << QRect(1, 2, 30, 40);
    QVERIFY(applySettings(settings, m_widget.get()).isEmpty());
    const QImage before = m_widget->grab().toImage();
    const DisplaySettings taken = displaySettings(*m_widget);
    load(1000, 800);
    QVERIFY(m_widget->grab().toImage() != before);
    QVERIFY(applySettings(taken, m_widget.get()).isEmpty());
    QCOMPARE(m_widget->view(), Widget::View::ColumnChart);
    QCOMPARE(m_widget->peakLabels(), (Widget::PeakLabels { true, 7 }));
    QVERIFY(m_widget->calibration());
    QCOMPARE(*m_widget->calibration(), (Widget::Calibration { 300, 2, Widget::Unit::Nanometers }));
    QCOMPARE(m_widget->colorPalette(), QString("Blue"));
    QCOMPARE(m_widget->regions(), QVector<QRect> { QRect(1, 2, 30, 40) });
}

/// Chosen while a chart was in front, and then the image again.
void TestDisplaySettings::chart_behindTheImageComesBack()
{
    QVERIFY(m_widget->setView(Widget::View::ColumnChart));
    QVERIFY(m_widget->setPeakLabels({ true, 12 }));
    QVERIFY(m_widget->setView(Widget::View::Image));
    const DisplaySettings taken = displaySettings(*m_widget);
    load(1000, 800);
    QCOMPARE(m_widget->chartAxis(), Widget::Axis::Row);
    QVERIFY(applySettings(taken, m_widget.get()).isEmpty());
    QCOMPARE(m_widget->view(), Widget::View::Image);
    QCOMPARE(m_widget->chartAxis(), Widget::Axis::Column);
    QCOMPARE(m_widget->peakLabels(), (Widget::PeakLabels { true, 12 }));
}

void TestDisplaySettings::selection_comesBack()
{
    QVERIFY(m_widget->setRegions({ QRect(0, 0, 10, 10), QRect(20, 20, 10, 10) }));
    QVERIFY(m_widget->selectRegion(0));
    const DisplaySettings taken = displaySettings(*m_widget);
    load(1000, 800);
    QVERIFY(applySettings(taken, m_widget.get()).isEmpty());
    QCOMPARE(m_widget->regions().size(), 2);
    QCOMPARE(m_widget->selectedRegion(), 0);
}

void TestDisplaySettings::noSelection_comesBack()
{
    QVERIFY(m_widget->setRegions({ QRect(0, 0, 10, 10), QRect(20, 20, 10, 10) }));
    QVERIFY(m_widget->selectRegion(-1));
    const DisplaySettings taken = displaySettings(*m_widget);
    load(1000, 800);
    QVERIFY(applySettings(taken, m_widget.get()).isEmpty());
    QCOMPARE(m_widget->regions().size(), 2);
    QCOMPARE(m_widget->selectedRegion(), -1);
}

void TestDisplaySettings::badNumbers_areProblems_data()
{
    QTest::addColumn<DisplaySettings>("settings");
    QTest::addColumn<QString>("problem");
    DisplaySettings peaks;
    peaks.peakLabels = Widget::PeakLabels { true, 201 };
    QTest::newRow("peaks") << peaks << "the chart does not take 201 peaks";
    DisplaySettings wavelengths;
    wavelengths.calibration = Widget::Calibration { 2001, 1, Widget::Unit::Nanometers };
    QTest::newRow("wavelengths") << wavelengths << "the axis does not take these wavelengths";
    DisplaySettings palette;
    palette.palette = "Pink";
    QTest::newRow("palette") << palette << "the palette Pink cannot be read";
}

void TestDisplaySettings::badNumbers_areProblems()
{
    QFETCH(DisplaySettings, settings);
    QTEST(applySettings(settings, m_widget.get()), "problem");
}

void TestDisplaySettings::withoutAnImage()
{
    m_widget->closeImage();
    QVERIFY(displaySettings(*m_widget).isEmpty());
}

QTEST_MAIN(TestDisplaySettings)
#include "tst_displaysettings.moc"
