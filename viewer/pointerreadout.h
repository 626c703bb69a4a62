#pragma once

#include "cvkintensitywidget.h"

#include <QObject>

class ImagePage;
class StatusLine;

/// Tells in the status line which pixel is under the pointer, with its value, and how large pixels
/// are drawn. Rows are counted from the bottom one and columns have wavelengths as at the rulers
/// and in the read-out of the cross-hair.
class PointerReadout : public QObject
{
    Q_OBJECT

public:
    PointerReadout(ImagePage* page, StatusLine* status, QObject* parent = nullptr);

    /// "x 120, y 44: 1830", or "x 120 (520 nm), y 44: 1830"; `pixel` from the top left.
    QString pixelText(const QPoint& pixel, quint32 value) const;

private:
    void follow(const QPoint& position);
    void showPixel();
    void takeDisplay();

    ImagePage* m_page;
    StatusLine* m_status;
    std::optional<QPoint> m_pointer; // in the intensity widget, while it is over the canvas
    int m_height = 0; // of the image, in pixels
    CVKIntensityWidget::Profile m_axis; // wavelengths of columns, without values
    QString m_unit; // empty without wavelengths
};

/// "150 %": screen units a pixel; empty for 0.
QString zoomText(double factor);
