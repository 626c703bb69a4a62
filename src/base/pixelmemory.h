#pragma once

#include <QtGlobal>

#include <cstddef>

/// Owns one block of bytes for an image-sized buffer. Nothing here throws, fresh bytes are zero and
/// cost nothing until they are touched, and a block is used again when the next request has the
/// same size: the first touch of fresh pages is the largest single cost of a large image.
class PixelMemory
{
public:
    PixelMemory() = default;
    ~PixelMemory();
    PixelMemory(const PixelMemory&) = delete;
    PixelMemory& operator=(const PixelMemory&) = delete;

    /// Makes data() point to `byteCount` bytes. A block of that size, in use or spare, is kept with
    /// its contents; otherwise the bytes are fresh zeros and the old block is freed afterwards.
    /// False when there is no memory: a block in use then stays as it was.
    /// A request for 0 bytes gives a pointer too.
    bool acquire(size_t byteCount);

    /// Takes the block out of use and keeps it as a spare for the next request.
    void release();

    /// Takes the block out of use and frees it.
    void discard();

    /// First byte of the block in use, aligned for every sample type; null when there is none.
    uchar* data() const { return m_inUse ? m_bytes : nullptr; }

    /// Bytes of the block in use.
    size_t size() const { return m_inUse ? m_byteCount : 0; }

    /// Makes every byte from `first` on zero; bytes that were never marked as written are so
    /// already and are not touched.
    void zeroFrom(size_t first);

    /// Notes that bytes before `end` may hold anything from now on. Whoever hands out data() for
    /// writing calls this, or a later zeroFrom() leaves the bytes alone.
    void markWritten(size_t end);

private:
    uchar* m_allocation = nullptr; ///< what is freed; large blocks start a little behind it
    uchar* m_bytes = nullptr;
    size_t m_byteCount = 0;
    size_t m_writtenEnd = 0; ///< bytes from here on are zero
    bool m_inUse = false;
};
