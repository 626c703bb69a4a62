#include "canvas/rgbwords.h"

#include <QVector>
#include <QtTest>

class TestRgbWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void redComesFirst();
    void everyCountIsWidenedWholeAndNoFurther();
};

void TestRgbWords::redComesFirst()
{
    const uchar rgb[] { 0x01, 0x80, 0xff };
    quint32 word = 0;
    widenToRgbWords(rgb, 1, reinterpret_cast<uchar*>(&word));
    QCOMPARE(word, 0xff0180ffU);
}

/// Counts below, at and above the vectors of every processor; byte i is i modulo 251.
void TestRgbWords::everyCountIsWidenedWholeAndNoFurther()
{
    for (int count = 0; count <= 200; ++count) {
        QVector<uchar> rgb;
        for (int i = 0; i < 3 * count; ++i) {
            rgb.append(uchar(i % 251));
        }
        QVector<quint32> words(count + 1, 0x12345678U);
        widenToRgbWords(rgb.constData(), count, reinterpret_cast<uchar*>(words.data()));
        for (int i = 0; i < count; ++i) {
            const quint32 red = uint(3 * i % 251);
            const quint32 green = uint((3 * i + 1) % 251);
            const quint32 blue = uint((3 * i + 2) % 251);
            QCOMPARE(words.at(i), 0xff000000U | red << 16 | green << 8 | blue);
        }
        QCOMPARE(words.at(count), 0x12345678U);
    }
}

QTEST_GUILESS_MAIN(TestRgbWords)
#include "tst_rgbwords.moc"
