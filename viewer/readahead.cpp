#include "readahead.h"

#include <QFile>
#include <QFileInfo>

#include <vector>

namespace {

constexpr qint64 pieceSize = qint64(1) << 20;

/// Reads one piece and leaves the file closed. 0 or less at its end and on failure.
qint64 readPiece(const QString& path, qint64 offset, std::vector<char>* piece)
{
    QFile file(path);
    const bool isFile = QFileInfo(path).isFile(); // another may stand in its place by now
    if (!isFile || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(offset)) {
        return 0;
    }
    return file.read(piece->data(), pieceSize);
}

} // namespace

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

qint64 readEarly(const QString& path, const std::function<bool()>& goesOn, qint64 limit)
{
    const qint64 size = QFileInfo(path).size();
    if (size > limit) {
        return 0;
    }
    std::vector<char> piece(size_t { pieceSize });
    qint64 done = 0;
    while (done < size && goesOn()) { // a file that grows meanwhile is not run after
        const qint64 count = readPiece(path, done, &piece);
        if (count <= 0) {
            break;
        }
        done += count;
    }
    return done;
}
