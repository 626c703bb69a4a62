#include "gallerypage.h"
#include "helpoverlay.h"
#include "support/contrast.h"
#include "viewerfixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>

#include <cmath>

namespace {

constexpr double least = 4.5; // for text of ordinary size, after WCAG 2.1, success criterion 1.4.3

// The library fixes the colour of disabled text, rgb(60, 60, 60), whose luminance is 0.0452. Labels
// and boxes share their ground with enabled ones, whose white text keeps 4.5 on it: at most 1.05
// / 4.5 / 0.0952 = 2.45 is left. Fields and buttons have a ground of their own.
constexpr double leastOfDisabledLabels = 2.3;
constexpr double leastOfDisabledFields = 4.5;

/// Contrast of the text in `area`: the colour that covers most of it is the ground, the one that
/// differs most from it the text. Anti-aliased strokes make the result rather too small.
double textContrast(const QImage& window, const QRect& area)
{
    QHash<QRgb, int> counts;
    const QRect inside = area & window.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            ++counts[window.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    int most = 0;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour) {
        if (colour.value() > most) {
            most = colour.value();
            ground = colour.key();
        }
    }
    double best = 1.0;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour) {
        best = std::max(best, contrastRatio(colour.key(), ground));
    }
    return best;
}

/// The part of a widget that its text lies in, without its frame; empty when it shows none.
QRect textArea(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return label->text().trimmed().isEmpty() ? QRect() : label->contentsRect();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        const bool hasBox = button->inherits("QRadioButton") || button->inherits("QCheckBox");
        return button->text().isEmpty() ? QRect()
                                        : button->rect().adjusted(hasBox ? 20 : 4, 4, -4, -4);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        return box->rect().adjusted(4, 4, -22, -4); // without its arrow
    }
    if (qobject_cast<const QLineEdit*>(widget)) {
        return widget->rect().adjusted(4, 4, -4, -4);
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
        const int width = group->fontMetrics().horizontalAdvance(group->title());
        return QRect(13, 0, width, group->fontMetrics().height());
    }
    return QRect();
}

} // namespace

/// What the text of this control has to reach.
double leastFor(const QWidget* widget)
{
    if (widget->isEnabled()) {
        return least;
    }
    const bool sharesItsGround = widget->inherits("QLabel") || widget->inherits("QCheckBox");
    return sharesItsGround ? leastOfDisabledLabels : leastOfDisabledFields;
}

/// Every text of the window can be read: measured on what is painted, skins included.
class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void measure();
    void welcome();
    void problem();
    void emptyFolder();
    void gallery();
    void image();
    void chart();
    void help();
    void menus();
    void canvas();

private:
    void checkWindow(int atLeast);

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestContrast::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestContrast::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    m_viewer->window->resize(1000, 1000); // all of the panel
}

void TestContrast::cleanup()
{
    m_viewer.reset();
}

/// Measures every visible text of the window; there are at least so many.
void TestContrast::checkWindow(int atLeast)
{
    QCoreApplication::processEvents();
    const QImage picture = m_viewer->window->grab().toImage();
    int measured = 0;
    for (const QWidget* widget : m_viewer->window->findChildren<QWidget*>()) {
        const QRect area = textArea(widget);
        const bool isCovered = widget->visibleRegion().isEmpty();
        if (area.isEmpty() || isCovered) {
            continue;
        }
        const QRect shown = area & widget->visibleRegion().boundingRect();
        const QPoint corner = widget->mapTo(m_viewer->window.get(), shown.topLeft());
        const double ratio = textContrast(picture, QRect(corner, shown.size()));
        QVERIFY2(ratio >= leastFor(widget),
            qPrintable(QString("%1 %2: %3")
                           .arg(widget->metaObject()->className(), widget->objectName())
                           .arg(ratio)));
        ++measured;
    }
    QVERIFY2(measured >= atLeast, qPrintable(QString::number(measured)));
}

