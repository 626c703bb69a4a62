#pragma once

#include "vkintensitywidget_export.h"

#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <memory>
#include <optional>

class CVKIntensityCtrlWidget;
class CVKIntensityMdiWidget;
class IntensityDoor;
struct WidgetState;

/// Shows one camera image with everything needed to examine its intensity: canvas with cross-hair,
/// row and column profiles, rulers, palette bar and regions of interest, a 2D chart of the row or
/// the column with its peaks, and the control panel on the left.
///
/// The panel's Return button calls the slot sltSwitchToGallery() of the object that is passed as
/// the parent, if it has one; it is looked up during construction.
///
/// The one exported class of the library; use it on the GUI thread only. The skin images come from
/// the host application's Qt resources; a missing one leaves its part unpainted. Diagnostic lines
/// go to the Qt debug log. Nothing is thrown.
///
/// Coordinates in all members are image pixels: the origin is the top left pixel, x grows to the
/// right and y downward, as in the file. The panel and the read-out count y from the bottom row
/// instead: the panel's y is height - 1 - y.
///
/// Without an image, outside of it, and with an index that does not exist, getters answer an empty
/// value, and functions that return bool answer false and change nothing. Setters act as the user
/// would at the panel or the canvas: they send the same signals, and the panel shows the result.
class VKINTENSITYWIDGET_EXPORT CVKIntensityWidget : public QWidget
{
    Q_OBJECT

public:
    /// How files become images.
    enum class Reading {
        /// Samples as they stand in the file, whatever they mean: bit patterns of signed and
        /// floating-point samples, zeros for 64 bits, the channels of an image with alpha one after
        /// the other. An image whose width is not a multiple of four is drawn slanted, and a raw
        /// file without pixels loads.
        AsStored,
        /// The picture that the file holds: exact rows for every width, without alpha; signed and
        /// floating-point samples as long as each is a whole number from 0 to 2^32 - 1. What cannot
        /// be shown so is refused with its reason. A load that succeeds closes the image before it.
        Faithful
    };

    /// Why a file or a frame is not shown.
    enum class LoadProblem {
        None,
        Missing, ///< no file of this name
        NotAFile, ///< a folder, a pipe, a device
        UnknownSuffix,
        NotReadable, ///< no permission, damaged, or of another format than its suffix says
        UnsupportedKind, ///< sound, but of a kind that is not read, such as 6 bits a sample
        NoPixels, ///< faithful reading: an image without width or height
        TooLarge, ///< exceeds what the library can hold, or the memory
        OverPixelLimit, ///< more pixels than setPixelLimit() allows
        NoSuchPage,
        UnfaithfulValues, ///< faithful reading: a sample is not a whole number from 0 to 2^32 - 1
        UnfaithfulDepth, ///< faithful reading: samples of other than 8, 16 or 32 bits
        UnfaithfulChannels, ///< faithful reading: neither 1 nor 3 channels with or without alpha
        BadFrame ///< a frame whose description makes no sense, or that is not the next one
    };

    /// What the samples of a file are.
    enum class SampleKind { Unsigned, Signed, Floating };

    /// What is loaded.
    struct ImageInfo
    {
        QString file; ///< as given to the load; empty for a frame from memory
        QSize size; ///< pixels
        int bitDepth = 0; ///< bits a sample as held here; 8, 16 or 32 (also 24 or 64 as stored)
        int channels = 0; ///< values a pixel in the file or frame
        SampleKind sampleKind = SampleKind::Unsigned; ///< in the file
        int page = 0; ///< shown page of the file, from 0
        int pageCount = 0; ///< pages of the file; 1 for everything but TIFF
        quint32 minimum = 0; ///< smallest value of all pixels
        quint32 maximum = 0; ///< largest value of all pixels
        bool isAlphaDropped = false; ///< the file has an alpha channel, which is not shown
        bool isColorReduced = false; ///< three channels were reduced to gray values
        bool isTypeConverted = false; ///< signed or floating-point samples became whole numbers

        bool isValid() const { return !size.isEmpty(); } ///< an image is open
    };

    /// One frame in memory. The samples belong to the caller and are copied during the call. Three
    /// channels are reduced to gray as those of a file are in the same reading: with samples of 32
    /// bits exactly in faithful reading, modulo 2^32 as stored.
    struct Frame
    {
        const void* samples = nullptr; ///< rows top first; 16 and 32 bits in host byte order
        int width = 0; ///< pixels, at least 1
        int height = 0; ///< pixels, at least 1
        int channels = 1; ///< 1, or 3: blue, green, red
        int bytesPerSample = 1; ///< 1, 2 or 4
        qint64 bytesPerLine = 0; ///< from row to row; 0: rows without padding
    };

