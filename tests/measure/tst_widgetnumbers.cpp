#include "cvkintensitywidget.h"
#include "rawframe.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstring>

namespace {

using Widget = CVKIntensityWidget;

bool hasSameBits(double one, double other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

/// The object of a file; empty when the program fails.
QJsonObject measured(const QStringList& arguments)
{
    QProcess program;
    program.start(VKMEASURE_PROGRAM, arguments);
    if (!program.waitForFinished(120000) || program.exitCode() != 0) {
        return {};
    }
    return QJsonDocument::fromJson(program.readAllStandardOutput()).object();
}

/// A number that null stands for is none.
double number(const QJsonValue& value)
{
    return value.isNull() ? std::nan("") : value.toDouble();
}

bool isSame(const QJsonObject& found, const Widget::Statistics& shown)
{
    const double noise = number(found["signal_to_noise"]);
    return found["x"] == shown.rect.x() && found["y"] == shown.rect.y()
        && found["width"] == shown.rect.width() && found["height"] == shown.rect.height()
        && found["pixels"] == shown.pixels && hasSameBits(found["mean"].toDouble(), shown.mean)
        && found["minimum"] == qint64(shown.minimum) && found["maximum"] == qint64(shown.maximum)
        && hasSameBits(found["deviation"].toDouble(), shown.deviation)
        && (std::isnan(noise) ? std::isnan(shown.signalToNoise)
                              : hasSameBits(noise, shown.signalToNoise));
}

bool isSame(const QJsonArray& found, const QVector<quint32>& shown)
{
    bool same = found.size() == shown.size();
    for (int i = 0; same && i < int(shown.size()); ++i) {
        same = found.at(i) == qint64(shown.at(i));
    }
    return same;
}

/// `value` is left out where the widget shows no histogram.
bool isSame(const QJsonValue& value, const Widget::Histogram& shown)
{
    const QJsonObject found = value.toObject();
    if (!shown.isValid()) {
        return value.isUndefined();
    }
    return found["first"] == qint64(shown.first) && isSame(found["counts"].toArray(), shown.counts);
}

bool isSame(const QJsonArray& found, const QVector<Widget::Peak>& shown)
{
    bool same = found.size() == shown.size();
    for (int i = 0; same && i < int(shown.size()); ++i) {
        const QJsonObject peak = found.at(i).toObject();
        same = peak["rank"] == shown.at(i).rank && peak["pixel"] == shown.at(i).pixel
            && hasSameBits(peak["position"].toDouble(), shown.at(i).position)
            && peak["value"] == qint64(shown.at(i).value);
    }
    return same;
}

} // namespace

/// The program's numbers are those of the widget, bit for bit.
class TestWidgetNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void file_hasTheNumbersOfTheWidget_data();
    void file_hasTheNumbersOfTheWidget();
    void csv_hasTheSamePositions();

private:
    void writeFrame(const QString& name, int width, int height, const QVector<quint32>& samples);

    QTemporaryDir m_folder;
};

void TestWidgetNumbers::writeFrame(
    const QString& name, int width, int height, const QVector<quint32>& samples)
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.bytesPerChannel = 4;
    frame.bytes
        = QByteArray(reinterpret_cast<const char*>(samples.constData()), int(samples.size()) * 4);
    QString problem;
    QVERIFY2(writeRawFrame(m_folder.filePath(name), frame, &problem), qPrintable(problem));
}

void TestWidgetNumbers::initTestCase()
{
    writeFrame("flat.raw", 3, 2, QVector<quint32>(6, 7)); // no deviation; an axis of 3 units
    writeFrame("wide.raw", 4, 2, { 0, 100000000, 5, 99, 7, 4294967294, 1, 2 }); // no histogram
    writeFrame("full.raw", 2, 2, { 0, 4294967295, 5, 99 }); // no levels, and so no peaks
    QVector<quint32> sparse; // more blocks of counts than one
    for (uint i = 0; i < 40; ++i) {
        sparse.append(1000 + i * 4099);
    }
    writeFrame("sparse.raw", 8, 5, sparse);
}

