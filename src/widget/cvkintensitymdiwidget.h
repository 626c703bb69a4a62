#pragma once

#include "analysis/imageintensityanalysis.h"
#include "image/imagedata.h"
#include "image/imageloadregistry.h"

#include <QColor>
#include <QPixmap>
#include <QVector>
#include <QWidget>

class GradientColorLayoutItem;
class ImageLayoutItem;
class IntensityCurveHorizontal;
class IntensityCurveVertical;
class QGraphicsScene;
class QGraphicsTextItem;
class QGraphicsView;
class QPushButton;
class RulerBarHorizontal;
class RulerBarVertical;

/// The canvas side of the widget: owns the image, the loaders and the analysis engine, holds every
/// canvas item in one scene, lays the items out on resize and connects them to each other while an
/// image is loaded.
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

    /// Undoes the connections and releases the image. The last picture stays on the canvas.
    /// Without an image nothing happens.
    void closeImage();

    ImageLayoutItem* imageItem() const { return m_imageItem; }
    ImageIntensityAnalysis* analysis() { return &m_analysis; }

Q_SIGNALS:
    void updateItemNames(QStringList itemNames); ///< part of the interface; not emitted

public Q_SLOTS:
    void changedPalette(QVector<QColor> pal);
    void changedVerticalRulerTitle(QString title);
    void changedHorizontalRulerTitle(QString title);
    void changedAnchorImagePosition(QPointF anchor); ///< image pixels

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// One connection that is made by each load and undone by close.
    struct Wire
    {
        const QObject* sender;
        const char* signal;
        const QObject* receiver;
        const char* slot;
    };

    void buildCanvas();
    void buildImageView();
    void buildZoomPanel();
    QVector<Wire> imageViewWires() const;
    void updateGrayRange();
    void layOutImageView(const QSize& canvas);
    void updateReadout(int x, int y);
    void placeReadout(int canvasHeight);

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
};
