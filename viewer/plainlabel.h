#pragma once

#include <QLabel>
#include <QString>

/// A label (`Label` is QLabel or made from it) whose style comes from its name. It shows plain text
/// only, since that may be the name of a file.
template <class Label = QLabel>
Label* plainLabel(const char* objectName, const QString& text = QString())
{
    auto* label = new Label;
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}
