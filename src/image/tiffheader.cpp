#include "image/tiffheader.h"

#include <QIODevice>
#include <QSet>
#include <QtEndian>

#include <algorithm>

namespace {

// A TIFF file starts with its byte order, the number 42 and the offset of the first directory; a
// directory is a count, that many entries of tag, type, count and value, and the offset of the next
// directory. BigTIFF has the number 43 and wider counts and offsets.
constexpr int mostPages = 65535;
constexpr quint64 mostEntries = 65535;
constexpr quint64 mostStrips = quint64(1) << 20;

constexpr quint16 stripOffsetsTag = 273;
constexpr quint16 stripByteCountsTag = 279;
constexpr quint16 tileOffsetsTag = 324;
constexpr quint16 tileByteCountsTag = 325;

constexpr quint16 byteType = 1;
constexpr quint16 shortType = 3;
constexpr quint16 longType = 4;
constexpr quint16 long8Type = 16;

/// Bytes of one number of `type`; 0 when it is no unsigned number.
int bytesOfType(quint16 type)
{
    switch (type) {
    case byteType: return 1;
    case shortType: return 2;
    case longType: return 4;
    case long8Type: return 8;
    }
    return 0;
}

/// Where the numbers of one entry stand in the file.
struct TiffNumbers
{
    quint64 count = 0;
    quint64 offset = 0;
    int numberBytes = 0;
};

quint64* fieldOf(TiffPage& page, quint16 tag)
{
    switch (tag) {
    case 256: return &page.width;
    case 257: return &page.height;
    case 258: return &page.bitsPerSample;
    case 259: return &page.compression;
    case 262: return &page.photometric;
    case 277: return &page.samplesPerPixel;
    case 284: return &page.planarConfiguration;
    case 338: return &page.extraSamples;
    case 339: return &page.sampleFormat;
    }
    return nullptr;
}

/// Reads numbers in the byte order and the widths of the file.
class TiffReader
{
public:
    explicit TiffReader(QIODevice* file)
        : m_file(file)
    {
    }

    /// Reads the start of the file; false when it is not that of a TIFF file.
    bool begin();
    /// Steps to the next page whose directory is whole; the first one at the first call.
    bool nextPage();
    std::optional<TiffPage> page();

private:
    quint64 countBytes() const { return m_isBig ? 8 : 2; }
    quint64 offsetBytes() const { return m_isBig ? 8 : 4; }
    quint64 entryBytes() const { return m_isBig ? 20 : 12; }
    quint64 entriesStart() const { return m_directory + countBytes(); }

    bool readAt(quint64 offset, quint64 size, QByteArray* bytes);
    bool readNumber(quint64 offset, quint64 size, quint64* value);
    quint64 number(const char* bytes, quint64 size) const;
    std::optional<TiffNumbers> numbersOf(const char* entry, quint64 entryOffset) const;
    bool takeEntry(const char* entry, quint64 entryOffset, TiffPage& page);
    void noteStrips(quint16 tag, const std::optional<TiffNumbers>& numbers);
    bool holdsStrips();