void TestWidgetNumbers::file_hasTheNumbersOfTheWidget_data()
{
    QTest::addColumn<QString>("path");
    const QDir samples(VKINTENSITY_SAMPLES);
    const QDir own(m_folder.path());
    for (const QDir& folder : { samples, own }) {
        for (const QFileInfo& file : folder.entryInfoList(QDir::Files)) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
    }
    QVERIFY(samples.entryList(QDir::Files).size() >= 6);
}

void TestWidgetNumbers::file_hasTheNumbersOfTheWidget()
{
    QFETCH(QString, path);
    auto* const widget = new Widget;
    widget->setReading(Widget::Reading::Faithful);
    QVERIFY(widget->loadImage(path));
    QVERIFY(widget->setCalibration(Widget::Calibration { 400, 1, Widget::Unit::Nanometers }));
    const QSize size = widget->imageInfo().size;
    const QRect region(
        size.width() / 3, size.height() / 2, size.width() / 2, size.height() / 3 + 1);
    const int row = size.height() / 3;
    const int column = size.width() / 2;
    const QJsonObject found = measured({ "--roi",
        QString("%1,%2,%3,%4")
            .arg(region.x())
            .arg(region.y())
            .arg(region.width())
            .arg(region.height()),
        "--row", QString::number(row), "--column", QString::number(column), "--peaks", "200",
        "--histogram", "--wavelength", "400,1,nm", path });
    const QRect all(QPoint(0, 0), size);
    QCOMPARE(found["bits"].toInt(), widget->imageInfo().bitDepth);
    QVERIFY(isSame(found["image"].toObject(), widget->statistics(all)));
    QVERIFY(isSame(found["histogram"], widget->histogram(all)));
    const QJsonObject foundRegion = found["regions"].toArray().at(0).toObject();
    QVERIFY(isSame(foundRegion, widget->statistics(region)));
    QVERIFY(isSame(foundRegion["histogram"], widget->histogram(region)));
    const QJsonObject foundRow = found["rows"].toArray().at(0).toObject();
    QCOMPARE(foundRow["index"].toInt(), row);
    QVERIFY(isSame(foundRow["values"].toArray(), widget->rowProfile(row).values));
    QVERIFY(isSame(foundRow["peaks"].toArray(), widget->peaks(widget->rowProfile(row), 200)));
    const QJsonObject foundColumn = found["columns"].toArray().at(0).toObject();
    QVERIFY(isSame(foundColumn["values"].toArray(), widget->columnProfile(column).values));
    QVERIFY(
        isSame(foundColumn["peaks"].toArray(), widget->peaks(widget->columnProfile(column), 200)));
    delete widget;
}

void TestWidgetNumbers::csv_hasTheSamePositions()
{
    const QString path = QString(VKINTENSITY_SAMPLES) + "/grey-target-odd-width.bmp";
    auto* const widget = new Widget;
    widget->setReading(Widget::Reading::Faithful);
    QVERIFY(widget->loadImage(path));
    QVERIFY(widget->setCalibration(Widget::Calibration { 3, 7, Widget::Unit::Micrometers }));
    const Widget::Profile column = widget->columnProfile(20);
    QProcess program;
    program.start(
        VKMEASURE_PROGRAM, { "--format", "csv", "--column", "20", "--wavelength", "3,7,um", path });
    QVERIFY(program.waitForFinished(120000));
    const QList<QByteArray> lines = program.readAllStandardOutput().split('\n');
    QCOMPARE(lines.at(3), QByteArray("file,page,axis,index,pixel,position [um],value"));
    QCOMPARE(lines.size(), column.values.size() + 5); // and the end of the last line
    for (int i = 0; i < int(column.values.size()); ++i) {
        const QList<QByteArray> fields = lines.at(i + 4).split(',');
        QCOMPARE(fields.mid(2, 3), QList<QByteArray>({ "column", "20", QByteArray::number(i) }));
        QVERIFY(hasSameBits(fields.at(5).toDouble(), column.position(i)));
        QCOMPARE(fields.at(6), QByteArray::number(column.values.at(i)));
    }
    delete widget;
}

QTEST_MAIN(TestWidgetNumbers)
#include "tst_widgetnumbers.moc"
