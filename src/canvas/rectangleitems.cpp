#include "canvas/rectangleitems.h"

#include "canvas/imagelayoutitem.h"
#include "base/saturate.h"

#include <QImage>
#include <QPointer>

#include <algorithm>

namespace {

// Qt compares these fuzzily, and a small step of the view would then move nothing.

bool isSame(const QPointF& a, const QPointF& b)
{
    return a.x() == b.x() && a.y() == b.y();
}

bool isSame(const QSizeF& a, const QSizeF& b)
{
    return a.width() == b.width() && a.height() == b.height();
}

bool isSame(const QRectF& a, const QRectF& b)
{
    return isSame(a.topLeft(), b.topLeft()) && isSame(a.size(), b.size());
}

bool isSame(const QVector<QPointF>& a, const QVector<QPointF>& b)
{
    return a.size() == b.size()
        && std::equal(a.begin(), a.end(), b.begin(),
            [](const QPointF& first, const QPointF& second) { return isSame(first, second); });
}

} // namespace

RectangleItems::RectangleItems(ImageLayoutItem* owner)
    : imageItem(owner)
{
}

RectangleItems::~RectangleItems()
{
    clear();
}

void RectangleItems::clear()
{
    // The lists are empty before the first item goes: destroying a selected one is announced by
    // its scene.
    QVector<RectangleItem*> gone;
    gone.swap(items);
    rects.clear();
    m_projected.clear();
    qDeleteAll(gone);
}

void RectangleItems::addItem()
{
    if (!hasImage()) {
        return;
    }
    const QSize image = imageItem->image->size();
    // Deliberate: a default that was too large for one image stays small for all that follow.
    if (defaultSize.width() > image.width()) {
        defaultSize.setWidth(image.width() / 8);
    }
    if (defaultSize.height() > image.height()) {
        defaultSize.setHeight(image.height() / 8);
    }
    const QPointF origin(truncated(image.width() - defaultSize.width()) / 2,
        truncated(image.height() - defaultSize.height()) / 2);
    QRectF onItem = imageItem->mapRectFromImage(QRectF(origin, defaultSize));
    imageItem->snapRect(onItem);
    // Deliberate: the view is connected again at every add, and never disconnected: the slot runs
    // once for each region ever added.
    append(onItem, imageItem->mapRectToImage(onItem), Qt::AutoConnection);
    announceNew();
}

bool RectangleItems::hasImage() const
{
    return imageItem && imageItem->image && !imageItem->image->isNull();
}

/// Adds a region that stands at `onItem` in item units and holds `pixels` of the image.
void RectangleItems::append(const QRectF& onItem, const QRectF& pixels, Qt::ConnectionType viewWire)
{
    auto* const item = new RectangleItem(imageItem, int(items.size()) + 1);
    item->margin = imageItem->borderWidth;
    item->changedParentBoundingRect(imageItem->imageExtent());
    item->setRect(onItem);
    connect(item, SIGNAL(changeRect(RectangleItem*, QRectF)), //
        this, SLOT(changedRoi(RectangleItem*, QRectF)));
    connect(imageItem, SIGNAL(changeDrawRect(QRectF)), //
        this, SLOT(changedItemBoundingRect(QRectF)), viewWire);
    connect(item, &QObject::destroyed, this, [this, item] { drop(item); });
    rects.append(pixels);
    items.append(item);
}

/// The pixels are kept as given; only what is drawn goes through item units.
void RectangleItems::appendPixels(const QRect& pixels)
{
    QRectF onItem = imageItem->mapRectFromImage(QRectF(pixels));
    imageItem->snapRect(onItem);
    append(onItem, QRectF(pixels), Qt::UniqueConnection);
}

/// Announces the names with the last region, which is new, and selects it.
void RectangleItems::announceNew()
{
    const QPointer<RectangleItems> self(this);
    announceNames();
    if (self) {
        selectItem(int(items.size()) - 1);
    }
    if (self && imageItem) {
        imageItem->update();
    }
}

void RectangleItems::addPixels(const QRect& pixels)
{
    if (hasImage()) {
        appendPixels(pixels);
        announceNew();
    }
}

void RectangleItems::setPixels(int index, const QRect& pixels)
{
    if (!imageItem || index < 0 || index >= items.size()) {
        return;
    }
    rects[index] = QRectF(pixels);
    m_projected.resize(items.size());
    project(index, currentView());
    const QPointer<RectangleItems> self(this);
    selectItem(index);
    if (self && imageItem) {
        imageItem->update();
    }
}

