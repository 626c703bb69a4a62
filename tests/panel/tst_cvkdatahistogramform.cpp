#include "panel/cvkdatahistogram.h"

#include "panel/formtree.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

/// The tree of the form: names, texts, sizes and places.
class TestCVKDataHistogramForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panel();
    void groupBoxes();
    void controls();
    void labels_data();
    void labels();
    void valueLabels_data();
    void valueLabels();
    void layouts_data();
    void layouts();
    void margins();
    void grids();
    void isTranslated();
    void topWidgetStaysBehindEmpty();

private:
    template <class Child>
    Child* child(const QString& name) const
    {
        return m_panel.findChild<Child*>(name);
    }

    CVKDataHistogram m_panel;
};

void TestCVKDataHistogramForm::panel()
{
    QCOMPARE(m_panel.objectName(), QString("CVKDataHistogram"));
    QCOMPARE(m_panel.windowTitle(), QString("Form"));
    QCOMPARE(m_panel.size(), QSize(349, 482));
    QVERIFY(m_panel.testAttribute(Qt::WA_DeleteOnClose));
}

void TestCVKDataHistogramForm::groupBoxes()
{
    const auto* const histogram = child<QGroupBox>("groupBoxHistogram");
    QCOMPARE(histogram->parentWidget(), &m_panel);
    QCOMPARE(histogram->title(), QString("Histogram"));
    QCOMPARE(histogram->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(histogram->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(histogram->minimumSize(), QSize(0, 140));
    const auto* const area = child<QWidget>("widgetHistogram");
    QCOMPARE(area->parentWidget(), histogram);
    QCOMPARE(area->metaObject()->className(), "QWidget");
    QVERIFY(area->children().isEmpty());
    const auto* const roi = child<QGroupBox>("groupBoxRoi");
    QCOMPARE(roi->parentWidget(), &m_panel);
    QCOMPARE(roi->title(), QString("ROI Analysis"));
}

void TestCVKDataHistogramForm::controls()
{
    QCOMPARE(child<QComboBox>("comboBoxRoi")->minimumSize(), QSize(0, 22));
    QCOMPARE(child<QPushButton>("pushButtonAdd")->text(), QString("Add"));
    QCOMPARE(child<QPushButton>("pushButtonAdd")->minimumSize(), QSize(0, 22));
    QCOMPARE(child<QPushButton>("pushButtonDelete")->text(), QString("Delete"));
    QCOMPARE(child<QPushButton>("pushButtonDelete")->minimumSize(), QSize(0, 22));
    for (const char* const name : { "comboBoxRoi", "pushButtonAdd", "pushButtonDelete" }) {
        QCOMPARE(child<QWidget>(name)->parentWidget()->objectName(), QString("groupBoxRoi"));
    }
}

void TestCVKDataHistogramForm::labels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");
    QTest::newRow("labelX") << "X" << 1;
    QTest::newRow("labelY") << "Y" << 2;
    QTest::newRow("labelCounts") << "Total Counts" << 3;
    QTest::newRow("labelMean") << "Mean" << 4;
    QTest::newRow("labelMin") << "Minimum" << 5;
    QTest::newRow("labelMax") << "Maximum" << 6;
    QTest::newRow("labelStandard") << "Standard Deviation" << 7;
    QTest::newRow("labelNoise") << "Signal To Noise" << 8;
}

void TestCVKDataHistogramForm::labels()
{
    QFETCH(int, row);
    const QString name = QTest::currentDataTag();
    QTEST(child<QLabel>(name)->text(), "text");
    QCOMPARE(gridPlace(child<QGridLayout>("gridLayout"), name), QRect(0, row, 1, 1));
}

void TestCVKDataHistogramForm::valueLabels_data()
{
    QTest::addColumn<QSize>("minimum");
    QTest::newRow("labelValueX") << QSize(80, 22);
    for (const char* const name : { "labelValueY", "labelValueCounts", "labelValueMean",
             "labelValueMin", "labelValueMax", "labelValueStandard", "labelValueNoise" }) {
        QTest::newRow(name) << QSize(0, 22);
    }
}

void TestCVKDataHistogramForm::valueLabels()
{
    const auto* const label = child<QLabel>(QTest::currentDataTag());
    QVERIFY(label->text().isEmpty());
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QTEST(label->minimumSize(), "minimum");
}

void TestCVKDataHistogramForm::layouts_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("verticalLayout") << QByteArray(
        "QVBoxLayout") << QStringList { "groupBoxHistogram", "groupBoxRoi", "20 x 20 v" };
    QTest::newRow("gridLayout_3") << QByteArray("QGridLayout") << QStringList { "widgetHistogram" };
    QTest::newRow("gridLayout_2") << QByteArray("QGridLayout") << QStringList { "gridLayout" };
    QTest::newRow("horizontalLayout")
        << QByteArray("QHBoxLayout") << QStringList { "verticalLayout_2", "40 x 20 h" };
    QTest::newRow("verticalLayout_2")
        << QByteArray("QVBoxLayout")
        << QStringList { "labelValueX", "labelValueY", "labelValueCounts", "labelValueMean",
               "labelValueMin", "labelValueMax", "labelValueStandard", "labelValueNoise" };
}

