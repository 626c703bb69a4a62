#include "printout.h"

#include "support/recordingpaintdevice.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QtTest>

namespace {

QImage coloredPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(QColor(200, 30, 30));
    return picture;
}

/// A header of three columns and `rows` rows.
QVector<QStringList> tableOf(int rows)
{
    QVector<QStringList> table { { "Region", "Pixels", "Mean" } };
    for (int i = 1; i <= rows; ++i) {
        table << QStringList { QString("ROI %1").arg(i), "100", QString::number(i) };
    }
    return table;
}

/// What the pages of 600 x 800 at 96 dots per inch show, one list of entries a page.
QVector<QVector<RecordingPaintDevice::Entry>> drawn(
    const Printout& printout, const QRectF& area = QRectF(0, 0, 600, 800))
{
    RecordingPaintDevice device(QSize(600, 800));
    QPainter painter(&device);
    PrintedPages pages(printout, &painter, area);
    QVector<QVector<RecordingPaintDevice::Entry>> found;
    for (int page = 0; page < pages.count(); ++page) {
        device.clear();
        pages.draw(page);
        found << device.entries();
    }
    return found;
}

QStringList textsOf(const QVector<RecordingPaintDevice::Entry>& page)
{
    QStringList texts;
    for (const auto& entry : page) {
        if (entry.kind == RecordingPaintDevice::Text) {
            texts << entry.text;
        }
    }
    return texts;
}

double textEnd(const RecordingPaintDevice::Entry& entry)
{
    return entry.position.x() + QFontMetricsF(entry.font).horizontalAdvance(entry.text);
}

/// The part of a drawn page that has the color of the picture.
QRect redPart(const QImage& page)
{
    QRect part;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.pixelColor(x, y) == QColor(200, 30, 30)) {
                part |= QRect(x, y, 1, 1);
            }
        }
    }
    return part;
}

} // namespace

/// What is printed, on pages of several sizes.
class TestPrintout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_fitsInItsProportions_data();
    void picture_fitsInItsProportions();
    void texts_standBelowThePicture();
    void name_isElidedInTheMiddle();
    void lines_areWrapped();
    void table_becomesSmallerInsteadOfWider();
    void table_goesOnOnFurtherPages();
    void rowsAreRightAligned();
    void tinyPage_endsAnyway();
    void pdf();
    void pdf_onADeviceThatIsNotOpen();
};

void TestPrintout::picture_fitsInItsProportions_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(800, 100);
    QTest::newRow("high") << QSize(100, 800);
    QTest::newRow("small") << QSize(8, 6);
    QTest::newRow("large") << QSize(4000, 3000);
}

