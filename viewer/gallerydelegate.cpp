#include "gallerydelegate.h"

#include "appearance.h"
#include "gallerymodel.h"

#include <QPainter>
#include <QTextLayout>

namespace {

const QColor frameColor(61, 73, 86);
const QColor frameGround(22, 27, 33);
const QColor hoverGround(33, 40, 49);
const QColor currentColor(72, 172, 186);
const QColor currentGround(26, 55, 62);
const QColor nameColor(201, 210, 220);
const QColor currentNameColor(250, 250, 250);
constexpr qreal refusedOpacity = 0.45;

// Distances at 96 dots per inch.
constexpr int gap = 5; // around a tile, half of what lies between two
constexpr int padding = 8; // between tile and picture
constexpr int nameHeight = 36; // two lines

/// Where a picture of `size` pixels stands: in the middle, smaller when there is no room for it.
QRectF centred(const QSizeF& size, const QRect& room)
{
    const bool fits = size.width() <= room.width() && size.height() <= room.height();
    QRectF place(QPointF(), fits ? size : size.scaled(QSizeF(room.size()), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(room).center());
    place.moveTopLeft(QPointF(place.topLeft().toPoint())); // on whole pixels it stays sharp
    return place;
}

/// The name on one line, or on two of this width; the second one gives way in the middle, so that
/// number and suffix stay.
QString wrappedName(const QString& name, const QFont& font, int width)
{
    QTextLayout layout(name, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine first = layout.createLine();
    if (first.isValid()) {
        first.setLineWidth(width);
    }
    layout.endLayout();
    const int length = first.isValid() ? first.textLength() : 0;
    if (length >= int(name.size())) {
        return name;
    }
    const QString rest = name.mid(length).trimmed();
    return name.left(length).trimmed() + '\n'
        + QFontMetrics(font).elidedText(rest, Qt::ElideMiddle, width);
}

void paintGround(QPainter* painter, const QRect& tile, QStyle::State state)
{
    const bool current = state & QStyle::State_Selected;
    const bool hovered = state & QStyle::State_MouseOver;
    painter->setPen(QPen(current ? currentColor : frameColor, current ? 2.0 : 1.0));
    painter->setBrush(current ? currentGround : hovered ? hoverGround : frameGround);
    painter->drawRoundedRect(QRectF(tile).adjusted(0.5, 0.5, -0.5, -0.5), 5.0, 5.0);
}

} // namespace

GalleryDelegate::GalleryDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_refused(scaledPicture(":/viewer/problem.png", 64))
{
}

QSize GalleryDelegate::pictureSize()
{
    return QSize(scaledForScreen(160), scaledForScreen(120));
}

QSize GalleryDelegate::tileSize()
{
    const int around = 2 * scaledForScreen(gap + padding);
    return pictureSize() + QSize(around, around + scaledForScreen(nameHeight));
}

QSize GalleryDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return tileSize();
}

void GalleryDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int around = scaledForScreen(gap);
    const QRect tile = option.rect.adjusted(around, around, -around, -around);
    paintGround(painter, tile, option.state);

    const int inside = scaledForScreen(padding);
    const QRect picture(tile.topLeft() + QPoint(inside, inside), pictureSize());
    paintPicture(painter, picture, index);

    const QRect name(tile.left() + inside, picture.bottom() + 1, picture.width(),
        tile.bottom() - picture.bottom());
    const QString text = index.data().toString().simplified(); // a line feed stays on the line
    painter->setFont(option.font);
    painter->setPen(option.state & QStyle::State_Selected ? currentNameColor : nameColor);
    painter->drawText(name, Qt::AlignCenter, wrappedName(text, option.font, name.width()));
    painter->restore();
}

void GalleryDelegate::paintPicture(
    QPainter* painter, const QRect& frame, const QModelIndex& index) const
{
    const auto state = GalleryModel::State(index.data(GalleryModel::StateRole).toInt());
    if (state == GalleryModel::State::Refused) {
        painter->setOpacity(refusedOpacity);
        painter->drawPixmap(centred(m_refused.size(), frame), m_refused, m_refused.rect());
        painter->setOpacity(1.0);
    } else if (state == GalleryModel::State::TooLarge) {
        painter->setPen(nameColor);
        painter->drawText(frame, Qt::AlignCenter | Qt::TextWordWrap, tr("Large image"));
    } else if (state == GalleryModel::State::Ready) {
        const auto picture = index.data(GalleryModel::PictureRole).value<QImage>();
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawImage(centred(QSizeF(picture.size()) / ratio, frame), picture);
    }
}
