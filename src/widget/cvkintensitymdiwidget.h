#pragma once

#include "analysis/imageintensityanalysis.h"
#include "image/imagedata.h"
#include "image/frame.h"
#include "image/imageloadregistry.h"
#include "widget/profilechart.h"

#include <QColor>
#include <QPixmap>
#include <QVector>
#include <QWidget>

#include <optional>

class GradientColorLayoutItem;
class ImageLayoutItem;
class IntensityCurveHorizontal;
class IntensityCurveVertical;
class QGraphicsScene;
class QGraphicsTextItem;
class QGraphicsView;
class QImage;
class QPushButton;
class RulerBarHorizontal;
class RulerBarVertical;

/// The canvas side of the widget: owns the image, the loaders and the analysis engine, holds every
/// canvas item in one scene, lays the items out on resize, shows either the image or the chart of
/// its row or its column, and connects the items to each other while an image is loaded.
class CVKIntensityMdiWidget : public QWidget
{
    Q_OBJECT

public:
    /// Deletes itself when closed (Qt::WA_DeleteOnClose).
    explicit CVKIntensityMdiWidget(QWidget* parent);
    ~CVKIntensityMdiWidget() override;

    /// Loads and shows the image file `path`; false, with everything as it was, when it cannot be
    /// read. A load without a close before makes every connection once more, and the slots then
    /// run once more a signal.
    bool loadImage(const QString& path);

    /// Loads and shows as `options` tell; `report` is never null. With faithful reading rows are
    /// exact for every width, and what the image before left behind, connections and regions, goes
    /// first.
    bool loadImage(const QString& path, const ReadOptions& options, ReadReport* report);

    /// Shows a copy of the frame as a faithful load shows a file.
    LoadProblem showFrame(const FrameView& frame, const ReadOptions& options);

    /// Shows the next frame, of the size and depth of the image. Everything else stays: view, zoom,
    /// anchor, palette, regions, charts. The histogram panel and the regions are not touched.
    LoadProblem updateFrame(const FrameView& frame, const ReadOptions& options);

    /// Undoes the connections and releases the image. The last picture stays on the canvas.
    /// Without an image nothing happens.
    void closeImage();

    ImageLayoutItem* imageItem() const { return m_imageItem; }
    ImageIntensityAnalysis* analysis() { return &m_analysis; }
    const ImageIntensityAnalysis* analysis() const { return &m_analysis; }
    const ImageData& image() const { return m_image; }
    const ProfileChart& rowChart() const { return m_rowChart; }
    const ProfileChart& columnChart() const { return m_columnChart; }
    int displayType() const { return m_displayType; } ///< 0 image view, 1 2D chart
    int axis() const { return m_axis; } ///< of the chart in the 2D view: 0 row, 1 column

    /// Image pixel shown at `position` of this widget; nothing beside the picture, while a chart is
    /// in front, and without an image.
    std::optional<QPoint> pixelAt(const QPoint& position) const;

    /// The read-out of what the visible view shows, without any announcement.
    void updateReadoutOfView();

Q_SIGNALS:
    void updateItemNames(QStringList itemNames); ///< part of the interface; not emitted

public Q_SLOTS:
    /// 0: the row's profile in the 2D chart, 1: the column's; anything else is ignored.
    void switchAxis(int index);
    /// 0: image view, 1: 2D chart; anything else is ignored.
    void switchDisplayType(int index);
    void changedMaxPeaksCount(int count);
    void changedShowPeaksState(bool isShow);
    void changedPalette(QVector<QColor> pal);
    void changedVerticalRulerTitle(QString title);
    void changedHorizontalRulerTitle(QString title);
    void changedAnchorImagePosition(QPointF anchor); ///< image pixels
    /// A pick in a chart: pixel `position` of the anchor's column (`isHorizontal`) counted from the
    /// bottom row, or of its row.
    void changedAnchorImagePosition(bool isHorizontal, int position);
    /// Wavelength at pixel 0 and width of a pixel in the same unit, for both axes of the image;
    /// negative values go back to pixel numbers. Without an image nothing happens.
    void changedPixelsToWavelength(double startX, double pixelWidth);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildCanvas();
    void buildImageView();
    void buildZoomPanel();
    QVector<Wire> imageViewWires() const;
    QVector<Wire> loadedImageWires() const;
    void dropOpenImage();
    void showLoadedImage();
    void updateGrayRange();
    const QImage* shownImage() const;
    void layOutImageView(const QSize& canvas);
    void layOutCharts(const QSize& canvas);
    void applyDisplayMode();
    void refreshReadout();
    void updateReadout(int x, int y);

    int m_axis = 0; ///< chart shown in the 2D view: 0 row, 1 column
    int m_displayType = 0; ///< 0 image view, 1 2D chart
    QPixmap m_background;
    ImageData m_image;
    ImageLoadRegistry m_loaders;
    ImageIntensityAnalysis m_analysis;
    QGraphicsView* m_view = nullptr;
    QGraphicsScene* m_scene = nullptr;
    QGraphicsTextItem* m_readout = nullptr;
    QWidget* m_zoomPanel = nullptr;
    QPushButton* m_zoomIn = nullptr;
    QPushButton* m_zoomOut = nullptr;
    ImageLayoutItem* m_imageItem = nullptr;
    RulerBarVertical* m_leftRuler = nullptr;
    RulerBarHorizontal* m_bottomRuler = nullptr;
    IntensityCurveVertical* m_leftCurve = nullptr;
    IntensityCurveHorizontal* m_bottomCurve = nullptr;
    GradientColorLayoutItem* m_colorBar = nullptr;
    RulerBarHorizontal* m_grayRuler = nullptr;
    ProfileChart m_rowChart;
    ProfileChart m_columnChart;
};
