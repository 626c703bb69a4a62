#include "support/sampleframes.h"

#include <QFile>

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

RawFile rawFile(int width, int height, int channels, int bytesPerChannel, QByteArray pixels)
{
    RawFile file;
    file.width = width;
    file.height = height;
    file.channels = channels;
    file.bytesPerChannel = bytesPerChannel;
    file.dataSize = quint32(pixels.size());
    file.pixels = pixels;
    return file;
}

QByteArray rawHeaderBytesOf(const RawFile& file)
{
    const RawHeaderBytes packed = packedRawHeader(file);
    QByteArray bytes(reinterpret_cast<const char*>(packed.data()), rawHeaderBytes);
    bytes.replace(
        0, int(sizeof rawheader::signature), QByteArray(sizeof rawheader::signature, '\0'));
    bytes.replace(0, file.signature.size(), file.signature);
    return bytes;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool writeRawFile(const QString& path, const RawFile& file)
{
    return writeFile(path, rawHeaderBytesOf(file) + file.pixels);
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
