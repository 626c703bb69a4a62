#include "skinimages.h"

#include "support/contrast.h"

#include <QtTest>

namespace {

QImage skinImage(const QString& fileName)
{
    for (const SkinImage& image : widgetSkinImages() + controlGlyphs() + viewerImages()) {
        if (image.fileName == fileName) {
            return image.draw();
        }
    }
    return QImage();
}

bool rowsAreAlike(const QImage& image)
{
    for (int y = 1; y < image.height(); ++y) {
        if (image.copy(0, y, image.width(), 1) != image.copy(0, 0, image.width(), 1)) {
            return false;
        }
    }
    return true;
}

bool columnsAreAlike(const QImage& image)
{
    for (int x = 1; x < image.width(); ++x) {
        if (image.copy(x, 0, 1, image.height()) != image.copy(0, 0, 1, image.height())) {
            return false;
        }
    }
    return true;
}

} // namespace

class TestSkinImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data();
    void sizes();
    void everyImageShowsSomething();
    void body_repeatsDownwards();
    void border_repeatsDownwards();
    void titleMiddle_repeatsSideways();
    void titleParts_join();
    void moduleTiles_shareTheirSize();
    void moduleTiles_fillWithoutASeam();
    void canvas_repeatsWithoutASeam();
    void canvas_letsTheDrawingStandOut();
    void hoverDiffersFromNormal();
};

void TestSkinImages::sizes_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QSize>("size");
    QTest::newRow("column header") << "mdi_mod_header.png" << QSize(290, 57);
    QTest::newRow("column body") << "mdi_mod_body.png" << QSize(290, 64);
    QTest::newRow("title, left") << "mod_title_left.png" << QSize(10, 28);
    QTest::newRow("title, right") << "mod_title_right.png" << QSize(10, 28);
    QTest::newRow("return") << "mod_cfg_close_p.png" << QSize(96, 44);
    QTest::newRow("return, hover") << "mod_cfg_close_h.png" << QSize(96, 44);
}

void TestSkinImages::sizes()
{
    QFETCH(QString, fileName);
    QFETCH(QSize, size);
    QCOMPARE(skinImage(fileName).size(), size);
}

void TestSkinImages::everyImageShowsSomething()
{
    for (const SkinImage& image : widgetSkinImages() + controlGlyphs() + viewerImages()) {
        const QImage drawn = image.draw().convertToFormat(QImage::Format_ARGB32);
        int opaque = 0;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                opaque += qAlpha(drawn.pixel(x, y)) > 200;
            }
        }
        QVERIFY2(opaque > drawn.width() * drawn.height() / 30, qPrintable(image.fileName));
    }
}

void TestSkinImages::body_repeatsDownwards()
{
    QVERIFY(rowsAreAlike(skinImage("mdi_mod_body.png")));
}

void TestSkinImages::border_repeatsDownwards()
{
    QVERIFY(rowsAreAlike(skinImage("mdi_mod_border.png")));
}

void TestSkinImages::titleMiddle_repeatsSideways()
{
    QVERIFY(columnsAreAlike(skinImage("mod_title_middle.png")));
}

void TestSkinImages::titleParts_join()
{
    const QImage middle = skinImage("mod_title_middle.png").copy(0, 0, 1, 28);
    QCOMPARE(skinImage("mod_title_left.png").copy(9, 0, 1, 28), middle);
    QCOMPARE(skinImage("mod_title_right.png").copy(0, 0, 1, 28), middle);
}

void TestSkinImages::moduleTiles_shareTheirSize()
{
    for (const char* name : { "moduel_m.png", "module_ml.png", "module_mr.png", "module_bm.png",
             "module_bl.png", "module_br.png" }) {
        QCOMPARE(skinImage(name).size(), QSize(16, 16));
    }
}

void TestSkinImages::moduleTiles_fillWithoutASeam()
{
    const QImage centre = skinImage("moduel_m.png");
    QVERIFY(rowsAreAlike(centre) && columnsAreAlike(centre));
    QVERIFY(rowsAreAlike(skinImage("module_ml.png"))); // the last one is squeezed
    QVERIFY(rowsAreAlike(skinImage("module_mr.png")));
    QVERIFY(columnsAreAlike(skinImage("module_bm.png")));
    QCOMPARE(skinImage("module_ml.png").pixel(15, 0), centre.pixel(0, 0));
    QCOMPARE(skinImage("module_bm.png").pixel(0, 0), centre.pixel(0, 0));
    // The corners continue the edges.
    QCOMPARE(
        skinImage("module_bl.png").copy(0, 0, 16, 1), skinImage("module_ml.png").copy(0, 0, 16, 1));
    QCOMPARE(
        skinImage("module_br.png").copy(0, 0, 16, 1), skinImage("module_mr.png").copy(0, 0, 16, 1));
    QCOMPARE(skinImage("module_bl.png").copy(15, 0, 1, 16),
        skinImage("module_bm.png").copy(0, 0, 1, 16));
}

void TestSkinImages::canvas_repeatsWithoutASeam()
{
    const QImage tile = skinImage("mdi_bk.jpg");
    QCOMPARE(tile.width() % 16, 0); // the codec's blocks
    QCOMPARE(tile.height() % 16, 0);
    const int period = 24;
    QCOMPARE(tile.copy(period, 0, 96 - period, 96), tile.copy(0, 0, 96 - period, 96));
    QCOMPARE(tile.copy(0, period, 96, 96 - period), tile.copy(0, 0, 96, 96 - period));
}

void TestSkinImages::canvas_letsTheDrawingStandOut()
{
    const QImage tile = skinImage("mdi_bk.jpg");
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            QVERIFY(contrastRatio(tile.pixel(x, y), qRgb(255, 255, 255)) > 12.0);
            QVERIFY(contrastRatio(tile.pixel(x, y), qRgb(40, 128, 140)) > 3.0);
        }
    }
    const QImage title = skinImage("mod_title_middle.png");
    QVERIFY(contrastRatio(title.pixel(8, 14), qRgb(250, 250, 250)) > 7.0);
}

void TestSkinImages::hoverDiffersFromNormal()
{
    QVERIFY(skinImage("mod_cfg_close_p.png") != skinImage("mod_cfg_close_h.png"));
    QVERIFY(skinImage("zoom_in.png") != skinImage("zoom_out.png"));
}

QTEST_GUILESS_MAIN(TestSkinImages)
#include "tst_skinimages.moc"
