#include "viewerwindow.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "gallerymodel.h"
#include "gallerypage.h"
#include "imagepage.h"
#include "pages.h"
#include "scenes.h"
#include "tifffile.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>

namespace {

/// What the window shows when its layouts have settled, without the mark of the keyboard focus.
QImage pictureOf(QWidget* window)
{
    QCoreApplication::processEvents();
    if (window->focusWidget()) {
        window->focusWidget()->clearFocus();
    }
    return window->grab().toImage();
}

/// Drags `data` onto the widget and drops it there, as the window system would.
void dropOnto(QWidget* target, const QMimeData& data)
{
    const QPoint position(10, 10);
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(target, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(
        position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction); // as some file managers propose
    drop.ignore();
    QApplication::sendEvent(target, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
}

/// Two gray samples beside each other, the first one at the top left.
QByteArray grayTiff(
    quint32 bits, quint32 sampleFormat, const QByteArray& samples, quint32 orientation = 1)
{
    const quint32 entryCount = 11;
    const quint32 data = 8 + 2 + 12 * entryCount + 4; // behind start and directory
    return tiffFile({ { 256, tiffShort, 1, 2 }, { 257, tiffShort, 1, 1 },
               { 258, tiffShort, 1, bits }, { 259, tiffShort, 1, 1 }, { 262, tiffShort, 1, 1 },
               { 273, tiffLong, 1, data }, { 274, tiffShort, 1, orientation },
               { 277, tiffShort, 1, 1 }, { 278, tiffShort, 1, 1 },
               { 279, tiffLong, 1, quint32(samples.size()) }, { 339, tiffShort, 1, sampleFormat } })
        + samples;
}

/// 4 x 2 pixels of 24 bits, whose rows stand from the top: the height is negative.
QByteArray topDownBmp()
{
    QByteArray bmp("BM");
    for (const qint32 number : { 54 + 24, 0, 54, 40, 4, -2 }) {
        bmp += tiffNumber(quint32(number), false);
    }
    bmp += tiffNumber(quint16(1), false) + tiffNumber(quint16(24), false);
    for (const quint32 number : { 0, 24, 0, 0, 0, 0 }) {
        bmp += tiffNumber(quint32(number), false);
    }
    for (int i = 0; i < 24; ++i) {
        bmp += char(10 * i);
    }
    return bmp;
}

} // namespace

class TestViewerWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void startsOnTheWelcomePage();
    void open_showsTheImage();
    void open_fillsTheWindow();
    void open_aProblemNamesFileAndReason();
    void open_theOldPictureNeverStays();
    void open_aGoodFileAfterAProblem();
    void open_anEmptyRawFileSaysSo();
    void open_afterTheWidgetWasClosed();
    void open_hostileNames();
    void close_goesBackToTheGallery();
    void close_withoutAGalleryGoesBackToTheWelcomePage();
    void returnButton_showsTheGallery();
    void gallerySlot_withoutAFile();
    void gallery_isNamed();
    void gallery_opensADoubleClickedImage();
    void gallery_opensWithEnter();
    void gallery_ofAnUnreadableImageNamesTheProblem();
    void gallery_crossesOutWhatIsRefused_data();
    void gallery_crossesOutWhatIsRefused();
    void gallery_stopsWithTheWindow();
    void escape_staysInTheImage();
    void wheel_overABoxScrollsThePanel();
    void path_ofAFolderShowsTheGallery();
    void menuGallery_asksForAFolderFirst();
    void dialog_opensTheChosenFile();
    void dialog_opensTheChosenFolder();
    void drag_ofAFileIsTaken();
    void drop_opensTheFile();
    void drop_ofAFolderShowsTheGallery();
    void drop_onTheCanvasReachesTheWindow();
    void longNames_doNotWidenTheWindow();
    void minimumSize_holdsColumnAndCanvas();

    void topDownBmp_hasASmallPicture();

private:
    CVKIntensityWidget* intensity() const { return m_window->findChild<CVKIntensityWidget*>(); }
    QWidget* page() const { return m_window->findChild<QStackedWidget*>("pages")->currentWidget(); }
    ImagePage* imagePage() const { return m_window->findChild<ImagePage*>(); }
    GalleryPage* gallery() const { return m_window->findChild<GalleryPage*>(); }
    QListView* galleryView() const { return m_window->findChild<QListView*>("galleryView"); }
    QPushButton* returnButton() const { return intensity()->findChild<QPushButton*>("Return"); }
    QString status(const char* name) const { return m_window->findChild<QLabel*>(name)->text(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_folder;
    std::unique_ptr<ViewerWindow> m_window;
};

void TestViewerWindow::write(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void TestViewerWindow::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.debug=false");
    QString problem;
    QVERIFY(writeRawFrame(path("lamp.raw"), lampSpectrum(), &problem));
    QVERIFY(writeRawFrame(path("rings.raw"), ringCounts(), &problem));
    RawHeader header;
    header.height = 100;
    header.channels = 1;
    header.bytesPerChannel = 2;
    write("empty.raw", encodedRawHeader(header));
    header.width = 40000;
    header.height = 50000;
    write("claims.raw", encodedRawHeader(header)); // 4 GB that are not there
    write("fake.raw", QByteArray(3000, 'x'));
    write("fake.png", "hello");
}

void TestViewerWindow::init()
{
    m_window = std::make_unique<ViewerWindow>();
    m_window->resize(1000, 700);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestViewerWindow::cleanup()
{
    m_window.reset();
    QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void TestViewerWindow::startsOnTheWelcomePage()
{
    QVERIFY(qobject_cast<WelcomePage*>(page()));
    QCOMPARE(m_window->windowTitle(), QString("VKIntensity Viewer"));
    QCOMPARE(status("statusFileName"), QString("No image"));
    QVERIFY(m_window->problem().isEmpty());
    QVERIFY(intensity());
    QVERIFY(!intensity()->isVisible());
}

void TestViewerWindow::open_showsTheImage()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QCOMPARE(page(), imagePage());
    QVERIFY(intensity()->isVisible());
    QVERIFY(m_window->problem().isEmpty());
    QCOMPARE(m_window->windowTitle(), QString("lamp.raw - VKIntensity Viewer"));
    QCOMPARE(status("statusFileName"), QDir::toNativeSeparators(path("lamp.raw")));
    QCOMPARE(status("statusImageSize"), QString::fromUtf8("1024 × 256 pixels   16 bit"));
}

void TestViewerWindow::open_fillsTheWindow()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QCOMPARE(intensity()->width(), 1000);
    const int bars = m_window->menuBar()->height() + m_window->statusBar()->height();
    QCOMPARE(intensity()->height(), 700 - bars);
    QVERIFY(!intensity()->isWindow());
}

void TestViewerWindow::open_aProblemNamesFileAndReason()
{
    QVERIFY(!m_window->openFile(path("fake.raw")));
    auto* problemPage = qobject_cast<LoadProblemPage*>(page());
    QVERIFY(problemPage);
    QCOMPARE(problemPage->fileName(), QString("fake.raw"));
    QCOMPARE(problemPage->reason(),
        QString("The file cannot be read as a raw camera file: it is damaged, or of another kind "
                "than its suffix says."));
    QCOMPARE(m_window->problem(), problemPage->reason());
    QCOMPARE(m_window->windowTitle(), QString("fake.raw - VKIntensity Viewer"));
    QVERIFY(status("statusImageSize").isEmpty());
}

void TestViewerWindow::open_theOldPictureNeverStays()
{
    for (const char* name : { "gone.png", "fake.raw", "fake.png", "empty.raw", "claims.raw" }) {
        ViewerWindow fresh;
        fresh.resize(m_window->size());
        fresh.show();
        QVERIFY(!fresh.openFile(path(name)));
        const QImage withoutPicture = pictureOf(&fresh);
        QVERIFY(m_window->openFile(path("lamp.raw")));
        QVERIFY(!m_window->openFile(path(name)));
        QVERIFY(!intensity()->isVisible());
        // Nothing of the picture before shows through: the same page as without one.
        QCOMPARE(pictureOf(m_window.get()), withoutPicture);
    }
}

void TestViewerWindow::open_aGoodFileAfterAProblem()
{
    QVERIFY(m_window->openFile(path("rings.raw")));
    const QImage direct = pictureOf(page());
    QVERIFY(!m_window->openFile(path("fake.png")));
    QVERIFY(m_window->openFile(path("rings.raw")));
    QCOMPARE(page(), imagePage());
    QVERIFY(m_window->problem().isEmpty());
    QCOMPARE(pictureOf(page()), direct);
}

void TestViewerWindow::open_anEmptyRawFileSaysSo()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QVERIFY(!m_window->openFile(path("empty.raw")));
    QCOMPARE(m_window->problem(), QString("The image holds no pixels."));
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QCOMPARE(page(), imagePage());
}

void TestViewerWindow::open_afterTheWidgetWasClosed()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    const QPointer<CVKIntensityWidget> before = intensity();
    QVERIFY(before->close()); // deletes itself
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(before.isNull());
    m_window->closeFile();
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QCOMPARE(page(), imagePage());
}

void TestViewerWindow::open_hostileNames()
{
    for (const QString& name :
        { QString(), QString("/"), QString("."), QString("a\nb.png"), QString(5000, 'x') + ".raw",
            QString("<b>bold</b>.png"), QString::fromUtf8("\u202E.raw") }) {
        QVERIFY(!m_window->openFile(name));
        QVERIFY(qobject_cast<LoadProblemPage*>(page()));
        QVERIFY(!m_window->problem().isEmpty());
        QVERIFY(!m_window->windowTitle().contains('\n'));
        m_window->grab();
    }
    QCOMPARE(m_window->size(), QSize(1000, 700));
}

void TestViewerWindow::close_goesBackToTheGallery()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(page(), gallery());
    QCOMPARE(gallery()->currentPath(), path("lamp.raw"));
    QVERIFY(!m_window->openFile(path("fake.raw"))); // a problem is closed in the same way
    m_window->closeFile();
    QCOMPARE(page(), gallery());
    QVERIFY(m_window->problem().isEmpty());
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier); // and the gallery after it
    QVERIFY(qobject_cast<WelcomePage*>(page()));
    QVERIFY(!gallery()->isLoading());
    QCOMPARE(m_window->windowTitle(), QString("VKIntensity Viewer"));
    QCOMPARE(status("statusFileName"), QString("No image"));
    m_window->closeFile(); // without an image nothing happens
    QVERIFY(qobject_cast<WelcomePage*>(page()));
    QVERIFY(m_window->openFile(path("lamp.raw")));
}

