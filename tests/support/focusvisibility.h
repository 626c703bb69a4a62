#pragma once

#include "support/contrast.h"

#include <QCoreApplication>
#include <QImage>
#include <QWidget>

/// Whether the keyboard focus can be seen, on what is painted.

/// Pixels of the window that change when `control` loses the focus, by 3 to 1 or more (WCAG 2.1,
/// success criterion 1.4.11). The focus goes back to the control.
inline int focusPixels(QWidget* control)
{
    QCoreApplication::processEvents();
    const QImage with = control->window()->grab().toImage();
    control->clearFocus();
    QCoreApplication::processEvents();
    const QImage without = control->window()->grab().toImage();
    control->setFocus(Qt::TabFocusReason);
    int changed = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QRgb before = without.pixel(x, y);
            const QRgb after = with.pixel(x, y);
            changed += before != after && contrastRatio(before, after) >= 3.0;
        }
    }
    return changed;
}

/// As many as one line along the longest side of the control, seen or not.
inline bool focusIsSeen(QWidget* control)
{
    return focusPixels(control) >= qMax(control->width(), control->height());
}
