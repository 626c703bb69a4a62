#pragma once

#include <QByteArray>
#include <QVector>

#include <algorithm>

/// TIFF and BigTIFF files in either byte order, field by field, good and bad ones.

constexpr quint16 tiffByte = 1;
constexpr quint16 tiffShort = 3;
constexpr quint16 tiffLong = 4;
constexpr quint16 tiffLong8 = 16;

struct TiffField
{
    quint16 tag;
    quint16 type;
    QVector<quint64> values;
};

/// A page whose pixels are one strip, without compression unless told otherwise.
struct TiffImage
{
    int width = 1;
    int height = 1;
    int bits = 8;
    int samples = 1;
    int format = 1; ///< 1 unsigned, 2 signed, 3 floating-point
    int photometric = 1; ///< 0 white is zero, 1 black is zero, 2 RGB
    QByteArray pixels;
    QVector<TiffField> further;
};

class TiffWriter
{
public:
    explicit TiffWriter(bool isBigEndian = false, bool isBig = false)
        : m_isBigEndian(isBigEndian)
        , m_isBig(isBig)
    {
        m_file = isBigEndian ? "MM" : "II";
        m_file += number(isBig ? 43 : 42, 2);
        m_file += isBig ? number(8, 2) + number(0, 2) : QByteArray();
        m_linkOffset = int(m_file.size());
        m_file += number(0, offsetBytes());
    }

    /// Appends a directory with these fields, in this order, and `pixels` behind it. A field of
    /// strip offsets without a value gets the place of the pixels.
    void addDirectory(QVector<TiffField> fields, const QByteArray& pixels = QByteArray())
    {
        link(m_file.size());
        const int entryBytes = m_isBig ? 20 : 12;
        const int countBytes = m_isBig ? 8 : 2;
        m_linkOffset = int(m_file.size()) + countBytes + int(fields.size()) * entryBytes;
        const int behindOffset = m_linkOffset + offsetBytes();
        const int pixelOffset = behindOffset + bytesBehind(fields);
        QByteArray entries;
        QByteArray behind;
        for (TiffField& field : fields) {
            if (field.tag == 273 && field.values.isEmpty()) {
                field.values << quint64(pixelOffset);
            }
            QByteArray value = numbers(field);
            if (value.size() > offsetBytes()) {
                behind += value;
                value = number(quint64(behindOffset + behind.size() - value.size()), offsetBytes());
            }
            entries += number(field.tag, 2) + number(field.type, 2)
                + number(quint64(field.values.size()), offsetBytes())
                + value.leftJustified(offsetBytes(), '\0');
        }
        m_file += number(quint64(fields.size()), countBytes) + entries + number(0, offsetBytes());
        m_file += behind + pixels;
    }

    void addImage(const TiffImage& image)
    {
        const auto repeated
            = [&image](quint64 value) { return QVector<quint64>(image.samples, value); };
        QVector<TiffField> fields { { 256, tiffLong, { quint64(image.width) } },
            { 257, tiffLong, { quint64(image.height) } },
            { 258, tiffShort, repeated(quint64(image.bits)) }, { 259, tiffShort, { 1 } },
            { 262, tiffShort, { quint64(image.photometric) } }, { 273, tiffLong, {} },
            { 277, tiffShort, { quint64(image.samples) } },
            { 278, tiffLong, { quint64(image.height) } },
            { 279, tiffLong, { quint64(image.pixels.size()) } },
            { 339, tiffShort, repeated(quint64(image.format)) } };
        for (const TiffField& field : image.further) {
            const auto same = std::find_if(fields.begin(), fields.end(),
                [&field](const TiffField& other) { return other.tag == field.tag; });
            if (same != fields.end()) {
                *same = field;
            } else {
                fields << field;
            }
        }
        std::sort(fields.begin(), fields.end(),
            [](const TiffField& a, const TiffField& b) { return a.tag < b.tag; });
        addDirectory(fields, image.pixels);
    }

    /// Makes the last directory name the one at `offset` as its next.
    void link(qint64 offset)
    {
        m_file.replace(m_linkOffset, offsetBytes(), number(quint64(offset), offsetBytes()));
    }

    QByteArray file() const { return m_file; }
    QByteArray number(quint64 value, int size) const
    {
        QByteArray bytes(size, '\0');
        for (int i = 0; i < size; ++i) {
            bytes[m_isBigEndian ? size - 1 - i : i] = char(value >> 8 * i & 0xFF);
        }
        return bytes;
    }

private:
    int offsetBytes() const { return m_isBig ? 8 : 4; }

    static int typeBytes(quint16 type)
    {
        return type == tiffShort ? 2 : type == tiffLong ? 4 : type == tiffLong8 ? 8 : 1;
    }

    QByteArray numbers(const TiffField& field) const
    {
        QByteArray bytes;
        for (const quint64 value : field.values) {
            bytes += number(value, typeBytes(field.type));
        }
        return bytes;
    }

    int bytesBehind(const QVector<TiffField>& fields) const
    {
        int bytes = 0;
        for (const TiffField& field : fields) {
            const int size = int(field.values.size()) * typeBytes(field.type);
            bytes += size > offsetBytes() ? size : 0;
        }
        return bytes;
    }

    bool m_isBigEndian;
    bool m_isBig;
    int m_linkOffset = 0;
    QByteArray m_file;
};

/// The whole file of one image.
inline QByteArray tiffOf(const TiffImage& image, bool isBigEndian = false, bool isBig = false)
{
    TiffWriter writer(isBigEndian, isBig);
    writer.addImage(image);
    return writer.file();
}
