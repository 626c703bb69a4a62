#include "regionfile.h"

#include "support/nextdialog.h"
#include "viewerfixture.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>

using Regions = QVector<QRect>;

/// Region files, and what the window does with them, in an image of 65 x 48 pixels.
class TestRegionFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void saved_isReadAgain();
    void read_tellsWhatIsLeftOut();
    void unreadable_data();
    void unreadable();
    void tooLarge_isRefused();
    void aPipe_isRefused();

    void save_suggestsNameAndFolder();
    void save_writesBoxes();
    void save_thatCannotBeWritten();
    void load_replacesTheRegionsInOneStep();
    void load_tellsWhatIsLeftOut();
    void load_thatFails_changesNothing();
    void load_cancelled_changesNothing();
    void load_ofManyRegions();
    void drop_loadsRegions();
    void drop_withoutAnImage();

private:
    QString written(const QString& name, const QByteArray& bytes) const;
    void press(const char* entry) const { m_viewer->action(entry)->trigger(); }
    void answerMessage();
    void drop(const QString& path) const;
    Regions regions() const { return m_viewer->intensity()->regions(); }

    std::unique_ptr<ViewerFixture> m_viewer;
    QStringList m_messages; // shown and closed
};

void TestRegionFile::initTestCase()
{
    ViewerFixture::setUpProgram();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestRegionFile::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    m_messages.clear();
}

void TestRegionFile::cleanup()
{
    m_viewer.reset();
}

QString TestRegionFile::written(const QString& name, const QByteArray& bytes) const
{
    QFile file(m_viewer->path(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

void TestRegionFile::answerMessage()
{
    withNextDialog<QMessageBox>(this, [this](QMessageBox* message) {
        m_messages << message->text();
        QTest::keyClick(message, Qt::Key_Return);
    });
}

void TestRegionFile::drop(const QString& path) const
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(path) });
    const QPoint place(300, 300);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_viewer->window.get(), &enter); // a drop comes after it alone
    QVERIFY(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_viewer->window.get(), &event);
    QVERIFY(event.isAccepted());
}

void TestRegionFile::saved_isReadAgain()
{
    const Regions regions { QRect(0, 0, 65, 48), QRect(64, 47, 1, 1), QRect(3, 4, 5, 6) };
    const QString path = m_viewer->path("all.reg");
    QCOMPARE(saveRegionFile(path, regions, 48), QString());
    const RegionFile file = readRegionFile(path, QSize(65, 48));
    QCOMPARE(file.regions, regions);
    QVERIFY(file.problem.isEmpty() && file.skipped.isEmpty());
    QVERIFY(hasRegionSuffix("a.reg") && hasRegionSuffix("A.REG"));
    QVERIFY(!hasRegionSuffix("reg") && !hasRegionSuffix("a.reg.png"));
}

/// y counts from the bottom row, from 1 at the middle of a pixel: 5 x 6 pixels from 3, 4 on are
/// around 6, 42 (48 - 4 - 6 / 2 + 0.5 = 41.5).
void TestRegionFile::read_tellsWhatIsLeftOut()
{
    const QByteArray text = "image\n"
                            "box(6,41.5,5,6,0)\n"
                            "circle(9,9,3)\n"
                            "ellipse(9,9,3,2,0)\n"
                            "box(9,9,3,2,30)\n"
                            "box(100,9,3,2,0)\n"
                            "box(9,)\n"
                            "fk5\n"
                            "box(9,9,3,2,0)\n";
    const RegionFile file = readRegionFile(written("mixed.reg", text), QSize(65, 48));
    QCOMPARE(file.regions, Regions { QRect(3, 4, 5, 6) });
    QVERIFY(file.problem.isEmpty());
    QCOMPARE(file.skipped,
        QString("shapes other than upright boxes (3), shapes in other than image coordinates (1), "
                "boxes not inside the image (1), lines that cannot be read (1)"));
}

