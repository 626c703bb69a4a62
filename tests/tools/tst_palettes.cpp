#include "palettes.h"

#include <QColor>
#include <QTextStream>
#include <QtTest>

namespace {

/// Reads a palette the way the display preferences do: line by line until the stream is at its
/// end, three numbers between single spaces.
PaletteColors readBack(const QByteArray& text)
{
    PaletteColors palette;
    QTextStream stream(text);
    while (!stream.atEnd()) {
        const QStringList fields = stream.readLine().split(' ');
        palette << qRgb(fields.value(0).toInt(), fields.value(1).toInt(), fields.value(2).toInt());
    }
    return palette;
}

} // namespace

class TestPalettes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void file_has256Lines_data();
    void file_has256Lines();
    void file_readsBack_data() { file_has256Lines_data(); }
    void file_readsBack();
    void ramps_levelIsTheIndex();
    void color_stops_data();
    void color_stops();
    void color_mixesLinearly();
    void names();
};

void TestPalettes::file_has256Lines_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < allPaletteFiles().size(); ++i) {
        QTest::newRow(qPrintable(allPaletteFiles().at(i).fileName)) << i;
    }
}

void TestPalettes::file_has256Lines()
{
    QFETCH(int, index);
    const QByteArray text = paletteFileText(allPaletteFiles().at(index).colors());
    QVERIFY(text.endsWith('\n'));
    QVERIFY(!text.contains('\r'));
    const QList<QByteArray> lines = text.left(text.size() - 1).split('\n');
    QCOMPARE(lines.size(), 256);
    const QRegularExpression pattern("^[0-9]{1,3} [0-9]{1,3} [0-9]{1,3}$");
    for (const QByteArray& line : lines) {
        QVERIFY(pattern.match(QString::fromLatin1(line)).hasMatch());
    }
}

void TestPalettes::file_readsBack()
{
    QFETCH(int, index);
    const PaletteColors palette = allPaletteFiles().at(index).colors();
    QCOMPARE(readBack(paletteFileText(palette)), palette);
}

void TestPalettes::ramps_levelIsTheIndex()
{
    for (int level = 0; level < 256; ++level) {
        QCOMPARE(redPalette().at(level), qRgb(level, 0, 0));
        QCOMPARE(greenPalette().at(level), qRgb(0, level, 0));
        QCOMPARE(bluePalette().at(level), qRgb(0, 0, level));
    }
}

void TestPalettes::color_stops_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QColor>("color");
    QTest::newRow("0.0") << 0 << QColor(0, 0, 0);
    QTest::newRow("0.2") << 51 << QColor(0, 0, 255);
    QTest::newRow("0.4") << 102 << QColor(0, 153, 0);
    QTest::newRow("0.6") << 153 << QColor(255, 0, 0);
    QTest::newRow("0.8") << 204 << QColor(255, 255, 0);
    QTest::newRow("1.0") << 255 << QColor(255, 255, 255);
}

void TestPalettes::color_stops()
{
    QFETCH(int, level);
    QFETCH(QColor, color);
    QCOMPARE(QColor(colorPalette().at(level)), color);
}

void TestPalettes::color_mixesLinearly()
{
    const PaletteColors palette = colorPalette();
    QCOMPARE(palette.at(1), qRgb(0, 0, 5)); // a fifty-first of 255
    QCOMPARE(palette.at(68), qRgb(0, 51, 170)); // a third of the way from blue to green
    QCOMPARE(palette.at(119), qRgb(85, 102, 0)); // a third from green to red
    QCOMPARE(palette.at(254), qRgb(255, 255, 250));
}

void TestPalettes::names()
{
    QStringList names;
    for (const PaletteFile& file : allPaletteFiles()) {
        names << file.fileName;
    }
    QCOMPARE(names, (QStringList { "red.pal", "green.pal", "blue.pal", "color.pal" }));
}

QTEST_GUILESS_MAIN(TestPalettes)
#include "tst_palettes.moc"
