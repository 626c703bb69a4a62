#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

/// What the documents promise about files: links lead somewhere, every page can be reached, and
/// code that also stands as a file is the same in both places.
class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linksInText();
    void links_leadToFiles_data();
    void links_leadToFiles();
    void pages_areReachable();
    void rawWriter_isShownAsItIs();
    void skinImages_areThoseThatAreLoaded();
    void loadProblems_areAllExplained();
};

namespace {

const QString root = QStringLiteral(VKINTENSITY_SOURCE_DIR);

QString content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList documents()
{
    QStringList paths { root + "/README.md", root + "/ARCHITECTURE.md" };
    const QFileInfoList pages = QDir(root + "/docs").entryInfoList({ "*.md" }, QDir::Files);
    for (const QFileInfo& page : pages) {
        paths << page.filePath();
    }
    return paths;
}

/// Targets of the links and images in Markdown text. Code is left out: brackets there are no links.
QStringList linkTargets(QString text)
{
    static const QRegularExpression fenced("^```.*?^```$",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression inlineCode("`[^`\n]*`");
    static const QRegularExpression link("\\]\\(([^)\\s]+)\\)");
    text.remove(fenced);
    text.remove(inlineCode);
    QStringList targets;
    QRegularExpressionMatchIterator matches = link.globalMatch(text);
    while (matches.hasNext()) {
        targets << matches.next().captured(1);
    }
    return targets;
}

/// The file that `target` names in the document `path`; empty for another server's page.
QString linkedFile(const QString& path, const QString& target)
{
    if (target.contains("://")) {
        return QString();
    }
    const QString file = target.section('#', 0, 0);
    return file.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).dir().filePath(file));
}

/// What `pattern` captures in `text`; ^ stands for the start of each line.
QSet<QString> captures(const QString& text, const QString& pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QSet<QString> found;
    QRegularExpressionMatchIterator matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        found << matches.next().captured(1);
    }
    return found;
}

} // namespace

void TestDocuments::linksInText()
{
    QCOMPARE(
        linkTargets("[a](b.md) and ![c](images/d.png)\n`[e](f)`\n```cpp\n[g](h)\n```\n[i](j.md#k)"),
        QStringList({ "b.md", "images/d.png", "j.md#k" }));
    QCOMPARE(linkedFile("/x/docs/a.md", "../b.md#part"), QString("/x/b.md"));
    QCOMPARE(linkedFile("/x/docs/a.md", "#part"), QString("/x/docs/a.md"));
    QCOMPARE(linkedFile("/x/docs/a.md", "https://example.org/b"), QString());
}

void TestDocuments::links_leadToFiles_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& path : documents()) {
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }
}

void TestDocuments::links_leadToFiles()
{
    QFETCH(QString, path);
    const QString text = content(path);
    QVERIFY(!text.isEmpty());
    for (const QString& target : linkTargets(text)) {
        const QString file = linkedFile(path, target);
        QVERIFY2(file.isEmpty() || QFileInfo::exists(file), qPrintable(target));
    }
}

void TestDocuments::pages_areReachable()
{
    QSet<QString> linked;
    for (const QString& path : { root + "/README.md", root + "/docs/index.md" }) {
        for (const QString& target : linkTargets(content(path))) {
            linked << linkedFile(path, target);
        }
    }
    for (const QString& path : documents()) {
        const bool isStart = path == root + "/README.md";
        QVERIFY2(isStart || linked.contains(path), qPrintable(path));
    }
}

void TestDocuments::rawWriter_isShownAsItIs()
{
    const QString source = content(root + "/examples/rawwriter/main.cpp");
    QVERIFY(!source.isEmpty());
    QVERIFY(content(root + "/docs/raw-format.md").contains("```cpp\n" + source + "```\n"));
}

void TestDocuments::skinImages_areThoseThatAreLoaded()
{
    QSet<QString> loaded;
    QDirIterator sources(root + "/src", { "*.cpp" }, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        loaded += captures(content(sources.next()), "[\"(](:[^\"()]+\\.(?:png|jpg))[\")]");
    }
    QCOMPARE(loaded.size(), 15);
    QCOMPARE(captures(content(root + "/docs/embedding.md"), "\\| `(:[^`]+)`"), loaded);
}

void TestDocuments::loadProblems_areAllExplained()
{
    const QString header = content(root + "/src/widget/cvkintensitywidget.h");
    const QString problems = header.section("enum class LoadProblem {", 1).section("};", 0, 0);
    const QSet<QString> names = captures(problems, "^ *([A-Z][A-Za-z]+)");
    QVERIFY(names.size() > 5);
    const QString table = content(root + "/docs/embedding.md").section("| `LoadProblem` |", 1);
    QCOMPARE(captures(table.section("\n\n", 0, 0), "^\\| `([A-Za-z]+)` \\|"), names);
}

QTEST_GUILESS_MAIN(TestDocuments)
#include "tst_documents.moc"
