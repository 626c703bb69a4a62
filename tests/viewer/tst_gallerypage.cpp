#include "gallerypage.h"

#include "appearance.h"
#include "gallerydelegate.h"
#include "rawframe.h"

#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/// The gallery under real keys and mouse clicks.
class TestGalleryPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void folder_isNamedAndCounted();
    void pictures_come();
    void progress_isShownWhileItWorks();
    void refusedFiles_areAmongThem();
    void doubleClick_opens();
    void doubleClick_besideATileOpensNothing();
    void doubleClick_withAnotherButtonOpensNothing();
    void keys_chooseAndOpen();
    void emptyFolder_offersWaysOn();
    void missingFolder_saysSo();
    void anotherFolder_whileLoading();
    void stop_keepsWhatHasCome();
    void sameFolder_keepsPicturesAndSelection();
    void current_isSelectedWhenItIsThere();
    void scrolling_bringsTheVisibleFirst();
    void destroyed_whileLoading();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString manyFolder();
    template <class Widget>
    Widget* child(const char* name) const
    {
        return m_page->findChild<Widget*>(name);
    }
    QListView* view() const { return child<QListView>("galleryView"); }
    QPoint tileCentre(int row) const;
    GalleryModel::State state(int row) const;
    QVector<int> readyRows() const;

    QTemporaryDir m_folder;
    QTemporaryDir m_many;
    std::unique_ptr<GalleryPage> m_page;
};

void TestGalleryPage::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.warning=false"); // Qt's own about the damaged file
    RawFrame frame;
    frame.width = 400;
    frame.height = 300;
    frame.bytesPerChannel = 2;
    frame.bytes = QByteArray(240000, '\x05');
    QString problem;
    QVERIFY(writeRawFrame(path("frame 10.raw"), frame, &problem));
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter(&image).fillRect(100, 75, 200, 150, Qt::white);
    QVERIFY(image.save(path("Frame 2.png")));
    QFile broken(path("broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("hello");
    QFile notes(path("notes.txt"));
    QVERIFY(notes.open(QIODevice::WriteOnly));
    QVERIFY(QDir(m_folder.path()).mkdir("folder.png"));
}

void TestGalleryPage::init()
{
    m_page = std::make_unique<GalleryPage>();
    m_page->resize(900, 600);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
}

void TestGalleryPage::cleanup()
{
    m_page.reset();
}

/// A folder of 300 images, "0.png" to "299.png".
QString TestGalleryPage::manyFolder()
{
    for (int i = 0; i < 300; ++i) {
        QFile::copy(path("Frame 2.png"), m_many.filePath(QString::number(i) + ".png"));
    }
    return m_many.path();
}

QPoint TestGalleryPage::tileCentre(int row) const
{
    return view()->visualRect(view()->model()->index(row, 0)).center();
}

GalleryModel::State TestGalleryPage::state(int row) const
{
    const QModelIndex index = view()->model()->index(row, 0);
    return GalleryModel::State(index.data(GalleryModel::StateRole).toInt());
}

QVector<int> TestGalleryPage::readyRows() const
{
    QVector<int> rows;
    for (int row = 0; row < view()->model()->rowCount(); ++row) {
        if (state(row) == GalleryModel::State::Ready) {
            rows << row;
        }
    }
    return rows;
}

void TestGalleryPage::folder_isNamedAndCounted()
{
    m_page->showFolder(m_folder.path());
    QCOMPARE(m_page->folder(), m_folder.path());
    QCOMPARE(child<QLabel>("galleryFolder")->text(), QDir(m_folder.path()).dirName());
    QCOMPARE(child<QLabel>("galleryCount")->text(), QString("3 images"));
    QVERIFY(view()->isVisible());
    QStringList names;
    for (int row = 0; row < 3; ++row) {
        names << view()->model()->index(row, 0).data().toString();
    }
    QCOMPARE(names, (QStringList { "broken.png", "Frame 2.png", "frame 10.raw" }));

    QTemporaryDir one;
    QVERIFY(QFile::copy(path("Frame 2.png"), one.filePath("a.PNG")));
    m_page->showFolder(one.path());
    QCOMPARE(child<QLabel>("galleryCount")->text(), QString("1 image"));
    m_page->showFolder("/"); // has no name of its own
    QCOMPARE(child<QLabel>("galleryFolder")->text(), QDir::toNativeSeparators(QDir::rootPath()));
}

void TestGalleryPage::pictures_come()
{
    m_page->showFolder(m_folder.path());
    QVERIFY(m_page->isLoading());
    QTRY_VERIFY(!m_page->isLoading());
    const auto picture = [this](int row) {
        return view()->model()->index(row, 0).data(GalleryModel::PictureRole).value<QImage>();
    };
    QCOMPARE(picture(1).size(), QSize(160, 120));
    QCOMPARE(picture(1).pixelColor(80, 60), QColor(Qt::white));
    QCOMPARE(picture(1).pixelColor(10, 10), QColor(Qt::black));
    QCOMPARE(picture(2).size(), QSize(160, 120));
    const QImage shown = m_page->grab().toImage();
    const QPoint centre = view()->viewport()->mapTo(m_page.get(), tileCentre(1));
    QCOMPARE(shown.pixelColor(centre - QPoint(0, 15)), QColor(Qt::white));
}

void TestGalleryPage::progress_isShownWhileItWorks()
{
    auto* bar = child<QProgressBar>("galleryProgress");
    QVERIFY(!bar->isVisible());
    m_page->showFolder(manyFolder());
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 300);
    QCOMPARE(bar->value(), 0);
    int before = 0;
    QTRY_VERIFY(bar->value() > 0);
    while (m_page->isLoading()) {
        QVERIFY(bar->isVisible());
        QVERIFY(bar->value() >= before);
        before = bar->value();
        QTest::qWait(5);
    }
    QVERIFY(before > 0);
    QVERIFY(!bar->isVisible());
    QCOMPARE(readyRows().size(), 300);
}

