#include "printout.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double titlePoints = 11.0;
constexpr double textPoints = 9.0;
constexpr double gapPerLine = 0.6; // between parts, in line heights
constexpr double columnGapPerLine = 0.9;
constexpr double textShare = 0.5; // of the first page at most, where the table can go on
constexpr int wrapped = Qt::AlignLeft | Qt::TextWordWrap | Qt::TextWrapAnywhere;

} // namespace

PrintedPages::PrintedPages(const Printout& printout, QPainter* painter, const QRectF& area)
    : m_printout(printout)
    , m_painter(painter)
    , m_area(area)
    , m_titleFont(font(titlePoints))
    , m_textFont(font(textPoints))
    , m_tableFont(m_textFont)
    , m_rows(std::max(0, int(printout.table.size()) - 1))
{
    m_titleFont.setBold(true);
    m_gap = QFontMetricsF(m_textFont, painter->device()).height() * gapPerLine;
    measureTable();
    measureFirstPage();
}

/// The font of the program in points: its size in pixels belongs to the screen.
QFont PrintedPages::font(double points) const
{
    QFont font = m_painter->font();
    font.setPointSizeF(points);
    return font;
}

double PrintedPages::width(const QFont& font, const QString& text) const
{
    return QFontMetricsF(font, m_painter->device()).horizontalAdvance(text);
}

/// A table that is too wide becomes smaller as a whole.
void PrintedPages::measureTable()
{
    const double gap = QFontMetricsF(m_textFont, m_painter->device()).height() * columnGapPerLine;
    for (const QStringList& row : m_printout.table) {
        m_columns.resize(std::max(m_columns.size(), decltype(m_columns.size())(row.size())));
        for (int i = 0; i < int(row.size()); ++i) {
            m_columns[i] = std::max(m_columns[i], width(m_textFont, row[i]) + (i > 0 ? gap : 0.0));
        }
    }
    double total = 0.0;
    for (const double column : m_columns) {
        total += column;
    }
    const double scale = total > m_area.width() ? m_area.width() / total : 1.0;
    m_tableFont.setPointSizeF(textPoints * scale);
    for (double& column : m_columns) {
        column *= scale;
    }
}

int PrintedPages::rowsThatFit(double height) const
{
    const double row = QFontMetricsF(m_tableFont, m_painter->device()).height();
    return std::clamp(int(height / row) - 1, 0, m_rows); // without the header
}

double PrintedPages::tableHeight(int rows) const
{
    const double row = QFontMetricsF(m_tableFont, m_painter->device()).height();
    return rows > 0 ? (rows + 1) * row + m_gap : 0.0;
}

void PrintedPages::measureFirstPage()
{
    QPaintDevice* const device = m_painter->device();
    double texts = QFontMetricsF(m_titleFont, device).height() + m_gap;
    const QRectF room(0.0, 0.0, m_area.width(), m_area.height());
    for (const QString& line : m_printout.lines) {
        const QFontMetricsF metrics(m_textFont, device);
        m_lineHeights << metrics.boundingRect(room, wrapped, line).height();
        texts += m_lineHeights.last();
    }
    m_firstRows = rowsThatFit(m_area.height() * textShare - texts - m_gap);
    const double height = m_area.height() - texts - tableHeight(m_firstRows);
    if (height > 0.0 && !m_printout.picture.isNull()) {
        const QSizeF size
            = QSizeF(m_printout.picture.size()).scaled(m_area.width(), height, Qt::KeepAspectRatio);
        m_picture = QRectF(m_area.topLeft(), size);
        m_picture.moveLeft(m_area.left() + (m_area.width() - size.width()) / 2.0);
    }
}

int PrintedPages::count() const
{
    const int rowsAPage = std::max(1, rowsThatFit(m_area.height()));
    return 1 + (m_rows - m_firstRows + rowsAPage - 1) / rowsAPage;
}

void PrintedPages::draw(int page)
{
    if (page == 0) {
        drawFirstPage();
        return;
    }
    const int rowsAPage = std::max(1, rowsThatFit(m_area.height()));
    const int from = m_firstRows + (page - 1) * rowsAPage;
    drawTable(m_area.top(), from, std::min(rowsAPage, m_rows - from));
}

void PrintedPages::drawFirstPage()
{
    if (!m_picture.isEmpty()) {
        m_painter->drawImage(m_picture, m_printout.picture);
    }
    double y = m_picture.isEmpty() ? m_area.top() : m_picture.bottom() + m_gap;
    const QFontMetricsF metrics(m_titleFont, m_painter->device());
    m_painter->setFont(m_titleFont);
    m_painter->drawText(QRectF(m_area.left(), y, m_area.width(), metrics.height()), Qt::AlignLeft,
        metrics.elidedText(m_printout.title.simplified(), Qt::ElideMiddle, m_area.width()));
    y += metrics.height();
    m_painter->setFont(m_textFont);
    for (int i = 0; i < int(m_printout.lines.size()); ++i) {
        const QRectF place(m_area.left(), y, m_area.width(), m_lineHeights[i]);
        m_painter->drawText(place, wrapped, m_printout.lines[i]);
        y += m_lineHeights[i];
    }
    drawTable(y + m_gap, 0, m_firstRows);
}

/// The header and `rows` rows, the first of which is row `from` behind the header.
void PrintedPages::drawTable(double top, int from, int rows)
{
    if (rows <= 0) {
        return;
    }
    const double height = QFontMetricsF(m_tableFont, m_painter->device()).height();
    m_painter->setFont(m_tableFont);
    drawRow(top, m_printout.table.first());
    const double y = top + height;
    m_painter->drawLine(QPointF(m_area.left(), y), QPointF(m_area.right(), y));
    for (int i = 0; i < rows; ++i) {
        drawRow(y + i * height, m_printout.table[1 + from + i]);
    }
}

/// Numbers end at the right edge of their columns, the first column is a name.
void PrintedPages::drawRow(double top, const QStringList& row)
{
    double left = m_area.left();
    for (int i = 0; i < int(row.size()); ++i) {
        const QRectF cell(left, top, m_columns[i], m_area.height());
        m_painter->drawText(
            cell, int(i == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::TextDontClip, row[i]);
        left += m_columns[i];
    }
}

bool print(const Printout& printout, QPagedPaintDevice* device)
{
    QPainter painter;
    if (!painter.begin(device)) {
        return false;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    PrintedPages pages(printout, &painter, QRectF(painter.viewport()));
    for (int page = 0; page < pages.count(); ++page) {
        if (page > 0 && !device->newPage()) {
            return false;
        }
        pages.draw(page);
    }
    return painter.end();
}
