#include "options.h"

#include <QTest>

/// The command line of vkmeasure.
class TestMeasureOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void options_areReadTogether();
    void table_followsFromTheOptions_data();
    void table_followsFromTheOptions();
    void twoDashes_endTheOptions();
    void nonsense_isNamed_data();
    void nonsense_isNamed();
};

void TestMeasureOptions::options_areReadTogether()
{
    const MeasureOptions options
        = parsedOptions({ "--roi", "1,2,3,4", "--roi", "0,0,1,1", "--regions", "a.reg", "--row",
            "5", "--row", "0", "--column", "7", "--histogram", "--peaks", "200", "--wavelength",
            "400,2,nm", "--page", "3", "--format", "json", "--jobs", "64", "a.raw", "b" });
    QCOMPARE(options.error, QString());
    QCOMPARE(options.regions, QVector<QRect>({ QRect(1, 2, 3, 4), QRect(0, 0, 1, 1) }));
    QCOMPARE(options.regionFile, QString("a.reg"));
    QCOMPARE(options.rows, QVector<int>({ 5, 0 }));
    QCOMPARE(options.columns, QVector<int>({ 7 }));
    QVERIFY(options.wantsHistogram);
    QCOMPARE(options.peakCount, 200);
    QCOMPARE(options.calibration->start, 400.0);
    QCOMPARE(options.calibration->width, 2.0);
    QCOMPARE(options.calibration->unit, QString("nm"));
    QCOMPARE(options.page, 3);
    QVERIFY(options.format == MeasureOptions::Format::Json);
    QCOMPARE(options.jobs, 64);
    QCOMPARE(options.paths, QStringList({ "a.raw", "b" }));
}

void TestMeasureOptions::table_followsFromTheOptions_data()
{
    using Table = MeasureOptions::Table;
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("table");
    QTest::newRow("nothing") << QStringList() << int(Table::Statistics);
    QTest::newRow("regions") << QStringList { "--roi", "0,0,1,1" } << int(Table::Statistics);
    QTest::newRow("histogram") << QStringList { "--histogram" } << int(Table::Histogram);
    QTest::newRow("histogram of a region")
        << QStringList { "--histogram", "--roi", "0,0,1,1" } << int(Table::Histogram);
    QTest::newRow("row") << QStringList { "--row", "0" } << int(Table::Profiles);
    QTest::newRow("column") << QStringList { "--column", "0" } << int(Table::Profiles);
    QTest::newRow("peaks") << QStringList { "--column", "0", "--peaks", "1" } << int(Table::Peaks);
}

void TestMeasureOptions::table_followsFromTheOptions()
{
    QFETCH(QStringList, arguments);
    const MeasureOptions options
        = parsedOptions(arguments + QStringList { "--format", "csv", "a.raw" });
    QCOMPARE(options.error, QString());
    QTEST(int(options.table), "table");
}

void TestMeasureOptions::twoDashes_endTheOptions()
{
    const MeasureOptions options = parsedOptions({ "--", "--row", "--" });
    QCOMPARE(options.error, QString());
    QCOMPARE(options.paths, QStringList({ "--row", "--" }));
}

void TestMeasureOptions::nonsense_isNamed_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("arguments");
    const auto add = [](const char* option, const QString& value) {
        QTest::newRow(qPrintable(QString("%1 %2").arg(option, value)))
            << QString(option) << QStringList { option, value, "a.raw" };
    };
    for (const char* value : { "", "-1", "+1", "1.5", "1e3", "x", "0x10", " 1", "2147483648",
             "99999999999999999999", "1,2", "٣" }) {
        for (const char* option : { "--row", "--column", "--page", "--jobs", "--peaks" }) {
            add(option, QString::fromUtf8(value));
        }
    }
    for (const char* value : { "0", "201" }) {
        add("--peaks", value);
    }
    for (const char* value : { "0", "65" }) {
        add("--jobs", value);
    }
    for (const char* value : { "", "1,2,3", "1,2,3,4,5", "1,2,0,4", "1,2,3,0", "-1,2,3,4",
             "1,2,3,4 ", "nan,1,1,1", "2147483647,0,1,1", "0,1,1,2147483647", "1;2;3;4" }) {
        add("--roi", value);
    }
    for (const char* value : { "", "400", "400,0", "2001,1", "400,101", "-1,1", "400,1,mm",
             "400,1,nm,um", "0.5,1", "nan,1" }) {
        add("--wavelength", value);
    }
    for (const char* value : { "", "xml", "JSON " }) {
        add("--format", value);
    }
    add("--regions", "");
    for (const char* option : { "--roi", "--regions", "--row", "--column", "--peaks",
             "--wavelength", "--page", "--format", "--jobs" }) {
        QTest::newRow(qPrintable(QString("%1 at the end").arg(option)))
            << QString(option) << QStringList { option };
    }
    QTest::newRow("unknown") << "--what" << QStringList { "--what", "a.raw" };
    QTest::newRow("a dash") << "-" << QStringList { "-", "a.raw" };
    QTest::newRow("two region files")
        << "--regions" << QStringList { "--regions", "a", "--regions", "b", "c.raw" };
    QTest::newRow("peaks of nothing") << "--peaks" << QStringList { "--peaks", "3", "a.raw" };
    QTest::newRow("no file") << "file" << QStringList { "--histogram" };
    QTest::newRow("empty file") << "file" << QStringList { "" };
    const QStringList csv { "--format", "csv", "a.raw" };
    QTest::newRow("two tables, first")
        << "--histogram" << QStringList { "--histogram", "--row", "1" } + csv;
    QTest::newRow("two tables, second")
        << "--row" << QStringList { "--histogram", "--row", "1" } + csv;
    QTest::newRow("region and column, first")
        << "--roi" << QStringList { "--roi", "0,0,1,1", "--column", "1" } + csv;
    QTest::newRow("region and column, second")
        << "--column" << QStringList { "--roi", "0,0,1,1", "--column", "1" } + csv;
    QTest::newRow("region file and row")
        << "--regions" << QStringList { "--regions", "a.reg", "--row", "1" } + csv;
}

void TestMeasureOptions::nonsense_isNamed()
{
    QFETCH(QString, option);
    QFETCH(QStringList, arguments);
    const QString error = parsedOptions(arguments).error;
    QVERIFY2(error.contains(option), qPrintable(error));
    QVERIFY(!error.contains('\n'));
}

QTEST_GUILESS_MAIN(TestMeasureOptions)
#include "tst_measureoptions.moc"
