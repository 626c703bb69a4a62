#pragma once

class QString;
class QWidget;

/// Enables `control` and gives it the style sheet of the panel that it stands in, or disables it
/// and greys its text out.
void setControlEnabled(QWidget* control, bool enabled, const QString& panelStyleSheet);