    QIODevice* m_file;
    bool m_isBigEndian = false;
    bool m_isBig = false;
    quint64 m_directory = 0; ///< offset of the page's directory
    quint64 m_entryCount = 0;
    quint64 m_next = 0; ///< offset of the next directory, 0 for none
    QSet<quint64> m_seen;
    TiffNumbers m_stripOffsets;
    TiffNumbers m_stripByteCounts;
};

bool TiffReader::readAt(quint64 offset, quint64 size, QByteArray* bytes)
{
    const auto fileSize = quint64(m_file->size());
    if (offset > fileSize || size > fileSize - offset || !m_file->seek(qint64(offset))) {
        return false;
    }
    *bytes = m_file->read(qint64(size));
    return quint64(bytes->size()) == size;
}

quint64 TiffReader::number(const char* bytes, quint64 size) const
{
    quint64 value = 0;
    for (quint64 i = 0; i < size; ++i) {
        value = value << 8 | uchar(bytes[m_isBigEndian ? i : size - 1 - i]);
    }
    return value;
}

bool TiffReader::readNumber(quint64 offset, quint64 size, quint64* value)
{
    QByteArray bytes;
    if (!readAt(offset, size, &bytes)) {
        return false;
    }
    *value = number(bytes.constData(), size);
    return true;
}

bool TiffReader::begin()
{
    QByteArray start;
    if (!readAt(0, 4, &start)) {
        return false;
    }
    m_isBigEndian = start.startsWith("MM");
    if (!m_isBigEndian && !start.startsWith("II")) {
        return false;
    }
    const quint64 version = number(start.constData() + 2, 2);
    m_isBig = version == 43;
    if (!m_isBig) {
        return version == 42 && readNumber(4, 4, &m_next);
    }
    quint64 widths = 0; // of offsets, and two bytes of zero
    return readNumber(4, 2, &widths) && widths == 8 && readNumber(8, 8, &m_next);
}

bool TiffReader::nextPage()
{
    m_directory = m_next;
    m_next = 0;
    if (m_directory == 0 || m_seen.contains(m_directory) || m_seen.size() >= mostPages) {
        return false;
    }
    m_seen.insert(m_directory);
    if (!readNumber(m_directory, countBytes(), &m_entryCount) || m_entryCount > mostEntries) {
        return false;
    }
    const quint64 end = entriesStart() + m_entryCount * entryBytes();
    if (end > quint64(m_file->size())) {
        return false;
    }
    if (!readNumber(end, offsetBytes(), &m_next)) {
        m_next = 0; // the last page's offset may be missing
    }
    return true;
}

std::optional<TiffNumbers> TiffReader::numbersOf(const char* entry, quint64 entryOffset) const
{
    TiffNumbers numbers;
    numbers.numberBytes = bytesOfType(quint16(number(entry + 2, 2)));
    numbers.count = number(entry + 4, offsetBytes());
    if (numbers.numberBytes == 0 || numbers.count == 0) {
        return std::nullopt;
    }
    const quint64 inside = 4 + offsetBytes();
    numbers.offset = numbers.count > offsetBytes() / quint64(numbers.numberBytes)
        ? number(entry + inside, offsetBytes())
        : entryOffset + inside;
    return numbers;
}

void TiffReader::noteStrips(quint16 tag, const std::optional<TiffNumbers>& numbers)
{
    if (!numbers) {
        return;
    }
    if (tag == stripOffsetsTag || tag == tileOffsetsTag) {
        m_stripOffsets = *numbers;
    } else if (tag == stripByteCountsTag || tag == tileByteCountsTag) {
        m_stripByteCounts = *numbers;
    }
}

/// Takes the first number of a field that a page has; false when there is none.
bool TiffReader::takeEntry(const char* entry, quint64 entryOffset, TiffPage& page)
{
    const auto tag = quint16(number(entry, 2));
    const auto numbers = numbersOf(entry, entryOffset);
    noteStrips(tag, numbers);
    quint64* const field = fieldOf(page, tag);
    if (!field) {
        return true;
    }
    quint64 value = 0;
    const bool isSize = field == &page.width || field == &page.height;
    if (!numbers || (isSize && numbers->count > 1)
        || !readNumber(numbers->offset, quint64(numbers->numberBytes), &value)) {
        return false;
    }
    *field = std::max(*field, value);
    return true;
}

std::optional<TiffPage> TiffReader::page()
{
    QByteArray entries;
    if (!readAt(entriesStart(), m_entryCount * entryBytes(), &entries)) {
        return std::nullopt;
    }
    TiffPage page;
    for (quint64 i = 0; i < m_entryCount; ++i) {
        const quint64 start = i * entryBytes();
        if (!takeEntry(entries.constData() + start, entriesStart() + start, page)) {
            return std::nullopt;
        }
    }
    if (page.width == 0 || page.height == 0) {
        return std::nullopt;
    }
    page.isCutShort = !holdsStrips();
    return page;
}

/// Whether all pixel data lies within the file, as far as the page says where it stands.
bool TiffReader::holdsStrips()
{
    if (m_stripOffsets.count != m_stripByteCounts.count || m_stripOffsets.count > mostStrips) {
        return true; // decoders know what to make of that
    }
    const auto offsetSize = quint64(m_stripOffsets.numberBytes);
    const auto countSize = quint64(m_stripByteCounts.numberBytes);
    QByteArray offsets;
    QByteArray byteCounts;
    if (m_stripOffsets.count > 0
        && (!readAt(m_stripOffsets.offset, m_stripOffsets.count * offsetSize, &offsets)
            || !readAt(m_stripByteCounts.offset, m_stripOffsets.count * countSize, &byteCounts))) {
        return false;
    }
    const auto fileSize = quint64(m_file->size());
    for (quint64 i = 0; i < m_stripOffsets.count; ++i) {
        const quint64 offset = number(offsets.constData() + i * offsetSize, offsetSize);
        const quint64 bytes = number(byteCounts.constData() + i * countSize, countSize);
        if (bytes > 0 && (offset > fileSize || bytes > fileSize - offset)) {
            return false;
        }
    }
    return true;
}

} // namespace

int tiffPageCount(QIODevice* file)
{
    TiffReader reader(file);
    int count = 0;
    if (reader.begin()) {
        while (reader.nextPage()) {
            ++count;
        }
    }
    return count;
}

std::optional<TiffPage> readTiffPage(QIODevice* file, int page)
{
    TiffReader reader(file);
    if (page < 0 || !reader.begin()) {
        return std::nullopt;
    }
    for (int i = 0; i <= page; ++i) {
        if (!reader.nextPage()) {
            return std::nullopt;
        }
    }
    return reader.page();
}
