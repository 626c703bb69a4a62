#include "formats/csvtables.h"
#include "formats/jsonlines.h"

#include <QProcess>
#include <QTest>

#include <cstring>
#include <limits>

namespace {

/// Doubles that need all their digits, or have few, or are no numbers.
QVector<double> awkwardDoubles()
{
    return { 0.0, -0.0, 0.1, 1.0 / 3.0, 0.1 + 0.2, 1e15, 123456789012345.0, 9007199254740993.0,
        std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
        std::numeric_limits<double>::denorm_min(), -2.5e-7, 65535.99999999999 };
}

QByteArray bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return QByteArray::number(bits, 16).rightJustified(16, '0');
}

/// What a Python script prints that reads `input`; empty when it fails.
QByteArray printed(const char* script, const QByteArray& input)
{
    QProcess python;
    python.start(QStringLiteral(PYTHON), { QStringLiteral("-c"), QString::fromLatin1(script) });
    python.write(input);
    python.closeWriteChannel();
    const bool succeeded = python.waitForFinished() && python.exitCode() == 0;
    if (!succeeded) {
        qWarning("%s", python.readAllStandardError().constData());
    }
    return succeeded ? python.readAllStandardOutput() : QByteArray();
}

} // namespace

/// Python's own readers of CSV and JSON get the same doubles and texts.
class TestPythonReaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void csv_givesTheSameDoubles();
    void csv_givesTheSameTexts();
    void json_givesTheSameDoubles();
    void json_givesTheSameTexts();
};

void TestPythonReaders::csv_givesTheSameDoubles()
{
    MeasuredProfile profile;
    QByteArray expected;
    profile.positions = awkwardDoubles();
    profile.positions
        += { std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity() };
    for (int i = 0; i < int(profile.positions.size()); ++i) {
        profile.values.append(4294967295u - uint(i));
        expected += QByteArray::number(i) + ' ' + bitsOf(profile.positions.at(i)) + ' '
            + QByteArray::number(profile.values.at(i)) + '\n';
    }
    const QByteArray table = csvPreamble(MeasurementSource(), std::nullopt)
        + csvProfile(profile, QStringLiteral("nm"));
    const QByteArray found = printed("import csv, struct, sys\n"
                                     "lines = (l for l in sys.stdin if not l.startswith('#'))\n"
                                     "for r in csv.DictReader(lines):\n"
                                     "    print(int(r['pixel']), struct.pack('>d', "
                                     "float(r['position [nm]'])).hex(), r['value'])\n",
        table);
    QCOMPARE(found, expected);
}

void TestPythonReaders::csv_givesTheSameTexts()
{
    const QString text = QString::fromUtf8("#1 \"\xe6\x98\x9f\", a\nb.tif");
    const QByteArray found
        = printed("import csv, sys\n"
                  "sys.stdout.buffer.write(next(csv.reader(sys.stdin, strict=True))[0].encode())\n",
            csvField(text) + ",2\n");
    QCOMPARE(QString::fromUtf8(found), text);
}

void TestPythonReaders::json_givesTheSameDoubles()
{
    Measurement measurement;
    QByteArray expected;
    for (const double value : awkwardDoubles()) {
        RegionStatistics region;
        region.mean = value;
        measurement.regions.append(region);
        expected += bitsOf(value) + '\n';
    }
    const QByteArray found = printed("import json, struct, sys\n"
                                     "for r in json.load(sys.stdin)['regions']:\n"
                                     "    print(struct.pack('>d', r['mean']).hex())\n",
        jsonLine(measurement));
    QCOMPARE(found, expected);
}

void TestPythonReaders::json_givesTheSameTexts()
{
    Measurement measurement;
    measurement.source.file = QString::fromUtf8("\x01\"\\\xe6\x98\x9f\n\t\xf0\x9f\x94\xad.tif");
    measurement.histogram = MeasuredHistogram { 4294967295u, { 1 } };
    const QByteArray found
        = printed("import json, sys\n"
                  "o = json.load(sys.stdin)\n"
                  "assert o['histogram'] == {'first': 4294967295, 'counts': [1]}\n"
                  "sys.stdout.buffer.write(o['file'].encode())\n",
            jsonLine(measurement));
    QCOMPARE(QString::fromUtf8(found), measurement.source.file);
}

QTEST_GUILESS_MAIN(TestPythonReaders)
#include "tst_pythonreaders.moc"
