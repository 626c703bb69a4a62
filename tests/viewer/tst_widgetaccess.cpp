#include "widgetaccess.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "rawframe.h"

#include <QDirIterator>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// What the viewer still needs of the widgets inside the intensity widget, in 900 x 600.
class TestWidgetAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void children_areLookedForHereAlone();
    void canvas_isTheView();
    void layOutCanvas_keepsTheReadoutInside();
    void layOutCanvas_movesNothingElse();
    void showStatistics_scrollsThePanel();
    void panel_doesNotMoveSideways();
    void showStatistics_leavesAFoldedPartAlone();
    void returnButton_comesBackUp();
    void withoutAWidget_nothingHappens();

private:
    template <class Control>
    Control* control(const char* name) const
    {
        return m_widget->findChild<Control*>(name);
    }
    void writeFrame();

    QTemporaryDir m_folder;
    std::unique_ptr<CVKIntensityWidget> m_widget;
};

void TestWidgetAccess::writeFrame()
{
    RawFrame frame;
    frame.width = 640;
    frame.height = 480;
    frame.bytes = QByteArray(640 * 480, 'a');
    QString problem;
    QVERIFY(writeRawFrame(m_folder.filePath("frame.raw"), frame, &problem));
}

void TestWidgetAccess::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.debug=false");
    writeFrame();
}

void TestWidgetAccess::init()
{
    m_widget = std::make_unique<CVKIntensityWidget>();
    m_widget->setAttribute(Qt::WA_DeleteOnClose, false);
    m_widget->setReading(CVKIntensityWidget::Reading::Faithful);
    m_widget->resize(900, 600);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    QVERIFY(m_widget->loadImage(m_folder.filePath("frame.raw")));
}

/// Names and classes of the children are an implementation detail of the library.
void TestWidgetAccess::children_areLookedForHereAlone()
{
    const QRegularExpression search("\\b(findChild|findChildren|inherits|children)\\b");
    QStringList found;
    int fileCount = 0;
    QDirIterator files(VKVIEWER_SOURCES, { "*.cpp", "*.h" }, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        ++fileCount;
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
            if (line.section("//", 0, 0).contains(search)) {
                found << files.fileName();
                break;
            }
        }
    }
    QVERIFY(fileCount > 40);
    QCOMPARE(found, QStringList("widgetaccess.cpp"));
}

void TestWidgetAccess::canvas_isTheView()
{
    QWidget* canvas = WidgetAccess(m_widget.get()).canvas();
    QCOMPARE(canvas, m_widget->findChild<QGraphicsView*>());
    QCOMPARE(canvas->width(), 900 - 290); // at 96 dots per inch
}

/// The read-out has two lines from the first image on.
void TestWidgetAccess::layOutCanvas_keepsTheReadoutInside()
{
    WidgetAccess(m_widget.get()).layOutCanvas();
    auto* view = m_widget->findChild<QGraphicsView*>();
    int texts = 0;
    for (const QGraphicsItem* item : view->items()) {
        if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item)) {
            const QRectF place = text->sceneBoundingRect();
            QVERIFY(text->toPlainText().contains('\n'));
            QCOMPARE(place.bottom(), 590.0); // ten units above the lower edge
            ++texts;
        }
    }
    QCOMPARE(texts, 1);
}

void TestWidgetAccess::layOutCanvas_movesNothingElse()
{
    WidgetAccess access(m_widget.get());
    access.layOutCanvas();
    const QImage before = m_widget->grab().toImage();
    const QRect visible = m_widget->visiblePixels();
    access.layOutCanvas();
    QCOMPARE(m_widget->grab().toImage(), before);
    QCOMPARE(m_widget->visiblePixels(), visible);
    QCOMPARE(m_widget->size(), QSize(900, 600));
}

void TestWidgetAccess::showStatistics_scrollsThePanel()
{
    auto* panel = control<QScrollArea>("Scroll_ModuleWidget");
    QVERIFY(panel->verticalScrollBar()->maximum() > 0);
    QCOMPARE(panel->verticalScrollBar()->value(), 0);
    QVERIFY(m_widget->addRegion(QRect(1, 1, 20, 20)));
    WidgetAccess(m_widget.get()).showStatistics();
    const QRect sight = panel->viewport()->rect();
    for (const char* name : { "comboBoxRoi", "labelValueX", "labelValueMean", "labelValueNoise" }) {
        auto* child = control<QWidget>(name);
        const QRect place(child->mapTo(panel->viewport(), QPoint()), child->size());
        QVERIFY2(sight.contains(place), name);
    }
}

void TestWidgetAccess::panel_doesNotMoveSideways()
{
    auto* panel = control<QScrollArea>("Scroll_ModuleWidget");
    QVERIFY(panel->horizontalScrollBar()->maximum() > 0); // wider than what is seen of it
    panel->ensureWidgetVisible(control<QWidget>("left_flex1"), 300, 0);
    QCOMPARE(panel->horizontalScrollBar()->value(), 0);
}

void TestWidgetAccess::showStatistics_leavesAFoldedPartAlone()
{
    auto* panel = control<QScrollArea>("Scroll_ModuleWidget");
    QTest::mouseClick(m_widget->findChildren<QPushButton*>("left_flex1").at(1), Qt::LeftButton);
    QVERIFY(!control<QWidget>("labelValueNoise")->isVisible());
    const int before = panel->verticalScrollBar()->value();
    WidgetAccess(m_widget.get()).showStatistics();
    QCOMPARE(panel->verticalScrollBar()->value(), before);
}

void TestWidgetAccess::returnButton_comesBackUp()
{
    auto* button = control<QPushButton>("Return");
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(button->isChecked());
    WidgetAccess(m_widget.get()).releaseReturnButton();
    QVERIFY(!button->isChecked());
}

void TestWidgetAccess::withoutAWidget_nothingHappens()
{
    WidgetAccess none;
    none.prepare();
    none.layOutCanvas();
    none.showStatistics();
    none.releaseReturnButton();
    QVERIFY(!none.canvas());
}

QTEST_MAIN(TestWidgetAccess)
#include "tst_widgetaccess.moc"
