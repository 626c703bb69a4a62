#include "appearance.h"
#include "cvkintensitywidget.h"
#include "languages.h"
#include "viewerwindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStatusBar>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

struct Message
{
    QString source;
    QString translation;
    bool isFinished = true;
};

QVector<Message> messagesOf(const QString& path)
{
    QFile file(path);
    QVector<Message> messages;
    if (!file.open(QIODevice::ReadOnly)) {
        return messages;
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("source")) {
            messages << Message { reader.readElementText(), QString(), true };
        } else if (reader.name() == QLatin1String("translation")) {
            messages.last().isFinished = !reader.attributes().hasAttribute("type");
            messages.last().translation = reader.readElementText();
        }
    }
    return messages;
}

QStringList placeholders(const QString& text)
{
    QStringList found;
    static const QRegularExpression placeholder("%[0-9]");
    auto matches = placeholder.globalMatch(text);
    while (matches.hasNext()) {
        found << matches.next().captured();
    }
    found.sort();
    return found;
}

void removeTranslators()
{
    for (QTranslator* translator : qApp->findChildren<QTranslator*>()) {
        delete translator;
    }
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void files_areComplete_data();
    void files_areComplete();
    void panel_speaksTheLanguage_data();
    void panel_speaksTheLanguage();
    void panel_fitsTheColumn_data();
    void panel_fitsTheColumn();
    void readout_isTranslated();
    void window_speaksTheLanguage_data();
    void window_speaksTheLanguage();
    void menus_haveDifferentAccessKeys_data();
    void menus_haveDifferentAccessKeys();
    void language_followsTheLocale();
};

void TestTranslations::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestTranslations::cleanup()
{
    removeTranslators();
}

void TestTranslations::files_areComplete_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& language : QString(LANGUAGES).split(',')) {
        for (const char* part : { "vkintensitywidget", "vkviewer" }) {
            const QString name = QString("%1_%2.ts").arg(part, language);
            QTest::newRow(qPrintable(name)) << name;
        }
    }
}

void TestTranslations::files_areComplete()
{
    QFETCH(QString, name);
    const QVector<Message> messages = messagesOf(QString(TRANSLATION_SOURCES) + "/" + name);
    QVERIFY(messages.size() > 40);
    for (const Message& message : messages) {
        QVERIFY2(message.isFinished && !message.translation.isEmpty(), qPrintable(message.source));
        QVERIFY2(placeholders(message.translation) == placeholders(message.source),
            qPrintable(message.source));
    }
}

void TestTranslations::panel_speaksTheLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("texts"); // in the order in which panel() reads them
    QTest::newRow("English") << "C"
                             << QStringList { "Palette", "Histogram", "Image", "Peak Labels",
                                    "Standard Deviation", "None Select", "Wavelength", "um",
                                    "Display Preferences", "Zoom In" };
    QTest::newRow("German") << "de_DE"
                            << QStringList { "Palette", "Histogramm", "Bild", "Peaks beschriften",
                                   "Standardabw.", "Keine Auswahl",
                                   QString::fromUtf8("Wellenlänge"), QString::fromUtf8("µm"),
                                   "Anzeigeoptionen", QString::fromUtf8("Vergrößern") };
    QTest::newRow("Simplified Chinese")
        << "zh_CN"
        << QStringList { QString::fromUtf8("调色板"), QString::fromUtf8("直方图"),
               QString::fromUtf8("图像"), QString::fromUtf8("峰值标注"),
               QString::fromUtf8("标准差"), QString::fromUtf8("未选择"), QString::fromUtf8("波长"),
               QString::fromUtf8("µm"), QString::fromUtf8("显示设置"), QString::fromUtf8("放大") };
}

void TestTranslations::panel_speaksTheLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, texts);
    installLanguage(qApp, QLocale(locale));
    const CVKIntensityWidget widget;
    const auto named = [&widget](const char* name) { return widget.findChild<QWidget*>(name); };
    QStringList panel;
    for (const char* name : { "groupBoxPalette", "groupBoxHistogram" }) {
        panel << qobject_cast<QGroupBox*>(named(name))->title();
    }
    for (const char* name : { "radioButtonImage", "checkBoxPeak" }) {
        panel << qobject_cast<QAbstractButton*>(named(name))->text();
    }
    panel << qobject_cast<QLabel*>(named("labelStandard"))->text();
    panel << qobject_cast<QComboBox*>(named("comboBoxRoi"))->itemText(0);
    panel << qobject_cast<QComboBox*>(named("comboBoxType"))->itemText(1);
    panel << qobject_cast<QComboBox*>(named("comboBoxUnits"))->itemText(0);
    for (const QWidget* bar : widget.findChildren<QWidget*>()) {
        if (bar->inherits("CVKIntensityCtrlTitleBar")) {
            panel << bar->findChild<QLabel*>()->text();
            break;
        }
    }
    panel << named("tool_Zoom_In")->toolTip();
    QCOMPARE(panel, texts);
}

