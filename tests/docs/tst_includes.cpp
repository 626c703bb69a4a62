#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QtTest>

/// The tables of ARCHITECTURE.md say which folder may include which others; every #include of the
/// sources is compared with them.
class TestIncludes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFolderHasARow();
    void includesAreAllowed_data();
    void includesAreAllowed();
    void coreIsFreeOfPictures();
};

namespace {

const QString root = QStringLiteral(VKINTENSITY_SOURCE_DIR);

QString content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Folder, such as "src/panel/", to what its row lets it include: folders and single headers.
QHash<QString, QStringList> rules()
{
    static const QRegularExpression row(
        "^\\| `([a-z/]+/)` \\|.*\\| ([^|]*) \\|$", QRegularExpression::MultilineOption);
    static const QRegularExpression code("`([^`]+)`");
    QHash<QString, QStringList> rules;
    QRegularExpressionMatchIterator rows = row.globalMatch(content(root + "/ARCHITECTURE.md"));
    while (rows.hasNext()) {
        const QRegularExpressionMatch match = rows.next();
        QStringList allowed;
        QRegularExpressionMatchIterator names = code.globalMatch(match.captured(2));
        while (names.hasNext()) {
            allowed << names.next().captured(1);
        }
        rules[match.captured(1)] = allowed;
    }
    return rules;
}

/// The sources below a folder of the project, as paths from its root.
QStringList sourcesOf(const QString& folder)
{
    QStringList paths;
    QDirIterator files(
        root + "/" + folder, { "*.h", "*.cpp" }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths << files.next().mid(root.size() + 1);
    }
    return paths;
}

/// What a source includes in quotes and with a folder, and is a header of src/.
QStringList innerIncludes(const QString& path)
{
    static const QRegularExpression include(
        "^#include \"([a-z]+/[^\"]+)\"", QRegularExpression::MultilineOption);
    QStringList headers;
    QRegularExpressionMatchIterator matches = include.globalMatch(content(root + "/" + path));
    while (matches.hasNext()) {
        const QString header = matches.next().captured(1);
        if (QFile::exists(root + "/src/" + header)) {
            headers << header;
        }
    }
    return headers;
}

bool isAllowed(const QString& header, const QString& folder, const QStringList& allowed)
{
    if (("src/" + header).startsWith(folder)) {
        return true;
    }
    for (const QString& name : allowed) {
        if (header == name || (name.endsWith('/') && header.startsWith(name))) {
            return true;
        }
    }
    return false;
}

} // namespace

void TestIncludes::everyFolderHasARow()
{
    const QHash<QString, QStringList> table = rules();
    const QStringList inner = QDir(root + "/src").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(inner.size() >= 8);
    for (const QString& folder : inner) {
        QVERIFY2(table.contains("src/" + folder + "/"), qPrintable(folder));
    }
    const QStringList others { "cmake", "compat", "build", "scripts", "src", "tests" };
    for (const QString& folder : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QVERIFY2(others.contains(folder) || table.contains(folder + "/"), qPrintable(folder));
    }
}

void TestIncludes::includesAreAllowed_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString& folder : rules().keys()) {
        QTest::newRow(qPrintable(folder)) << folder;
    }
}

void TestIncludes::includesAreAllowed()
{
    QFETCH(QString, folder);
    const QStringList allowed = rules().value(folder);
    for (const QString& path : sourcesOf(folder)) {
        for (const QString& header : innerIncludes(path)) {
            QVERIFY2(isAllowed(header, folder, allowed), qPrintable(path + " includes " + header));
        }
    }
}

/// The compiler finds no header of QtGui in the core; this finds one that is named with its module.
void TestIncludes::coreIsFreeOfPictures()
{
    static const QRegularExpression module("#include <Qt(Gui|Widgets)");
    for (const char* folder : { "src/analysis", "src/base", "src/formats", "src/image" }) {
        const QStringList paths = sourcesOf(folder);
        QVERIFY(!paths.isEmpty());
        for (const QString& path : paths) {
            QVERIFY2(!module.match(content(root + "/" + path)).hasMatch(), qPrintable(path));
        }
    }
}

QTEST_GUILESS_MAIN(TestIncludes)

#include "tst_includes.moc"
