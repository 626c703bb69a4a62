#include "gallerymodel.h"

#include "imagetexts.h"

namespace {

GalleryModel::State stateOf(const QImage& picture, CVKIntensityWidget::LoadProblem problem)
{
    if (!picture.isNull()) {
        return GalleryModel::State::Ready;
    }
    return problem == CVKIntensityWidget::LoadProblem::OverPixelLimit
        ? GalleryModel::State::TooLarge
        : GalleryModel::State::Refused;
}

} // namespace

GalleryModel::GalleryModel(qint64 byteLimit, QObject* parent)
    : QAbstractListModel(parent)
    , m_byteLimit(byteLimit)
{
}

/// The entry of a file, with its picture where that is still good.
GalleryModel::Entry GalleryModel::entryFor(const QFileInfo& file) const
{
    Entry entry;
    entry.path = file.absoluteFilePath();
    entry.name = file.fileName();
    entry.fileSize = file.size();
    entry.modified = file.lastModified();
    const int row = rowOf(entry.path);
    if (isRow(row)) {
        const Entry& before = m_entries.at(row);
        if (before.fileSize == entry.fileSize && before.modified == entry.modified) {
            return before;
        }
    }
    return entry;
}

void GalleryModel::setFiles(const QFileInfoList& files)
{
    beginResetModel();
    QVector<Entry> entries;
    entries.reserve(files.size());
    m_bytes = 0;
    for (const QFileInfo& file : files) {
        entries << entryFor(file);
        m_bytes += entries.last().picture.sizeInBytes();
    }
    m_entries = entries;
    m_rows.clear();
    for (int row = 0; row < m_entries.size(); ++row) {
        m_rows.insert(pathAt(row), row);
    }
    endResetModel();
}

QVector<ThumbnailRequest> GalleryModel::waiting() const
{
    QVector<ThumbnailRequest> requests;
    for (int row = 0; row < m_entries.size(); ++row) {
        if (m_entries.at(row).state == State::Waiting) {
            requests << ThumbnailRequest { row, pathAt(row) };
        }
    }
    return requests;
}

bool GalleryModel::setPicture(
    int row, const QImage& picture, CVKIntensityWidget::LoadProblem problem)
{
    if (!isRow(row)) {
        return false;
    }
    Entry& entry = m_entries[row];
    const qint64 bytes = m_bytes - entry.picture.sizeInBytes() + picture.sizeInBytes();
    if (bytes > m_byteLimit) {
        return false;
    }
    m_bytes = bytes;
    entry.picture = picture;
    entry.problem = problem;
    entry.state = stateOf(picture, problem);
    Q_EMIT dataChanged(index(row), index(row));
    return true;
}

QString GalleryModel::pathAt(int row) const
{
    return isRow(row) ? m_entries.at(row).path : QString();
}

int GalleryModel::rowOf(const QString& path) const
{
    return m_rows.value(path, -1);
}

int GalleryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

/// The name, and why there is no picture.
QString GalleryModel::toolTip(const Entry& entry) const
{
    QStringList lines { entry.name };
    if (entry.state == State::TooLarge) {
        lines << tr("Too large for a small picture; it can be opened.");
    } else if (entry.state == State::Refused) {
        lines << problemText(entry.path, entry.problem);
    }
    for (QString& line : lines) {
        line = line.toHtmlEscaped();
    }
    return lines.join("<br>");
}

QVariant GalleryModel::data(const QModelIndex& index, int role) const
{
    if (!isRow(index.row())) {
        return QVariant();
    }
    const Entry& entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole: return entry.name;
    case Qt::ToolTipRole: return toolTip(entry);
    case PathRole: return pathAt(index.row());
    case PictureRole: return entry.picture;
    case StateRole: return int(entry.state);
    }
    return QVariant();
}
