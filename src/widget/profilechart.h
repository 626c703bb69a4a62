#pragma once

#include "widget/wire.h"

class CVKIntensityMdiWidget;
class ImageIntensityAnalysis;
class ImageLayoutItem;
class IntensityCurveAxisItem;
class QGraphicsScene;
class QImage;
class RulerBarHorizontal;
class RulerBarVertical;
class QSize;
class QString;

/// The 2D chart of one profile: the curve display between a ruler of grey values on the left and
/// one of pixels below. The items belong to the scene.
struct ProfileChart
{
    enum Axis { Row, Column };

    Axis axis = Row;
    RulerBarVertical* valueRuler = nullptr;
    RulerBarHorizontal* pixelRuler = nullptr;
    IntensityCurveAxisItem* curve = nullptr;

    /// Creates the items and adds them to `scene`. The chart of the column runs from the bottom row
    /// upward.
    void build(Axis chartAxis, QGraphicsScene* scene, const QString& valueTitle,
        const QString& pixelTitle);

    /// Resizes and places the items for a canvas of `canvas` units.
    void layOut(const QSize& canvas);

    /// Shows or hides the items. The pixel ruler takes the whole of `shownImage`, unless it is
    /// null, and a shown curve is computed.
    void setVisible(bool visible, const QImage* shownImage);

    /// 10 peaks, hidden, no headroom; then the pick in the middle, which the curve announces.
    void reset();

    /// Shows or hides peak ticks and labels, with headroom above the curve for them.
    void showPeaks(bool isShow);

    /// The connections of the chart while an image is loaded, in the order in which they are made.
    QVector<Wire> wires(const ImageLayoutItem* imageItem, const ImageIntensityAnalysis* engine,
        const CVKIntensityMdiWidget* host) const;
};