void TestViewerWindow::close_withoutAGalleryGoesBackToTheWelcomePage()
{
    QVERIFY(!m_window->openFile(path("no such folder/a.png")));
    m_window->closeFile();
    QVERIFY(qobject_cast<WelcomePage*>(page()));
}

void TestViewerWindow::returnButton_showsTheGallery()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QTest::mouseClick(returnButton(), Qt::LeftButton);
    QCOMPARE(page(), gallery());
    QCOMPARE(gallery()->folder(), m_folder.path());
    QCOMPARE(gallery()->currentPath(), path("lamp.raw"));
    QVERIFY(galleryView()->hasFocus());
    QVERIFY(!returnButton()->isChecked());
    QVERIFY(m_window->openFile(path("rings.raw"))); // and again, with another file
    QTest::mouseClick(returnButton(), Qt::LeftButton);
    QCOMPARE(gallery()->currentPath(), path("rings.raw"));
    QVERIFY(!returnButton()->isChecked());
}

void TestViewerWindow::gallerySlot_withoutAFile()
{
    QVERIFY(QMetaObject::invokeMethod(imagePage(), "sltSwitchToGallery"));
    QVERIFY(qobject_cast<WelcomePage*>(page()));
}

void TestViewerWindow::gallery_isNamed()
{
    m_window->showGallery(m_folder.path());
    const QString name = QDir(m_folder.path()).dirName();
    QCOMPARE(m_window->windowTitle(), name + " - VKIntensity Viewer");
    QCOMPARE(status("statusFileName"), QDir::toNativeSeparators(m_folder.path()));
    QVERIFY(status("statusImageSize").isEmpty());
    QVERIFY(m_window->problem().isEmpty());
    QVERIFY(m_window->isGalleryLoading());
    QTRY_VERIFY(!m_window->isGalleryLoading());
}

