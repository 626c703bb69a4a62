#include "formats/ds9regions.h"

#include "formats/textwriter.h"

#include <QList>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int mostBytes = 16 << 20;
constexpr int mostRegions = 65536;

/// Degrees. Programs write 359.99999 for a box that was turned and turned back; over 10,000 pixels
/// that is a fiftieth of a pixel.
constexpr double angleTolerance = 1e-4;

bool isOneOf(const QByteArray& word, std::initializer_list<const char*> words)
{
    return std::any_of(
        words.begin(), words.end(), [&word](const char* other) { return word == other; });
}

/// Physical coordinates are those of an image before it was binned or cut, which files of cameras
/// do not tell, so that both are the same.
bool isPixelSystem(const QByteArray& word)
{
    return isOneOf(word, { "image", "physical" });
}

bool isOtherSystem(const QByteArray& word)
{
    return isOneOf(word,
               { "linear", "amplifier", "detector", "fk4", "b1950", "fk5", "j2000", "icrs",
                   "galactic", "ecliptic", "wcs" })
        || (word.size() == 4 && word.startsWith("wcs"));
}

bool isOtherShape(const QByteArray& word)
{
    return isOneOf(word,
        { "circle", "ellipse", "annulus", "polygon", "point", "line", "vector", "text", "ruler",
            "compass", "projection", "segment", "panda", "epanda", "bpanda", "pie", "field",
            "rotbox", "rectangle", "rotrectangle", "composite" });
}

bool isLineEnd(char byte)
{
    return byte == '\n' || byte == '\r';
}

bool isSpace(char byte)
{
    return byte == ' ' || byte == '\t';
}

bool isLetterOrDigit(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
        || (byte >= '0' && byte <= '9');
}

/// Letters and digits at the begin of `text`, in lower case.
QByteArray firstWord(const QByteArray& text)
{
    int length = 0;
    while (length < int(text.size()) && isLetterOrDigit(text.at(length))) {
        ++length;
    }
    return text.left(length).toLower();
}

/// Takes a text apart into statements, which end at a line end or a semicolon.
class Statements
{
public:
    explicit Statements(const QByteArray& text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_at >= int(m_text.size()); }

    /// Without the spaces around it and the properties behind it; may be empty. A line that begins
    /// with "#" is one statement.
    QByteArray next()
    {
        skipWhile(isSpace);
        const int begin = m_at;
        if (!atEnd() && m_text.at(m_at) == '#') {
            skipWhile([](char byte) { return !isLineEnd(byte); });
        } else {
            skipWhile([](char byte) { return byte != ';' && byte != '#' && !isLineEnd(byte); });
        }
        const QByteArray statement = m_text.mid(begin, m_at - begin).trimmed();
        skipProperties();
        ++m_at; // what ended it
        return statement;
    }

private:
    template <class Condition>
    void skipWhile(Condition condition)
    {
        while (!atEnd() && condition(m_text.at(m_at))) {
            ++m_at;
        }
    }

    /// "# text={one; two}" to the end of the line, or to a semicolon outside of such a text.
    void skipProperties()
    {
        if (atEnd() || m_text.at(m_at) != '#') {
            return;
        }
        char closing = 0;
        skipWhile([&closing](char byte) {
            if (closing) {
                closing = byte == closing ? char(0) : closing;
                return !isLineEnd(byte);
            }
            closing = byte == '{' ? '}' : byte == '"' || byte == '\'' ? byte : char(0);
            return byte != ';' && !isLineEnd(byte);
        });
    }

    const QByteArray m_text;
    int m_at = 0;
};

/// Numbers of a box, in pixels and degrees.
struct Box
{
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    double angle = 0.0;
};

/// "(1,2,3)", "(1 2 3)" or "1 2 3" as its parts, also in front of "||", which joins shapes. Nothing
/// if it is something else.
std::optional<QVector<QByteArray>> arguments(const QByteArray& text)
{
    int length = int(text.size());
    while (length > 0 && (text.at(length - 1) == '|' || isSpace(text.at(length - 1)))) {
        --length;
    }
    QByteArray list = text.left(length).trimmed();
    if (list.startsWith('(') != list.endsWith(')')) {
        return std::nullopt;
    }
    if (list.startsWith('(')) {
        list = list.mid(1, int(list.size()) - 2);
    }
    QVector<QByteArray> parts;
    list.replace(',', ' ');
    list.replace('\t', ' ');
    for (const QByteArray& part : list.split(' ')) {
        if (!part.isEmpty()) {
            parts.append(part);
        }
    }
    return parts;
}

/// Whether `part` has the unit of an angle on the sky, or is one in parts of 60.
bool isSkyNumber(const QByteArray& part)
{
    const char last = part.at(int(part.size()) - 1);
    return part.contains(':') || last == '"' || last == '\'' || last == 'd' || last == 'r';
}