void TestRegionFile::unreadable_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem"); // behind the name of the file
    const QString useless = "there is no region in it that can be used: ";
    QTest::newRow("empty") << QByteArray() << "there is no region in it";
    QTest::newRow("header alone") << QByteArray("# Region file format: DS9 version 4.1\nimage\n")
                                  << "there is no region in it";
    QTest::newRow("outside") << QByteArray("image\nbox(500,500,9,9,0)\n")
                             << useless + "boxes not inside the image (1)";
    QTest::newRow("infinite") << QByteArray("image\nbox(inf,nan,1e999,9,0)\n") << useless;
    QTest::newRow("beyond int") << QByteArray("image\nbox(9,9,4294967301,4294967302,0)\n")
                                << useless;
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << useless;
    QTest::newRow("zeros") << QByteArray(4096, '\0') << useless;
}

void TestRegionFile::unreadable()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    const QString path = written("useless.reg", text);
    const RegionFile file = readRegionFile(path, QSize(65, 48));
    QVERIFY(file.regions.isEmpty());
    QVERIFY2(file.problem.startsWith(path + ": " + problem), qPrintable(file.problem));
    QVERIFY(!file.problem.contains('\n'));
}

/// The limit is 16 MiB; a region on the first line makes no difference.
void TestRegionFile::tooLarge_isRefused()
{
    QFile file(written("large.reg", "image\nbox(6,41.5,5,6,0)\n#"));
    QVERIFY(file.resize(16 * 1024 * 1024 + 1));
    const RegionFile read = readRegionFile(file.fileName(), QSize(65, 48));
    QVERIFY(read.regions.isEmpty());
    QCOMPARE(read.problem, file.fileName() + ": cannot be read: it is larger than 16 MiB");
    QVERIFY(file.resize(24));
    QCOMPARE(readRegionFile(file.fileName(), QSize(65, 48)).regions.size(), 1);
}

void TestRegionFile::aPipe_isRefused()
{
    QCOMPARE(readRegionFile(m_viewer->folder.path(), QSize(65, 48)).problem,
        m_viewer->folder.path() + ": cannot be read: it is not a file");
#ifdef Q_OS_UNIX
    QCOMPARE(readRegionFile("/dev/zero", QSize(65, 48)).problem,
        QString("/dev/zero: cannot be read: it is not a file"));
#endif
}

void TestRegionFile::save_suggestsNameAndFolder()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(3, 4, 5, 6)));
    QString name;
    QString folder;
    withNextDialog<QFileDialog>(this, [&](QFileDialog* dialog) {
        name = dialog->findChild<QLineEdit*>()->text();
        folder = dialog->directory().path();
        dialog->reject();
    });
    press("actionSaveRegions");
    QCOMPARE(name, QString("frame 2.reg"));
    QCOMPARE(folder, m_viewer->folder.path());
    QVERIFY(!QFile::exists(m_viewer->path("frame 2.reg")));
}

/// An edge that a drag has left outside is cut off.
void TestRegionFile::save_writesBoxes()
{
    QVERIFY(m_viewer->intensity()->setRegions({ QRect(3, 4, 5, 6), QRect(0, 0, 65, 48) }));
    chooseNextFile(this, m_viewer->path("saved")); // the suffix comes by itself
    press("actionSaveRegions");
    const RegionFile file = readRegionFile(m_viewer->path("saved.reg"), QSize(65, 48));
    QCOMPARE(file.regions, (Regions { QRect(3, 4, 5, 6), QRect(0, 0, 65, 48) }));
    QVERIFY(m_messages.isEmpty());
    QVERIFY(m_viewer->action("actionUndo")->isEnabled()); // saving is no step
}

void TestRegionFile::save_thatCannotBeWritten()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(3, 4, 5, 6)));
    // A link into a folder that is not there: the dialog sees a name that is free.
    QVERIFY(QFile::link(m_viewer->path("no such folder/a.reg"), m_viewer->path("link.reg")));
    chooseNextFile(this, m_viewer->path("link.reg"));
    answerMessage();
    press("actionSaveRegions");
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(m_messages[0].startsWith(m_viewer->path("link.reg") + ": cannot be written: "));
}

