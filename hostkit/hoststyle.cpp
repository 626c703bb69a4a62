#include "hoststyle.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace vkintensityhost {

namespace {

bool isDistance(QStyle::PixelMetric metric)
{
    switch (metric) {
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin:
    case QStyle::PM_LayoutHorizontalSpacing:
    case QStyle::PM_LayoutVerticalSpacing: return true;
    default: return false;
    }
}

bool isInModule(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (widget->inherits("CVKDisplayPreferences") || widget->inherits("CVKDataHistogram")) {
            return true;
        }
    }
    return false;
}

/// What the style scales by.
double styleDotsPerInch()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const bool isFixed = QCoreApplication::testAttribute(Qt::AA_Use96Dpi);
    return screen && !isFixed ? screen->logicalDotsPerInch() : 96.0;
}

} // namespace

HostStyle::HostStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

int HostStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    if (pixels <= 0 || !isDistance(metric) || !isInModule(widget)) {
        return pixels; // below 0: there is no such distance
    }
    return qRound(pixels * 96.0 / styleDotsPerInch());
}

} // namespace vkintensityhost
