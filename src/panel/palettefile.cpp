#include "panel/palettefile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int maxLines = 1000000;
constexpr qint64 maxBytes = qint64(64) << 20;

QColor lineColor(QByteArray line)
{
    if (line.endsWith('\n')) {
        line.chop(1);
    }
    const QList<QByteArray> fields = line.split(' ');
    QColor color;
    color.setRgb(fields.value(0).toInt(), fields.value(1).toInt(), fields.value(2).toInt());
    return color;
}

} // namespace

void readPaletteFile(const QString& path, QVector<QColor>* palette)
{
    const QString native
        = QFileInfo::exists(path) ? path : QString(path).replace(QChar('\\'), QChar('/'));
    QFile file(native);
    // A pipe would block for ever.
    if (!QFileInfo(native).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return;
    }
    palette->clear();
    qint64 bytes = 0;
    while (!file.atEnd() && palette->size() < maxLines && bytes < maxBytes) {
        const QByteArray line = file.readLine(maxBytes - bytes + 1);
        if (line.isEmpty()) {
            return; // unreadable from here on
        }
        bytes += line.size();
        palette->append(lineColor(line));
    }
}
