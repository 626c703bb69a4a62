#pragma once

#include "analysis/displayconversion.h"
#include "analysis/histogramdata.h"
#include "analysis/intensityinfo.h"
#include "base/pixelmemory.h"

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <QRect>
#include <QRectF>
#include <QVector>

#include <array>
#include <optional>

class ImageData;

/// Turns the loaded image into what the widget shows: the display image through palette and display
/// levels, the row and the column through the anchor, and statistics and histogram of a region of
/// interest (ROI).
///
/// The image stays its owner's and outlives the engine. The buffers in signals belong to
/// `histogram` and are lent for the call: receivers copy. Bad input of any kind is ignored, and
/// earlier results stay.
class ImageIntensityAnalysis : public QObject
{
    Q_OBJECT

public:
    /// `image` may be null.
    explicit ImageIntensityAnalysis(ImageData* image);
    ~ImageIntensityAnalysis() override;

    uchar* displayBuffer = nullptr; ///< red, green and blue of each pixel, rows without padding
    /// The display image over displayBuffer, owned. Null until the first image, and then the same
    /// object for good: each new image is assigned to it.
    QImage* displayImage = nullptr;
    ImageData* image = nullptr; ///< not owned
    HistogramData histogram;
    QRect drawRect; ///< the shown part of the image, in image pixels
    QPoint anchor; ///< in image pixels
    IntensityInfo roiInfo; ///< of the last ROI
    int displayLow = 0;
    int displayHigh = 255;
    std::array<PaletteEntry, 256> palette; ///< grey ramp at construction
    std::array<uchar, 256> colorIndex; ///< display level to palette entry; the identity

    /// Takes a freshly loaded image: reduces it to one channel, analyses it, renders it. Null, or
    /// an image without pixels, is remembered and nothing else: the last results stay.
    void setImageData(ImageData* image);

    /// The pixels of the image have new values, in the same size and depth: analyzes and renders
    /// them, and sends the lines through `newAnchor` with the part `newDrawRect`. Rows of the
    /// display image are taken as setDisplayRowsPacked() says. Without an image nothing happens.
    void refreshImageData(const QPoint& newAnchor, const QRect& newDrawRect);

    /// Whether display images to come take their rows as packed as they are written, which shows
    /// every width rightly. False at first: rows are then taken as padded to four bytes.
    void setDisplayRowsPacked(bool arePacked) { m_areRowsPacked = arePacked; }

    /// Stands for one load by the widget around the engine, which announces the colors one extra
    /// time by itself: while a scope lives, the first announcement of the colors in which its image
    /// was converted converts nothing. The engine may die first.
    class LoadScope
    {
    public:
        explicit LoadScope(ImageIntensityAnalysis* engine);
        ~LoadScope();
        LoadScope(const LoadScope&) = delete;
        LoadScope& operator=(const LoadScope&) = delete;

    private:
        QPointer<ImageIntensityAnalysis> m_engine;
    };

Q_SIGNALS:
    void updateImage();
    void newHistogramSize(int size);
    void updateRoiIntensityInfo(int selected, IntensityInfo info);
    void updateRoiIntensityHistogram(uint* data, int maxSize, uint min, uint max);
    void updateLineVertical(uchar* data, int size);
    void updateLineVertical(uchar* data, int size, int offset, int count);
    void updateLineHorizontal(uchar* data, int size);
    void updateLineHorizontal(uchar* data, int size, int offset, int count);
    void updateLineValueRange(qreal min, qreal max);

public Q_SLOTS:
    void changedDrawRect(QRectF rect);
    void changedIntensityRoi(int selected, QRectF rect);
    /// Takes the first 256 colours and converts the image as it is now, also with colours that
    /// are there already: pixels, map and display bytes may have been written since.
    void changedColors(QVector<QColor> color);
    void changedAnchorPosition(QPointF anchorImage);
    void sendUpdetaIntensityHistogramSignal();

private:
    void resetTables();
    bool hasImage() const;
    void createDisplayImage();
    QImage imageOverDisplayBuffer() const;
    void showNothing();
    bool canConvert() const;
    void convertToDisplay();
    LevelColors levelColors() const;
    void updateLines();
    int verticalSize() const;
    int horizontalSize() const;
    void updateRoiStatistics(int selected, const QRect& roi);
    void computeRoiStatistics(const QRect& roi);

    PixelMemory m_displayMemory;
    qint64 m_displayPixels = 0; ///< pixels that displayBuffer was made for
    bool m_areRowsPacked = false;
    bool m_isLoading = false; ///< a LoadScope lives
    std::optional<LevelColors> m_loadColors; ///< to be announced one extra time in that scope
};
