#include "support/sampleframes.h"

#include <QFile>
#include <QtEndian>

#include <opencv2/core/core.hpp>
#if __has_include(<opencv2/imgcodecs/imgcodecs.hpp>)
#include <opencv2/imgcodecs/imgcodecs.hpp>
#else
#include <opencv2/highgui/highgui.hpp>
#endif

namespace {

int matrixDepth(FrameSample sample)
{
    switch (sample) {
    case FrameSample::Unsigned8: return CV_8U;
    case FrameSample::Signed8: return CV_8S;
    case FrameSample::Unsigned16: return CV_16U;
    case FrameSample::Signed16: return CV_16S;
    case FrameSample::Signed32: return CV_32S;
    case FrameSample::Float32: return CV_32F;
    case FrameSample::Float64: return CV_64F;
    }
    return CV_8U;
}

} // namespace

RawFrame rawFrame(int width, int height, int channels, int bytesPerChannel, QByteArray pixels)
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.channels = channels;
    frame.bytesPerChannel = bytesPerChannel;
    frame.dataSize = quint32(pixels.size());
    frame.pixels = pixels;
    return frame;
}

QByteArray rawHeaderBytesOf(const RawFrame& frame)
{
    QByteArray header(1024, '\0');
    header.replace(0, frame.signature.size(), frame.signature);
    qToLittleEndian(quint16(frame.width), header.data() + 12);
    qToLittleEndian(quint16(frame.height), header.data() + 14);
    header[22] = char(frame.channels);
    header[23] = char(frame.bytesPerChannel);
    qToLittleEndian(frame.dataSize, header.data() + 32);
    return header;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool writeRawFile(const QString& path, const RawFrame& frame)
{
    return writeFile(path, rawHeaderBytesOf(frame) + frame.pixels);
}

bool writeImageFile(const QString& path, int width, int height, int channels, FrameSample sample,
    const QByteArray& samples)
{
    cv::Mat matrix(height, width, CV_MAKETYPE(matrixDepth(sample), channels));
    if (size_t(samples.size()) != matrix.total() * matrix.elemSize()) {
        return false;
    }
    std::copy(samples.begin(), samples.end(), reinterpret_cast<char*>(matrix.data));
    try {
        return cv::imwrite(path.toLocal8Bit().toStdString(), matrix);
    } catch (const cv::Exception&) {
        return false;
    }
}
