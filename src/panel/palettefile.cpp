#include "panel/palettefile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringView>
#include <QTextStream>

#include <new>

namespace {

constexpr int maxLines = 1000000;
constexpr qint64 maxCharacters = qint64(64) << 20;

/// Takes the part in front of the next space off `rest` and reads it as a number, 0 if it is none.
/// Two spaces in a row have an empty field between them.
int takeField(QStringView& rest)
{
    const auto space = rest.indexOf(QLatin1Char(' '));
    const QStringView field = space < 0 ? rest : rest.left(space);
    rest = space < 0 ? QStringView() : rest.mid(space + 1);
    return field.toInt();
}

QColor lineColor(const QString& line)
{
    QStringView rest(line);
    const int red = takeField(rest);
    const int green = takeField(rest);
    const int blue = takeField(rest);
    QColor color;
    color.setRgb(red, green, blue, 255);
    return color;
}

/// Appends a colour for each line of `file`, up to the limits.
void appendColors(QFile& file, QVector<QColor>& palette)
{
    QTextStream stream(&file);
    qint64 charactersLeft = maxCharacters;
    while (!stream.atEnd() && palette.size() < maxLines && charactersLeft > 0) {
        const QString line = stream.readLine(charactersLeft);
        charactersLeft -= line.size() + 1;
        palette.append(lineColor(line));
    }
}

} // namespace

QString paletteFilePath(const QString& directory, const QString& name)
{
    return directory + QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool readPaletteFile(const QString& path, QVector<QColor>& palette)
{
    if (!QFileInfo(path).isFile()) {
        return false; // opening a pipe would block for ever
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return false;
    }
    try {
        palette.resize(0); // keeps the capacity
        appendColors(file, palette);
    } catch (const std::bad_alloc&) {
        palette.clear(); // a line of many megabytes
        return false;
    }
    return true;
}
