#pragma once

#include "thumbnailloader.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QFileInfo>
#include <QHash>

/// Most bytes of small pictures that are kept: 256 MiB, some thousands of colour ones.
constexpr qint64 galleryByteLimit = qint64(256) << 20;

/// The files of a gallery with their small pictures, as far as these have come.
class GalleryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class State {
        Waiting, ///< no picture yet
        Ready,
        TooLarge, ///< can be opened, but a picture would take too much memory
        Refused ///< is not shown when it is opened either
    };

    enum Role {
        PathRole = Qt::UserRole, ///< QString, absolute
        PictureRole, ///< QImage; null unless Ready
        StateRole ///< int, one of State
    };

    explicit GalleryModel(qint64 byteLimit = galleryByteLimit, QObject* parent = nullptr);

    /// Shows `files`. Pictures of files that were shown before stay as long as neither the file's
    /// length nor its date is another.
    void setFiles(const QFileInfoList& files);

    /// The rows whose picture has still to be made, rising.
    QVector<ThumbnailRequest> waiting() const;

    /// Takes the picture of a row, or the problem that there is instead. False, with nothing kept,
    /// when the row does not exist or no more bytes may be kept.
    bool setPicture(int row, const QImage& picture, CVKIntensityWidget::LoadProblem problem);

    QString pathAt(int row) const; ///< empty outside
    int rowOf(const QString& path) const; ///< -1 when it is not shown

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Entry
    {
        QString path;
        QString name;
        qint64 fileSize = 0; // as of setFiles(), as the date: a QFileInfo would look them up late
        QDateTime modified;
        QImage picture;
        CVKIntensityWidget::LoadProblem problem = CVKIntensityWidget::LoadProblem::None;
        State state = State::Waiting;
    };

    bool isRow(int row) const { return row >= 0 && row < m_entries.size(); }
    QString toolTip(const Entry& entry) const;
    Entry entryFor(const QFileInfo& file) const;

    const qint64 m_byteLimit;
    qint64 m_bytes = 0; // of all pictures
    QVector<Entry> m_entries;
    QHash<QString, int> m_rows; // by path
};
