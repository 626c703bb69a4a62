#include "elidedlabel.h"

#include <QtTest>

class TestElidedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longTextAsksForNoWidth();
    void textIsNeverMarkup();
    void lineFeedsStayOnTheLine();
    void longTextIsDrawnWithinTheLabel();
};

void TestElidedLabel::longTextAsksForNoWidth()
{
    ElidedLabel label;
    label.setText(QString(5000, 'w'));
    QVERIFY(label.minimumSizeHint().width() < 100);
}

void TestElidedLabel::textIsNeverMarkup()
{
    ElidedLabel label;
    label.setText("<h1>big</h1>.png");
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.text(), QString("<h1>big</h1>.png"));
}

void TestElidedLabel::lineFeedsStayOnTheLine()
{
    ElidedLabel one;
    ElidedLabel two;
    one.setText("a b");
    two.setText("a\nb");
    one.resize(100, 40);
    two.resize(100, 40);
    QCOMPARE(one.grab().toImage(), two.grab().toImage());
}

void TestElidedLabel::longTextIsDrawnWithinTheLabel()
{
    ElidedLabel complete;
    ElidedLabel elided;
    complete.setText("start-of-a-long-name-and-its-end.raw");
    elided.setText(complete.text());
    complete.resize(complete.sizeHint());
    elided.resize(complete.sizeHint().width() / 2, complete.sizeHint().height());
    const QImage whole = complete.grab().toImage();
    const QImage shortened = elided.grab().toImage();
    const int firstLetters = 20;
    QCOMPARE(shortened.copy(0, 0, firstLetters, whole.height()),
        whole.copy(0, 0, firstLetters, whole.height()));
    QVERIFY(shortened != whole.copy(0, 0, shortened.width(), whole.height()));
}

QTEST_MAIN(TestElidedLabel)
#include "tst_elidedlabel.moc"
