#include "canvas/imagelayoutitem.h"

#include "canvas/displaypixmap.h"
#include "canvas/roigeometry.h"
#include "base/saturate.h"

#include <QDebug>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QImage>
#include <QMutexLocker>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace {
constexpr double zoomFactor = 1.5;
}

ImageLayoutItem::ImageLayoutItem(QImage* displayImage, QGraphicsItem* parent)
    : ComponentWithBordersItem(parent)
    , cross(this)
    , rectangles(this)
{
    setGraphicsItem(this);
    setFlag(QGraphicsItem::ItemClipsChildrenToShape, true);
    setSize(400.0, 400.0);
    setImage(displayImage);
}

ImageLayoutItem::~ImageLayoutItem()
{
    setGraphicsItem(nullptr);
}

bool ImageLayoutItem::hasImage() const
{
    return image && !image->isNull();
}

/// Zooming and scrolling need a content to show the image in and a scale to divide by.
bool ImageLayoutItem::canChangeView() const
{
    return hasImage() && scale > 0.0 && !size.isEmpty();
}

ViewFrame ImageLayoutItem::viewFrame() const
{
    return ViewFrame { size, image->size(), anchor, double(cross.halfLength) };
}

void ImageLayoutItem::setImage(QImage* displayImage)
{
    {
        QMutexLocker locker(&mutex);
        image = displayImage;
        ++m_imagesSet;
        if (!hasImage()) {
            return;
        }
        refreshPixmap();
    }
    if (fitAfresh()) {
        resetAnchor();
    }
}

/// Fits the image after it or the content has changed. False when a receiver has deleted the item.
bool ImageLayoutItem::fitAfresh()
{
    const QPointer<ImageLayoutItem> self(this);
    computeScales();
    if (self) {
        fit();
    }
    if (self) {
        moveCross();
    }
    return self;
}

/// To be called with the mutex held.
void ImageLayoutItem::refreshPixmap()
{
    copyToPixmap(*image, pixmap);
}

void ImageLayoutItem::updateImage()
{
    {
        QMutexLocker locker(&mutex);
        if (hasImage()) {
            refreshPixmap();
        }
    }
    update();
}

void ImageLayoutItem::sizeChanged()
{
    adaptContentToImage();
    fitAfresh();
}

void ImageLayoutItem::adaptContentToImage()
{
    if (!hasImage()) {
        return;
    }
    const QSize content = contentSizeFor(size, image->size());
    qDebug(
        "[changeContentsSize]con width: %d, con height: %d\n", content.width(), content.height());
    size = content; // not through setSize(), which would come back here
    setGeometry(QRectF(0.0, 0.0, size.width() + borderWidth, size.height() + borderWidth));
}

void ImageLayoutItem::computeScales()
{
    if (!hasImage()) {
        return;
    }
    minScale = fittingScale(size, image->size());
    maxScale = cross.halfLength * 2.0;
    Q_EMIT changeImageSize(image->size());
}

void ImageLayoutItem::fit()
{
    if (!hasImage()) {
        return;
    }
    scale = minScale;
    showView(QRectF(0.0, 0.0, image->width(), image->height()));
}

void ImageLayoutItem::zoomIn()
{
    if (maxScale > scale) {
        zoomTo(scale * zoomFactor);
    }
}

void ImageLayoutItem::zoomOut()
{
    if (scale > minScale) {
        zoomTo(scale / zoomFactor);
    }
}

void ImageLayoutItem::zoomTo(double wanted)
{
    if (!canChangeView()) {
        return;
    }
    const double limited = std::min(std::max(wanted, minScale), maxScale);
    if (!(limited > 0.0)) {
        return;
    }
    const ImageView view
        = zoomedView(ImageView { scale, drawRect }, limited, viewFrame(), cross.position);
    scale = view.scale;
    showView(view.visible);
}

void ImageLayoutItem::scrollDistanceVertical(int distance)
{
    scroll(distance, Qt::Vertical);
}

void ImageLayoutItem::scrollDistanceHorizontal(int distance)
{
    scroll(distance, Qt::Horizontal);
}

void ImageLayoutItem::scroll(int distance, Qt::Orientation orientation)
{
    if (distance == 0 || !canChangeView()) {
        return;
    }
    QRectF visible(roundedPoint(drawRect.topLeft()), roundedSize(drawRect.size()));
    if (orientation == Qt::Horizontal) {
        const ScrollStep step = scrolledSpan(distance, scale, int(visible.x()),
            int(visible.width()), image->width(), anchor.x(), cross.halfLength);
        anchor.setX(step.anchor);
        visible.moveLeft(step.origin);
    } else {
        const ScrollStep step = scrolledSpan(distance, scale, int(visible.y()),
            int(visible.height()), image->height(), anchor.y(), cross.halfLength);
        anchor.setY(step.anchor);
        visible.moveTop(step.origin);
    }
    const QPointer<ImageLayoutItem> self(this);
    const uint scrolledImage = m_imagesSet;
    Q_EMIT changeAnchorImagePosition(anchor);
    if (self && m_imagesSet == scrolledImage) {
        showView(visible);
    }
}

