#include "panel/cvkdisplaypreferences.h"

#include "panel/formtree.h"

#include <QComboBox>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

/// The tree of the form: names, texts, sizes and places.
class TestCVKDisplayPreferencesForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panel();
    void groupBoxes_data();
    void groupBoxes();
    void widgets_data();
    void widgets();
    void texts_data();
    void texts();
    void layouts_data();
    void layouts();
    void margins();
    void grids();
    void validators();
    void paletteButtons();
    void comboBoxes();
    void isTranslated();
    void topWidgetStaysBehindEmpty();

private:
    template <class Child>
    Child* child(const QString& name) const
    {
        return m_panel.findChild<Child*>(name);
    }

    CVKDisplayPreferences m_panel;
};

void TestCVKDisplayPreferencesForm::panel()
{
    QCOMPARE(m_panel.objectName(), QString("Form"));
    QCOMPARE(m_panel.windowTitle(), QString("Form"));
    QCOMPARE(m_panel.size(), QSize(332, 387));
    QCOMPARE(m_panel.minimumSize(), QSize(0, 360));
    QVERIFY(m_panel.testAttribute(Qt::WA_DeleteOnClose));
}

void TestCVKDisplayPreferencesForm::groupBoxes_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("title");
    QTest::newRow("display") << "groupBoxDisplay"
                             << "Display";
    QTest::newRow("palette") << "groupBoxPalette"
                             << "Palette";
    QTest::newRow("axis") << "groupBoxAxis"
                          << "Axis Units";
}

void TestCVKDisplayPreferencesForm::groupBoxes()
{
    QFETCH(QString, group);
    QTEST(child<QGroupBox>(group)->title(), "title");
    QCOMPARE(child<QGroupBox>(group)->parentWidget(), &m_panel);
}

void TestCVKDisplayPreferencesForm::widgets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QSize>("minimum");
    const QSize none(0, 0);
    const auto row = [](const char* name, const char* className, const char* group, QSize size) {
        QTest::newRow(name) << QString(name) << QByteArray(className) << QString(group) << size;
    };
    row("radioButtonImage", "QRadioButton", "groupBoxDisplay", none);
    row("radioButton2D", "QRadioButton", "groupBoxDisplay", none);
    row("comboBoxDisplay", "QComboBox", "groupBoxDisplay", QSize(60, 22));
    row("checkBoxPeak", "QCheckBox", "groupBoxDisplay", none);
    row("labelPeaks", "QLabel", "groupBoxDisplay", none);
    row("lineEditPeaks", "QLineEdit", "groupBoxDisplay", QSize(0, 22));
    row("pushButtonGray", "QPushButton", "groupBoxPalette", QSize(30, 30));
    row("pushButtonRed", "QPushButton", "groupBoxPalette", QSize(30, 30));
    row("pushButtonGreen", "QPushButton", "groupBoxPalette", QSize(30, 30));
    row("pushButtonBlue", "QPushButton", "groupBoxPalette", QSize(30, 30));
    row("pushButtonColor", "QPushButton", "groupBoxPalette", QSize(30, 30));
    row("label", "QLabel", "groupBoxAxis", none);
    row("comboBoxType", "QComboBox", "groupBoxAxis", QSize(110, 22));
    row("labelUnits", "QLabel", "groupBoxAxis", none);
    row("comboBoxUnits", "QComboBox", "groupBoxAxis", QSize(0, 22));
    row("labelXStart", "QLabel", "groupBoxAxis", none);
    row("lineEditXStart", "QLineEdit", "groupBoxAxis", QSize(0, 22));
    row("labelPixelWidth", "QLabel", "groupBoxAxis", none);
    row("lineEditPixelWidth", "QLineEdit", "groupBoxAxis", QSize(0, 22));
    row("pushButtonApply", "QPushButton", "Form", QSize(52, 22));
}

void TestCVKDisplayPreferencesForm::widgets()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, className);
    QFETCH(QString, group);
    QFETCH(QSize, minimum);
    const auto* const widget = child<QWidget>(name);
    QVERIFY(widget);
    QCOMPARE(QByteArray(widget->metaObject()->className()), className);
    QCOMPARE(widget->parentWidget()->objectName(), group);
    QCOMPARE(widget->minimumSize(), minimum);
}

