#pragma once

#include <QByteArray>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>

/// Writes the results of several threads in the order of their numbers. A result that is ready
/// before its turn waits in memory, as long as it is short; the thread of a long one waits. So does
/// a thread that is too far ahead.
class OrderedOutput
{
public:
    /// Writes all bytes, or returns false.
    using Write = std::function<bool(const QByteArray&)>;

    /// `isInterrupted` may be set from outside at any time; results of which nothing is written are
    /// then left out.
    OrderedOutput(Write write, int jobs, const std::atomic<bool>& isInterrupted);

    /// The bytes of one result.
    class Part
    {
    public:
        Part(OrderedOutput& output, int number);

        /// False once nothing more is to be written.
        bool add(const QByteArray& bytes);
        /// Ends the result; without this call it counts as left out, unless some was written.
        void finish();
        /// The result is empty after all. False when some of it has been written.
        bool discard();

    private:
        OrderedOutput& m_output;
        const int m_number;
        QByteArray m_held;
        bool m_isWriting = false;
    };

    /// Waits until the result `number` may be worked on; false when there is no more to do.
    bool mayStart(int number);

    /// Ends everything: nothing more is written.
    void fail();
    bool hasFailed() const { return m_hasFailed; }

private:
    bool isOver() const { return m_hasFailed || m_isInterrupted; }
    bool waitForTurn(int number);
    bool writeNow(const QByteArray& bytes);
    void finish(int number, const QByteArray& rest, bool isWriting);
    void writeReady(std::unique_lock<std::mutex>& lock);

    const Write m_write;
    const int m_window; ///< results that may be worked on or wait at the same time
    const std::atomic<bool>& m_isInterrupted;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<int, QByteArray> m_ready;
    int m_next = 0; ///< whose turn it is
    std::atomic<bool> m_hasFailed { false };
};