    /// What the canvas shows.
    enum class View { Image, RowChart, ColumnChart };

    /// Direction of a profile or a chart.
    enum class Axis { Row, Column };

    /// Unit of wavelengths.
    enum class Unit { Micrometers, Nanometers };

    /// Wavelengths along the axes. An axis spans 5 units at least: a shorter one starts lower.
    struct Calibration
    {
        int start = 100; ///< wavelength of pixel 0, 0 to 2000 units
        int pixelWidth = 1; ///< wavelength from one pixel to the next, 1 to 100 units
        Unit unit = Unit::Micrometers; ///< of both

        /// The same numbers in the same unit.
        bool operator==(const Calibration& other) const
        {
            return start == other.start && pixelWidth == other.pixelWidth && unit == other.unit;
        }
        /// Any difference.
        bool operator!=(const Calibration& other) const { return !(*this == other); }
    };

    /// Peak labels of both charts.
    struct PeakLabels
    {
        bool areShown = false; ///< in the charts
        int count = 10; ///< how many of the strongest peaks are labelled, 1 to 200

        /// Both settings are the same.
        bool operator==(const PeakLabels& other) const
        {
            return areShown == other.areShown && count == other.count;
        }
        /// Any difference.
        bool operator!=(const PeakLabels& other) const { return !(*this == other); }
    };

    /// Numbers of one rectangle of pixels, as the panel shows them before it rounds them.
    struct Statistics
    {
        QRect rect; ///< the pixels; empty when there are no statistics
        qint64 pixels = 0; ///< how many
        double mean = 0.0; ///< of their values
        quint32 minimum = 0; ///< smallest value
        quint32 maximum = 0; ///< largest value
        double deviation = 0.0; ///< of the population: divided by the number of pixels
        /// mean / deviation; NaN for a deviation of 0, where the panel keeps showing the ratio of
        /// the region before.
        double signalToNoise = 0.0;

        bool isValid() const { return pixels > 0; } ///< there are statistics
    };

    /// Counts of consecutive values.
    struct Histogram
    {
        quint32 first = 0; ///< the smallest value; counts[i] pixels have the value first + i
        QVector<quint32> counts; ///< up to the largest value; empty for more than 2^26 values

        bool isValid() const { return !counts.isEmpty(); } ///< there are counts
    };

    /// One row or column of pixels.
    struct Profile
    {
        Axis axis = Axis::Row; ///< which of both it is
        int index = 0; ///< the row's y or the column's x
        QVector<quint32> values; ///< from left to right, or from top to bottom
        /// The same as display levels 0..255, which the charts draw; empty for an image whose
        /// values span the full range of 32 bits.
        QVector<uchar> levels;
        bool isCalibrated = false; ///< the axes show wavelengths
        double start = 0.0; ///< wavelength of the first pixel (of a column: of the bottom one)
        double step = 1.0; ///< wavelength from one pixel to the next

        /// Where the axes show `pixel` (x of a row, y of a column): its wavelength, which grows
        /// upward along a column. Without a calibration `pixel` itself, while the chart of a column
        /// counts from the bottom row.
        double position(int pixel) const
        {
            if (!isCalibrated) {
                return pixel;
            }
            return (axis == Axis::Row ? pixel : int(values.size()) - 1 - pixel) * step + start;
        }

        bool isValid() const { return !values.isEmpty(); } ///< there is such a row or column
    };

    /// One peak of a profile.
    struct Peak
    {
        int rank = 0; ///< from 1, the strongest
        int pixel = 0; ///< x in a row, y in a column
        double position = 0.0; ///< Profile::position() of the pixel
        quint32 value = 0; ///< of the pixel
    };

    /// Is told of changes, whether made by the user or by calls, each once and when the widget is
    /// consistent again: those made by calls before the call returns, those of the user when the
    /// event that made them has been handled. Changes made during such a call of the listener are
    /// told when control is back in the event loop.
    /// Any member of the widget may be called from it; the widget may not be deleted (deleteLater()
    /// is allowed). A listener may be destroyed at any time and then hears no more; one listener
    /// can serve several widgets.
    class Listener
    {
    public:
        Listener() = default;
        virtual ~Listener() = default;
        Listener(const Listener&) = delete;
        Listener& operator=(const Listener&) = delete;

