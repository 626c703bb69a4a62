#include "elidedlabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return QSize(fontMetrics().horizontalAdvance("..."), QLabel::minimumSizeHint().height());
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString line = text().simplified(); // a line feed in a file name stays on the line
    const QString shown = fontMetrics().elidedText(line, Qt::ElideMiddle, area.width());
    style()->drawItemText(
        &painter, area, int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}
