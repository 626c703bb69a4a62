#include "orderedoutput.h"

#include <chrono>

namespace {

constexpr int longestHeld = 512 * 1024; // bytes of a result that waits
constexpr int mostWaiting = 4; // results, beside those that are worked on

/// An interruption comes from a signal, which wakes no thread.
constexpr std::chrono::milliseconds pollInterval(50);

} // namespace

OrderedOutput::OrderedOutput(Write write, int jobs, const std::atomic<bool>& isInterrupted)
    : m_write(std::move(write))
    , m_window(jobs + mostWaiting)
    , m_isInterrupted(isInterrupted)
{
}

bool OrderedOutput::mayStart(int number)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!isOver() && number >= m_next + m_window) {
        m_changed.wait_for(lock, pollInterval);
    }
    return !isOver();
}

void OrderedOutput::fail()
{
    m_hasFailed = true;
    m_changed.notify_all();
}

bool OrderedOutput::waitForTurn(int number)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!isOver() && number != m_next) {
        m_changed.wait_for(lock, pollInterval);
    }
    return !isOver();
}

/// For the thread whose turn it is: no other one writes.
bool OrderedOutput::writeNow(const QByteArray& bytes)
{
    if (!m_hasFailed && !bytes.isEmpty() && !m_write(bytes)) {
        fail();
    }
    return !m_hasFailed;
}

void OrderedOutput::finish(int number, const QByteArray& rest, bool isWriting)
{
    if (isWriting) {
        writeNow(rest);
    }
    std::unique_lock<std::mutex> lock(m_mutex);
    m_ready[number] = isWriting ? QByteArray() : rest;
    if (isWriting || number == m_next) {
        writeReady(lock);
    }
    m_changed.notify_all();
}

/// Writes the results whose turn has come. Others wait meanwhile: their turn comes later.
void OrderedOutput::writeReady(std::unique_lock<std::mutex>& lock)
{
    for (auto ready = m_ready.find(m_next); ready != m_ready.end(); ready = m_ready.find(m_next)) {
        const QByteArray bytes = ready->second;
        m_ready.erase(ready);
        if (isOver()) {
            return;
        }
        lock.unlock();
        writeNow(bytes);
        lock.lock();
        ++m_next;
    }
}

OrderedOutput::Part::Part(OrderedOutput& output, int number)
    : m_output(output)
    , m_number(number)
{
}

bool OrderedOutput::Part::add(const QByteArray& bytes)
{
    if (m_held.isEmpty()) {
        m_held = bytes;
    } else {
        m_held += bytes;
    }
    if (m_held.size() < longestHeld) {
        return true;
    }
    if (!m_isWriting && !m_output.waitForTurn(m_number)) {
        return false;
    }
    m_isWriting = true;
    const bool isWritten = m_output.writeNow(m_held);
    m_held.clear();
    return isWritten;
}

void OrderedOutput::Part::finish()
{
    m_output.finish(m_number, m_held, m_isWriting);
    m_held.clear();
}

bool OrderedOutput::Part::discard()
{
    m_held.clear();
    const bool isUnwritten = !m_isWriting;
    if (isUnwritten) {
        finish();
    }
    return isUnwritten;
}
