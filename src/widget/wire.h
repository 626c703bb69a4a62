#pragma once

#include <QObject>
#include <QVector>

/// One row of a table of connections that are made and undone together. Signal and slot are
/// signatures as SIGNAL() and SLOT() give them; the objects belong to somebody else.
struct Wire
{
    const QObject* sender;
    const char* signal;
    const QObject* receiver;
    const char* slot;
};

/// Makes the connections in their order; once more where one exists already.
inline void connectAll(const QVector<Wire>& wires)
{
    for (const Wire& wire : wires) {
        QObject::connect(wire.sender, wire.signal, wire.receiver, wire.slot);
    }
}

inline void disconnectAll(const QVector<Wire>& wires)
{
    for (const Wire& wire : wires) {
        QObject::disconnect(wire.sender, wire.signal, wire.receiver, wire.slot);
    }
}
