#pragma once

#include <QString>

#include <functional>

/// Files up to this size are there before a progress bar could be read, in bytes.
constexpr qint64 smallFileSize = qint64(16) << 20;

/// No image that can be loaded is larger, in bytes: 2^31 - 1 bytes of pixels behind a header.
constexpr qint64 largestImageFileSize = (qint64(1) << 31) + (qint64(1) << 20);

/// Larger files are not read before anyone asks for them, in bytes.
constexpr qint64 largestFileReadEarly = qint64(1) << 30;

/// Reads a large file once from end to end, so that the load that follows finds it in memory, and
/// reports how far it is: from a slow drive the reading takes by far the longest, and the load
/// itself reports nothing. `progress` gets each percentage from 1 to 100 that is reached, rising.
/// Does nothing for small files, for larger ones than images are, for what is no regular file, and
/// stops quietly at a read error: the load meets it again.
void readAhead(const QString& path, const std::function<void(int percent)>& progress);

/// Reads a file once from end to end, so that a load that may follow finds it in the system's
/// cache. The file is opened for one piece at a time, so that it can be renamed and removed
/// meanwhile. `goesOn` is asked before each piece. Returns how many bytes were read: 0 for what is
/// no regular file (a pipe would wait for ever), is missing or larger than `limit`.
qint64 readEarly(
    const QString& path, const std::function<bool()>& goesOn, qint64 limit = largestFileReadEarly);
