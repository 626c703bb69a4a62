#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <cstdio>

// Run by the build: turns pages of the documentation from Markdown into HTML for the viewer, and
// puts the pictures that they show beside them.

namespace {

int fail(const QString& message)
{
    std::fprintf(stderr, "vkguide: %s\n", qUtf8Printable(message));
    return 1;
}

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool write(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(bytes) == bytes.size() && file.commit();
}

/// The pictures of a page, as it names them.
QStringList pictures(const QString& markdown)
{
    static const QRegularExpression picture(R"(!\[[^\]]*\]\(([^)]+)\))");
    QStringList names;
    for (auto found = picture.globalMatch(markdown); found.hasNext();) {
        names << found.next().captured(1);
    }
    return names;
}

/// Distances, fonts and colors are left to the reader's window; what is bold stays bold. Links lead
/// from page to page.
QString htmlOf(const QString& markdown)
{
    QTextDocument document;
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor(block).setBlockCharFormat(QTextCharFormat()); // else Qt 5 makes all of it bold
    }
    static const QRegularExpression style(
        R"rx((<(?:body|p|h[1-6]|[uo]l|li|pre))(?: style="[^"]*")+)rx");
    static const QRegularExpression font(R"( *(font-(family|size)|color|text-decoration):[^;"]*;)");
    static const QRegularExpression page(R"rx(href="([^":/]+)\.md")rx");
    return document.toHtml()
        .replace(style, R"(\1)")
        .remove(font)
        .replace(page, R"(href="\1.html")");
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a build needs no display
    const QGuiApplication application(argc, argv); // documents look at fonts
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3) {
        return fail("DIR PAGE.md...");
    }
    const QDir folder(arguments.at(1));
    for (const QString& path : arguments.mid(2)) {
        const QFileInfo page(path);
        const QString markdown = readText(path);
        if (markdown.isEmpty()) {
            return fail(path + ": cannot be read");
        }
        for (const QString& name : pictures(markdown)) {
            QFile picture(page.dir().filePath(name));
            if (!picture.open(QIODevice::ReadOnly)
                || !write(folder.filePath(name), picture.readAll())) {
                return fail(picture.fileName() + ": cannot be copied");
            }
        }
        if (!write(folder.filePath(page.completeBaseName() + ".html"), htmlOf(markdown).toUtf8())) {
            return fail(folder.path() + ": cannot be written");
        }
    }
    return 0;
}
