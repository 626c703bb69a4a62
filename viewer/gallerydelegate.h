#pragma once

#include <QPixmap>
#include <QSize>
#include <QStyledItemDelegate>

/// Paints the tiles of a gallery, all of the same size: the picture in the middle of a frame, the
/// file's name in one or two lines below it. A file without a picture has an empty frame while it
/// waits, a crossed-out one when it cannot be shown, and one that says so when it is too large.
class GalleryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit GalleryDelegate(QObject* parent = nullptr);

    /// Largest picture in a tile, in pixels of the widget.
    static QSize pictureSize();
    static QSize tileSize();

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;

private:
    void paintPicture(QPainter* painter, const QRect& frame, const QModelIndex& index) const;

    QPixmap m_refused;
};
