#include "gallerypage.h"
#include "support/focusvisibility.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QListView>
#include <QPixmap>
#include <QPushButton>

/// The viewer's own rules and pictures; the rest of its look is that of the host kit.
class TestAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ownRules_comeAfterThoseOfTheKit();
    void pictures_areFound();
    void welcomeAndProblem_showTheFocus();
    void gallery_showsTheFocus();
    void emptyFolder_showsTheFocus();

private:
    void checkPage(const QWidget* page, int controls);
};

void TestAppearance::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestAppearance::ownRules_comeAfterThoseOfTheKit()
{
    const QString sheet = qApp->styleSheet();
    QVERIFY(sheet.startsWith(vkintensityhost::styleSheet()));
    QVERIFY(sheet.contains("QListView#galleryView"));
    QVERIFY(!vkintensityhost::styleSheet().contains("QListView#galleryView"));
}

void TestAppearance::pictures_areFound()
{
    for (const char* name : { "logo.png", "problem.png" }) {
        QVERIFY2(!QPixmap(QString(":/viewer/%1").arg(name)).isNull(), name);
    }
    QVERIFY(!QApplication::windowIcon().isNull());
}

/// Tab leads through as many controls of the page, each of which shows the focus.
void TestAppearance::checkPage(const QWidget* page, int controls)
{
    int checked = 0;
    for (QWidget* control : page->findChildren<QWidget*>()) {
        if (!control->isVisible() || control->focusProxy()
            || !(control->focusPolicy() & Qt::TabFocus)) {
            continue;
        }
        control->clearFocus(); // may have been given without a key
        control->setFocus(Qt::TabFocusReason);
        QVERIFY2(focusIsSeen(control), qPrintable(control->objectName()));
        ++checked;
    }
    QCOMPARE(checked, controls);
}

void TestAppearance::welcomeAndProblem_showTheFocus()
{
    ViewerFixture viewer;
    checkPage(viewer.page(), 1);
    QVERIFY(!viewer.window->openFile(viewer.path("gone.raw")));
    checkPage(viewer.page(), 1);
}

void TestAppearance::gallery_showsTheFocus()
{
    ViewerFixture viewer;
    viewer.window->showGallery(viewer.folder.path());
    QTRY_VERIFY(!viewer.window->isGalleryLoading());
    checkPage(viewer.page(), 2); // the button and the list
}

void TestAppearance::emptyFolder_showsTheFocus()
{
    ViewerFixture viewer;
    const QTemporaryDir empty;
    viewer.window->showGallery(empty.path());
    checkPage(viewer.page(), 2);
}

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"
