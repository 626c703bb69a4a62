#include "pagecontrol.h"

#include "imagedocument.h"
#include "imagepage.h"
#include "pages.h"
#include "support/tiffwriter.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>

/// The control itself, and the pages of a file in the window.
class TestPageControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void shows_data();
    void shows();
    void announcesWhatTheUserChooses();
    void showPage_announcesNothing();

    void isThereForSeveralPages();
    void keysAndArrows_leadFromPageToPage();
    void typedNumber_leadsToItsPage();
    void settings_stayWithinTheFile();
    void refusedPage_isLeftInTheSameWays();
    void missingPage_isLeftByTheControl();
    void changedFile_staysOnItsPage();
    void fewerPages_afterAChange();
    void keys_withoutAFile();

private:
    void press(const char* keys) const;
    bool writePages(int count) const;
    QSize shownSize() const { return m_viewer->intensity()->imageInfo().size; }
    template <class Control>
    Control* part(const char* name) const
    {
        return m_viewer->window->findChild<Control*>(name);
    }

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestPageControl::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestPageControl::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(writePages(3));
}

void TestPageControl::cleanup()
{
    m_viewer.reset();
}

void TestPageControl::press(const char* keys) const
{
    QTest::keySequence(m_viewer->window.get(), QKeySequence(keys));
}

/// "pages.tif": page n, from 1, is 40 + n pixels wide and 30 high. The fourth, which is of
/// floating-point samples, holds 0.5.
bool TestPageControl::writePages(int count) const
{
    TiffWriter writer;
    for (int page = 1; page <= count; ++page) {
        TiffImage image;
        image.width = 40 + page;
        image.height = 30;
        image.pixels = QByteArray(image.width * image.height - 1, '\1') + '\2';
        if (page == 4) {
            image.bits = 32;
            image.format = 3;
            const QByteArray half = QByteArray::fromHex("0000003f");
            image.pixels = half.repeated(image.width * image.height);
        }
        writer.addImage(image);
    }
    QFile file(m_viewer->path("pages.tif"));
    return file.open(QIODevice::WriteOnly) && file.write(writer.file()) > 0;
}

void TestPageControl::shows_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasPrevious");
    QTest::addColumn<bool>("hasNext");
    QTest::addColumn<bool>("isNeeded");
    QTest::newRow("no file") << 0 << 0 << 1 << QString() << false << false << false;
    QTest::newRow("one page") << 0 << 1 << 1 << "of 1" << false << false << false;
    QTest::newRow("first") << 0 << 7 << 1 << "of 7" << false << true << true;
    QTest::newRow("middle") << 1 << 7 << 2 << "of 7" << true << true << true;
    QTest::newRow("last") << 6 << 7 << 7 << "of 7" << true << false << true;
    QTest::newRow("behind the last") << 9 << 7 << 10 << "of 7" << true << false << true;
    QTest::newRow("of a file that was not read")
        << 9 << 0 << 10 << QString() << true << false << true;
}

void TestPageControl::shows()
{
    QFETCH(int, page);
    QFETCH(int, count);
    QFETCH(QString, text);
    PageControl control;
    control.showPage(page, count);
    QTEST(control.findChild<QSpinBox*>("pageNumber")->value(), "number");
    QCOMPARE(control.findChild<QLabel*>("pageCount")->text(), text);
    QTEST(control.findChild<QToolButton*>("pagePrevious")->isEnabled(), "hasPrevious");
    QTEST(control.findChild<QToolButton*>("pageNext")->isEnabled(), "hasNext");
    QTEST(control.isNeeded(), "isNeeded");
}

void TestPageControl::announcesWhatTheUserChooses()
{
    PageControl control;
    control.showPage(3, 20);
    control.show();
    QSignalSpy chosen(&control, &PageControl::pageChosen);
    QTest::mouseClick(control.findChild<QToolButton*>("pageNext"), Qt::LeftButton);
    QTest::mouseClick(control.findChild<QToolButton*>("pagePrevious"), Qt::LeftButton);
    QCOMPARE(QList<QVariantList>(chosen),
        (QList<QVariantList> { { 4 }, { 2 } })); // the page is another's to change
    chosen.clear();
    auto* number = control.findChild<QSpinBox*>("pageNumber");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, "12");
    QVERIFY(chosen.isEmpty()); // may become 123
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(QList<QVariantList>(chosen), (QList<QVariantList> { { 11 } }));
}

void TestPageControl::showPage_announcesNothing()
{
    PageControl control;
    QSignalSpy chosen(&control, &PageControl::pageChosen);
    control.showPage(3, 20);
    control.showPage(0, 2);
    QVERIFY(chosen.isEmpty());
}

void TestPageControl::isThereForSeveralPages()
{
    const auto* control = part<PageControl>("pageControl");
    QVERIFY(!control->isVisible());
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(!control->isVisible());
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif")));
    QVERIFY(control->isVisible());
    QCOMPARE(m_viewer->status("pageCount"), QString("of 3"));
    m_viewer->window->showGallery(m_viewer->folder.path());
    QVERIFY(!control->isVisible());
    QVERIFY(!m_viewer->action("actionNextPage")->isEnabled());
}