void TestViewerWindow::gallery_opensADoubleClickedImage()
{
    m_window->showGallery(m_folder.path());
    const int row = galleryView()->model()->rowCount() - 1;
    const QModelIndex last = galleryView()->model()->index(row, 0);
    QCOMPARE(last.data().toString(), QString("rings.raw"));
    const QPoint centre = galleryView()->visualRect(last).center();
    QTest::mouseClick(galleryView()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(page(), gallery());
    QTest::mouseDClick(galleryView()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(page(), imagePage());
    QCOMPARE(m_window->windowTitle(), QString("rings.raw - VKIntensity Viewer"));
}

void TestViewerWindow::gallery_opensWithEnter()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    const QImage direct = pictureOf(page());
    QTest::mouseClick(returnButton(), Qt::LeftButton);
    QTest::keyClick(galleryView(), Qt::Key_Return);
    QCOMPARE(page(), imagePage());
    QCOMPARE(pictureOf(page()), direct); // everything stands as after the first time
}

void TestViewerWindow::gallery_ofAnUnreadableImageNamesTheProblem()
{
    QVERIFY(!m_window->openFile(path("fake.png")));
    QTest::keyClick(m_window.get(), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(page(), gallery());
    QTest::keyClick(galleryView(), Qt::Key_Return);
    QVERIFY(qobject_cast<LoadProblemPage*>(page()));
    QCOMPARE(m_window->windowTitle(), QString("fake.png - VKIntensity Viewer"));
}

void TestViewerWindow::gallery_crossesOutWhatIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("shown");
    const auto samples = [](auto a, auto b) {
        return QByteArray(reinterpret_cast<const char*>(&a), sizeof a)
            + QByteArray(reinterpret_cast<const char*>(&b), sizeof b);
    };
    QTest::newRow("signed") << "a.tif" << grayTiff(16, 2, samples(qint16(1), qint16(7))) << true;
    QTest::newRow("signed, one is negative")
        << "a.tif" << grayTiff(16, 2, samples(qint16(-1), qint16(7))) << false;
    QTest::newRow("floating-point") << "a.tif" << grayTiff(32, 3, samples(1.0f, 7.0f)) << true;
    QTest::newRow("floating-point, one is a fraction")
        << "a.tif" << grayTiff(32, 3, samples(0.5f, 7.0f)) << false;
    QTest::newRow("turned by a quarter")
        << "a.tif" << grayTiff(16, 1, samples(quint16(1), quint16(7)), 6) << true;
    QTest::newRow("6 bits a sample") << "a.tif" << grayTiff(6, 1, QByteArray(2, 'x')) << false;
    QTest::newRow("rows from the top") << "a.bmp" << topDownBmp() << true;
    QTest::newRow("no JPEG") << "a.jpg" << QByteArray("\xff\xd8\xff") << false;
    QTest::newRow("raw without pixels") << "a.raw" << encodedRawHeader(RawHeader()) << false;
}

/// What the gallery promises is what opening the file brings.
void TestViewerWindow::gallery_crossesOutWhatIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, shown);
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    m_window->showGallery(folder.path());
    QTRY_VERIFY(!m_window->isGalleryLoading());
    const QModelIndex tile = galleryView()->model()->index(0, 0);
    const auto state = GalleryModel::State(tile.data(GalleryModel::StateRole).toInt());
    QCOMPARE(state, shown ? GalleryModel::State::Ready : GalleryModel::State::Refused);
    QCOMPARE(m_window->openFile(file.fileName()), shown);
}