void TestCVKDataHistogramForm::layouts()
{
    QFETCH(QByteArray, className);
    const auto* const layout = child<QLayout>(QTest::currentDataTag());
    QVERIFY(layout);
    QCOMPARE(QByteArray(layout->metaObject()->className()), className);
    QTEST(itemNames(layout), "items");
}

void TestCVKDataHistogramForm::margins()
{
    QCOMPARE(child<QLayout>("verticalLayout")->contentsMargins(), QMargins(8, 4, 8, 0));
    QCOMPARE(child<QLayout>("gridLayout")->contentsMargins(), QMargins(0, 8, 0, 0));
}

void TestCVKDataHistogramForm::grids()
{
    const auto* const grid = child<QGridLayout>("gridLayout");
    QCOMPARE(grid->count(), 12); // three controls, eight labels, the values
    QCOMPARE(gridPlace(grid, "comboBoxRoi"), QRect(0, 0, 1, 1));
    QCOMPARE(gridPlace(grid, "pushButtonAdd"), QRect(1, 0, 1, 1));
    QCOMPARE(gridPlace(grid, "pushButtonDelete"), QRect(2, 0, 1, 1));
    QCOMPARE(gridPlace(grid, "horizontalLayout"), QRect(1, 1, 2, 8));
    QCOMPARE(gridPlace(child<QGridLayout>("gridLayout_3"), "widgetHistogram"), QRect(0, 0, 1, 1));
    QCOMPARE(gridPlace(child<QGridLayout>("gridLayout_2"), "gridLayout"), QRect(0, 0, 1, 1));
}

void TestCVKDataHistogramForm::isTranslated()
{
    RecordingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const CVKDataHistogram panel;
    QCoreApplication::removeTranslator(&translator);
    for (const char* const text :
        { "Form", "Histogram", "ROI Analysis", "Add", "Delete", "X", "Y", "Total Counts", "Mean",
            "Minimum", "Maximum", "Standard Deviation", "Signal To Noise", "None Select" }) {
        QVERIFY2(translator.hasLookedUp("CVKDataHistogram", text), text);
    }
}

void TestCVKDataHistogramForm::topWidgetStaysBehindEmpty()
{
    const auto* const top = child<QWidget>("verticalLayoutWidget");
    QCOMPARE(top->parentWidget(), &m_panel);
    QCOMPARE(top->geometry(), QRect(10, 10, 320, 461));
    QVERIFY(!top->layout());
    QVERIFY(top->children().isEmpty());
    QCOMPARE(m_panel.layout()->objectName(), QString("verticalLayout"));
}

QTEST_MAIN(TestCVKDataHistogramForm)
#include "tst_cvkdatahistogramform.moc"