void TestCVKDisplayPreferencesForm::texts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("image") << "radioButtonImage"
                           << "Image";
    QTest::newRow("2D") << "radioButton2D"
                        << "2D";
    QTest::newRow("peak labels") << "checkBoxPeak"
                                 << "Peak Labels";
    QTest::newRow("number of peaks") << "labelPeaks"
                                     << "Number of peak labels:";
    QTest::newRow("peaks") << "lineEditPeaks"
                           << "10";
    QTest::newRow("axis") << "label"
                          << "X-Axis Label:";
    QTest::newRow("units") << "labelUnits"
                           << "Units";
    QTest::newRow("start") << "labelXStart"
                           << "X Start:";
    QTest::newRow("start field") << "lineEditXStart"
                                 << "100";
    QTest::newRow("width") << "labelPixelWidth"
                           << "Pixel Width:";
    QTest::newRow("width field") << "lineEditPixelWidth"
                                 << "1";
    QTest::newRow("apply") << "pushButtonApply"
                           << "Apply";
}

void TestCVKDisplayPreferencesForm::texts()
{
    QFETCH(QString, name);
    QTEST(child<QWidget>(name)->property("text").toString(), "text");
}

void TestCVKDisplayPreferencesForm::layouts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char* name, const char* className, const QStringList& items) {
        QTest::newRow(name) << QString(name) << QByteArray(className) << items;
    };
    const QString spacer = "40 x 20 h";
    row("verticalLayout", "QVBoxLayout",
        { "groupBoxDisplay", "groupBoxPalette", "groupBoxAxis", "horizontalLayout", "20 x 10 v" });
    row("gridLayout", "QGridLayout", { "verticalLayout_2" });
    row("verticalLayout_2", "QVBoxLayout",
        { "horizontalLayout_2", "horizontalLayout_3", "horizontalLayout_4", "horizontalLayout_5" });
    row("horizontalLayout_2", "QHBoxLayout", { "radioButtonImage", spacer });
    row("horizontalLayout_3", "QHBoxLayout", { "radioButton2D", "comboBoxDisplay", spacer });
    row("horizontalLayout_4", "QHBoxLayout", { "checkBoxPeak", spacer });
    row("horizontalLayout_5", "QHBoxLayout", { "labelPeaks", "lineEditPeaks", spacer });
    row("gridLayout_4", "QGridLayout", { "horizontalLayout_7" });
    row("horizontalLayout_7", "QHBoxLayout",
        { "pushButtonGray", "pushButtonRed", "pushButtonGreen", "pushButtonBlue",
            "pushButtonColor" });
    row("gridLayout_3", "QGridLayout", { "verticalLayout_3" });
    row("verticalLayout_3", "QVBoxLayout", { "gridLayout_2", "horizontalLayout_6" });
    row("horizontalLayout_6", "QHBoxLayout",
        { "labelXStart", "lineEditXStart", "labelPixelWidth", "lineEditPixelWidth", spacer });
    row("horizontalLayout", "QHBoxLayout", { spacer, "pushButtonApply" });
}

void TestCVKDisplayPreferencesForm::layouts()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, className);
    const auto* const layout = child<QLayout>(name);
    QVERIFY(layout);
    QCOMPARE(QByteArray(layout->metaObject()->className()), className);
    QTEST(itemNames(layout), "items");
}

void TestCVKDisplayPreferencesForm::margins()
{
    const auto margins
        = [this](const char* name) { return child<QLayout>(name)->contentsMargins(); };
    QCOMPARE(margins("verticalLayout"), QMargins(8, 4, 8, 0));
    QCOMPARE(margins("verticalLayout_2"), QMargins(0, 4, 0, 0));
    QCOMPARE(margins("horizontalLayout_7"), QMargins(0, 8, 0, 0));
    QCOMPARE(margins("horizontalLayout"), QMargins(0, 0, 4, 0));
    QCOMPARE(child<QHBoxLayout>("horizontalLayout_7")->spacing(), 14);
    QCOMPARE(child<QGridLayout>("gridLayout_2")->verticalSpacing(), 1);
}