void TestGalleryPage::refusedFiles_areAmongThem()
{
    m_page->showFolder(m_folder.path());
    QTRY_VERIFY(!m_page->isLoading());
    QCOMPARE(state(0), GalleryModel::State::Refused);
    QCOMPARE(readyRows(), (QVector<int> { 1, 2 }));
    QVERIFY(!child<QProgressBar>("galleryProgress")->isVisible());
}

void TestGalleryPage::doubleClick_opens()
{
    m_page->showFolder(m_folder.path());
    QSignalSpy requested(m_page.get(), SIGNAL(imageRequested(QString)));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, tileCentre(2));
    QVERIFY(requested.isEmpty()); // one click only selects
    QCOMPARE(m_page->currentPath(), path("frame 10.raw"));
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, tileCentre(2));
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.first().at(0).toString(), path("frame 10.raw"));
}

void TestGalleryPage::doubleClick_besideATileOpensNothing()
{
    m_page->showFolder(m_folder.path());
    QSignalSpy requested(m_page.get(), SIGNAL(imageRequested(QString)));
    const QPoint below = tileCentre(0) + QPoint(0, 300);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, below);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, below);
    QVERIFY(requested.isEmpty());
}

void TestGalleryPage::doubleClick_withAnotherButtonOpensNothing()
{
    m_page->showFolder(m_folder.path());
    QSignalSpy requested(m_page.get(), SIGNAL(imageRequested(QString)));
    QTest::mouseClick(view()->viewport(), Qt::RightButton, Qt::NoModifier, tileCentre(1));
    QTest::mouseDClick(view()->viewport(), Qt::RightButton, Qt::NoModifier, tileCentre(1));
    QVERIFY(requested.isEmpty());
}

void TestGalleryPage::keys_chooseAndOpen()
{
    m_page->showFolder(m_folder.path());
    m_page->setFocus();
    QVERIFY(view()->hasFocus());
    QSignalSpy requested(m_page.get(), SIGNAL(imageRequested(QString)));
    QTest::keyClick(view(), Qt::Key_Return); // the first is selected from the start
    QTest::keyClick(view(), Qt::Key_Right);
    QTest::keyClick(view(), Qt::Key_Enter);
    QTest::keyClick(view(), Qt::Key_End);
    QTest::keyClick(view(), Qt::Key_Return);
    QTest::keyClick(view(), Qt::Key_Escape);
    QTest::keyClick(view(), Qt::Key_Space);
    QCOMPARE(requested.size(), 3);
    QCOMPARE(requested.at(0).at(0).toString(), path("broken.png"));
    QCOMPARE(requested.at(1).at(0).toString(), path("Frame 2.png"));
    QCOMPARE(requested.at(2).at(0).toString(), path("frame 10.raw"));
}

