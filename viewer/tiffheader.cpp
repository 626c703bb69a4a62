#include "tiffheader.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace {

// A TIFF file starts with its byte order, the number 42 and the offset of the first directory;
// a directory is a count and that many entries of tag, type, count and value.
constexpr int startSize = 8;
constexpr int entrySize = 12;

constexpr quint16 widthTag = 256;
constexpr quint16 heightTag = 257;
constexpr quint16 bitsPerSampleTag = 258;
constexpr quint16 samplesPerPixelTag = 277;

constexpr quint16 byteType = 1;
constexpr quint16 shortType = 3;
constexpr quint16 longType = 4;

/// Reads numbers in the byte order of the file.
class TiffReader
{
public:
    explicit TiffReader(QIODevice* file)
        : m_file(file)
    {
    }

    /// Reads the eight bytes in front; false when they are not those of a TIFF file.
    bool begin();
    bool readDirectory(TiffHeader* header);

private:
    bool readAt(qint64 offset, int size, QByteArray* bytes);
    bool readEntry(const char* entry, TiffHeader* header);
    bool readValue(const char* entry, quint32* value);
    quint16 number16(const char* bytes) const;
    quint32 number32(const char* bytes) const;

    QIODevice* m_file;
    bool m_bigEndian = false;
    quint32 m_directory = 0;
};

bool TiffReader::readAt(qint64 offset, int size, QByteArray* bytes)
{
    if (!m_file->seek(offset)) {
        return false;
    }
    *bytes = m_file->read(size);
    return bytes->size() == size;
}

quint16 TiffReader::number16(const char* bytes) const
{
    return m_bigEndian ? qFromBigEndian<quint16>(bytes) : qFromLittleEndian<quint16>(bytes);
}

quint32 TiffReader::number32(const char* bytes) const
{
    return m_bigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
}

bool TiffReader::begin()
{
    QByteArray start;
    if (!readAt(0, startSize, &start)) {
        return false;
    }
    m_bigEndian = start.startsWith("MM");
    m_directory = number32(start.constData() + 4);
    return (m_bigEndian || start.startsWith("II")) && number16(start.constData() + 2) == 42;
}

bool TiffReader::readDirectory(TiffHeader* header)
{
    QByteArray bytes;
    if (!readAt(m_directory, 2, &bytes)) {
        return false;
    }
    const int entryCount = number16(bytes.constData());
    if (!readAt(qint64(m_directory) + 2, entryCount * entrySize, &bytes)) {
        return false;
    }
    for (int i = 0; i < entryCount; ++i) {
        if (!readEntry(bytes.constData() + i * entrySize, header)) {
            return false;
        }
    }
    return header->width > 0 && header->height > 0;
}

bool TiffReader::readEntry(const char* entry, TiffHeader* header)
{
    quint32* field = nullptr;
    switch (number16(entry)) {
    case widthTag: field = &header->width; break;
    case heightTag: field = &header->height; break;
    case bitsPerSampleTag: field = &header->bitsPerSample; break;
    case samplesPerPixelTag: field = &header->samplesPerPixel; break;
    default: return true;
    }
    quint32 value = 0;
    if (!readValue(entry, &value)) {
        return false;
    }
    *field = std::max(*field, value);
    return true;
}

/// The first number of the entry; several that do not fit into the entry stand elsewhere.
bool TiffReader::readValue(const char* entry, quint32* value)
{
    const quint32 count = number32(entry + 4);
    const char* const inside = entry + 8;
    switch (number16(entry + 2)) {
    case byteType: *value = uchar(*inside); return count == 1;
    case longType: *value = number32(inside); return count == 1;
    case shortType: break;
    default: return false;
    }
    if (count <= 2) {
        *value = number16(inside);
        return count > 0;
    }
    QByteArray outside;
    if (!readAt(number32(inside), 2, &outside)) {
        return false;
    }
    *value = number16(outside.constData());
    return true;
}

} // namespace

bool isTiff(QIODevice* file)
{
    return TiffReader(file).begin();
}

bool readTiffHeader(QIODevice* file, TiffHeader* header)
{
    TiffReader reader(file);
    TiffHeader read;
    if (!reader.begin() || !reader.readDirectory(&read)) {
        return false;
    }
    *header = read;
    return true;
}
