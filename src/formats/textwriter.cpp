#include "formats/textwriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr int longestNumber = 32; // the shortest form of a double has at most 24 characters
constexpr qint64 largestText = std::numeric_limits<int>::max() - 64;

/// Whether `value` is written like an integer.
bool isPlainInteger(double value)
{
    return std::fabs(value) < 1e15 && value == std::trunc(value);
}

bool isMinusZero(double value)
{
    return value == 0.0 && std::signbit(value);
}

const char* nameOfNoNumber(double value)
{
    return std::isnan(value) ? "nan" : value > 0.0 ? "inf" : "-inf";
}

} // namespace

void TextWriter::reserve(qint64 bytes)
{
    const qint64 wanted = std::min(m_used + bytes, largestText);
    if (wanted > m_bytes.size()) {
        m_bytes.resize(int(wanted));
    }
}

char* TextWriter::space(int count)
{
    const qint64 needed = qint64(m_used) + count;
    if (needed > m_bytes.size()) {
        reserve(std::max<qint64>(needed, qint64(m_used) * 2) - m_used + 64);
    }
    return m_bytes.data() + m_used;
}

void TextWriter::text(const char* bytes, int count)
{
    std::memcpy(space(count), bytes, size_t(count));
    m_used += count;
}

void TextWriter::text(const char* ascii)
{
    text(ascii, int(std::strlen(ascii)));
}

void TextWriter::text(const QByteArray& bytes)
{
    text(bytes.constData(), int(bytes.size()));
}

void TextWriter::character(char byte)
{
    *space(1) = byte;
    ++m_used;
}

void TextWriter::integer(qint64 value)
{
    char* const begin = space(longestNumber);
    m_used += int(std::to_chars(begin, begin + longestNumber, value).ptr - begin);
}

void TextWriter::real(double value, const char* notFinite)
{
    if (!std::isfinite(value)) {
        text(notFinite ? notFinite : nameOfNoNumber(value));
        return;
    }
    if (isMinusZero(value)) {
        text("-0.0"); // readers take "-0" for an integer, which has no sign
        return;
    }
    if (isPlainInteger(value)) {
        integer(qint64(value));
        return;
    }
    char* const begin = space(longestNumber);
    m_used += int(std::to_chars(begin, begin + longestNumber, value).ptr - begin);
}

QByteArray TextWriter::take()
{
    m_bytes.resize(m_used);
    m_used = 0;
    QByteArray taken;
    taken.swap(m_bytes);
    return taken;
}
