#include "imagepage.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "rawframe.h"

#include <QComboBox>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
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
    void load_isFaithful();
    void load_ofAFileWithoutPixels();
    void load_ofWhatIsNoImageClosesTheOneBefore();
    void load_replacesAClosedWidget();
    void aClosedWidget_isMissedByNothing();
    void returnButton_asksToLeave();
    void viewChanges_areTold();
    void clickOnARegion_selectsItInThePanel();
    void noneInThePanel_staysChosen();
    void newRegion_showsItsStatistics();
    void pageKeys_stayInAField();

private:
    CVKIntensityWidget* widget() const { return m_page->findChild<CVKIntensityWidget*>(); }
    template <class Control>
    Control* control(const char* name) const
    {
        return m_page->findChild<Control*>(name);
    }
    QPoint place(const QPoint& pixel) const;
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
    const QImage before = m_page->canvas()->grab().toImage();
    QVERIFY(m_page->load(path("small.raw")));
    const QImage small = m_page->canvas()->grab().toImage();
    QVERIFY(small != before);
    QVERIFY(m_page->load(path("wide.raw")));
    QVERIFY(m_page->canvas()->grab().toImage() != small);
}

void TestImagePage::load_ofWhatIsNoImage()
{
    QVERIFY(!m_page->load(path("missing.raw")));
    QVERIFY(!m_page->load(QString()));
    QVERIFY(!m_page->load(m_folder.path()));
    QVERIFY(m_page->load(path("small.raw")));
}

/// Rows of 65 samples, which as stored would be drawn slanted.
void TestImagePage::load_isFaithful()
{
    QCOMPARE(widget()->reading(), CVKIntensityWidget::Reading::Faithful);
    writeFrame("odd.raw", 65, 20);
    QVERIFY(m_page->load(path("odd.raw")));
    QCOMPARE(widget()->columnProfile(3).levels, QVector<uchar>(20, 255 * 3 / 64));
}

void TestImagePage::load_ofAFileWithoutPixels()
{
    QVERIFY(m_page->load(path("small.raw")));
    QVERIFY(!m_page->load(path("empty.raw")));
    QCOMPARE(widget()->loadProblem(), CVKIntensityWidget::LoadProblem::NoPixels);
    QVERIFY(m_page->load(path("small.raw")));
}

void TestImagePage::load_ofWhatIsNoImageClosesTheOneBefore()
{
    QVERIFY(m_page->load(path("small.raw")));
    QVERIFY(widget()->addRegion(QRect(1, 1, 20, 20)));
    QVERIFY(!m_page->load(path("missing.raw")));
    QVERIFY(!widget()->imageInfo().isValid());
    QVERIFY(widget()->regions().isEmpty());
    QCOMPARE(widget()->loadProblem(), CVKIntensityWidget::LoadProblem::Missing);
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
    QVERIFY(!widget());
    QVERIFY(m_page->canvas()); // that of a fresh one
    QVERIFY(!m_page->intensityWidget()->imageInfo().isValid());
    QCOMPARE(m_page->intensityWidget(), widget());
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
    QSignalSpy changes(m_page.get(), &ImagePage::displayChanged);
    auto* chart = control<QRadioButton>("radioButton2D");
    QTest::mouseClick(chart, Qt::LeftButton, Qt::NoModifier, QPoint(8, chart->height() / 2));
    QTRY_VERIFY(!changes.isEmpty());
    QCOMPARE(widget()->view(), CVKIntensityWidget::View::RowChart);
    changes.clear();
    QTest::keyClick(control<QComboBox>("comboBoxDisplay"), Qt::Key_Down);
    QTRY_COMPARE(changes.size(), 1);
    QCOMPARE(widget()->view(), CVKIntensityWidget::View::ColumnChart);
}

