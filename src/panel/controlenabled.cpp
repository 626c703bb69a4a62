#include "panel/controlenabled.h"

#include <QWidget>

void setControlEnabled(QWidget* control, bool enabled, const QString& panelStyleSheet)
{
    control->setStyleSheet(enabled ? panelStyleSheet : QStringLiteral("color: rgb(60, 60, 60);"));
    control->setEnabled(enabled);
}