void TestCVKDisplayPreferencesForm::grids()
{
    const auto place = [this](const char* grid, const char* name) {
        return gridPlace(child<QGridLayout>(grid), name);
    };
    QCOMPARE(place("gridLayout", "verticalLayout_2"), QRect(0, 0, 1, 1));
    QCOMPARE(place("gridLayout_4", "horizontalLayout_7"), QRect(0, 0, 1, 1));
    QCOMPARE(place("gridLayout_3", "verticalLayout_3"), QRect(0, 0, 1, 1));
    QCOMPARE(child<QGridLayout>("gridLayout_2")->count(), 4);
    QCOMPARE(place("gridLayout_2", "label"), QRect(0, 1, 1, 1));
    QCOMPARE(place("gridLayout_2", "comboBoxType"), QRect(1, 1, 1, 1));
    QCOMPARE(place("gridLayout_2", "labelUnits"), QRect(2, 0, 1, 1));
    QCOMPARE(place("gridLayout_2", "comboBoxUnits"), QRect(2, 1, 1, 1));
    QCOMPARE(child<QLabel>("labelUnits")->alignment(), Qt::AlignCenter);
    const QSizePolicy peaks = child<QLineEdit>("lineEditPeaks")->sizePolicy();
    QCOMPARE(peaks.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(peaks.verticalPolicy(), QSizePolicy::Fixed);
}

void TestCVKDisplayPreferencesForm::validators()
{
    const auto range = [this](const char* name) {
        const auto* const validator
            = qobject_cast<const QIntValidator*>(child<QLineEdit>(name)->validator());
        return validator ? qMakePair(validator->bottom(), validator->top()) : qMakePair(-1, -1);
    };
    QCOMPARE(range("lineEditPeaks"), qMakePair(1, 200));
    QCOMPARE(range("lineEditXStart"), qMakePair(0, 2000));
    QCOMPARE(range("lineEditPixelWidth"), qMakePair(1, 100));
}

void TestCVKDisplayPreferencesForm::paletteButtons()
{
    const QVector<QPair<QString, QString>> sheets {
        { "Gray", "background-color: rgb(128, 128, 128);border: 0px;" },
        { "Red", "background-color: rgb(255, 0, 0);border: 0px;" },
        { "Green", "background-color: rgb(0, 255, 0);border: 0px;" },
        { "Blue", "background-color: rgb(0, 0, 255);border: 0px;" },
        { "Color",
            "background-color: qlineargradient(spread:pad, x1:0, y1:0, x2:1, y2:0, stop:0 "
            "rgba(0, 0, 0, 255), stop:0.2 rgba(0, 0, 255, 255), stop:0.4 rgba(0, 153, 0, 255), "
            "stop:0.6 rgba(255, 0, 0, 255), stop:0.8 rgba(255, 255, 0, 255), stop:1 rgba(255, "
            "255, 255, 255));\nborder: 0px;" },
    };
    for (const auto& sheet : sheets) {
        const auto* const button = child<QPushButton>("pushButton" + sheet.first);
        QCOMPARE(button->styleSheet(), sheet.second);
        QVERIFY(button->text().isEmpty());
        QVERIFY(button->isCheckable());
        QCOMPARE(button->minimumSize(), QSize(30, 30));
        QCOMPARE(button->maximumSize(), QSize(30, 30));
    }
    QVERIFY(!child<QPushButton>("pushButtonGray")->autoFillBackground());
}

void TestCVKDisplayPreferencesForm::comboBoxes()
{
    const auto items = [this](const char* name) {
        QStringList texts;
        const auto* const box = child<QComboBox>(name);
        for (int i = 0; i < box->count(); ++i) {
            texts.append(box->itemText(i));
        }
        return texts;
    };
    QCOMPARE(items("comboBoxDisplay"), QStringList({ "X-Axis", "Y-Axis" }));
    QCOMPARE(items("comboBoxType"), QStringList({ "Pixels Number", "Wavelength" }));
    QCOMPARE(items("comboBoxUnits"), QStringList({ "um", "nm" }));
}

void TestCVKDisplayPreferencesForm::isTranslated()
{
    RecordingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const CVKDisplayPreferences panel;
    QCoreApplication::removeTranslator(&translator);
    for (const char* const text :
        { "Form", "Display", "Image", "2D", "Peak Labels", "Number of peak labels:", "Palette",
            "Axis Units", "X-Axis Label:", "Units", "X Start:", "Pixel Width:", "Apply", "X-Axis",
            "Y-Axis", "Pixels Number", "Wavelength", "um", "nm" }) {
        QVERIFY2(translator.hasLookedUp("CVKDisplayPreferences", text), text);
    }
}

void TestCVKDisplayPreferencesForm::topWidgetStaysBehindEmpty()
{
    const auto* const top = child<QWidget>("verticalLayoutWidget");
    QCOMPARE(top->parentWidget(), &m_panel);
    QCOMPARE(top->geometry(), QRect(10, 10, 309, 371));
    QVERIFY(!top->layout());
    QVERIFY(top->children().isEmpty());
    QCOMPARE(m_panel.layout()->objectName(), QString("verticalLayout"));
}

QTEST_MAIN(TestCVKDisplayPreferencesForm)
#include "tst_cvkdisplaypreferencesform.moc"
