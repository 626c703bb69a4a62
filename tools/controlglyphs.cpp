#include "skinimages.h"

#include "skinpainting.h"

namespace {

// Glyphs are drawn large; the style sheet scales them down to the size of their button.
constexpr int glyphSide = 96;

QImage glyph(const QVector<QPointF>& line, const QColor& color, qreal width)
{
    QImage image = skinCanvas(glyphSide, glyphSide);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF(line));
    return image;
}

QImage zoomOut()
{
    return glyph({ { 16.0, 48.0 }, { 80.0, 48.0 } }, glyphColor, 9.0);
}

QImage zoomIn()
{
    QImage image = zoomOut();
    QPainter painter(&image);
    painter.drawImage(0, 0, glyph({ { 48.0, 16.0 }, { 48.0, 80.0 } }, glyphColor, 9.0));
    return image;
}

QImage arrowDown()
{
    return glyph({ { 20.0, 34.0 }, { 48.0, 64.0 }, { 76.0, 34.0 } }, glyphColor, 11.0);
}

QImage arrowRight()
{
    return glyph({ { 36.0, 20.0 }, { 64.0, 48.0 }, { 36.0, 76.0 } }, glyphColor, 11.0);
}

QImage arrowDownDisabled()
{
    return glyph({ { { 20.0, 34.0 }, { 48.0, 64.0 }, { 76.0, 34.0 } } }, QColor(60, 60, 60), 11.0);
}

QImage checkMark()
{
    return glyph({ { 20.0, 50.0 }, { 40.0, 70.0 }, { 76.0, 26.0 } }, glyphColor, 14.0);
}

// Grounds, as nine patches: the style sheet stretches what lies inside their edge.

const QColor fieldColor(15, 18, 22);
const QColor edgeColor(83, 96, 112);
const QColor cardColor(104, 117, 131); // white keeps 4.5 to 1 on it
const QColor lightGroundColor(162, 172, 183); // the widget's colour of disabled text keeps 4.5 to 1

/// A box with an edge of one pixel and softened corners, which are three pixels wide and one high:
/// a higher edge would take room from the controls.
QImage box(const QColor& ground, const QColor& edge)
{
    QImage image = skinCanvas(7, 3);
    image.fill(edge);
    QPainter painter(&image);
    painter.fillRect(1, 1, 5, 1, ground);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    QColor corner = edge;
    for (const int y : { 0, 2 }) {
        corner.setAlpha(40);
        painter.fillRect(0, y, 1, 1, corner);
        painter.fillRect(6, y, 1, 1, corner);
        corner.setAlpha(190);
        painter.fillRect(1, y, 1, 1, corner);
        painter.fillRect(5, y, 1, 1, corner);
    }
    return image;
}

QImage button()
{
    return box(QColor(54, 65, 78), edgeColor);
}

QImage buttonHover()
{
    return box(QColor(66, 80, 97), accentColor);
}

QImage buttonPressed()
{
    return box(QColor(38, 119, 131), accentColor);
}

QImage card()
{
    return box(cardColor, cardColor);
}

QImage field()
{
    return box(fieldColor, edgeColor);
}

QImage fieldHover()
{
    return box(fieldColor, accentColor);
}

QImage fieldDisabled()
{
    return box(lightGroundColor, lightGroundColor);
}

} // namespace

QVector<SkinImage> controlGlyphs()
{
    return {
        { "zoom_in.png", zoomIn },
        { "zoom_out.png", zoomOut },
        { "arrow_down.png", arrowDown },
        { "arrow_down_disabled.png", arrowDownDisabled },
        { "arrow_right.png", arrowRight },
        { "check_mark.png", checkMark },
        { "card.png", card },
        { "button.png", button },
        { "button_hover.png", buttonHover },
        { "button_pressed.png", buttonPressed },
        { "field.png", field },
        { "field_hover.png", fieldHover },
        { "field_disabled.png", fieldDisabled },
    };
}