void RectangleItems::replaceAll(const QVector<QRect>& pixels)
{
    if (!hasImage()) {
        return;
    }
    clear();
    for (const QRect& rect : pixels) {
        appendPixels(rect);
    }
    announceNew();
}

int RectangleItems::markedIndex() const
{
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i)->isSelected()) {
            return i;
        }
    }
    return -1;
}

void RectangleItems::deleteItem(int index)
{
    if (index < 0 || index >= items.size()) {
        return;
    }
    const QPointer<RectangleItems> self(this);
    RectangleItem* const gone = items.takeAt(index);
    rects.removeAt(index);
    numberItems();
    delete gone;
    if (self) {
        announceNames();
    }
    if (self) {
        selectItem(0);
    }
    if (self && imageItem) {
        imageItem->update();
    }
}

void RectangleItems::selectItem(int index)
{
    if (index < 0 || index >= items.size()) {
        return;
    }
    const QPointer<RectangleItems> self(this);
    const QPointer<RectangleItem> selected(items.at(index));
    QVector<QPointer<RectangleItem>> marked; // the scene announces each change
    for (RectangleItem* const item : qAsConst(items)) {
        if (item->isSelected()) {
            marked.append(item);
        }
    }
    for (const QPointer<RectangleItem>& item : qAsConst(marked)) {
        if (item) {
            item->setSelected(false);
        }
    }
    if (self && selected) {
        selected->setSelected(true);
    }
    if (self && index < rects.size()) {
        Q_EMIT updateSelectedRoi(index, QRectF(rects.at(index)));
    }
}

void RectangleItems::changedRoi(RectangleItem* item, QRectF rect)
{
    const int index = int(items.indexOf(item));
    if (!imageItem || index < 0 || (rect.width() == 0.0 && rect.height() == 0.0)) {
        return;
    }
    imageItem->snapRect(rect);
    item->setRect(rect);
    imageItem->update();
    rects[index] = imageItem->mapRectToImage(rect);
    // Deliberate: announced even if another region is the one chosen in the panel.
    Q_EMIT updateSelectedRoi(index, QRectF(rects.at(index)));
}

void RectangleItems::changedItemBoundingRect(QRectF rect)
{
    if (!imageItem || (rect.width() == 0.0 && rect.height() == 0.0)) {
        return;
    }
    const View view = currentView();
    // With n regions this runs n times a change of view; only the first run has something to do.
    if (!isProjected(view)) {
        m_projectedView = view;
        m_projected.resize(items.size());
        for (int i = 0; i < items.size(); ++i) {
            project(i, view);
        }
    }
    imageItem->update();
}

RectangleItems::View RectangleItems::currentView() const
{
    return View { imageItem->drawRect, imageItem->imageExtent(), imageItem->size,
        imageItem->scale };
}

/// Whether every item still stands where the last projection put it for the same view.
bool RectangleItems::isProjected(const View& view) const
{
    if (m_projected.size() != items.size() || !isSame(view.visible, m_projectedView.visible)
        || !isSame(view.extent, m_projectedView.extent)
        || !isSame(view.content, m_projectedView.content) || view.scale != m_projectedView.scale) {
        return false;
    }
    for (int i = 0; i < items.size(); ++i) {
        const Projected& projected = m_projected.at(i);
        const RectangleItem& item = *items.at(i);
        if (!isSame(projected.imageRect, rects.at(i))
            || !isSame(projected.area, item.parentBounding) || projected.margin != item.margin
            || !isSame(projected.rect, item.rect) || !isSame(projected.handles, item.handles)) {
            return false;
        }
    }
    return true;
}

void RectangleItems::project(int index, const View& view)
{
    RectangleItem& item = *items.at(index);
    item.changedParentBoundingRect(view.extent);
    QRectF onItem = imageItem->mapRectFromImage(rects.at(index));
    imageItem->snapRect(onItem);
    item.setRect(onItem);
    m_projected[index]
        = Projected { rects.at(index), item.parentBounding, item.margin, item.rect, item.handles };
}

void RectangleItems::numberItems()
{
    for (int i = 0; i < items.size(); ++i) {
        items.at(i)->id = i + 1;
        items.at(i)->update();
    }
}

void RectangleItems::announceNames()
{
    names.clear();
    for (const RectangleItem* const item : qAsConst(items)) {
        names.append(namePrefix + QStringLiteral(" ") + QString::number(item->id));
    }
    Q_EMIT updateItemNames(QStringList(names));
}

/// Forgets an item that somebody else destroys.
void RectangleItems::drop(RectangleItem* item)
{
    const int index = int(items.indexOf(item));
    if (index >= 0) {
        items.removeAt(index);
        rects.removeAt(index);
        numberItems();
    }
}
