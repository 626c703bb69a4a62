#pragma once

#include <QApplication>
#include <QFont>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QSignalSpy>
#include <QTest>

/// Helpers for tests of a single layout item: its place, the mouse on it, what it paints with and
/// when it is painted anew.

/// Gives `item` the size and the layout rectangle that a window hands to it, at (0, 0).
template <class Item>
void place(Item& item, double width, double height)
{
    item.setSize(width, height);
    item.setGeometry(QRectF(0.0, 0.0, width, height));
}

/// Sends a mouse event at (10, 10) of the scene while `buttons` are held. A press is that of the
/// left button when it is among them, otherwise of the right one.
inline void sendMouse(QGraphicsScene& scene, QEvent::Type type, Qt::MouseButtons buttons)
{
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(QPointF(10.0, 10.0));
    event.setButtons(buttons);
    if (type == QEvent::GraphicsSceneMousePress) {
        event.setButton(buttons & Qt::LeftButton ? Qt::LeftButton : Qt::RightButton);
    }
    QApplication::sendEvent(&scene, &event);
}

/// A painter's font whose style shows whether an item keeps it, with a size that no item uses.
inline QFont largeItalicFont()
{
    QFont font;
    font.setPixelSize(30);
    font.setItalic(true);
    return font;
}

/// Whether `change` makes the scene paint `item` anew. The item is in no scene before and after.
template <class Change>
bool repaints(QGraphicsItem& item, Change change)
{
    constexpr int settleMilliseconds = 20; // the scene collects its changes until the next event
    QGraphicsScene scene;
    QSignalSpy changes(&scene, SIGNAL(changed(QList<QRectF>)));
    scene.addItem(&item);
    QTest::qWait(settleMilliseconds);
    changes.clear(); // of the item itself
    change();
    QTest::qWait(settleMilliseconds);
    scene.removeItem(&item);
    return !changes.isEmpty();
}