void TestPrintout::picture_fitsInItsProportions()
{
    QFETCH(QSize, size);
    QImage page(600, 800, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    Printout printout;
    printout.picture = coloredPicture(size.width(), size.height());
    printout.title = "lamp.raw";
    printout.lines << "64 x 48 pixels";
    PrintedPages pages(printout, &painter, QRectF(20, 30, 560, 740));
    QCOMPARE(pages.count(), 1);
    pages.draw(0);
    painter.end();
    const QRect part = redPart(page);
    QVERIFY(QRect(20, 30, 560, 740).contains(part));
    QCOMPARE(part.top(), 30);
    const double ratio = double(part.width()) / part.height();
    const double wanted = double(size.width()) / size.height();
    QVERIFY2(qAbs(ratio / wanted - 1.0) < 0.03, qPrintable(QString::number(ratio)));
    QVERIFY(part.width() > 550 || part.height() > 600); // as large as it can be
    QVERIFY(qAbs(part.center().x() - 300) <= 1);
}

void TestPrintout::texts_standBelowThePicture()
{
    Printout printout;
    printout.picture = coloredPicture(400, 300); // 600 x 450 on the page
    printout.title = "lamp.raw";
    printout.lines << "64 x 48 pixels"
                   << "Cross-hair";
    printout.table = tableOf(2);
    const auto pages = drawn(printout);
    QCOMPARE(int(pages.size()), 1);
    QCOMPARE(textsOf(pages[0]),
        (QStringList { "lamp.raw", "64 x 48 pixels", "Cross-hair", "Region", "Pixels", "Mean",
            "ROI 1", "100", "1", "ROI 2", "100", "2" }));
    double last = 450.0;
    for (const auto& entry : pages[0]) {
        if (entry.kind == RecordingPaintDevice::Text) {
            QVERIFY(entry.position.y() >= last);
            QVERIFY(entry.position.y() < 800.0 && textEnd(entry) <= 600.5);
            last = entry.position.y();
        }
    }
}

void TestPrintout::name_isElidedInTheMiddle()
{
    Printout printout;
    printout.picture = coloredPicture(400, 300);
    printout.title = "start" + QString(300, 'm') + "\nend.raw";
    const QString shown = textsOf(drawn(printout)[0]).value(0);
    QVERIFY(shown.startsWith("start") && shown.endsWith("end.raw"));
    QVERIFY(shown.contains(QChar(0x2026)) && !shown.contains('\n'));
}

void TestPrintout::lines_areWrapped()
{
    Printout printout;
    printout.picture = coloredPicture(400, 300);
    printout.title = "lamp.raw";
    printout.lines << QString("word ").repeated(60) + "end" << QString(200, 'm') << "last";
    const auto pages = drawn(printout);
    const QStringList texts = textsOf(pages[0]);
    QVERIFY(texts.size() > 6);
    QCOMPARE(texts.filter("end").size(), 1);
    QCOMPARE(texts.last(), QString("last"));
    for (const auto& entry : pages[0]) {
        if (entry.kind == RecordingPaintDevice::Text) {
            QVERIFY2(textEnd(entry) <= 600.5, qPrintable(entry.text));
            QVERIFY(entry.position.y() < 800.0);
        }
    }
}

void TestPrintout::table_becomesSmallerInsteadOfWider()
{
    Printout printout;
    printout.title = "lamp.raw";
    const QString number = "4294967295.123";
    printout.table << QStringList() << QStringList();
    for (int i = 0; i < 14; ++i) {
        printout.table[0] << "Standardabweichung";
        printout.table[1] << number;
    }
    const auto pages = drawn(printout);
    QCOMPARE(textsOf(pages[0]).filter(number).size(), 14);
    double end = 0.0;
    for (const auto& entry : pages[0]) {
        if (entry.kind == RecordingPaintDevice::Text && entry.text != printout.title) {
            end = qMax(end, textEnd(entry));
            QVERIFY(entry.font.pointSizeF() < 6.0);
        }
    }
    QVERIFY2(end > 500.0 && end < 620.0, qPrintable(QString::number(end))); // hinting aside
}

void TestPrintout::table_goesOnOnFurtherPages()
{
    Printout printout;
    printout.picture = coloredPicture(400, 300);
    printout.title = "lamp.raw";
    printout.table = tableOf(200);
    const auto pages = drawn(printout);
    QVERIFY(pages.size() >= 4);
    QStringList names;
    for (const auto& page : pages) {
        const QStringList texts = textsOf(page);
        QCOMPARE(texts.count("Region"), 1); // the header
        names << texts.filter("ROI");
        for (const auto& entry : page) {
            QVERIFY(entry.kind != RecordingPaintDevice::Text || entry.position.y() <= 800.0);
        }
    }
    QCOMPARE(int(names.size()), 200);
    QCOMPARE(names.first(), QString("ROI 1"));
    QCOMPARE(names.last(), QString("ROI 200"));
    QCOMPARE(names.removeDuplicates(), 0);
}

void TestPrintout::rowsAreRightAligned()
{
    Printout printout;
    printout.table << QStringList { "Name", "Pixels" } << QStringList { "a", "1" }
                   << QStringList { "b", "1000000000" };
    const auto pages = drawn(printout);
    QVector<double> ends;
    for (const auto& entry : pages[0]) {
        if (entry.kind == RecordingPaintDevice::Text && entry.position.x() > 1.0) {
            ends << textEnd(entry);
        }
    }
    QCOMPARE(int(ends.size()), 3);
    QVERIFY(qAbs(ends[0] - ends[2]) < 1.0 && qAbs(ends[1] - ends[2]) < 1.0);
}

void TestPrintout::tinyPage_endsAnyway()
{
    Printout printout;
    printout.picture = coloredPicture(400, 300);
    printout.title = "lamp.raw";
    printout.lines << "64 x 48 pixels";
    printout.table = tableOf(3);
    const auto pages = drawn(printout, QRectF(0, 0, 30, 10));
    QCOMPARE(int(pages.size()), 4); // a row a page
    QVERIFY(drawn(Printout(), QRectF()).size() == 1);
}

void TestPrintout::pdf()
{
    Printout printout;
    printout.picture = coloredPicture(400, 300);
    printout.title = "lamp.raw";
    printout.table = tableOf(300);
    QBuffer file;
    QVERIFY(file.open(QIODevice::WriteOnly));
    QPdfWriter writer(&file);
    QVERIFY(print(printout, &writer));
    QVERIFY(file.data().startsWith("%PDF-") && file.data().trimmed().endsWith("%%EOF"));
    QVERIFY(file.data().count("/Type /Page\n") >= 3);
}

void TestPrintout::pdf_onADeviceThatIsNotOpen()
{
    QPdfWriter writer("/dev/null/no such file.pdf");
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
    QVERIFY(!print(Printout(), &writer));
}

QTEST_MAIN(TestPrintout)
#include "tst_printout.moc"
