#pragma once

#include <QEvent>
#include <QWidget>

/// Counts the events of one kind that a widget gets.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget* widget, QEvent::Type type)
        : m_type(type)
    {
        widget->installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};
