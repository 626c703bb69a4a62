#include <QBuffer>
#include <QPluginLoader>
#include <QPushButton>
#include <QUiLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

/// The plugin as Qt Designer and programs with forms use it: nothing is linked, everything goes
/// through the plugin file.
class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void describesTheWidget();
    void offersTheWidgetToForms();
    void form_holdsTheWidget();
    void form_isTheParentDuringConstruction();
    void domXml_givesASensibleSize();
    void withoutAParent();

private:
    std::unique_ptr<QWidget> builtForm(const QByteArray& text);

    QDesignerCustomWidgetInterface* m_plugin = nullptr;
};

namespace {

const char form[] = "<ui version=\"4.0\"><class>Form</class>"
                    "<widget class=\"QWidget\" name=\"Form\">"
                    "<layout class=\"QVBoxLayout\" name=\"layout\"><item>"
                    "<widget class=\"CVKIntensityWidget\" name=\"spectrum\"/>"
                    "</item></layout></widget>"
                    "<customwidgets><customwidget><class>CVKIntensityWidget</class>"
                    "<extends>QWidget</extends><header location=\"global\">cvkintensitywidget.h"
                    "</header></customwidget></customwidgets></ui>";

/// A host with the slot that the widget's Return button calls.
class Host : public QWidget
{
    Q_OBJECT

public Q_SLOTS:
    void sltSwitchToGallery() { ++calls; }

public:
    int calls = 0;
};

} // namespace

void TestDesignerPlugin::initTestCase()
{
    // Otherwise the loader takes every plugin of the system along.
    QCoreApplication::setLibraryPaths({ VKINTENSITY_PLUGINS });
    const QStringList files = QDir(VKINTENSITY_PLUGINS "/designer").entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QPluginLoader loader(VKINTENSITY_PLUGINS "/designer/" + files.first());
    m_plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
    QVERIFY2(m_plugin, qPrintable(loader.errorString()));
}

void TestDesignerPlugin::describesTheWidget()
{
    QCOMPARE(m_plugin->name(), QString("CVKIntensityWidget"));
    QCOMPARE(m_plugin->group(), QString("VKIntensity"));
    QCOMPARE(m_plugin->includeFile(), QString("<cvkintensitywidget.h>"));
    QCOMPARE(m_plugin->icon().availableSizes(), QList<QSize> { QSize(32, 32) });
    QVERIFY(!m_plugin->toolTip().isEmpty());
    QVERIFY(!m_plugin->whatsThis().isEmpty());
    QVERIFY(!m_plugin->isContainer());
}

void TestDesignerPlugin::offersTheWidgetToForms()
{
    QVERIFY(QUiLoader().availableWidgets().contains("CVKIntensityWidget"));
}

std::unique_ptr<QWidget> TestDesignerPlugin::builtForm(const QByteArray& text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(QUiLoader().load(&buffer));
}

void TestDesignerPlugin::form_holdsTheWidget()
{
    const std::unique_ptr<QWidget> built = builtForm(form);
    QVERIFY(built);
    const auto* widget = built->findChild<QWidget*>("spectrum");
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), "CVKIntensityWidget");
    QCOMPARE(widget->parentWidget(), built.get());

    built->resize(1000, 700);
    built->show();
    QVERIFY(QTest::qWaitForWindowExposed(built.get()));
    QVERIFY(widget->isVisible());
    QCOMPARE(built->grab().size(), QSize(1000, 700));
}

void TestDesignerPlugin::form_isTheParentDuringConstruction()
{
    Host host;
    QWidget* const widget = m_plugin->createWidget(&host);
    QCOMPARE(widget->parentWidget(), &host);
    auto* const returnButton = widget->findChild<QPushButton*>("Return");
    QVERIFY(returnButton);
    returnButton->click();
    QCOMPARE(host.calls, 1); // connected by the constructor, or never
}

void TestDesignerPlugin::domXml_givesASensibleSize()
{
    const QString text = m_plugin->domXml();
    const std::unique_ptr<QWidget> built = builtForm(text.toUtf8());
    QVERIFY(built);
    QCOMPARE(built->metaObject()->className(), "CVKIntensityWidget");
    QCOMPARE(built->objectName(), QString("intensityWidget"));
    QCOMPARE(built->size(), QSize(1000, 700));
}

void TestDesignerPlugin::withoutAParent()
{
    const std::unique_ptr<QWidget> widget(m_plugin->createWidget(nullptr));
    QVERIFY(widget);
    widget->resize(300, 200);
    QCOMPARE(widget->grab().size(), QSize(300, 200));
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