/// Where a pixel of "wide.raw" stands on the canvas.
QPoint TestImagePage::place(const QPoint& pixel) const
{
    const auto* view = m_page->findChild<QGraphicsView*>();
    for (const QGraphicsItem* item : view->items()) {
        const auto* object = dynamic_cast<const QObject*>(item);
        if (object && object->inherits("ImageLayoutItem")) {
            const QRectF content = item->boundingRect().adjusted(1.0, 1.0, -1.0, -1.0);
            const QPointF inside((pixel.x() + 0.5) / 100.0 * content.width(),
                (pixel.y() + 0.5) / 20.0 * content.height());
            return view->mapFromScene(item->mapToScene(content.topLeft() + inside));
        }
    }
    return QPoint();
}

void TestImagePage::clickOnARegion_selectsItInThePanel()
{
    QVERIFY(m_page->load(path("wide.raw")));
    QVERIFY(widget()->setRegions({ QRect(5, 3, 30, 12), QRect(60, 3, 30, 12) }));
    QCOMPARE(widget()->selectedRegion(), 1);
    QSignalSpy changes(m_page.get(), &ImagePage::displayChanged);
    QTest::mouseClick(m_page->findChild<QGraphicsView*>()->viewport(), Qt::LeftButton,
        Qt::NoModifier, place(QPoint(20, 9)));
    QCOMPARE(widget()->markedRegion(), 0);
    QTRY_COMPARE(widget()->selectedRegion(), 0);
    QCOMPARE(control<QComboBox>("comboBoxRoi")->currentText(), QString("ROI 1"));
    QVERIFY(!changes.isEmpty());
    QCOMPARE(widget()->regions(),
        (QVector<QRect> { QRect(5, 3, 30, 12), QRect(60, 3, 30, 12) })); // nothing has moved
}

/// The mark on the canvas stays, which must not choose the region again.
void TestImagePage::noneInThePanel_staysChosen()
{
    QVERIFY(m_page->load(path("wide.raw")));
    QVERIFY(widget()->addRegion(QRect(5, 3, 30, 12)));
    QCOMPARE(widget()->selectedRegion(), 0);
    QTest::keyClick(control<QComboBox>("comboBoxRoi"), Qt::Key_Home);
    QTest::qWait(50);
    QCOMPARE(widget()->selectedRegion(), -1);
    QCOMPARE(control<QComboBox>("comboBoxRoi")->currentIndex(), 0);
}

void TestImagePage::newRegion_showsItsStatistics()
{
    QVERIFY(m_page->load(path("wide.raw")));
    auto* panel = control<QScrollArea>("Scroll_ModuleWidget");
    auto* last = control<QLabel>("labelValueNoise");
    panel->ensureWidgetVisible(control<QPushButton>("pushButtonAdd"), 0, 0);
    const auto isInSight = [&] {
        const QRect place(last->mapTo(panel->viewport(), QPoint()), last->size());
        return panel->viewport()->rect().contains(place);
    };
    QVERIFY(!isInSight());
    QTest::mouseClick(control<QPushButton>("pushButtonAdd"), Qt::LeftButton);
    QTRY_VERIFY(isInSight());
}

void TestImagePage::pageKeys_stayInAField()
{
    const auto isTaken = [this](const char* name, Qt::Key key) {
        auto* focused = control<QWidget>(name);
        focused->setFocus();
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(focused, &event);
        return event.isAccepted();
    };
    QVERIFY(m_page->load(path("small.raw")));
    QVERIFY(widget()->setView(CVKIntensityWidget::View::RowChart)); // enables all of the fields
    for (const char* name : { "lineEditPeaks", "comboBoxDisplay", "comboBoxType", "comboBoxRoi" }) {
        QVERIFY2(isTaken(name, Qt::Key_PageUp) && isTaken(name, Qt::Key_PageDown), name);
    }
    QVERIFY(!isTaken("comboBoxRoi", Qt::Key_F5));
    QVERIFY(!isTaken("pushButtonAdd", Qt::Key_PageDown));
    QVERIFY(!isTaken("Return", Qt::Key_PageUp));
}

QTEST_MAIN(TestImagePage)
#include "tst_imagepage.moc"
