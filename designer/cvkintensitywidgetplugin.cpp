#include "cvkintensitywidgetplugin.h"

#include <cvkintensitywidget.h>

#include <QIcon>

QString CVKIntensityWidgetPlugin::name() const
{
    return QStringLiteral("CVKIntensityWidget");
}

QString CVKIntensityWidgetPlugin::group() const
{
    return QStringLiteral("VKIntensity");
}

QString CVKIntensityWidgetPlugin::toolTip() const
{
    return QStringLiteral("Image with its intensity profiles, rulers and regions of interest");
}

QString CVKIntensityWidgetPlugin::whatsThis() const
{
    return QStringLiteral(
        "Shows one camera image with its intensity profiles, rulers and regions of interest, "
        "and a panel with their statistics and histogram. The application calls loadImage() "
        "and provides skins and palettes.");
}

QString CVKIntensityWidgetPlugin::includeFile() const
{
    return QStringLiteral("<cvkintensitywidget.h>");
}

QIcon CVKIntensityWidgetPlugin::icon() const
{
    return QIcon(QStringLiteral(":/vkintensity/designer/cvkintensitywidget.png"));
}

QWidget* CVKIntensityWidgetPlugin::createWidget(QWidget* parent)
{
    return new CVKIntensityWidget(parent); // looks the parent's slot for its Return button up here
}

QString CVKIntensityWidgetPlugin::domXml() const
{
    return QStringLiteral("<ui language=\"c++\" displayname=\"Intensity Widget\">"
                          "<widget class=\"CVKIntensityWidget\" name=\"intensityWidget\">"
                          "<property name=\"geometry\"><rect>"
                          "<x>0</x><y>0</y><width>1000</width><height>700</height>"
                          "</rect></property></widget></ui>");
}