void TestGalleryPage::emptyFolder_offersWaysOn()
{
    const QTemporaryDir empty;
    m_page->showFolder(empty.path());
    QVERIFY(!m_page->isLoading());
    QVERIFY(!view()->isVisible());
    QVERIFY(!child<QProgressBar>("galleryProgress")->isVisible());
    QVERIFY(!child<QPushButton>("galleryFolderButton")->isVisible());
    QVERIFY(m_page->currentPath().isEmpty());
    auto* title = child<QLabel>("pageTitle");
    QVERIFY(title->isVisible());
    QCOMPARE(title->text(), QString("No images in this folder"));
    QSignalSpy open(m_page.get(), SIGNAL(openRequested()));
    QSignalSpy folder(m_page.get(), SIGNAL(folderRequested()));
    QTest::mouseClick(child<QPushButton>("pageOpenButton"), Qt::LeftButton);
    QCOMPARE(open.size(), 1);
    QTest::mouseClick(child<QPushButton>("pageFolderButton"), Qt::LeftButton);
    QCOMPARE(folder.size(), 1);

    m_page->showFolder(m_folder.path());
    QVERIFY(view()->isVisible());
    QTest::mouseClick(child<QPushButton>("galleryFolderButton"), Qt::LeftButton);
    QCOMPARE(folder.size(), 2);
}

void TestGalleryPage::missingFolder_saysSo()
{
    m_page->showFolder(path("gone"));
    QCOMPARE(child<QLabel>("pageTitle")->text(), QString("This folder cannot be read"));
    QCOMPARE(child<QLabel>("galleryCount")->text(), QString("0 images"));
}

void TestGalleryPage::anotherFolder_whileLoading()
{
    m_page->showFolder(manyFolder());
    QTRY_VERIFY(!readyRows().isEmpty());
    m_page->showFolder(m_folder.path());
    QVERIFY(readyRows().isEmpty()); // the pictures of the other folder do not come here
    QTRY_VERIFY(!m_page->isLoading());
    QCOMPARE(readyRows(), (QVector<int> { 1, 2 }));
    QCOMPARE(child<QProgressBar>("galleryProgress")->maximum(), 3);

    const QTemporaryDir empty;
    m_page->showFolder(manyFolder());
    m_page->showFolder(empty.path());
    QVERIFY(!m_page->isLoading());
    QVERIFY(!child<QProgressBar>("galleryProgress")->isVisible());
}

void TestGalleryPage::stop_keepsWhatHasCome()
{
    m_page->showFolder(manyFolder());
    QTRY_VERIFY(!readyRows().isEmpty());
    m_page->stopLoading();
    QVERIFY(!m_page->isLoading());
    QVERIFY(!child<QProgressBar>("galleryProgress")->isVisible());
    const auto ready = readyRows().size();
    QVERIFY(ready < 300);
    QTest::qWait(100);
    QCOMPARE(readyRows().size(), ready);
    m_page->showFolder(m_many.path()); // goes on with the rest
    QCOMPARE(readyRows().size(), ready);
    QCOMPARE(child<QProgressBar>("galleryProgress")->maximum(), 300 - ready);
}

void TestGalleryPage::sameFolder_keepsPicturesAndSelection()
{
    m_page->showFolder(m_folder.path());
    QTRY_VERIFY(!m_page->isLoading());
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, tileCentre(1));
    m_page->showFolder(m_folder.path());
    QVERIFY(!m_page->isLoading());
    QCOMPARE(readyRows(), (QVector<int> { 1, 2 }));
    QCOMPARE(m_page->currentPath(), path("Frame 2.png"));
}

void TestGalleryPage::current_isSelectedWhenItIsThere()
{
    m_page->showFolder(m_folder.path(), path("frame 10.raw"));
    QCOMPARE(m_page->currentPath(), path("frame 10.raw"));
    m_page->showFolder(m_folder.path(), path("gone.raw"));
    QCOMPARE(m_page->currentPath(), path("frame 10.raw")); // as before
    m_page->showFolder(manyFolder(), m_many.filePath("250.png"));
    QCOMPARE(m_page->currentPath(), m_many.filePath("250.png"));
    QVERIFY(view()->viewport()->rect().contains(tileCentre(250)));
}

void TestGalleryPage::scrolling_bringsTheVisibleFirst()
{
    m_page->showFolder(manyFolder());
    QScrollBar* bar = view()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    QTRY_VERIFY(state(299) == GalleryModel::State::Ready);
    QVERIFY(state(200) == GalleryModel::State::Waiting);
}

void TestGalleryPage::destroyed_whileLoading()
{
    for (int i = 0; i < 10; ++i) {
        GalleryPage page;
        page.show();
        page.showFolder(manyFolder());
        QTest::qWait(i);
        QVERIFY(page.isLoading());
    }
}

QTEST_MAIN(TestGalleryPage)
#include "tst_gallerypage.moc"
