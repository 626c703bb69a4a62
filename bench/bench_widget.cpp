#include "frames.h"
#include "plainloops.h"
#include "ratioreporter.h"

#include "canvas/displaypixmap.h"
#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/cvkintensitywidget.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cmath>
#include <vector>

namespace {

const QSize windowSize(1280, 800);
/// More than one image takes on its way from file to window: pixels, display image and pixmap.
constexpr size_t chainBytes = size_t(640) << 20;
constexpr size_t pixmapBytes = size_t(256) << 20;

const Frame cameraFrame { FrameKind::Camera, 8192, 8192, 65535 };

QVector<QColor> ramp(const QColor& full)
{
    QVector<QColor> colors;
    for (int i = 0; i < 256; ++i) {
        colors.append(QColor(full.red() * i / 255, full.green() * i / 255, full.blue() * i / 255));
    }
    return colors;
}

/// One image from file to window by plain loops, with a new buffer and a new pixmap each time. Only
/// the image itself is painted, without rulers, strips and skin.
class PlainView
{
public:
    explicit PlainView(const Frame& frame)
        : m_frame(frame)
        , m_count(qint64(frame.width) * frame.height)
    {
        for (size_t level = 0; level < 256; ++level) {
            m_colorIndex[level] = uchar(level);
        }
        setPalette(Qt::white);
    }

    void setPalette(const QColor& full)
    {
        const QVector<QColor> colors = ramp(full);
        for (int level = 0; level < 256; ++level) {
            const QColor& color = colors.at(level);
            m_palette[size_t(level)]
                = { uchar(color.red()), uchar(color.green()), uchar(color.blue()) };
        }
    }

    void load(const QString& path)
    {
        m_pixels = plain::rawPixels(path, m_count * 2);
        m_range = plain::range(samples(), m_count);
        const uint bins = m_range.max - m_range.min + 1;
        m_histogram.reset(new uint[bins]);
        plain::histogram(samples(), m_count, m_range.min, m_histogram.get(), bins);
        m_map.reset(new uchar[bins]);
        plain::displayMap(m_range.min, m_range.max, m_map.get(), bins);
        m_rgb.reset(new uchar[size_t(m_count) * 6]); // three bytes for each byte of the image
        convert();
    }

    void convert()
    {
        plain::convertToRgb(samples(), m_count, m_range.min, m_map.get(), m_colorIndex.data(),
            m_palette.data(), m_rgb.get());
        m_pixmap = QPixmap::fromImage(
            QImage(m_rgb.get(), m_frame.width, m_frame.height, QImage::Format_RGB888));
    }

    /// Statistics and histogram of the whole image as a region, in a pass each.
    void analyse()
    {
        const plain::Range range = plain::range(samples(), m_count);
        const quint64 distances = plain::distanceSum(samples(), m_count, range.min);
        const double mean = double(qint64(distances)) / double(m_count) + range.min;
        const double squares = plain::addSquares(samples(), m_count, mean, 0.0);
        benchmark::DoNotOptimize(std::sqrt(squares / double(m_count)));
        plain::histogram(
            samples(), m_count, range.min, m_histogram.get(), range.max - range.min + 1);
        benchmark::DoNotOptimize(m_histogram.get());
    }

    void paint(QImage& window) const
    {
        QPainter painter(&window);
        painter.drawPixmap(QRectF(431.0, 75.0, 580.0, 580.0), m_pixmap,
            QRectF(0.0, 0.0, m_frame.width, m_frame.height));
    }

private:
    const ushort* samples() const { return reinterpret_cast<const ushort*>(m_pixels.get()); }

    Frame m_frame;
    qint64 m_count;
    std::array<plain::Color, 256> m_palette;
    std::array<uchar, 256> m_colorIndex;
    std::unique_ptr<uchar[]> m_pixels;
    plain::Range m_range {};
    std::unique_ptr<uint[]> m_histogram;
    std::unique_ptr<uchar[]> m_map;
    std::unique_ptr<uchar[]> m_rgb;
    QPixmap m_pixmap;
};

QImage emptyWindow()
{
    return QImage(windowSize, QImage::Format_RGB32);
}

/// The exported widget in a window of its own.
class Window
{
public:
    explicit Window(benchmark::State& state)
        : m_state(state)
    {
        m_widget.resize(windowSize);
        m_widget.show();
    }

    void load(const QString& path)
    {
        m_widget.closeImage();
        if (!m_widget.loadImage(path)) {
            m_state.SkipWithError("the frame cannot be loaded");
        }
    }

    void setPalette(const QVector<QColor>& palette)
    {
        m_widget.findChild<CVKIntensityMdiWidget*>()->changedPalette(palette);
    }

    void paint(QImage& window) { m_widget.render(&window); }

