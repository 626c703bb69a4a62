#include "widget/canvaslayout.h"

#include <QtTest>

class TestCanvasLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void area_data();
    void area();
    void placesOf1000x800WithASquareImage();
    void placesOfATinyCanvas();
    void chartPlaces();
};

void TestCanvasLayout::area_data()
{
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("area");
    // min(860 / 512, 580 / 512)
    QTest::newRow("square") << QSize(1000, 800) << QSize(512, 512) << QSize(580, 580);
    // min(860 / 1024, 580 / 256) = 0.83984375: 256 x 0.83984375 = 215
    QTest::newRow("wide") << QSize(1000, 800) << QSize(1024, 256) << QSize(860, 215);
    // min(860 / 100, 580 / 400) = 1.45
    QTest::newRow("tall") << QSize(1000, 800) << QSize(100, 400) << QSize(145, 580);
    QTest::newRow("before the first layout") << QSize(100, 30) << QSize(512, 512) << QSize(4, 1);
    QTest::newRow("nothing") << QSize(0, 0) << QSize(1, 1) << QSize(4, 1);
    QTest::newRow("no height left") << QSize(1000, 220) << QSize(512, 512) << QSize(4, 1);
}

void TestCanvasLayout::area()
{
    QFETCH(QSize, canvas);
    QFETCH(QSize, image);
    QTEST(imageAreaSize(canvas, image), "area");
}

void TestCanvasLayout::placesOf1000x800WithASquareImage()
{
    const ImageViewLayout layout = imageViewLayout(QSize(1000, 800), QSize(580, 580));
    QCOMPARE(layout.image, QRect(280, 75, 580, 580));
    QCOMPARE(layout.bottomRuler, QRect(280, 656, 580, 50));
    QCOMPARE(layout.leftRuler, QRect(210, 75, 70, 580));
    QCOMPARE(layout.bottomCurve, QRect(280, 705, 580, 70));
    QCOMPARE(layout.leftCurve, QRect(140, 75, 70, 580));
    QCOMPARE(layout.colorBar, QRect(280, 20, 512, 10));
    QCOMPARE(layout.grayRuler, QRect(280, 31, 580, 50));
}

void TestCanvasLayout::placesOfATinyCanvas()
{
    const ImageViewLayout layout = imageViewLayout(QSize(0, 0), QSize(4, 0));
    QCOMPARE(layout.image, QRect(68, -35, 4, 0)); // (0 - 4 + 140) / 2, (0 - 0 - 70) / 2
    // An odd remainder is cut toward zero: (100 - 5 + 140) / 2, (30 - 1 - 70) / 2 = -20.5.
    QCOMPARE(imageViewLayout(QSize(100, 30), QSize(5, 1)).image, QRect(117, -20, 5, 1));
}

void TestCanvasLayout::chartPlaces()
{
    const ProfileChartLayout layout = profileChartLayout(QSize(1000, 800));
    QCOMPARE(layout.curve, QRect(130, 160, 830, 430));
    QCOMPARE(layout.pixelRuler, QRect(130, 591, 830, 50)); // one unit below the curve
    QCOMPARE(layout.valueRuler, QRect(40, 160, 90, 430));
    QCOMPARE(profileChartLayout(QSize(0, 0)).curve, QRect(130, 160, -170, -370));
}

QTEST_GUILESS_MAIN(TestCanvasLayout)
#include "tst_canvaslayout.moc"