void TestPageControl::keysAndArrows_leadFromPageToPage()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif")));
    QVERIFY(!m_viewer->action("actionPreviousPage")->isEnabled());
    press("Ctrl+PgDown");
    QCOMPARE(shownSize(), QSize(42, 30));
    QTest::mouseClick(part<QToolButton>("pageNext"), Qt::LeftButton);
    QCOMPARE(shownSize(), QSize(43, 30));
    QCOMPARE(part<QSpinBox>("pageNumber")->value(), 3);
    QVERIFY(!m_viewer->action("actionNextPage")->isEnabled());
    press("Ctrl+PgDown"); // does nothing
    QCOMPARE(shownSize(), QSize(43, 30));
    press("Ctrl+PgUp");
    QTest::mouseClick(part<QToolButton>("pagePrevious"), Qt::LeftButton);
    QCOMPARE(shownSize(), QSize(41, 30));
    QCOMPARE(m_viewer->shownFile(), QString("pages.tif"));
}

void TestPageControl::typedNumber_leadsToItsPage()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif")));
    auto* number = part<QSpinBox>("pageNumber");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, "3");
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(shownSize(), QSize(43, 30));
    QCOMPARE(m_viewer->window->focusWidget(), number); // for the next number
}

void TestPageControl::settings_stayWithinTheFile()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif")));
    m_viewer->action("actionKeepSettings")->trigger(); // off: that is about other files
    CVKIntensityWidget* image = m_viewer->intensity();
    QVERIFY(image->addRegion(QRect(1, 2, 3, 4)));
    QVERIFY(image->setView(CVKIntensityWidget::View::RowChart));
    press("Ctrl+PgDown");
    QCOMPARE(shownSize(), QSize(42, 30));
    QCOMPARE(image->regions(), QVector<QRect> { QRect(1, 2, 3, 4) });
    QCOMPARE(image->view(), CVKIntensityWidget::View::RowChart);
}

void TestPageControl::refusedPage_isLeftInTheSameWays()
{
    QVERIFY(writePages(5));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif"), 2));
    QVERIFY(m_viewer->intensity()->addRegion(QRect(1, 2, 3, 4)));
    press("Ctrl+PgDown");
    QVERIFY(qobject_cast<LoadProblemPage*>(m_viewer->page()));
    QVERIFY2(m_viewer->window->problem().contains("fractional"),
        qPrintable(m_viewer->window->problem()));
    QVERIFY(part<PageControl>("pageControl")->isVisible());
    QCOMPARE(part<QSpinBox>("pageNumber")->value(), 4);
    press("Ctrl+PgDown");
    QCOMPARE(shownSize(), QSize(45, 30));
    QCOMPARE(m_viewer->intensity()->regions().size(), 1); // over the refused one
    QTest::mouseClick(part<QToolButton>("pagePrevious"), Qt::LeftButton);
    QVERIFY(!m_viewer->window->problem().isEmpty());
    QTest::mouseClick(part<QToolButton>("pagePrevious"), Qt::LeftButton);
    QCOMPARE(shownSize(), QSize(43, 30));
    QVERIFY(qobject_cast<ImagePage*>(m_viewer->page()));
}

void TestPageControl::missingPage_isLeftByTheControl()
{
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("pages.tif"), 8));
    QCOMPARE(m_viewer->window->problem(), QString("The file has no such page."));
    QVERIFY(part<PageControl>("pageControl")->isVisible());
    QCOMPARE(part<QSpinBox>("pageNumber")->value(), 9);
    auto* number = part<QSpinBox>("pageNumber");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, "1");
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(shownSize(), QSize(41, 30));
    QCOMPARE(m_viewer->status("pageCount"), QString("of 3"));
}

void TestPageControl::changedFile_staysOnItsPage()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif"), 1));
    press("F5");
    QCOMPARE(shownSize(), QSize(42, 30));
}

void TestPageControl::fewerPages_afterAChange()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif"), 2));
    QVERIFY(writePages(2));
    press("F5");
    QCOMPARE(m_viewer->window->problem(), QString("The file has no such page."));
    press("Ctrl+PgUp");
    QCOMPARE(shownSize(), QSize(42, 30));
    QCOMPARE(m_viewer->status("pageCount"), QString("of 2"));
}

void TestPageControl::keys_withoutAFile()
{
    press("Ctrl+PgDown");
    press("Ctrl+PgUp");
    QVERIFY(qobject_cast<WelcomePage*>(m_viewer->page()));
    auto* document = m_viewer->window->findChild<ImageDocument*>();
    QVERIFY(!document->showPage(0) && !document->reload());
    QVERIFY(m_viewer->window->openFile(m_viewer->path("pages.tif")));
    QVERIFY(!document->showPage(-1));
    QCOMPARE(shownSize(), QSize(41, 30));
}

QTEST_MAIN(TestPageControl)
#include "tst_pagecontrol.moc"
