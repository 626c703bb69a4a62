#pragma once

#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVector>

class QPagedPaintDevice;
class QPainter;

/// What is printed: a picture, and texts and numbers below it.
struct Printout
{
    QImage picture;
    QString title; ///< on one line, with its middle left out where that is too short
    QStringList lines; ///< wrapped where they are too long
    QVector<QStringList> table; ///< rows of as many texts each; the first one is the header
};

/// A printout laid out on pages of one size. The first page has picture, texts and the start of the
/// table; further pages have the rows that are left, each under the header.
class PrintedPages
{
public:
    /// `area` is what there is to draw on, in units of the painter's device.
    PrintedPages(const Printout& printout, QPainter* painter, const QRectF& area);

    int count() const; ///< 1 at least

    void draw(int page); ///< from 0

    /// Where the picture stands on the first page: as large as fits, in its proportions.
    QRectF pictureRect() const { return m_picture; }

private:
    QFont font(double points) const;
    double width(const QFont& font, const QString& text) const;
    void measureTable();
    void measureFirstPage();
    int rowsThatFit(double height) const;
    double tableHeight(int rows) const;
    void drawFirstPage();
    void drawTable(double top, int from, int rows);
    void drawRow(double top, const QStringList& row);

    const Printout& m_printout;
    QPainter* m_painter;
    QRectF m_area;
    QFont m_titleFont;
    QFont m_textFont;
    QFont m_tableFont;
    QVector<double> m_columns; // widths, with the gap before each but the first
    QVector<double> m_lineHeights;
    double m_gap = 0.0; // between picture, texts and table
    QRectF m_picture;
    int m_rows = 0; // without the header
    int m_firstRows = 0; // of them on the first page
};

/// Prints all pages. False when the device cannot be drawn on, or takes no further page.
bool print(const Printout& printout, QPagedPaintDevice* device);
