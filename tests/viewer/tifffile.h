#pragma once

#include <QByteArray>
#include <QVector>
#include <QtEndian>

/// TIFF files entry by entry, good and bad ones.

constexpr quint16 tiffByte = 1;
constexpr quint16 tiffShort = 3;
constexpr quint16 tiffLong = 4;

struct TiffEntry
{
    quint16 tag;
    quint16 type;
    quint32 count;
    quint32 value; ///< a short stands in the first two bytes of its field, whatever the order
};

template <class Number>
QByteArray tiffNumber(Number number, bool bigEndian)
{
    QByteArray bytes(int(sizeof number), '\0');
    bigEndian ? qToBigEndian(number, bytes.data()) : qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray tiffValue(const TiffEntry& entry, bool bigEndian)
{
    if (entry.type == tiffByte) {
        return QByteArray(1, char(entry.value)) + QByteArray(3, '\0');
    }
    if (entry.type == tiffShort && entry.count <= 2) {
        return tiffNumber(quint16(entry.value), bigEndian) + QByteArray(2, '\0');
    }
    return tiffNumber(entry.value, bigEndian);
}

/// Start and one directory, which stands right behind it, at offset 8.
inline QByteArray tiffFile(const QVector<TiffEntry>& entries, bool bigEndian = false)
{
    QByteArray file = bigEndian ? "MM" : "II";
    file += tiffNumber(quint16(42), bigEndian) + tiffNumber(quint32(8), bigEndian);
    file += tiffNumber(quint16(entries.size()), bigEndian);
    for (const TiffEntry& entry : entries) {
        file += tiffNumber(entry.tag, bigEndian) + tiffNumber(entry.type, bigEndian)
            + tiffNumber(entry.count, bigEndian) + tiffValue(entry, bigEndian);
    }
    return file + tiffNumber(quint32(0), bigEndian); // no further directory
}
