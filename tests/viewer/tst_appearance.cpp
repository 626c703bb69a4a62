#include "appearance.h"

#include <QApplication>
#include <QPixmap>
#include <QPushButton>
#include <QtTest>

class TestAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everySkinImageIsFound_data();
    void everySkinImageIsFound();
    void everyImageOfTheStyleSheetIsFound();
    void fontIsSetInPixels();
    void scaledForScreen_at96();
    void zoomButtons_areVisible();

private:
    QImage rendered(const QString& objectName, bool pressed) const;
};

void TestAppearance::initTestCase()
{
    initViewerResources();
    applyAppearance();
}

void TestAppearance::everySkinImageIsFound_data()
{
    QTest::addColumn<QString>("path");
    for (const char* path : { ":img_mdi_res/skin/mdi_mod_header.png",
             ":img_mdi_res/skin/mdi_mod_body.png", ":img_mdi_res/skin/mdi_mod_border.png",
             ":img_mdi_res/skin/mod_title_left.png", ":img_mdi_res/skin/mod_title_middle.png",
             ":img_mdi_res/skin/mod_title_right.png", ":res/skin/mdi_bk.jpg",
             ":res/skin/mod_cfg_close_p.png", ":res/skin/mod_cfg_close_h.png",
             ":/ui/res/icon/module_bl.png", ":/ui/res/icon/module_br.png",
             ":/ui/res/icon/moduel_m.png", ":/ui/res/icon/module_ml.png",
             ":/ui/res/icon/module_mr.png", ":/ui/res/icon/module_bm.png" }) {
        QTest::newRow(path) << path;
    }
}

void TestAppearance::everySkinImageIsFound()
{
    QFETCH(QString, path);
    QVERIFY(!QPixmap(path).isNull());
}

void TestAppearance::everyImageOfTheStyleSheetIsFound()
{
    QRegularExpressionMatchIterator matches
        = QRegularExpression("url\\(([^)]*)\\)").globalMatch(qApp->styleSheet());
    int found = 0;
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(!QPixmap(path).isNull(), qPrintable(path));
        ++found;
    }
    QVERIFY(found >= 6);
}

void TestAppearance::fontIsSetInPixels()
{
    QCOMPARE(QApplication::font().pixelSize(), 13); // platforms differ in their own default
}

void TestAppearance::scaledForScreen_at96()
{
    QCOMPARE(scaledForScreen(290), 290);
    QCOMPARE(scaledForScreen(0), 0);
}

QImage TestAppearance::rendered(const QString& objectName, bool pressed) const
{
    QPushButton button;
    button.setObjectName(objectName);
    button.setFixedSize(40, 40);
    button.setDown(pressed);
    return button.grab().toImage();
}

void TestAppearance::zoomButtons_areVisible()
{
    const QImage in = rendered("tool_Zoom_In", false);
    const QImage out = rendered("tool_Zoom_Out", false);
    QVERIFY(in.pixelColor(20, 20).lightness() > 180); // both glyphs cross the middle
    QVERIFY(out.pixelColor(20, 20).lightness() > 180);
    QVERIFY(in.pixelColor(20, 13).lightness() > 180); // only the plus reaches up
    QVERIFY(out.pixelColor(20, 13).lightness() < 100);
    QVERIFY(in != rendered("tool_Zoom_In", true));
    QVERIFY(out != rendered("tool_Zoom_Out", true));
}

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"
