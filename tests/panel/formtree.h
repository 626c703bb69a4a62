#pragma once

#include <QGridLayout>
#include <QLayoutItem>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <QWidget>

/// What a form is made of, in words.

/// The object name of a widget or layout; a spacer by its size, followed by the direction in which
/// it expands.
inline QString nameOf(QLayoutItem* item)
{
    if (QSpacerItem* const spacer = item->spacerItem()) {
        const QSize hint = spacer->sizeHint();
        const Qt::Orientations expanding = spacer->expandingDirections();
        return QString("%1 x %2").arg(hint.width()).arg(hint.height())
            + (expanding & Qt::Horizontal ? " h" : "") + (expanding & Qt::Vertical ? " v" : "");
    }
    return item->widget() ? item->widget()->objectName() : item->layout()->objectName();
}

inline QStringList itemNames(const QLayout* layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i) {
        names.append(nameOf(layout->itemAt(i)));
    }
    return names;
}

/// Column, row, columns and rows of the item called `name`; a null rectangle when there is none.
inline QRect gridPlace(const QGridLayout* grid, const QString& name)
{
    for (int i = 0; i < grid->count(); ++i) {
        if (nameOf(grid->itemAt(i)) == name) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            return QRect(column, row, columns, rows);
        }
    }
    return QRect();
}

/// Remembers which texts were looked up in which context, and translates none.
class RecordingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        m_lookedUp.append(QString("%1: %2").arg(context, text));
        return QString();
    }
    bool isEmpty() const override { return false; }
    bool hasLookedUp(const QString& context, const QString& text) const
    {
        return m_lookedUp.contains(context + ": " + text);
    }

private:
    mutable QStringList m_lookedUp;
};
