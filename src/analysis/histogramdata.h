#pragma once

#include "analysis/displaylevels.h"
#include "analysis/roirows.h"
#include "analysis/samplecounts.h"
#include "base/pixelmemory.h"

#include <QObject>
#include <QRect>

class ImageData;

/// What is derived from one image once and then reused: value range, histogram and display levels
/// of the whole image, the histogram of one region of interest (ROI), and the two line buffers into
/// which the row and the column through the anchor are cut.
///
/// Counts have one bin per integer value. A range of more than 2^26 values has no bins and no map
/// in memory; its levels come from the formula instead. Over the full 32-bit range, and without a
/// sample, there is neither.
class HistogramData : public QObject
{
    Q_OBJECT

public:
    /// `image` is not owned and may be null.
    explicit HistogramData(ImageData* image);
    ~HistogramData() override;

    uint size = 0; ///< whole-image bins: max - min + 1 modulo 2^32
    uint max = 0; ///< largest value of the whole image
    uint min = 0; ///< smallest value of the whole image
    uint roiSize = 0; ///< ROI bins: roiMax - roiMin + 1 modulo 2^32
    uint roiMax = 0;
    uint roiMin = 0;
    uint* histogram = nullptr; ///< counts of the values from min on, or null
    uint* roiHistogram = nullptr; ///< counts of the values from roiMin on, or null
    uchar* displayMap = nullptr; ///< levels of the values from min on, or null
    uchar* verticalLine = nullptr; ///< the column through the anchor, as levels
    uchar* horizontalLine = nullptr; ///< the row through the anchor, as levels
    ImageData* image = nullptr; ///< not owned

    /// Takes a new image: fresh line buffers of zeros in its size, then calcHistogram(). An image
    /// without pixels is ignored. The ROI's part stays until the next request.
    void setImageData(ImageData* image);

    /// Rebuilds range, histogram and display map of the image. Of a depth other than 8, 16 and 32
    /// the range and the counts stay as they were.
    void calcHistogram();

    /// Finds the range of `count` samples and gives the histogram room for it; what the counts hold
    /// is undefined until they are filled. Samples are uchar, ushort or uint. Null: nothing
    /// changes.
    template <class Sample>
    void createHistogramBuffer(const Sample* samples, int count);

    /// Counts `count` samples afresh; a value without a bin is left out.
    template <class Sample>
    void fillHistogram(const Sample* samples, int count);

    /// Stretches the range over high - low levels. Without a map only the scale is taken, for
    /// the levels that come from the formula.
    void buildDisplayMap(uchar low, uchar high);

    /// Gives the ROI histogram the bins min..max, whose counts are undefined until a region is
    /// counted. No bins for max < min or more than 2^26 values.
    void prepareRoiHistogram(uint min, uint max);

    /// Counts the pixels of `roi` (inclusive corners, image pixels) into the bins min..max. Nothing
    /// happens for a right edge beyond the image width or a bottom edge beyond its height; one
    /// equal to them is accepted.
    void calcRoiHistogram(uint min, uint max, const QRect& roi);

    /// Cuts image row `y` into horizontalLine as levels. Writes min(count, image width) entries,
    /// read from column `offset` on. A row outside the image, or no image: the old entries stay.
    /// A sample outside the allocation has level 0.
    void extractHorizontalLine(int y, int offset, int count);
    void extractHorizontalLine(int y); ///< the whole row

    /// Same for image column `x`, from row `offset` on.
    void extractVerticalLine(int x, int offset, int count);
    void extractVerticalLine(int x); ///< the whole column

    /// Makes every entry of both line buffers 0.
    void clearLines();

    /// The ROI counts when they are those of the values min..max, else null.
    uint* roiBins(uint min, uint max) const;

    /// Display levels exist: histogram and map are there, or the range is too wide for them.
    bool hasLevels() const;

    /// The levels for one call; only when hasLevels().
    DisplayLevels levels() const;

    int verticalLineLength() const { return int(m_verticalMemory.size()); }
    int horizontalLineLength() const { return int(m_horizontalMemory.size()); }

private:
    bool hasImage() const;
    bool isTooWideForBins() const;
    template <class Sample>
    void rebuildCounts(const Sample* samples, int count);
    void rebuildCounts(const uint* samples, int count);
    template <class Sample>
    void fillRoiHistogram(const Sample* samples, const RoiRows& rows);
    void countRoi(const QRect& roi);
    void adoptRange(const SampleRange& range);
    void adoptRoiRange(uint min, uint max);
    void clearHistogram();
    void takeCounts(const uint* counts);

    PixelMemory m_histogramMemory;
    PixelMemory m_roiMemory;
    PixelMemory m_mapMemory;
    PixelMemory m_verticalMemory;
    PixelMemory m_horizontalMemory;
    double m_levelScale = 0.0; ///< levels per bin
};