void TestViewerWindow::gallery_stopsWithTheWindow()
{
    m_window->showGallery(m_folder.path());
    QVERIFY(m_window->isGalleryLoading());
    m_window->close();
    QVERIFY(!m_window->isGalleryLoading());
}

void TestViewerWindow::escape_staysInTheImage()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(page(), imagePage());
}

void TestViewerWindow::wheel_overABoxScrollsThePanel()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    auto* box = intensity()->findChild<QComboBox*>("comboBoxType");
    const auto* bar = intensity()->findChild<QScrollBar*>("bar_ModuleWidget");
    QVERIFY(bar->maximum() > 0);
    const QPoint position = box->rect().center();
    QWheelEvent down(position, box->mapToGlobal(position), QPoint(), QPoint(0, -120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&down); // Qt hands no other wheel event on to parents
    qApp->notify(box, &down);
    QCOMPARE(box->currentIndex(), 0);
    QVERIFY(bar->value() > 0);
}

void TestViewerWindow::path_ofAFolderShowsTheGallery()
{
    QVERIFY(m_window->openPath(m_folder.path()));
    QCOMPARE(page(), gallery());
    QVERIFY(m_window->openPath(path("lamp.raw")));
    QCOMPARE(page(), imagePage());
    QVERIFY(!m_window->openPath(path("gone")));
    QVERIFY(qobject_cast<LoadProblemPage*>(page()));
    QVERIFY(!m_window->openPath(QString()));
    QVERIFY(qobject_cast<LoadProblemPage*>(page()));
}

void TestViewerWindow::menuGallery_asksForAFolderFirst()
{
    bool asked = false;
    QTimer::singleShot(0, this, [&asked] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        asked = true;
        dialog->reject();
    });
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTest::keyClick(m_window.get(), Qt::Key_G, Qt::ControlModifier);
    QVERIFY(asked);
    QVERIFY(qobject_cast<WelcomePage*>(page()));
}

