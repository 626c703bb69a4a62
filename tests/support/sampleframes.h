#pragma once

#include "image/rawheader.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Image files that the tests write for the loaders to read.

/// A raw file as it is written, which its header need not describe truly; the signature stands at
/// the start unless told otherwise.
struct RawFile : RawHeader
{
    QByteArray pixels; ///< as the file holds them
    QByteArray signature = "VORLAK";
};

/// The file whose header tells the truth about `pixels`.
RawFile rawFile(int width, int height, int channels, int bytesPerChannel, QByteArray pixels);

/// The 1024 header bytes of `file`.
QByteArray rawHeaderBytesOf(const RawFile& file);

/// Writes header and pixels; false when the file cannot be written whole.
bool writeRawFile(const QString& path, const RawFile& file);

bool writeFile(const QString& path, const QByteArray& bytes);

enum class FrameSample { Unsigned8, Signed8, Unsigned16, Signed16, Signed32, Float32, Float64 };

/// Writes interleaved samples through OpenCV, in the format that the suffix names. The bytes of
/// `samples` are in host order; false when they do not fill the frame or OpenCV refuses.
bool writeImageFile(const QString& path, int width, int height, int channels, FrameSample sample,
    const QByteArray& samples);

/// The bytes of `values` in host order.
template <class Value>
QByteArray bytesOf(const std::vector<Value>& values)
{
    return QByteArray(
        reinterpret_cast<const char*>(values.data()), int(values.size() * sizeof(Value)));
}