void TestContrast::measure()
{
    QCOMPARE(contrastRatio(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21.0);
    QCOMPARE(contrastRatio(qRgb(9, 9, 9), qRgb(9, 9, 9)), 1.0);
    // #767676 on white is the well-known limit.
    QVERIFY(std::abs(contrastRatio(qRgb(0x76, 0x76, 0x76), qRgb(255, 255, 255)) - 4.54) < 0.01);
    QImage text(20, 10, QImage::Format_RGB32);
    text.fill(qRgb(255, 255, 255));
    text.setPixel(3, 3, qRgb(0x76, 0x76, 0x76));
    QVERIFY(std::abs(textContrast(text, text.rect()) - 4.54) < 0.01);
}

void TestContrast::welcome()
{
    checkWindow(4);
}

void TestContrast::problem()
{
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("gone.raw")));
    checkWindow(5);
}

void TestContrast::emptyFolder()
{
    const QTemporaryDir empty;
    m_viewer->window->showGallery(empty.path());
    checkWindow(6);
}

void TestContrast::gallery()
{
    m_viewer->window->showGallery(m_viewer->folder.path());
    QTRY_VERIFY(!m_viewer->window->isGalleryLoading());
    checkWindow(4);
    const auto* view = m_viewer->window->findChild<QListView*>("galleryView");
    const QImage picture = view->viewport()->grab().toImage();
    QCOMPARE(view->model()->rowCount(), 3);
    for (int row = 0; row < 3; ++row) { // the first is selected
        const QRect tile = view->visualRect(view->model()->index(row, 0));
        const QRect name(tile.left() + 14, tile.bottom() - 32, tile.width() - 28, 20);
        QVERIFY2(textContrast(picture, name) >= least, qPrintable(QString::number(row)));
    }
}

void TestContrast::image()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QTest::mouseClick(m_viewer->control<QAbstractButton>("pushButtonAdd"), Qt::LeftButton);
    checkWindow(40);
}

void TestContrast::chart()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    m_viewer->action("actionRowChart")->trigger();
    checkWindow(35);
}

void TestContrast::help()
{
    m_viewer->window->showHelp();
    QCoreApplication::processEvents();
    const QImage picture = m_viewer->window->grab().toImage();
    int measured = 0;
    for (const QLabel* label :
        m_viewer->window->findChild<HelpOverlay*>()->findChildren<QLabel*>()) {
        if (label->text().isEmpty()) {
            continue;
        }
        const QPoint corner = label->mapTo(m_viewer->window.get(), QPoint());
        QVERIFY2(textContrast(picture, QRect(corner, label->size())) >= least,
            qPrintable(label->text()));
        ++measured;
    }
    QVERIFY(measured > 60);
}

void TestContrast::menus()
{
    QMenuBar* bar = m_viewer->window->menuBar();
    const QImage titles = bar->grab().toImage();
    for (QAction* title : bar->actions()) {
        QVERIFY(textContrast(titles, bar->actionGeometry(title)) >= least);
        QMenu* menu = title->menu();
        menu->popup(QPoint());
        const QImage picture = menu->grab().toImage();
        for (QAction* entry : menu->actions()) { // disabled ones, too
            const QRect area = menu->actionGeometry(entry);
            QVERIFY2(entry->isSeparator() || textContrast(picture, area) >= least,
                qPrintable(entry->text()));
        }
        if (!menu->actions().isEmpty()) { // and the one under the pointer
            menu->setActiveAction(menu->actions().first());
            QVERIFY(
                textContrast(menu->grab().toImage(), menu->actionGeometry(menu->actions().first()))
                >= least);
        }
        menu->close();
    }
}

/// Rulers and read-out are white on the background image, wherever they stand.
void TestContrast::canvas()
{
    const QImage background(":res/skin/mdi_bk.jpg");
    QVERIFY(!background.isNull());
    for (int y = 0; y < background.height(); ++y) {
        for (int x = 0; x < background.width(); ++x) {
            QVERIFY(contrastRatio(background.pixel(x, y), qRgb(255, 255, 255)) >= least);
        }
    }
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
