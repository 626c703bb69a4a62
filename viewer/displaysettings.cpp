#include "displaysettings.h"

#include <QCoreApplication>

namespace {

/// Context of the texts for translation.
struct Settings
{
    Q_DECLARE_TR_FUNCTIONS(DisplaySettings)
};

QString addRegions(const QVector<QRect>& regions, CVKIntensityWidget* widget)
{
    const QSize size = widget->imageInfo().size;
    QString problem;
    for (const QRect& region : regions) {
        if (!widget->addRegion(region) && problem.isEmpty()) {
            problem = Settings::tr(
                "the region %1,%2,%3,%4 does not lie inside the image of %5x%6 pixels")
                          .arg(region.x())
                          .arg(region.y())
                          .arg(region.width())
                          .arg(region.height())
                          .arg(size.width())
                          .arg(size.height());
        }
    }
    return problem;
}

} // namespace

bool DisplaySettings::isEmpty() const
{
    return !view && !chartAxis && !crossHair && !peakLabels && !calibration && palette.isEmpty()
        && regions.isEmpty();
}

DisplaySettings displaySettings(const CVKIntensityWidget& widget)
{
    DisplaySettings settings;
    const QRect image(QPoint(), widget.imageInfo().size);
    if (image.isEmpty()) {
        return settings;
    }
    settings.view = widget.view();
    settings.chartAxis = widget.chartAxis();
    settings.crossHair = widget.crossHair();
    settings.peakLabels = widget.peakLabels();
    settings.calibration = widget.calibration();
    settings.palette = widget.colorPalette();
    for (const QRect& region : widget.regions()) {
        settings.regions << (region
            & image); // the edge that a drag may leave outside has no pixels
    }
    settings.selectedRegion = widget.selectedRegion();
    return settings;
}

QString applySettings(const DisplaySettings& settings, CVKIntensityWidget* widget)
{
    if (settings.crossHair && settings.crossHair != widget->crossHair()) {
        widget->setCrossHair(*settings.crossHair); // a chart shows its row and column
    }
    QString problem = addRegions(settings.regions, widget);
    if (problem.isEmpty() && settings.selectedRegion) {
        widget->selectRegion(*settings.selectedRegion);
    }
    const auto check = [&problem](bool done, const QString& lack) {
        if (!done && problem.isEmpty()) {
            problem = lack;
        }
    };
    if (settings.calibration) {
        check(widget->setCalibration(settings.calibration),
            Settings::tr("the axis does not take these wavelengths"));
    }
    if (settings.peakLabels) {
        check(widget->setPeakLabels(*settings.peakLabels),
            Settings::tr("the chart does not take %1 peaks").arg(settings.peakLabels->count));
    }
    if (settings.chartAxis) {
        check(widget->setChartAxis(*settings.chartAxis), Settings::tr("there is no such chart"));
    }
    if (settings.view) {
        check(widget->setView(*settings.view), Settings::tr("there is no such view"));
    }
    const bool isOtherPalette = settings.palette != widget->colorPalette();
    if (!settings.palette.isEmpty() && isOtherPalette) { // else all is colored once more
        check(widget->setColorPalette(settings.palette),
            Settings::tr("the palette %1 cannot be read").arg(settings.palette));
    }
    return problem;
}
