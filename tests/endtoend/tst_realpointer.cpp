#include "appearance.h"
#include "rawframe.h"
#include "scenes.h"
#include "viewerwindow.h"

#include <QComboBox>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QtTest>

/// The viewer's window under a real X server, with a pointer and a keyboard that another program
/// moves.
class TestRealPointer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void regionIsAddedMovedAndDeleted();
    void chartIsShownWithTypedPeaks();
    void wheelZoomsTheImage();
    void titleBarHidesItsModule();
    void returnButtonLeavesTheImage();

private:
    template <class Widget>
    Widget* part(const char* name) const
    {
        return m_window->findChild<Widget*>(name);
    }

    void send(const QStringList& arguments);
    void movePointer(const QWidget* widget, const QPoint& position);
    void click(const QWidget* widget, const QPoint& position);
    void click(const QWidget* widget) { click(widget, widget->rect().center()); }
    QRectF regionOnScreen() const;
    QVector<int> shownColumns() const;

    QTemporaryDir m_folder;
    std::unique_ptr<ViewerWindow> m_window;
};

void TestRealPointer::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    initViewerResources();
    applyAppearance();
    QString problem;
    const QString path = m_folder.filePath("lamp.raw");
    QVERIFY2(writeRawFrame(path, lampSpectrum(), &problem), qPrintable(problem));
    m_window = std::make_unique<ViewerWindow>();
    m_window->setGeometry(0, 0, 1380, 880);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(m_window->openFile(path));
}

void TestRealPointer::cleanupTestCase()
{
    m_window.reset();
}

void TestRealPointer::send(const QStringList& arguments)
{
    QProcess xdotool;
    xdotool.start(XDOTOOL, arguments);
    QVERIFY(xdotool.waitForStarted());
    QTRY_COMPARE(xdotool.state(), QProcess::NotRunning); // with our own events running
    QCOMPARE(xdotool.exitCode(), 0);
}

void TestRealPointer::movePointer(const QWidget* widget, const QPoint& position)
{
    const QPoint screen = widget->mapToGlobal(position);
    send({ "mousemove", QString::number(screen.x()), QString::number(screen.y()) });
}

void TestRealPointer::click(const QWidget* widget, const QPoint& position)
{
    movePointer(widget, position);
    send({ "click", "1" });
}

/// The one region on the canvas, in units of the view; a null rectangle when there is none.
QRectF TestRealPointer::regionOnScreen() const
{
    const auto* const view = m_window->findChild<QGraphicsView*>();
    const QList<QGraphicsItem*> items = view->scene()->items();
    for (const QGraphicsItem* const item : items) {
        const auto* const object = dynamic_cast<const QObject*>(item);
        if (object && object->inherits("RectangleItem")) {
            return item->sceneBoundingRect();
        }
    }
    return QRectF();
}

/// First and last column of the region, as the panel says.
QVector<int> TestRealPointer::shownColumns() const
{
    const QRegularExpressionMatch match
        = QRegularExpression("(\\d+) to (\\d+)").match(part<QLabel>("labelValueX")->text());
    return { match.captured(1).toInt(), match.captured(2).toInt() };
}

void TestRealPointer::regionIsAddedMovedAndDeleted()
{
    auto* const list = part<QComboBox>("comboBoxRoi");
    part<QScrollArea>("Scroll_ModuleWidget")->ensureWidgetVisible(list);
    click(part<QPushButton>("pushButtonAdd"));
    QTRY_COMPARE(list->currentText(), QString("ROI 1"));
    const QVector<int> added = shownColumns();
    QVERIFY(added.at(1) > added.at(0));

    auto* const view = m_window->findChild<QGraphicsView*>();
    const QRectF start = regionOnScreen();
    const QPoint centre = view->mapFromScene(start.center());
    movePointer(view->viewport(), centre - QPoint(2, 2));
    movePointer(view->viewport(), centre);
    send({ "mousedown", "1" });
    movePointer(view->viewport(), centre + QPoint(30, 0));
    movePointer(view->viewport(), centre + QPoint(80, 0));
    send({ "mouseup", "1" });
    QTRY_COMPARE(regionOnScreen().left(), start.left() + 80.0);
    // The lamp is 1024 columns wide; the view shows them at a scale below 1.
    QTRY_VERIFY(shownColumns().at(0) > added.at(0) + 80);
    const double scale = 80.0 / (shownColumns().at(0) - added.at(0));
    QVERIFY2(scale > 0.5 && scale < 1.0, qPrintable(QString::number(scale)));

    click(part<QPushButton>("pushButtonDelete"));
    QTRY_COMPARE(list->count(), 1);
    QVERIFY(regionOnScreen().isNull());
}

