#pragma once

#include "canvas/componentwithbordersitem.h"
#include "canvas/crossitem.h"
#include "canvas/rectangleitems.h"
#include "canvas/viewport.h"

#include <QGraphicsLayoutItem>
#include <QMutex>
#include <QPixmap>

#include <optional>

class QImage;

/// Shows the display image, lets the user zoom it in steps, scroll it and place the anchor with
/// the left button, and announces the visible part and the anchor. Holds the cross that marks the
/// anchor, and the regions of interest.
///
/// The display image belongs to somebody else; a pointer that is null, or to a null image, counts
/// as no image: then nothing but the frame is drawn and every view change does nothing. Call
/// setImage(nullptr) before the image is replaced or destroyed. Receivers of a signal may set
/// another image or none, come back into any slot, or delete the item.
class ImageLayoutItem : public ComponentWithBordersItem, public QGraphicsLayoutItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsLayoutItem)

public:
    explicit ImageLayoutItem(QImage* displayImage, QGraphicsItem* parent = nullptr);
    ~ImageLayoutItem() override;

    QPixmap pixmap; ///< copy of the display image, as drawn
    CrossItem cross; ///< marks the anchor; a child of this item
    RectangleItems rectangles; ///< the regions of interest drawn over the image
    QImage* image = nullptr; ///< not owned
    QPointF anchor; ///< image pixels, whole numbers
    double scale = 1.0; ///< item units per image pixel
    double minScale = 0.1; ///< the fitting scale once an image is set
    double maxScale = 2.0; ///< twice the arm length of the cross once an image is set
    QRectF drawRect { 0.0, 0.0, 0.0, 0.0 }; ///< visible part of the image, in image pixels
    QMutex mutex; ///< guards `image` and `pixmap`; never held while a signal is emitted

    /// Shows `displayImage` from now on: fitted, with the anchor in the middle of the bottom row.
    /// Null, or a null image: only the pointer is stored.
    void setImage(QImage* displayImage);

    /// Puts the anchor into the middle of the bottom row and announces it. Without an image nothing
    /// happens.
    void resetAnchor();

    /// Puts the anchor on a pixel of the image, scrolls as far as needed to show it, and announces
    /// it. Without an image nothing happens.
    void placeAnchor(const QPoint& pixel);

    /// The whole image in item units, which starts left of and above the item when it is zoomed
    /// in; null without an image.
    QRectF imageExtent() const;
    /// Image pixels to item units; null when nothing is visible.
    QRectF mapRectFromImage(const QRectF& r) const;
    /// From a scale of 10 on, puts each edge into the middle of a displayed pixel.
    void snapRect(QRectF& r) const;
    /// Item units to whole image pixels; null without an image.
    QRectF mapRectToImage(const QRectF& r) const;

    /// Image pixel shown at `position` (item units), the one that a click there marks; nothing
    /// beside the picture and without an image.
    std::optional<QPoint> pixelAt(const QPointF& position) const;

    void setGeometry(const QRectF& rect) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;

Q_SIGNALS:
    void changeDrawRect(QRectF rect); ///< visible part, image pixels
    void changeImageSize(QSize size); ///< image pixels
    void changeItemBoundingRect(QRectF rect); ///< part of the interface; not emitted
    void changeAnchorPosition(QPointF anchor); ///< item units
    void changeAnchorImagePosition(QPointF anchorImage); ///< image pixels

public Q_SLOTS:
    void fit();
    void zoomIn();
    void zoomOut();
    /// The display image has new contents.
    void updateImage();
    /// Both scroll by a fixed step; `distance` gives the direction only, 0 does nothing.
    void scrollDistanceVertical(int distance);
    void scrollDistanceHorizontal(int distance);

protected:
    void sizeChanged() override;
    void drawContents(QPainter* painter) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void wheelEvent(QGraphicsSceneWheelEvent* event) override;

private:
    bool hasImage() const;
    bool canChangeView() const;
    ViewFrame viewFrame() const;
    void refreshPixmap();
    void adaptContentToImage();
    void computeScales();
    bool fitAfresh();
    void zoomTo(double wanted);
    void scroll(int distance, Qt::Orientation orientation);
    void moveCross();
    void placeCross(const QPointF& position);
    QRectF sensitiveArea() const;
    QPointF imagePixelAt(const QPointF& point) const;
    void showView(const QRectF& visible);

    uint m_imagesSet = 0; ///< counts setImage(): the same QImage object may come with a new image
};