        virtual void imageChanged() { } ///< loaded, closed, or a new frame
        virtual void viewChanged() { } ///< view(), chartAxis(), visiblePixels() or zoomFactor()
        virtual void crossHairChanged() { } ///< crossHair()
        virtual void regionsChanged() { } ///< regions()
        virtual void selectionChanged() { } ///< selectedRegion() or markedRegion()
        virtual void settingsChanged() { } ///< colorPalette(), calibration() or peakLabels()

    private:
        friend class CVKIntensityWidget;
        std::shared_ptr<Listener*> m_self = std::make_shared<Listener*>(this);
    };

    /// Deletes itself when closed (Qt::WA_DeleteOnClose).
    explicit CVKIntensityWidget(QWidget* parent = nullptr);
    ~CVKIntensityWidget() override;

    /// Loads the image file `path`, picking the reader by its suffix (jpg, jpeg, tif, tiff, bmp,
    /// png, raw; any case), and shows it. False, with everything as it was, for a missing file, an
    /// unknown suffix or data that cannot be read as that format; loadProblem() tells why. A load
    /// resets the panel: image view, gray palette, pixel numbers, no region selected.
    /// As stored: close the image before each load, since a load on top of an open image makes
    /// every connection one more time and keeps the regions, which the panel no longer lists; and a
    /// raw file whose header gives no width or no height
    /// loads, as an image without pixels: true, and the canvas keeps the last picture.
    bool loadImage(const QString& path);

    /// Forgets the image and removes the regions of interest. The canvas keeps showing the last
    /// picture, and the panel what it says, until the next load. Without an image nothing happens.
    void closeImage();

    /// Logical dots per inch of the primary screen over 96.
    float getDpiMultiple();

    // --- what is loaded, and how

    /// For the loads to come; Reading::AsStored at first.
    void setReading(Reading reading);
    Reading reading() const; ///< as set last

    /// Refuses files and frames of more than `pixels` pixels, before any of them is decoded where
    /// the file's header tells its size. 0 or less, as at first: no limit.
    void setPixelLimit(qint64 pixels);
    qint64 pixelLimit() const; ///< 0: none

    /// Same as loadImage() for page `page`, from 0, of a file with several pages. As stored there
    /// is only page 0.
    bool loadPage(const QString& path, int page);

    /// Shows a frame from memory as loadImage() shows a file, in place of the image that is open.
    /// Rows are exact for every width. False, with everything as it was, for a frame that makes no
    /// sense, is over the pixel limit or does not fit in memory; like a load, also false, although
    /// the frame is shown, when a module of the panel has been closed.
    bool showFrame(const Frame& frame);

    /// Shows the next frame of a series: one of the size and the bytes a sample of the image that
    /// is open. View, zoom, cross-hair, palette, axes, regions and chart settings stay, and every
    /// number and picture is that of the new frame. False, with everything as it was, for any
    /// other frame.
    bool updateFrame(const Frame& frame);

    /// Why the last load, showFrame() or updateFrame() returned false; None after one that did not,
    /// before any, and where a part of the widget has been closed.
    LoadProblem loadProblem() const;

    ImageInfo imageInfo() const; ///< of the image that is open

    /// A small gray picture of what faithful reading shows of the file: its values stretched over
    /// black to white, of at most `bounds` pixels, with the file's proportions; smaller images keep
    /// their size. Null for everything that is not read, and for more than `pixelLimit` pixels (0:
    /// no limit). May be called in any thread. `problem`, if given, receives the reason.
    static QImage preview(const QString& path, const QSize& bounds, qint64 pixelLimit = 0,
        LoadProblem* problem = nullptr);

    // --- view

    View view() const; ///< View::Image without an image
    bool setView(View view); ///< false for a value that is none of the three

    /// The chart that "2D" shows, also while the image is in front.
    Axis chartAxis() const;
    bool setChartAxis(Axis axis); ///< false for a value that is neither

    /// One step of zoom around the cross-hair, as the buttons do. False at the end of the range,
    /// while a chart is in front, and in a widget without room for a picture.
    bool zoomIn();
    bool zoomOut(); ///< one step back, likewise
    bool fit(); ///< shows the whole image

