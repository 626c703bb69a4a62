#pragma once

#include <QProxyStyle>

namespace vkintensityhost {

/// Fusion, which grows with the screen, except inside the modules of the panel: those have fixed
/// heights in pixels, so the distances between their controls stay those of 96 dots per inch.
class HostStyle : public QProxyStyle
{
public:
    HostStyle();

    int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace vkintensityhost
