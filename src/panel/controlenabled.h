#pragma once

#include <QWidget>

/// Enables or greys out a control of a module. A disabled control has its own colour, an enabled
/// one the look that `panelStyleSheet`, the module's own, gives it.
inline void setControlEnabled(QWidget* control, bool enabled, const QString& panelStyleSheet)
{
    control->setStyleSheet(enabled ? panelStyleSheet : QStringLiteral("color: rgb(60, 60, 60);"));
    control->setEnabled(enabled);
}