/// A finite number, perhaps with the unit of pixels.
std::optional<double> pixelNumber(QByteArray part)
{
    if (part.endsWith('i') || part.endsWith('p')) {
        part.chop(1);
    }
    bool isNumber = false;
    const double number = part.contains('\0') ? 0.0 : part.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

/// Nearest border between pixels; a middle goes to the next one.
double border(double edge)
{
    return std::floor(edge + 0.5);
}

/// Nothing unless the box holds a pixel and lies in an image of this size.
std::optional<QRect> pixelsOf(const Box& box, const QSize& imageSize)
{
    // Borders are counted from 0 at the left and at the top; 1 is the middle of the first pixel.
    const double left = border(box.x - 0.5 - box.width / 2.0);
    const double right = border(box.x - 0.5 + box.width / 2.0);
    const double top = border(imageSize.height() - (box.y - 0.5 + box.height / 2.0));
    const double bottom = border(imageSize.height() - (box.y - 0.5 - box.height / 2.0));
    // Infinite edges and what is no number fail here, before anything becomes an int.
    const bool isInside = left >= 0.0 && left < right && right <= imageSize.width() && top >= 0.0
        && top < bottom && bottom <= imageSize.height();
    if (!isInside) {
        return std::nullopt;
    }
    return QRect(int(left), int(top), int(right - left), int(bottom - top));
}

class Reader
{
public:
    explicit Reader(const QSize& imageSize)
        : m_imageSize(imageSize)
    {
    }

    void read(const QByteArray& text);
    const Ds9Regions& found() const { return m_found; }

private:
    void readStatement(const QByteArray& statement);
    void readComment(const QByteArray& comment);
    void readShape(QByteArray shape);
    void readBox(const QVector<QByteArray>& parts);
    void addBox(Box box);

    const QSize m_imageSize;
    Ds9Regions m_found;
    bool m_countsPixels = true; ///< the coordinates in force; pixels until a system is named
};

void Reader::read(const QByteArray& text)
{
    Statements statements(text);
    while (!statements.atEnd()) {
        const QByteArray statement = statements.next();
        if (int(m_found.regions.size()) == mostRegions && !statement.isEmpty()
            && !statement.startsWith('#')) {
            ++m_found.brokenLines; // one for all that follows
            return;
        }
        readStatement(statement);
    }
}

void Reader::readStatement(const QByteArray& statement)
{
    const QByteArray word = firstWord(statement);
    if (statement.isEmpty() || word == "global") {
        return;
    }
    if (statement.startsWith('#')) {
        readComment(statement);
    } else if (word.size() == statement.size() && isPixelSystem(word)) {
        m_countsPixels = true;
    } else if (word.size() == statement.size() && isOtherSystem(word)) {
        m_countsPixels = false;
    } else {
        readShape(statement);
    }
}

/// Shapes that only this format's own program knows stand in comments: "# vector(1,2,3,4)".
void Reader::readComment(const QByteArray& comment)
{
    const QByteArray content = comment.mid(1).trimmed();
    const QByteArray word = firstWord(content);
    if (isOtherShape(word) && content.mid(int(word.size())).trimmed().startsWith('(')) {
        ++(m_countsPixels ? m_found.otherShapes : m_found.otherCoordinates);
    }
}

void Reader::readShape(QByteArray shape)
{
    const bool isExcluded = shape.startsWith('-');
    if (isExcluded || shape.startsWith('+')) {
        shape = shape.mid(1).trimmed();
    }
    const QByteArray word = firstWord(shape);
    const auto parts = arguments(shape.mid(int(word.size())));
    const bool isBox = word == "box";
    if (!parts || !(isBox || isOtherShape(word))) {
        ++m_found.brokenLines;
    } else if (!m_countsPixels) {
        ++m_found.otherCoordinates;
    } else if (isExcluded || !isBox || parts->size() > 5) { // a ring of boxes has more numbers
        ++m_found.otherShapes;
    } else {
        readBox(*parts);
    }
}

void Reader::readBox(const QVector<QByteArray>& parts)
{
    Box box;
    double* const numbers[] = { &box.x, &box.y, &box.width, &box.height, &box.angle };
    if (parts.size() < 4) {
        ++m_found.brokenLines;
        return;
    }
    for (int i = 0; i < int(parts.size()); ++i) {
        const auto number = pixelNumber(parts.at(i));
        if (!number) {
            ++(i < 4 && isSkyNumber(parts.at(i)) ? m_found.otherCoordinates : m_found.brokenLines);
            return;
        }
        *numbers[i] = *number;
    }
    addBox(box);
}

void Reader::addBox(Box box)
{
    if (std::fabs(std::remainder(box.angle, 90.0)) > angleTolerance) {
        ++m_found.otherShapes;
        return;
    }
    if (std::fabs(std::remainder(box.angle, 180.0)) > 45.0) { // lies on its side
        std::swap(box.width, box.height);
    }
    if (const auto pixels = pixelsOf(box, m_imageSize)) {
        m_found.regions.append(*pixels);
    } else {
        ++m_found.outside;
    }
}

/// The whole lines within the first mostBytes of `text`.
QByteArray boundedLines(const QByteArray& text)
{
    int length = mostBytes;
    while (length > 0 && !isLineEnd(text.at(length - 1))) {
        --length;
    }
    return text.left(length);
}

} // namespace

QByteArray ds9Text(const QVector<QRect>& regions, int imageHeight)
{
    TextWriter out;
    out.text("# Region file format: DS9 version 4.1\nimage\n");
    for (int i = 0; i < int(regions.size()); ++i) {
        const QRect& region = regions.at(i);
        const qint64 width = region.width();
        const qint64 height = region.height();
        out.text("box(");
        out.real(double(2 * qint64(region.x()) + width + 1) / 2.0);
        out.character(',');
        out.real(double(2 * (qint64(imageHeight) - region.y()) - height + 1) / 2.0);
        out.character(',');
        out.integer(width);
        out.character(',');
        out.integer(height);
        out.text(",0) # text={ROI ");
        out.integer(i + 1);
        out.text("}\n");
    }
    return out.take();
}

Ds9Regions readDs9(const QByteArray& text, const QSize& imageSize)
{
    constexpr char byteOrderMark[] = "\xef\xbb\xbf";
    Reader reader(imageSize);
    const bool isTooLong = text.size() > mostBytes;
    const QByteArray bounded = isTooLong ? boundedLines(text) : text;
    reader.read(bounded.startsWith(byteOrderMark) ? bounded.mid(3) : bounded);
    Ds9Regions found = reader.found();
    found.brokenLines += isTooLong ? 1 : 0;
    return found;
}