void TestRegionFile::load_replacesTheRegionsInOneStep()
{
    const Regions before { QRect(0, 0, 2, 2) };
    QVERIFY(m_viewer->intensity()->setRegions(before));
    const Regions saved { QRect(3, 4, 5, 6), QRect(20, 20, 30, 20) };
    QCOMPARE(saveRegionFile(m_viewer->path("a.reg"), saved, 48), QString());
    chooseNextFile(this, m_viewer->path("a.reg"));
    press("actionLoadRegions");
    QCOMPARE(regions(), saved);
    QVERIFY(m_messages.isEmpty());
    QCOMPARE(m_viewer->action("actionUndo")->text(), QString("&Undo Load Regions"));
    press("actionUndo");
    QCOMPARE(regions(), before);
    press("actionRedo");
    QCOMPARE(regions(), saved);
}

void TestRegionFile::load_tellsWhatIsLeftOut()
{
    chooseNextFile(
        this, written("<b>half.reg", "image\nbox(6,41.5,5,6,0)\ncircle(9,9,3)\nbox(9,9,3,2,1)\n"));
    answerMessage();
    press("actionLoadRegions");
    QCOMPARE(regions(), Regions { QRect(3, 4, 5, 6) });
    QCOMPARE(m_messages,
        QStringList("Not all of <b>half.reg is loaded. Left out: shapes other than upright "
                    "boxes (2)."));
}

void TestRegionFile::load_thatFails_changesNothing()
{
    const Regions before { QRect(0, 0, 2, 2) };
    QVERIFY(m_viewer->intensity()->setRegions(before));
    const QString path = written("outside.reg", "image\nbox(500,500,9,9,0)\n");
    chooseNextFile(this, path);
    answerMessage();
    press("actionLoadRegions");
    QCOMPARE(m_messages,
        QStringList(
            path + ": there is no region in it that can be used: boxes not inside the image (1)"));
    QCOMPARE(regions(), before);
    QCOMPARE(m_viewer->action("actionUndo")->text(), QString("&Undo Add Region"));
}

void TestRegionFile::load_cancelled_changesNothing()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(0, 0, 2, 2)));
    withNextDialog<QFileDialog>(this, [](QFileDialog* dialog) { dialog->reject(); });
    press("actionLoadRegions");
    QCOMPARE(regions().size(), 1);
    QVERIFY(m_messages.isEmpty());
}

void TestRegionFile::load_ofManyRegions()
{
    QByteArray text = "image\n";
    for (int i = 0; i < 2000; ++i) {
        text += "box(6,41.5,5,6,0)\n";
    }
    drop(written("many.reg", text));
    QTRY_COMPARE(regions().size(), 2000);
    press("actionUndo");
    QVERIFY(regions().isEmpty());
}

void TestRegionFile::drop_loadsRegions()
{
    drop(written("dropped.REG", "image\nbox(6,41.5,5,6,0)\n"));
    QTRY_COMPARE(regions(), Regions { QRect(3, 4, 5, 6) });
    QCOMPARE(m_viewer->shownFile(), QString("frame 2.raw"));
    drop(m_viewer->path("frame 1.raw")); // an image is opened as ever
    QTRY_COMPARE(m_viewer->shownFile(), QString("frame 1.raw"));
}

/// There is nothing to mark: the page says that this is no image.
void TestRegionFile::drop_withoutAnImage()
{
    const QString path = written("dropped.reg", "image\nbox(6,41.5,5,6,0)\n");
    m_viewer->window->showGallery(m_viewer->folder.path());
    drop(path);
    QTRY_VERIFY(!m_viewer->window->problem().isEmpty());
    QVERIFY(regions().isEmpty());
}

QTEST_MAIN(TestRegionFile)
#include "tst_regionfile.moc"