/// Shows the part `visible` of the image at the present scale and announces it.
void ImageLayoutItem::showView(const QRectF& visible)
{
    const QPointer<ImageLayoutItem> self(this);
    drawRect = visible;
    moveCross();
    if (!self || !hasImage()) {
        return;
    }
    Q_EMIT changeDrawRect(drawRect);
    if (self) {
        update();
    }
}

void ImageLayoutItem::resetAnchor()
{
    if (hasImage()) {
        placeAnchor(QPoint(image->width() / 2, image->height() - 1));
    }
}

void ImageLayoutItem::placeAnchor(const QPoint& pixel)
{
    if (!hasImage()) {
        return;
    }
    const QPointer<ImageLayoutItem> self(this);
    const uint placedImage = m_imagesSet;
    anchor = pixel;
    const QRectF visible = movedToPixel(drawRect, pixel);
    if (visible == drawRect) {
        moveCross();
    }
    if (self) {
        Q_EMIT changeAnchorImagePosition(anchor);
    }
    if (self && visible != drawRect && m_imagesSet == placedImage) {
        showView(visible);
    } else if (self) {
        update(); // the cross is drawn outside its own bounding rectangle
    }
}

void ImageLayoutItem::moveCross()
{
    placeCross(snappedToPixel(mapPointFromImage(anchor, drawRect, size), scale, size));
}

void ImageLayoutItem::placeCross(const QPointF& position)
{
    cross.previousPosition = cross.position;
    cross.position = position;
    Q_EMIT changeAnchorPosition(position);
}

QPointF ImageLayoutItem::imagePixelAt(const QPointF& point) const
{
    if (!hasImage() || size.isEmpty()) {
        return QPointF(0.0, 0.0);
    }
    const QPoint pixel = mapPointToImage(point, drawRect, size);
    qDebug("[mapToPixel]sacle: %.5f, anchor[%.1f, %.1f], pos[%d, %d]\n", scale, point.x(),
        point.y(), pixel.x(), pixel.y());
    return pixel;
}

QRectF ImageLayoutItem::imageExtent() const
{
    return hasImage() ? imageExtentInItem(drawRect, image->size(), size) : QRectF();
}

QRectF ImageLayoutItem::mapRectFromImage(const QRectF& r) const
{
    return roiToItem(r, drawRect, size);
}

void ImageLayoutItem::snapRect(QRectF& r) const
{
    r = roiOnPixelMiddles(r, scale, size, imageExtent());
}

QRectF ImageLayoutItem::mapRectToImage(const QRectF& r) const
{
    if (!hasImage() || size.isEmpty()) {
        return QRectF();
    }
    const QPoint topLeft = imagePixelAt(r.topLeft()).toPoint();
    const QPoint bottomRight
        = imagePixelAt(QPointF(r.x() + r.width(), r.y() + r.height())).toPoint();
    return roiFromPixels(topLeft, bottomRight, image->size());
}

/// Where clicks mark a pixel, in item units.
QRectF ImageLayoutItem::sensitiveArea() const
{
    const qreal border = borderWidth;
    return QRectF(border, border, size.width() - border, size.height() - border);
}

std::optional<QPoint> ImageLayoutItem::pixelAt(const QPointF& position) const
{
    if (!hasImage() || size.isEmpty() || !sensitiveArea().contains(position)) {
        return std::nullopt;
    }
    const QPointF point = snappedToPixel(position, scale, size) - QPointF(borderWidth, borderWidth);
    const QPoint pixel = mapPointToImage(point, drawRect, size);
    return image->rect().contains(pixel) ? std::optional<QPoint>(pixel) : std::nullopt;
}

void ImageLayoutItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton && sensitiveArea().contains(event->pos())) {
        const QPointF position = snappedToPixel(event->pos(), scale, size);
        anchor = imagePixelAt(position - QPointF(borderWidth, borderWidth));
        const QPointer<ImageLayoutItem> self(this);
        placeCross(position);
        if (self) {
            Q_EMIT changeAnchorImagePosition(anchor);
        }
        if (!self) {
            return;
        }
        update();
    }
    QGraphicsItem::mousePressEvent(event);
}

void ImageLayoutItem::wheelEvent(QGraphicsSceneWheelEvent* event)
{
    // Deliberate: a delta of 0, as some trackpads send, zooms out like a negative one.
    if (event->delta() >= 1) {
        zoomIn();
    } else {
        zoomOut();
    }
}

void ImageLayoutItem::drawContents(QPainter* painter)
{
    QMutexLocker locker(&mutex);
    if (hasImage() && !pixmap.isNull()) {
        drawPixmapPart(*painter, QRectF(borderWidth, borderWidth, size.width(), size.height()),
            pixmap, drawRect);
    }
}

void ImageLayoutItem::setGeometry(const QRectF& rect)
{
    placeInLayout(*this, rect);
}

QSizeF ImageLayoutItem::sizeHint(Qt::SizeHint which, const QSizeF& constraint) const
{
    return layoutSizeHint(which, constraint);
}
