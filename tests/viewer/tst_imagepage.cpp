#include "imagepage.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "rawframe.h"

#include <QComboBox>
#include <QGraphicsView>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TestImagePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void widget_fillsThePage();
    void load_showsTheImage();
    void load_ofWhatIsNoImage();
    void load_resetsThePalette();
    void load_ofAFileWithoutPixelsReplacesTheWidget();
    void load_replacesAClosedWidget();
    void aClosedWidget_isMissedByNothing();
    void returnButton_asksToLeave();
    void viewChanges_areTold();
    void apply_setsTheControls();

private:
    CVKIntensityWidget* widget() const { return m_page->findChild<CVKIntensityWidget*>(); }
    template <class Control>
    Control* control(const char* name) const
    {
        return m_page->findChild<Control*>(name);
    }
    QString path(const char* name) const { return m_folder.filePath(name); }
    void writeFrame(const char* name, int width, int height) const;

    QTemporaryDir m_folder;
    std::unique_ptr<ImagePage> m_page;
};

/// 8 bits a sample, rising along the row.
void TestImagePage::writeFrame(const char* name, int width, int height) const
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.bytesPerChannel = 1;
    for (int i = 0; i < width * height; ++i) {
        frame.bytes.append(char(i % width));
    }
    QString problem;
    QVERIFY2(writeRawFrame(path(name), frame, &problem), qPrintable(problem));
}

void TestImagePage::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.debug=false");
    writeFrame("small.raw", 64, 48);
    writeFrame("wide.raw", 100, 20);
    RawHeader header;
    header.height = 100;
    header.channels = 1;
    header.bytesPerChannel = 2;
    QFile empty(path("empty.raw"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.write(encodedRawHeader(header));
}

void TestImagePage::init()
{
    m_page = std::make_unique<ImagePage>();
    m_page->resize(900, 600);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
}

void TestImagePage::widget_fillsThePage()
{
    QVERIFY(widget()->isVisible());
    QCOMPARE(widget()->geometry(), m_page->rect());
}

void TestImagePage::load_showsTheImage()
{
    const QImage before = m_page->controls()->canvas()->grab().toImage();
    QVERIFY(m_page->load(path("small.raw")));
    const QImage small = m_page->controls()->canvas()->grab().toImage();
    QVERIFY(small != before);
    QVERIFY(m_page->load(path("wide.raw")));
    QVERIFY(m_page->controls()->canvas()->grab().toImage() != small);
}

void TestImagePage::load_ofWhatIsNoImage()
{
    QVERIFY(!m_page->load(path("missing.raw")));
    QVERIFY(!m_page->load(QString()));
    QVERIFY(!m_page->load(m_folder.path()));
    QVERIFY(m_page->load(path("small.raw")));
}

void TestImagePage::load_resetsThePalette()
{
    QVERIFY(m_page->load(path("small.raw")));
    QTest::mouseClick(control<QPushButton>("pushButtonRed"), Qt::LeftButton);
    QCOMPARE(m_page->controls()->settings().palette, QString("red"));
    QVERIFY(m_page->load(path("small.raw")));
    QVERIFY(m_page->controls()->settings().palette.isEmpty());
}

void TestImagePage::load_ofAFileWithoutPixelsReplacesTheWidget()
{
    QVERIFY(m_page->load(path("small.raw")));
    const QPointer<CVKIntensityWidget> before = widget();
    QVERIFY(!m_page->load(path("empty.raw")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(before.isNull());
    QCOMPARE(m_page->findChildren<CVKIntensityWidget*>().size(), 1);
    QCOMPARE(widget()->geometry(), m_page->rect());
    QVERIFY(m_page->load(path("small.raw")));
}

void TestImagePage::load_replacesAClosedWidget()
{
    QVERIFY(m_page->load(path("small.raw")));
    const QImage before = m_page->grab().toImage();
    QVERIFY(widget()->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!widget());
    QVERIFY(m_page->load(path("small.raw")));
    QCOMPARE(widget()->geometry(), m_page->rect());
    QCOMPARE(m_page->grab().toImage(), before); // laid out for the same size
}

void TestImagePage::aClosedWidget_isMissedByNothing()
{
    QVERIFY(widget()->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_page->closeImage();
    ControlSettings settings;
    settings.view = "x";
    m_page->apply(settings, QSize(64, 48));
    m_page->controls()->zoomIn();
    m_page->controls()->showView(ImageView::Row);
    m_page->controls()->choosePalette("Red");
    QCOMPARE(m_page->controls()->shownView(), ImageView::Image);
    QCOMPARE(m_page->controls()->regionCount(), 0);
    QVERIFY(!m_page->controls()->canvas());
    QVERIFY(m_page->controls()->settings().isEmpty());
}

void TestImagePage::returnButton_asksToLeave()
{
    QSignalSpy returns(m_page.get(), &ImagePage::returnRequested);
    for (int i = 1; i <= 2; ++i) {
        QVERIFY(m_page->load(path("small.raw")));
        QTest::mouseClick(control<QPushButton>("Return"), Qt::LeftButton);
        QCOMPARE(returns.size(), i);
        m_page->closeImage();
        QVERIFY(!control<QPushButton>("Return")->isChecked());
    }
}

void TestImagePage::viewChanges_areTold()
{
    QVERIFY(m_page->load(path("small.raw")));
    QSignalSpy changes(m_page.get(), &ImagePage::viewChanged);
    auto* chart = control<QRadioButton>("radioButton2D");
    QTest::mouseClick(chart, Qt::LeftButton, Qt::NoModifier, QPoint(8, chart->height() / 2));
    QVERIFY(!changes.isEmpty());
    QCOMPARE(m_page->controls()->shownView(), ImageView::Row);
    changes.clear();
    QTest::keyClick(control<QComboBox>("comboBoxDisplay"), Qt::Key_Down);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_page->controls()->shownView(), ImageView::Column);
}

void TestImagePage::apply_setsTheControls()
{
    QVERIFY(m_page->load(path("small.raw")));
    ControlSettings settings;
    settings.view = "y";
    settings.palette = "blue";
    settings.regions << QRect(10, 10, 20, 20);
    m_page->apply(settings, QSize(64, 48));
    QCOMPARE(m_page->controls()->shownView(), ImageView::Column);
    QCOMPARE(m_page->controls()->settings().palette, QString("blue"));
    QCOMPARE(m_page->controls()->regionCount(), 1);
}

QTEST_MAIN(TestImagePage)
#include "tst_imagepage.moc"