    ImageLayoutItem& image() { return *m_widget.findChild<CVKIntensityMdiWidget*>()->imageItem(); }

    void paintPanel(QImage& window) { m_widget.findChild<CVKDataHistogram*>()->render(&window); }

private:
    benchmark::State& m_state;
    CVKIntensityWidget m_widget;
};

void measurePlainChain(benchmark::State& state)
{
    warmMemory(chainBytes);
    const QString path = rawFilePath(cameraFrame);
    QImage window = emptyWindow();
    for (auto _ : state) {
        PlainView view(cameraFrame);
        view.load(path);
        view.paint(window);
    }
}

void measureFirstChain(benchmark::State& state)
{
    warmMemory(chainBytes);
    const QString path = rawFilePath(cameraFrame);
    QImage image = emptyWindow();
    for (auto _ : state) {
        Window window(state);
        window.load(path);
        window.paint(image);
    }
}

void measureNextChain(benchmark::State& state)
{
    const QString path = rawFilePath(cameraFrame);
    QImage image = emptyWindow();
    Window window(state);
    window.load(path);
    for (auto _ : state) {
        window.load(path);
        window.paint(image);
    }
}

void measurePlainPalette(benchmark::State& state)
{
    PlainView view(cameraFrame);
    view.load(rawFilePath(cameraFrame));
    QImage window = emptyWindow();
    bool isRed = false;
    for (auto _ : state) {
        isRed = !isRed;
        view.setPalette(isRed ? Qt::red : Qt::green);
        view.convert();
        view.paint(window);
    }
}

void measurePalette(benchmark::State& state)
{
    const QVector<QColor> red = ramp(Qt::red);
    const QVector<QColor> green = ramp(Qt::green);
    QImage image = emptyWindow();
    Window window(state);
    window.load(rawFilePath(cameraFrame));
    bool isRed = false;
    for (auto _ : state) {
        isRed = !isRed;
        window.setPalette(isRed ? red : green);
        window.paint(image);
    }
}

/// The plain side paints the same panel, so that only the analysis differs.
void measurePlainRelease(benchmark::State& state)
{
    PlainView view(cameraFrame);
    view.load(rawFilePath(cameraFrame));
    QImage image = emptyWindow();
    Window window(state);
    for (auto _ : state) {
        view.analyse();
        window.paintPanel(image);
    }
}

/// A region over the whole image is let go of.
void measureRelease(benchmark::State& state)
{
    QImage image = emptyWindow();
    Window window(state);
    window.load(rawFilePath(cameraFrame));
    RectangleItems& regions = window.image().rectangles;
    regions.addItem();
    RectangleItem* const region = regions.items.first();
    for (auto _ : state) {
        Q_EMIT region->changeRect(region, window.image().imageExtent());
        window.paintPanel(image);
    }
    if (regions.rects.first().size() != QSizeF(cameraFrame.width, cameraFrame.height)) {
        state.SkipWithError("the region is not the whole image");
    }
}

/// A display image of the size of the frame; its pixels cost the same whatever they are.
QImage displayImage()
{
    QImage image(cameraFrame.width, cameraFrame.height, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y) {
        uchar* const line = image.scanLine(y);
        for (int i = 0; i < image.bytesPerLine(); ++i) {
            line[i] = uchar(i * 7 + y);
        }
    }
    return image;
}

void measurePlainPixmap(benchmark::State& state)
{
    const QImage image = displayImage();
    warmMemory(pixmapBytes);
    QPixmap pixmap;
    for (auto _ : state) {
        pixmap = QPixmap::fromImage(image);
    }
}

void measureFirstPixmap(benchmark::State& state)
{
    const QImage image = displayImage();
    warmMemory(pixmapBytes);
    for (auto _ : state) {
        QPixmap pixmap;
        copyToPixmap(image, pixmap);
    }
}

void measureNextPixmap(benchmark::State& state)
{
    const QImage image = displayImage();
    QPixmap pixmap;
    copyToPixmap(image, pixmap);
    for (auto _ : state) {
        copyToPixmap(image, pixmap);
    }
}

const bool pairsAdded = [] {
    addPair("pixmap 8192x8192, first", 0.0, measurePlainPixmap, measureFirstPixmap);
    addPair("pixmap 8192x8192, next", 0.25, measurePlainPixmap, measureNextPixmap);
    addPair("load to window 8192x8192, 16 bit, first", 0.30, measurePlainChain, measureFirstChain);
    addPair("load to window 8192x8192, 16 bit, next", 0.30, measurePlainChain, measureNextChain);
    addPair("palette to window 8192x8192, 16 bit", 0.25, measurePlainPalette, measurePalette);
    addPair(
        "region release to panel, 8192x8192, 16 bit", 0.30, measurePlainRelease, measureRelease);
    return true;
}();

} // namespace