void TestRealPointer::chartIsShownWithTypedPeaks()
{
    auto* const twoD = part<QRadioButton>("radioButton2D");
    part<QScrollArea>("Scroll_ModuleWidget")->ensureWidgetVisible(twoD);
    click(twoD, QPoint(8, twoD->height() / 2));
    QTRY_VERIFY(twoD->isChecked());
    auto* const peaks = part<QLineEdit>("lineEditPeaks");
    QTRY_VERIFY(peaks->isEnabled());
    QVERIFY(!part<QPushButton>("tool_Zoom_In")->isVisible());
    click(peaks);
    QTRY_VERIFY(peaks->hasFocus());
    send({ "key", "ctrl+a" });
    send({ "type", "7" });
    QTRY_COMPARE(peaks->text(), QString("7"));
    click(part<QPushButton>("pushButtonApply"));
    auto* const image = part<QRadioButton>("radioButtonImage");
    click(image, QPoint(8, image->height() / 2));
    QTRY_VERIFY(part<QPushButton>("tool_Zoom_In")->isVisible());
}

void TestRealPointer::wheelZoomsTheImage()
{
    const auto* const view = m_window->findChild<QGraphicsView*>();
    const QList<QGraphicsItem*> items = view->scene()->items();
    const QGraphicsItem* image = nullptr;
    for (const QGraphicsItem* const item : items) {
        const auto* const object = dynamic_cast<const QObject*>(item);
        if (object && object->inherits("ImageLayoutItem")) {
            image = item;
        }
    }
    QVERIFY(image);
    QSignalSpy views(
        dynamic_cast<QObject*>(const_cast<QGraphicsItem*>(image)), SIGNAL(changeDrawRect(QRectF)));
    const QPointF middle = image->sceneBoundingRect().center();
    movePointer(view->viewport(), view->mapFromScene(middle));
    send({ "click", "4" }); // one notch up
    QTRY_VERIFY(!views.isEmpty());
    const QRectF part = views.last().first().toRectF();
    QVERIFY(part.width() < 1024.0);
    send({ "click", "5" });
    QTRY_COMPARE(views.last().first().toRectF().width(), 1024.0);
}

void TestRealPointer::titleBarHidesItsModule()
{
    auto* const area = part<QScrollArea>("Scroll_ModuleWidget");
    auto* const fold = part<QPushButton>("left_flex1"); // of the upper one
    area->ensureWidgetVisible(fold);
    QWidget* const preferences
        = part<QRadioButton>("radioButton2D")->window()->findChild<QWidget*>("groupBoxDisplay");
    QVERIFY(preferences->isVisible());
    click(fold->parentWidget(), QPoint(3, fold->parentWidget()->height() / 2));
    QTRY_VERIFY(!preferences->isVisible());
    click(fold);
    QTRY_VERIFY(preferences->isVisible());
}

void TestRealPointer::returnButtonLeavesTheImage()
{
    auto* const back = part<QPushButton>("Return");
    click(back);
    QTRY_VERIFY(!back->isVisible());
    QVERIFY(!back->isChecked());
}

QTEST_MAIN(TestRealPointer)
#include "tst_realpointer.moc"
