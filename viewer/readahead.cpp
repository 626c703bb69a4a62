#include "readahead.h"

#include <QFile>
#include <QFileInfo>

#include <vector>

void readAhead(const QString& path, const std::function<void(int percent)>& progress)
{
    const QFileInfo info(path);
    const bool isLarge = info.size() > smallFileSize && info.size() <= largestImageFileSize;
    if (!info.isFile() || !isLarge) {
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return;
    }
    constexpr qint64 pieceSize = qint64(1) << 20;
    std::vector<char> piece(size_t { pieceSize });
    const qint64 size = info.size();
    qint64 done = 0;
    int shown = 0;
    while (done < size) { // a file that grows meanwhile is not run after
        const qint64 count = file.read(piece.data(), pieceSize);
        if (count <= 0) {
            return;
        }
        done += count;
        const int percent = int(qMin(double(done) / double(size), 1.0) * 100.0);
        if (percent > shown) {
            shown = percent;
            progress(percent);
        }
    }
}
