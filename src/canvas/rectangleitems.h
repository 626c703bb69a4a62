#pragma once

#include "canvas/rectangleitem.h"

#include <QObject>
#include <QStringList>

class ImageLayoutItem;

/// The regions of interest of one image item: creates and deletes them, keeps their rectangles in
/// image pixels, which are the ones that count, and projects them onto the item at every change of
/// view. Any slot may be called again from any of its signals.
class RectangleItems : public QObject
{
    Q_OBJECT

public:
    /// The image item holds the collection and outlives it; null: nothing can be added.
    explicit RectangleItems(ImageLayoutItem* imageItem);
    ~RectangleItems() override;

    QVector<QRectF> rects; ///< in image pixels, whole numbers; at an item's id - 1
    QVector<RectangleItem*> items; ///< owned; one that somebody else destroys is dropped
    QSizeF defaultSize { 300.0, 300.0 }; ///< of a new region, in image pixels
    ImageLayoutItem* imageItem; ///< not owned
    QString namePrefix { tr("ROI") };
    QStringList names; ///< as last announced

    /// Deletes every region. Announces nothing, and the names stay.
    void clear();

    /// Adds a region of exactly these pixels of the image and selects it; nothing without an image.
    void addPixels(const QRect& pixels);
    /// Gives a region exactly these pixels and selects it. Other indices: ignored.
    void setPixels(int index, const QRect& pixels);
    /// Replaces all regions, announces the names once and selects the last region.
    void replaceAll(const QVector<QRect>& pixels);
    /// The first region that is marked with handles; -1 for none.
    int markedIndex() const;

Q_SIGNALS:
    void updateSelectedRoi(int selected, QRectF rect); ///< image pixels
    void updateItemNames(QStringList itemNames);

public Q_SLOTS:
    /// Adds a region in the middle of the image and selects it; nothing without an image.
    void addItem();
    /// Deletes a region, numbers the others anew and selects the first. Other indices: ignored.
    void deleteItem(int index);
    /// Selects and announces a region. Other indices, -2 among them, which the panel sends while it
    /// refills its list: ignored.
    void selectItem(int index);
    /// The visible part of the image has changed; every region moves to where its pixels are now.
    void changedItemBoundingRect(QRectF rect);
    /// A region was dragged to `rect`, in item units.
    void changedRoi(RectangleItem* item, QRectF rect);

private:
    /// What a projection was made of and what came out for one region.
    struct Projected
    {
        QRectF imageRect;
        QRectF area;
        int margin = 0;
        QRectF rect;
        QVector<QPointF> handles;
    };

    /// What decides where regions stand.
    struct View
    {
        QRectF visible;
        QRectF extent;
        QSizeF content;
        double scale = 0.0;
    };

    bool hasImage() const;
    void append(const QRectF& onItem, const QRectF& pixels, Qt::ConnectionType viewWire);
    void appendPixels(const QRect& pixels);
    void announceNew();
    View currentView() const;
    bool isProjected(const View& view) const;
    void project(int index, const View& view);
    void numberItems();
    void announceNames();
    void drop(RectangleItem* item);

    View m_projectedView;
    QVector<Projected> m_projected; ///< of the last run, one for each item
};
