#include "orderedoutput.h"

#include <QTest>

#include <thread>

/// Results of several threads in the order of their numbers.
class TestOrderedOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void results_waitForTheirTurn();
    void longResult_isWrittenInItsTurn();
    void threads_keepTheOrder();
    void farAheadThread_waits();
    void failure_endsEverything();
    void interruption_leavesOutWhatWaits();
    void interruption_letsALongResultEnd();

private:
    OrderedOutput::Write writer()
    {
        return [this](const QByteArray& bytes) {
            m_written += bytes;
            return m_canWrite;
        };
    }

    QByteArray m_written;
    bool m_canWrite = true;
    std::atomic<bool> m_isInterrupted { false };
};

void TestOrderedOutput::init()
{
    m_written.clear();
    m_canWrite = true;
    m_isInterrupted = false;
}

void TestOrderedOutput::results_waitForTheirTurn()
{
    OrderedOutput output(writer(), 2, m_isInterrupted);
    OrderedOutput::Part first(output, 0);
    OrderedOutput::Part second(output, 1);
    OrderedOutput::Part third(output, 2);
    QVERIFY(third.add("c\n"));
    third.finish();
    second.finish(); // empty: a file that was refused
    QCOMPARE(m_written, QByteArray());
    QVERIFY(first.add("a"));
    QVERIFY(first.add("\n"));
    QCOMPARE(m_written, QByteArray());
    first.finish();
    QCOMPARE(m_written, QByteArray("a\nc\n"));
}

void TestOrderedOutput::longResult_isWrittenInItsTurn()
{
    OrderedOutput output(writer(), 2, m_isInterrupted);
    const QByteArray half(400 * 1024, 'a');
    OrderedOutput::Part part(output, 0);
    part.add(half);
    QCOMPARE(m_written.size(), 0);
    part.add(half);
    QCOMPARE(m_written.size(), 2 * half.size()); // before it is whole
    QVERIFY(!part.discard());
    part.add("\n");
    part.finish();
    QCOMPARE(m_written, half + half + "\n");
}

void TestOrderedOutput::threads_keepTheOrder()
{
    OrderedOutput output(writer(), 4, m_isInterrupted);
    std::atomic<int> next { 0 };
    constexpr int count = 400;
    const auto work = [&] {
        for (int number = next++; number < count; number = next++) {
            if (!output.mayStart(number)) {
                return;
            }
            OrderedOutput::Part part(output, number);
            part.add(QByteArray::number(number) + '\n');
            if (number % 97 == 0) {
                part.add(QByteArray(600 * 1024, 'x') + '\n');
            }
            part.finish();
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(work);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QByteArray expected;
    for (int number = 0; number < count; ++number) {
        expected += QByteArray::number(number) + '\n';
        if (number % 97 == 0) {
            expected += QByteArray(600 * 1024, 'x') + '\n';
        }
    }
    QVERIFY(m_written == expected);
}

void TestOrderedOutput::farAheadThread_waits()
{
    OrderedOutput output(writer(), 1, m_isInterrupted);
    QVERIFY(output.mayStart(4)); // one at work and four that wait
    std::atomic<bool> hasStarted { false };
    std::thread ahead([&] {
        output.mayStart(5);
        hasStarted = true;
    });
    QTest::qWait(200);
    const bool startedAtOnce = hasStarted;
    OrderedOutput::Part(output, 0).finish();
    ahead.join();
    QVERIFY(!startedAtOnce);
    QVERIFY(hasStarted);
}

void TestOrderedOutput::failure_endsEverything()
{
    OrderedOutput output(writer(), 2, m_isInterrupted);
    m_canWrite = false;
    OrderedOutput::Part first(output, 0);
    first.add("a\n");
    first.finish();
    QVERIFY(output.hasFailed());
    QVERIFY(!output.mayStart(1));
    m_written.clear();
    OrderedOutput::Part second(output, 1);
    second.add("b\n");
    second.finish();
    QCOMPARE(m_written, QByteArray());
}

void TestOrderedOutput::interruption_leavesOutWhatWaits()
{
    OrderedOutput output(writer(), 2, m_isInterrupted);
    OrderedOutput::Part part(output, 0);
    part.add("a\n");
    m_isInterrupted = true;
    part.finish();
    QCOMPARE(m_written, QByteArray());
    QVERIFY(!output.mayStart(1));
}

void TestOrderedOutput::interruption_letsALongResultEnd()
{
    OrderedOutput output(writer(), 2, m_isInterrupted);
    OrderedOutput::Part part(output, 0);
    part.add(QByteArray(600 * 1024, 'a'));
    m_isInterrupted = true;
    QVERIFY(part.add("b\n"));
    part.finish();
    QVERIFY(m_written.endsWith("ab\n"));
}

QTEST_GUILESS_MAIN(TestOrderedOutput)
#include "tst_orderedoutput.moc"
