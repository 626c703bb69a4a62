#include "userguide.h"

#include "appearance.h"
#include "support/nextdialog.h"
#include "viewermenu.h"

#include <QAction>
#include <QMainWindow>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QtTest>

#include <memory>

class TestUserGuide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void guideOfTheBuild_isComplete();
    void key_opensTheGuide();
    void escape_closesIt();
    void missingGuide_isSaid();
    void links_leadFromPageToPage();
    void links_leadNowhereElse_data();
    void links_leadNowhereElse();
    void pictures_fit();
    void pictures_fromElsewhere_areNotShown();

private:
    void writePage(const QString& name, const QString& html) const;
    GuideBrowser* browser() const { return m_window->findChild<GuideBrowser*>(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QMainWindow> m_window;
    UserGuide* m_guide = nullptr;
};

void TestUserGuide::initTestCase()
{
    initViewerResources();
    applyAppearance();
}

void TestUserGuide::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir("guide"));
    writePage("guide/user-guide.html", "<h1>First</h1>");
    writePage("guide/second.html", "<h1>Second</h1>");
    writePage("outside.html", "<h1>Outside</h1>");
    m_window = std::make_unique<QMainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_guide = new UserGuide(new ViewerMenu(m_window.get()), m_window.get());
    m_guide->setFolder(m_folder->filePath("guide"));
}

void TestUserGuide::writePage(const QString& name, const QString& html) const
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(html.toUtf8()) > 0);
}

void TestUserGuide::guideOfTheBuild_isComplete()
{
    GuideBrowser guide(VKVIEWER_GUIDE);
    QVERIFY(guide.showPage("user-guide.html"));
    const QString text = guide.toPlainText();
    for (const char* heading : { "User guide", "Regions of interest", "Gallery", "Keys" }) {
        QVERIFY2(text.contains(heading), heading);
    }
    int pictures = 0;
    QStringList links;
    for (QTextBlock block = guide.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isImageFormat()) {
                const QUrl picture(format.toImageFormat().name());
                QVERIFY2(!guide.loadResource(QTextDocument::ImageResource, picture)
                              .value<QImage>()
                              .isNull(),
                    qPrintable(picture.toString()));
                ++pictures;
            }
            links << (format.isAnchor() ? QStringList(format.anchorHref()) : QStringList());
        }
    }
    QCOMPARE(pictures, 4);
    QVERIFY(!links.isEmpty());
    for (const QString& link : links) {
        QVERIFY2(guide.showPage(link), qPrintable(link));
    }
}

void TestUserGuide::key_opensTheGuide()
{
    QVERIFY(!browser());
    QTest::keySequence(m_window.get(), QKeySequence("Shift+F1"));
    QVERIFY(browser() && browser()->isVisible() && browser()->isWindow());
    QCOMPARE(browser()->toPlainText(), QString("First"));
    const GuideBrowser* first = browser();
    m_window->findChild<QAction*>("actionUserGuide")->trigger(); // not a second one
    QCOMPARE(m_window->findChildren<GuideBrowser*>().size(), 1);
    QCOMPARE(browser(), first);
}

void TestUserGuide::escape_closesIt()
{
    m_window->findChild<QAction*>("actionUserGuide")->trigger();
    QTest::keyClick(browser(), Qt::Key_Escape);
    QTRY_VERIFY(!browser());
    m_window->findChild<QAction*>("actionUserGuide")->trigger();
    QVERIFY(browser()->isVisible());
}

void TestUserGuide::missingGuide_isSaid()
{
    m_guide->setFolder(m_folder->filePath("nowhere"));
    QString text;
    withNextDialog<QMessageBox>(this, [&text](QMessageBox* message) {
        text = message->text();
        message->close();
    });
    m_window->findChild<QAction*>("actionUserGuide")->trigger();
    QVERIFY2(text.contains("nowhere"), qPrintable(text));
    QVERIFY(!browser());
}

void TestUserGuide::links_leadFromPageToPage()
{
    GuideBrowser guide(m_folder->filePath("guide"));
    QVERIFY(guide.showPage("user-guide.html"));
    Q_EMIT guide.anchorClicked(QUrl("second.html"));
    QCOMPARE(guide.toPlainText(), QString("Second"));
    guide.backward();
    QCOMPARE(guide.toPlainText(), QString("First"));
}

void TestUserGuide::links_leadNowhereElse_data()
{
    QTest::addColumn<QString>("link");
    QTest::newRow("network") << "https://example.org/second.html";
    QTest::newRow("out of the folder") << "../outside.html";
    QTest::newRow("any file") << "file:///etc/hostname";
    QTest::newRow("missing page") << "third.html";
    QTest::newRow("the folder") << ".";
    QTest::newRow("program") << "javascript:alert(1)";
    QTest::newRow("link of the file system") << "link.html";
    QTest::newRow("nothing") << "";
}

void TestUserGuide::links_leadNowhereElse()
{
    QFETCH(QString, link);
    QFile::link(m_folder->filePath("outside.html"), m_folder->filePath("guide/link.html"));
    GuideBrowser guide(m_folder->filePath("guide"));
    QVERIFY(guide.showPage("user-guide.html"));
    Q_EMIT guide.anchorClicked(QUrl(link));
    QCOMPARE(guide.toPlainText(), QString("First"));
}

void TestUserGuide::pictures_fit()
{
    QImage picture(1600, 400, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(m_folder->filePath("guide/wide.png")));
    GuideBrowser guide(m_folder->filePath("guide"));
    QVERIFY(guide.showPage("user-guide.html"));
    const QVariant shown = guide.loadResource(QTextDocument::ImageResource, QUrl("wide.png"));
    QCOMPARE(shown.value<QImage>().size(), QSize(800, 200));
}

void TestUserGuide::pictures_fromElsewhere_areNotShown()
{
    QImage picture(16, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(m_folder->filePath("outside.png")));
    GuideBrowser guide(m_folder->filePath("guide"));
    QVERIFY(guide.showPage("user-guide.html"));
    for (const char* name : { "../outside.png", "http://example.org/a.png", "gone.png" }) {
        QVERIFY(!guide.loadResource(QTextDocument::ImageResource, QUrl(name)).isValid());
    }
}

QTEST_MAIN(TestUserGuide)
#include "tst_userguide.moc"
