#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// Offers CVKIntensityWidget in the widget box of Qt Designer, and to every program that builds
/// forms at run time. The widget shown there has neither image nor skins, as they come from the
/// application.
class CVKIntensityWidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;
};
