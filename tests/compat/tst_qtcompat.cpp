#include "qtcompat.h"

#include <QtTest>

class TestQtCompat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rounded_takesHalvesUp_data();
    void rounded_takesHalvesUp();
    void toPoint_roundsEachCoordinate();
    void toSize_roundsEachExtent();
    void toRect_roundsEachEdge_data();
    void toRect_roundsEachEdge();
    void isTypeName_knowsRegisteredNamesOnly();
};

void TestQtCompat::rounded_takesHalvesUp_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("nearest");
    QTest::newRow("0") << 0.0 << 0;
    QTest::newRow("just below a half") << 0.49 << 0;
    QTest::newRow("a half") << 0.5 << 1;
    QTest::newRow("one and a half") << 1.5 << 2;
    QTest::newRow("two and a half") << 2.5 << 3;
    QTest::newRow("minus a little") << -0.25 << 0;
    QTest::newRow("minus a half") << -0.5 << 0;
    QTest::newRow("beyond minus a half") << -0.75 << -1;
    QTest::newRow("minus one") << -1.0 << -1;
    QTest::newRow("minus one and a half") << -1.5 << -1;
    QTest::newRow("minus two and a half") << -2.5 << -2;
    QTest::newRow("largest") << 1073741824.0 << 1073741824;
    QTest::newRow("smallest") << -1073741824.0 << -1073741824;
}

void TestQtCompat::rounded_takesHalvesUp()
{
    QFETCH(double, value);
    QTEST(QtCompat::rounded(value), "nearest");
}

void TestQtCompat::toPoint_roundsEachCoordinate()
{
    QCOMPARE(QtCompat::toPoint(QPointF(-0.5, -1.5)), QPoint(0, -1));
    QCOMPARE(QtCompat::toPoint(QPointF(0.5, 7.25)), QPoint(1, 7));
}

void TestQtCompat::toSize_roundsEachExtent()
{
    QCOMPARE(QtCompat::toSize(QSizeF(2.5, 3.25)), QSize(3, 3));
    QCOMPARE(QtCompat::toSize(QSizeF(-2.5, -3.75)), QSize(-2, -4));
}

void TestQtCompat::toRect_roundsEachEdge_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRect>("pixels");
    QTest::newRow("whole numbers") << QRectF(3.0, 4.0, 5.0, 6.0) << QRect(3, 4, 5, 6);
    // 0.25 to 10.5, that is 0 to 11: wider than the rounded extent of 10.25.
    QTest::newRow("edges that lie further apart")
        << QRectF(0.25, 0.25, 10.25, 10.25) << QRect(0, 0, 11, 11);
    // 0.75 to 2.375, that is 1 to 2: narrower than the rounded extent of 1.625.
    QTest::newRow("edges that lie closer together")
        << QRectF(0.75, 0.75, 1.625, 1.625) << QRect(1, 1, 1, 1);
    // -0.5 to 1.5 and -1.5 to 0.5: 0 to 2 and -1 to 1.
    QTest::newRow("negative halves") << QRectF(-0.5, -1.5, 2.0, 2.0) << QRect(0, -1, 2, 2);
    // 4.25 back to 2.0: 4 to 2.
    QTest::newRow("turned round") << QRectF(4.25, 4.25, -2.25, -2.25) << QRect(4, 4, -2, -2);
}

void TestQtCompat::toRect_roundsEachEdge()
{
    QFETCH(QRectF, rect);
    QTEST(QtCompat::toRect(rect), "pixels");
}

void TestQtCompat::isTypeName_knowsRegisteredNamesOnly()
{
    QVERIFY(QtCompat::isTypeName("QSize"));
    QVERIFY(!QtCompat::isTypeName("NoSuchType"));
}

QTEST_GUILESS_MAIN(TestQtCompat)

#include "tst_qtcompat.moc"
