#include "sessionstore.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestSessionStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsNothingBeforeItIsOpened();
    void nothingIsStoredYet();
    void findsAgainWhatWasStored();
    void keptSettings_areOnAtFirst();
    void recentFiles_areStoredAtOnce();
    void recentFiles_ofAnotherWindowStay();
    void recentFiles_areCleared();
    void strangeSettings_areLeftOut();

private:
    QString fileName() const { return m_folder->filePath("settings.ini"); }
    std::unique_ptr<QSettings> settings() const
    {
        return std::make_unique<QSettings>(fileName(), QSettings::IniFormat);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSessionStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestSessionStore::keepsNothingBeforeItIsOpened()
{
    SessionStore store;
    store.store("place", "/a");
    QVERIFY(store.geometry().isEmpty());
    QVERIFY(store.folder().isEmpty());
    store.addRecentFile("/a/1.raw");
    store.addRecentFile("/a/2.raw");
    QCOMPARE(store.recentFiles().paths(), (QStringList { "/a/2.raw", "/a/1.raw" }));
    store.removeRecentFile("/a/2.raw");
    QCOMPARE(store.recentFiles().paths(), QStringList("/a/1.raw"));
    store.clearRecentFiles();
    QVERIFY(store.recentFiles().paths().isEmpty());
}

void TestSessionStore::nothingIsStoredYet()
{
    SessionStore store;
    store.open(settings());
    QVERIFY(store.geometry().isEmpty());
    QVERIFY(store.folder().isEmpty());
    QVERIFY(store.recentFiles().paths().isEmpty());
}

void TestSessionStore::findsAgainWhatWasStored()
{
    const QString folder = QString::fromUtf8("/Größe/光谱, 2");
    {
        SessionStore store;
        store.open(settings());
        store.store(QByteArray("\x01\0\xff", 3), folder);
        store.addRecentFile(folder + "/1.raw");
    }
    SessionStore store;
    store.open(settings());
    QCOMPARE(store.geometry(), QByteArray("\x01\0\xff", 3));
    QCOMPARE(store.folder(), folder);
    QCOMPARE(store.recentFiles().paths(), QStringList(folder + "/1.raw"));
}

void TestSessionStore::keptSettings_areOnAtFirst()
{
    SessionStore store;
    QVERIFY(store.areSettingsKept());
    store.storeSettingsKept(false); // nowhere
    QVERIFY(store.areSettingsKept());
    store.open(settings());
    QVERIFY(store.areSettingsKept());
    store.storeSettingsKept(false);
    QVERIFY(!store.areSettingsKept());
    SessionStore next;
    next.open(settings());
    QVERIFY(!next.areSettingsKept());
    next.storeSettingsKept(true);
    QVERIFY(next.areSettingsKept());
}

/// A program that is killed loses none.
void TestSessionStore::recentFiles_areStoredAtOnce()
{
    SessionStore store;
    store.open(settings());
    store.addRecentFile("/a/1.raw");
    store.addRecentFile("/a/2.raw");
    QCOMPARE(
        settings()->value("files/recent").toStringList(), (QStringList { "/a/2.raw", "/a/1.raw" }));
    store.removeRecentFile("/a/2.raw");
    QCOMPARE(settings()->value("files/recent").toStringList(), QStringList("/a/1.raw"));
}

void TestSessionStore::recentFiles_ofAnotherWindowStay()
{
    SessionStore first;
    SessionStore second;
    first.open(settings());
    second.open(settings());
    first.addRecentFile("/a/1.raw");
    QVERIFY(second.recentFiles().paths().isEmpty());
    second.addRecentFile("/a/2.raw");
    QCOMPARE(second.recentFiles().paths(), (QStringList { "/a/2.raw", "/a/1.raw" }));
    first.removeRecentFile("/a/1.raw");
    QCOMPARE(first.recentFiles().paths(), QStringList("/a/2.raw"));
}

void TestSessionStore::recentFiles_areCleared()
{
    SessionStore store;
    store.open(settings());
    store.addRecentFile("/a/1.raw");
    store.clearRecentFiles();
    QVERIFY(store.recentFiles().paths().isEmpty());
    QVERIFY(settings()->value("files/recent").toStringList().isEmpty());
}

/// Edited by hand, or of another version.
void TestSessionStore::strangeSettings_areLeftOut()
{
    const auto stored = settings();
    stored->setValue("window/geometry", 7);
    stored->setValue("files/folder", QStringList { "/a", "/b" });
    stored->setValue("files/recent", QStringList { "", "/a/1.raw", "/a/1.raw" });
    stored->sync();
    SessionStore store;
    store.open(settings());
    QCOMPARE(store.geometry(), QByteArray("7")); // the window refuses it
    QVERIFY(store.folder().isEmpty());
    QCOMPARE(store.recentFiles().paths(), QStringList("/a/1.raw"));
}

QTEST_GUILESS_MAIN(TestSessionStore)
#include "tst_sessionstore.moc"
