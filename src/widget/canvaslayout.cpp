#include "widget/canvaslayout.h"

#include "base/saturate.h"

#include <algorithm>

namespace {
constexpr int sideWidth = 70; // of the left ruler and of the left profile strip
constexpr int rulerHeight = 50;
constexpr int stripHeight = 70;
constexpr int colorBarHeight = 10;
constexpr int colorBarLayoutWidth = 512;
}

QSize imageAreaSize(const QSize& canvas, const QSize& imageSize)
{
    Q_ASSERT(!imageSize.isEmpty());
    const double across = (canvas.width() - 140) / double(imageSize.width());
    const double down = (canvas.height() - 220) / double(imageSize.height());
    const double scale = std::min(across, down);
    return QSize(std::max(4, truncated(imageSize.width() * scale)),
        std::max(1, truncated(imageSize.height() * scale)));
}

ImageViewLayout imageViewLayout(const QSize& canvas, const QSize& content)
{
    const int w = content.width();
    const int h = content.height();
    const int x = (canvas.width() - w + 140) / 2;
    const int y = (canvas.height() - h - 70) / 2;
    ImageViewLayout layout;
    layout.image = QRect(x, y, w, h);
    layout.bottomRuler = QRect(x, y + h + 1, w, rulerHeight);
    layout.leftRuler = QRect(x - sideWidth, y, sideWidth, h);
    layout.bottomCurve = QRect(x, y + h + 50, w, stripHeight);
    layout.leftCurve = QRect(x - 2 * sideWidth, y, sideWidth, h);
    // Deliberate: the layout takes the colour bar as 512 units wide, whatever the image.
    layout.colorBar = QRect(x, 20, colorBarLayoutWidth, colorBarHeight);
    layout.grayRuler = QRect(x, 31, w, rulerHeight);
    return layout;
}

ProfileChartLayout profileChartLayout(const QSize& canvas)
{
    const int w = canvas.width() - 170;
    const int h = canvas.height() - 370;
    ProfileChartLayout layout;
    layout.curve = QRect(130, 160, w, h);
    layout.pixelRuler = QRect(130, canvas.height() - 209, w, rulerHeight);
    layout.valueRuler = QRect(40, 160, 90, h);
    return layout;
}