void TestViewerWindow::dialog_opensTheChosenFile()
{
    QTimer::singleShot(0, this, [this] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->findChild<QLineEdit*>()->setText(path("lamp.raw"));
        static_cast<QDialog*>(dialog)->accept();
    });
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTest::mouseClick(page()->findChild<QPushButton*>("pageOpenButton"), Qt::LeftButton);
    QTRY_COMPARE(page(), imagePage());
}

void TestViewerWindow::dialog_opensTheChosenFolder()
{
    const QTemporaryDir empty;
    m_window->showGallery(empty.path());
    bool onlyFolders = false;
    QTimer::singleShot(0, this, [this, &onlyFolders] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        onlyFolders = dialog->testOption(QFileDialog::ShowDirsOnly);
        dialog->findChild<QLineEdit*>()->setText(m_folder.path());
        static_cast<QDialog*>(dialog)->accept();
    });
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTest::mouseClick(page()->findChild<QPushButton*>("pageFolderButton"), Qt::LeftButton);
    QVERIFY(onlyFolders);
    QTRY_COMPARE(gallery()->folder(), m_folder.path());
    QVERIFY(galleryView()->isVisible());
}

void TestViewerWindow::drag_ofAFileIsTaken()
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(path("lamp.raw")) });
    const auto isTaken = [&](Qt::DropActions possible) {
        QDragEnterEvent enter(QPoint(500, 300), possible, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(m_window.get(), &enter);
        return enter.isAccepted() && enter.dropAction() == Qt::CopyAction;
    };
    QVERIFY(isTaken(Qt::CopyAction));
    QVERIFY(isTaken(Qt::CopyAction | Qt::MoveAction)); // as a copy: the source keeps its file
    QVERIFY(!isTaken(Qt::MoveAction));
    data.setUrls({ QUrl("https://example.org/a.png") });
    QVERIFY(!isTaken(Qt::CopyAction));
}

void TestViewerWindow::drop_opensTheFile()
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(path("lamp.raw")) });
    dropOnto(m_window.get(), data);
    QTRY_COMPARE(page(), imagePage());
    QCOMPARE(m_window->windowTitle(), QString("lamp.raw - VKIntensity Viewer"));
}

void TestViewerWindow::drop_ofAFolderShowsTheGallery()
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(m_folder.path()) });
    dropOnto(m_window.get(), data);
    QTRY_COMPARE(page(), gallery());
    QCOMPARE(gallery()->folder(), m_folder.path());
}

void TestViewerWindow::drop_onTheCanvasReachesTheWindow()
{
    QVERIFY(m_window->openFile(path("lamp.raw")));
    for (const QWidget* child : intensity()->findChildren<QWidget*>()) {
        QVERIFY2(!child->acceptDrops(), child->metaObject()->className());
    }
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(path("rings.raw")) });
    QWidget* canvas = m_window->childAt(700, 350);
    QVERIFY(intensity()->isAncestorOf(canvas));
    dropOnto(canvas, data);
    QTRY_COMPARE(m_window->windowTitle(), QString("rings.raw - VKIntensity Viewer"));
}

void TestViewerWindow::longNames_doNotWidenTheWindow()
{
    m_window->resize(m_window->minimumSize());
    QVERIFY(!m_window->openFile(path(QString(200, 'w') + ".png")));
    QCoreApplication::processEvents();
    QCOMPARE(m_window->size(), m_window->minimumSize());
    QVERIFY(page()->minimumSizeHint().width() <= page()->width());
}

void TestViewerWindow::minimumSize_holdsColumnAndCanvas()
{
    QCOMPARE(m_window->minimumSize(), QSize(640, 480)); // 290 + 350 at 96 dots per inch
    m_window->resize(10, 10);
    QVERIFY(m_window->openFile(path("lamp.raw")));
    QCOMPARE(m_window->size(), QSize(640, 480));
}

void TestViewerWindow::topDownBmp_hasASmallPicture()
{
    QFile file(path("top.bmp"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(topDownBmp()) > 0);
    file.close();
    const QImage picture = CVKIntensityWidget::preview(file.fileName(), QSize(160, 120));
    QVERIFY(file.remove()); // the other tests know what is in the folder
    QCOMPARE(picture.size(), QSize(4, 2));
    QVERIFY(qGray(picture.pixel(0, 0)) < qGray(picture.pixel(0, 1))); // not turned over
}

QTEST_MAIN(TestViewerWindow)
#include "tst_viewerwindow.moc"