void TestTranslations::panel_fitsTheColumn_data()
{
    QTest::addColumn<QString>("locale");
    for (const char* locale : { "C", "de_DE", "zh_CN" }) {
        QTest::newRow(locale) << locale;
    }
}

/// The column is 290 pixels wide in every language; a module that wants more is cut.
void TestTranslations::panel_fitsTheColumn()
{
    QFETCH(QString, locale);
    installLanguage(qApp, QLocale(locale));
    CVKIntensityWidget widget;
    widget.resize(1000, 700);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    int modules = 0;
    for (QWidget* module : widget.findChildren<QWidget*>()) {
        if (module->inherits("CVKDisplayPreferences") || module->inherits("CVKDataHistogram")) {
            QVERIFY2(module->minimumSizeHint().width() <= 290,
                qPrintable(QString::number(module->minimumSizeHint().width())));
            ++modules;
        }
    }
    QCOMPARE(modules, 2);
}

void TestTranslations::readout_isTranslated()
{
    QVERIFY(installLanguage(qApp, QLocale("de_DE")));
    QCOMPARE(QCoreApplication::translate("CVKIntensityMdiWidget", "X:%1  Y:%2\nData:%3"),
        QString("X:%1  Y:%2\nWert:%3"));
    QCOMPARE(QCoreApplication::translate("CVKDataHistogram", "%1 to %2"), QString("%1 bis %2"));
}

void TestTranslations::window_speaksTheLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("menus");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("help"); // one line of it, without its access key
    QTest::newRow("German") << "de_DE"
                            << QStringList { "&Datei", "&Bearbeiten", "&ROIs", "&Ansicht",
                                   "&Hilfe" }
                            << "Kein Bild" << QString::fromUtf8("Ordner öffnen");
    QTest::newRow("Simplified Chinese")
        << "zh_CN"
        << QStringList { QString::fromUtf8("文件(&F)"), QString::fromUtf8("编辑(&E)"),
               QString::fromUtf8("区域(&R)"), QString::fromUtf8("视图(&V)"),
               QString::fromUtf8("帮助(&H)") }
        << QString::fromUtf8("没有图像") << QString::fromUtf8("打开文件夹");
}

void TestTranslations::window_speaksTheLanguage()
{
    QFETCH(QString, locale);
    QVERIFY(installLanguage(qApp, QLocale(locale)));
    const ViewerWindow window;
    QStringList menus;
    for (const QAction* action : window.menuBar()->actions()) {
        menus << action->text();
    }
    QTEST(menus, "menus");
    QTEST(window.findChild<QLabel*>("statusFileName")->text(), "status");
    QStringList effects;
    for (const QLabel* label : window.findChildren<QLabel*>("helpEffect")) {
        effects << label->text();
    }
    QFETCH(QString, help);
    QVERIFY(effects.contains(help));
}

void TestTranslations::menus_haveDifferentAccessKeys_data()
{
    panel_fitsTheColumn_data();
}

void TestTranslations::menus_haveDifferentAccessKeys()
{
    QFETCH(QString, locale);
    installLanguage(qApp, QLocale(locale));
    const ViewerWindow window;
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        QStringList keys;
        for (const QAction* action : menu->actions()) {
            const int mark = int(action->text().indexOf('&'));
            QVERIFY2(action->isSeparator() || !action->isVisible() || mark >= 0,
                qPrintable(action->text()));
            if (mark >= 0) {
                keys << action->text().mid(mark + 1, 1).toLower();
            }
        }
        const QString all = keys.join("");
        QVERIFY2(keys.removeDuplicates() == 0, qPrintable(menu->title() + ": " + all));
    }
}

void TestTranslations::language_followsTheLocale()
{
    QVERIFY(installLanguage(qApp, QLocale("de_AT"))); // German as in Germany
    removeTranslators();
    QVERIFY(installLanguage(qApp, QLocale("zh_SG"))); // written as in China
    removeTranslators();
    QVERIFY(!installLanguage(qApp, QLocale("zh_TW"))); // not so here
    for (const char* locale : { "C", "en_US", "fr_FR" }) {
        QVERIFY2(!installLanguage(qApp, QLocale(locale)), locale);
        QVERIFY(qApp->findChildren<QTranslator*>().isEmpty());
    }
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
