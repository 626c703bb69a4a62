#include "formats/textwriter.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

/// The numbers of all text formats.
class TestTextWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void real_isWrittenShort_data();
    void real_isWrittenShort();
    void real_readsBackAsTheSameDouble();
    void real_namesWhatIsNoNumber();
    void integer_hasAllDigits();
    void take_emptiesTheWriter();
    void text_growsWithoutLosingBytes();
};

void TestTextWriter::real_isWrittenShort_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("zero") << 0.0 << QByteArray("0");
    QTest::newRow("minus zero") << -0.0 << QByteArray("-0.0");
    QTest::newRow("whole") << 100000.0 << QByteArray("100000");
    QTest::newRow("negative") << -12.0 << QByteArray("-12");
    QTest::newRow("largest plain integer") << 999999999999999.0 << QByteArray("999999999999999");
    QTest::newRow("beyond plain integers") << 1e15 << QByteArray("1e+15");
    QTest::newRow("a tenth") << 0.1 << QByteArray("0.1");
    QTest::newRow("seventeen digits") << 0.1 + 0.2 << QByteArray("0.30000000000000004");
    QTest::newRow("largest") << std::numeric_limits<double>::max()
                             << QByteArray("1.7976931348623157e+308");
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min() << QByteArray("5e-324");
}

void TestTextWriter::real_isWrittenShort()
{
    QFETCH(double, value);
    TextWriter out;
    out.real(value);
    QTEST(out.take(), "text");
}

void TestTextWriter::real_readsBackAsTheSameDouble()
{
    std::mt19937_64 random(4); // any seed: every double must come back
    for (int i = 0; i < 20000; ++i) {
        const quint64 bits = random();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) {
            continue;
        }
        TextWriter out;
        out.real(value);
        const QByteArray text = out.take();
        const double read = std::strtod(text.constData(), nullptr);
        QVERIFY2(std::memcmp(&read, &value, sizeof value) == 0, text.constData());
    }
}

void TestTextWriter::real_namesWhatIsNoNumber()
{
    TextWriter out;
    out.real(std::numeric_limits<double>::quiet_NaN());
    out.character(' ');
    out.real(std::numeric_limits<double>::infinity());
    out.character(' ');
    out.real(-std::numeric_limits<double>::infinity());
    out.character(' ');
    out.real(std::numeric_limits<double>::quiet_NaN(), "null");
    QCOMPARE(out.take(), QByteArray("nan inf -inf null"));
}

void TestTextWriter::integer_hasAllDigits()
{
    TextWriter out;
    out.integer(std::numeric_limits<qint64>::min());
    out.character(' ');
    out.integer(4294967295);
    QCOMPARE(out.take(), QByteArray("-9223372036854775808 4294967295"));
}

void TestTextWriter::take_emptiesTheWriter()
{
    TextWriter out;
    out.reserve(100);
    out.text("one");
    QCOMPARE(out.take(), QByteArray("one"));
    QCOMPARE(out.take(), QByteArray());
    out.text(QByteArray("two"));
    QCOMPARE(out.take(), QByteArray("two"));
}

void TestTextWriter::text_growsWithoutLosingBytes()
{
    TextWriter out;
    QByteArray expected;
    for (int i = 0; i < 100000; ++i) {
        out.integer(i);
        expected += QByteArray::number(i);
    }
    QCOMPARE(out.take(), expected);
}

QTEST_GUILESS_MAIN(TestTextWriter)
#include "tst_textwriter.moc"
