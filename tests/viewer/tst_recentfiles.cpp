#include "recentfiles.h"

#include <QtTest>

class TestRecentFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void latestComesFirst();
    void aFileIsListedOnce();
    void tenAreKept();
    void storedListIsTakenOver();
    void emptyNamesAreLeftOut();
    void removeAndClear();
    void menuTexts();
    void menuTexts_ofEqualNamesCarryTheFolder();
    void menuTexts_areShort();
    void menuTexts_outOfRange();
};

void TestRecentFiles::latestComesFirst()
{
    RecentFiles recent;
    recent.add("/a/1.raw");
    recent.add("/a/2.raw");
    QCOMPARE(recent.paths(), (QStringList { "/a/2.raw", "/a/1.raw" }));
}

void TestRecentFiles::aFileIsListedOnce()
{
    RecentFiles recent({ "/a/1.raw", "/a/2.raw", "/a/3.raw" });
    recent.add("/a/3.raw");
    QCOMPARE(recent.paths(), (QStringList { "/a/3.raw", "/a/1.raw", "/a/2.raw" }));
}

void TestRecentFiles::tenAreKept()
{
    RecentFiles recent;
    for (int i = 1; i <= 12; ++i) {
        recent.add(QString("/a/%1.raw").arg(i));
    }
    QCOMPARE(recent.paths().size(), 10);
    QCOMPARE(recent.paths().first(), QString("/a/12.raw"));
    QCOMPARE(recent.paths().last(), QString("/a/3.raw"));
}

void TestRecentFiles::storedListIsTakenOver()
{
    const QStringList stored { "/a/1.raw", "/a/2.raw", "/a/1.raw" };
    QCOMPARE(RecentFiles(stored).paths(), (QStringList { "/a/1.raw", "/a/2.raw" }));
}

void TestRecentFiles::emptyNamesAreLeftOut()
{
    QCOMPARE(RecentFiles({ "", "/a/1.raw" }).paths(), QStringList("/a/1.raw"));
}

void TestRecentFiles::removeAndClear()
{
    RecentFiles recent({ "/a/1.raw", "/a/2.raw", "/a/3.raw" });
    recent.remove("/a/2.raw");
    recent.remove("/a/unknown.raw");
    QCOMPARE(recent.paths(), (QStringList { "/a/1.raw", "/a/3.raw" }));
    recent.clear();
    QVERIFY(recent.paths().isEmpty());
}

void TestRecentFiles::menuTexts()
{
    QStringList paths;
    for (int i = 1; i <= 10; ++i) {
        paths << QString("/a/%1.raw").arg(i);
    }
    paths[1] = "/a/salt & pepper.raw";
    const RecentFiles recent(paths);
    QCOMPARE(recent.menuText(0), QString("&1  1.raw"));
    QCOMPARE(recent.menuText(1), QString("&2  salt && pepper.raw"));
    QCOMPARE(recent.menuText(8), QString("&9  9.raw"));
    QCOMPARE(recent.menuText(9), QString("10.raw")); // no key for a tenth
}

void TestRecentFiles::menuTexts_ofEqualNamesCarryTheFolder()
{
    const RecentFiles recent({ "/a/1.raw", "/b/1.raw", "/b/2.raw" });
    QCOMPARE(recent.menuText(0), QString("&1  1.raw - ") + QDir::toNativeSeparators("/a"));
    QCOMPARE(recent.menuText(1), QString("&2  1.raw - ") + QDir::toNativeSeparators("/b"));
    QCOMPARE(recent.menuText(2), QString("&3  2.raw"));
}

void TestRecentFiles::menuTexts_areShort()
{
    const RecentFiles recent({ "/a/" + QString(200, 'x') + "\n.raw" });
    const QString text = recent.menuText(0);
    QCOMPARE(text.size(), 4 + 30 + 3 + 30); // the line feed is among the last 30
    QVERIFY(!text.contains('\n'));
    QVERIFY(text.endsWith(".raw"));
}

void TestRecentFiles::menuTexts_outOfRange()
{
    QCOMPARE(RecentFiles().menuText(0), QString("&1  "));
}

QTEST_GUILESS_MAIN(TestRecentFiles)
#include "tst_recentfiles.moc"