    QRect visiblePixels() const; ///< part of the image in the image view
    /// Pixel shown at a position in this widget, the one that a click there marks; nothing beside
    /// the picture, while a chart is in front, and without an image.
    std::optional<QPoint> pixelAt(const QPoint& position) const;
    /// The image as it is colored, one pixel a pixel, without cross-hair and regions; null without
    /// an image and when the memory is not there. A copy of three bytes a pixel.
    QImage picture() const;
    /// Screen units a pixel in the image view; 0 without an image or without room for a picture.
    double zoomFactor() const;

    // --- cross-hair and values

    std::optional<QPoint> crossHair() const; ///< pixel that it marks
    /// Moves the cross-hair as a click on this pixel does, and scrolls as far as needed to show it.
    bool setCrossHair(const QPoint& pixel);

    /// Value of one pixel, as the read-out shows it; that shows 2^31 and more as negative numbers.
    std::optional<quint32> value(const QPoint& pixel) const;

    // --- settings of the panel

    /// "Gray", "Red", "Green", "Blue", "Color".
    static QStringList colorPalettes();
    QString colorPalette() const; ///< the one that colors the image
    /// False, and nothing changes, for another name and without the palette's file.
    bool setColorPalette(const QString& name);

    /// Nothing: axes show pixel numbers.
    std::optional<Calibration> calibration() const;
    /// Nothing goes back to pixel numbers. False for numbers that the panel's fields do not take.
    bool setCalibration(const std::optional<Calibration>& calibration);

    PeakLabels peakLabels() const; ///< as the charts have them
    /// False for a count outside 1 to 200. Both charts have the same labels, also while the image
    /// is in front.
    bool setPeakLabels(const PeakLabels& labels);

    // --- regions of interest

    /// Exactly the pixels of each region, in the order of the panel's list. A region that the user
    /// placed may reach one pixel beyond the image.
    QVector<QRect> regions() const;

    /// Adds a region of exactly these pixels, which lie inside the image, and selects it.
    bool addRegion(const QRect& pixels);
    /// Gives region `index` exactly these pixels and selects it.
    bool setRegion(int index, const QRect& pixels);
    /// Replaces all regions; the last one is selected. False, and nothing changes, when any does
    /// not lie inside the image.
    bool setRegions(const QVector<QRect>& pixels);
    /// Removes a region and selects the first that is left.
    bool removeRegion(int index);
    /// Shows a region's numbers in the panel and marks it on the canvas, where the image view is in
    /// front; -1 shows those of the whole image.
    bool selectRegion(int index);

    /// The region whose numbers the panel shows; -1 while it shows those of the whole image.
    int selectedRegion() const;
    /// The region with handles on the canvas; -1 for none, as with a chart in front. A click on a
    /// region marks it without selecting it in the panel.
    int markedRegion() const;

    // --- numbers of any part of the image, without touching the display

    /// Of a rectangle of pixels inside the image.
    Statistics statistics(const QRect& pixels) const;
    Histogram histogram(const QRect& pixels) const; ///< of such a rectangle
    Profile rowProfile(int y) const; ///< of one row
    Profile columnProfile(int x) const; ///< of one column
    /// The `count` strongest peaks of a profile of this widget, as the chart labels them.
    QVector<Peak> peaks(const Profile& profile, int count) const;

    /// Tells `listener` of changes from now on, and no other; null: none. The listener belongs to
    /// the caller.
    void setListener(Listener* listener);

Q_SIGNALS:
    /// For the host application; the widget itself never emits it.
    void sglChangeSize();

protected:
    /// Paints the skin of the column behind the panel.
    void paintEvent(QPaintEvent* event) override;
    /// Gives the panel its column and the canvas the rest.
    void resizeEvent(QResizeEvent* event) override;

private:
    bool createIntensityUI();
    void connectPreferences();
    void connectHistogram();
    bool showFile(const QString& path, int page);
    bool resetPanel();
    void refreshPanel();
    WidgetState state() const;
    bool zoom(bool isIn);

    QString m_applicationDirectory;
    QPixmap m_sparePixmap;
    QPixmap m_headerSkin;
    QPixmap m_bodySkin;
    QPixmap m_borderSkin;
    QPointer<CVKIntensityMdiWidget> m_host; // deletes itself when closed, like the panel
    QPointer<CVKIntensityCtrlWidget> m_controlPanel;
    std::unique_ptr<IntensityDoor> m_door;
};
