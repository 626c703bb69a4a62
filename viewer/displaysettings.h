#pragma once

#include "cvkintensitywidget.h"

#include <QPoint>
#include <QRect>
#include <QString>
#include <QVector>

#include <optional>

/// How an image is to be shown. What is not set stays as it is.
struct DisplaySettings
{
    std::optional<CVKIntensityWidget::View> view;
    std::optional<CVKIntensityWidget::Axis> chartAxis; ///< of the chart behind the image view
    std::optional<QPoint> crossHair; ///< image pixel; outside the image it is left out
    std::optional<CVKIntensityWidget::PeakLabels> peakLabels;
    std::optional<CVKIntensityWidget::Calibration> calibration;
    QString palette; ///< one of CVKIntensityWidget::colorPalettes(); empty: as it is
    QVector<QRect> regions; ///< to be added; image pixels, the origin at the top left
    std::optional<int> selectedRegion; ///< to be selected in the end, -1 for none; otherwise the
                                       ///< one that was added last

    bool isEmpty() const;
};

/// How the widget shows its image. Of a region that reaches beyond the image, what lies inside.
DisplaySettings displaySettings(const CVKIntensityWidget& widget);

/// Sets whatever can be set and returns what went wrong first, as one line; empty on success.
QString applySettings(const DisplaySettings& settings, CVKIntensityWidget* widget);
