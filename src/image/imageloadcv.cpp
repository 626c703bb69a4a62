#include "image/imageloadcv.h"

#include "image/imagedata.h"

#include <QFileInfo>

#include <opencv2/core/core.hpp>
#if __has_include(<opencv2/imgcodecs/imgcodecs.hpp>)
#include <opencv2/imgcodecs/imgcodecs.hpp>
#else
#include <opencv2/highgui/highgui.hpp> // OpenCV 2.4 keeps the codecs here
#endif
#if __has_include(<opencv2/core/utils/logger.hpp>)
#include <opencv2/core/utils/logger.hpp>
#define VKINTENSITY_OPENCV_HAS_LOGGER
#endif

#include <cstring>
#include <exception>

namespace {

constexpr int keepDepthAndChannels = -1;

/// Keeps OpenCV's own log quiet while it lives; a refused file is told by `false` alone.
class QuietOpenCv
{
public:
#if defined(VKINTENSITY_OPENCV_HAS_LOGGER)
    QuietOpenCv()
        : m_level(cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT))
    {
    }
    ~QuietOpenCv()
    {
        cv::utils::logging::setLogLevel(m_level);
    }
#else
    QuietOpenCv() { }
    ~QuietOpenCv() { }
#endif
    QuietOpenCv(const QuietOpenCv&) = delete;
    QuietOpenCv& operator=(const QuietOpenCv&) = delete;

#if defined(VKINTENSITY_OPENCV_HAS_LOGGER)
private:
    cv::utils::logging::LogLevel m_level;
#endif
};

int bitDepthOf(const cv::Mat& matrix)
{
    switch (matrix.depth()) {
    case CV_16U:
    case CV_16S: return 16;
    case CV_32S:
    case CV_32F: return 32;
    case CV_64F: return 64;
    }
    return 8;
}

/// Copies the rows; each line of `image` is no longer than one of the matrix.
void copyRows(const cv::Mat& matrix, ImageData& image)
{
    const size_t lineBytes = size_t(image.bytesPerLine);
    for (int row = 0; row < matrix.rows; ++row) {
        std::memcpy(image.data + size_t(row) * lineBytes, matrix.ptr(row), lineBytes);
    }
}

/// May throw what OpenCV throws, all of it before the record changes.
bool loadMatrix(const QString& path, ImageData& image)
{
    const QuietOpenCv quiet;
    const cv::Mat matrix = cv::imread(path.toLocal8Bit().toStdString(), keepDepthAndChannels);
    if (!matrix.data || matrix.total() == 0 || matrix.dims != 2) {
        return false;
    }
    const int bitDepth = bitDepthOf(matrix);
    if (bitDepth == 64) {
        // Deliberate: nothing is copied, the image of zeros counts as loaded.
        return image.allocate(matrix.cols, matrix.rows, bitDepth, matrix.channels());
    }
    const size_t sampleBytes = size_t(bitDepth) / 8;
    if (sampleBytes > matrix.elemSize1()) {
        return false; // the record's lines would reach past those of the matrix
    }
    const size_t fillBytes = matrix.total() * size_t(matrix.channels()) * sampleBytes;
    if (!image.allocateForFill(matrix.cols, matrix.rows, bitDepth, matrix.channels(), fillBytes)) {
        return false;
    }
    copyRows(matrix, image);
    return true;
}

} // namespace

bool ImageLoadCv::load(ImageData* image)
{
    if (!image || !QFileInfo(filePath).isFile()) {
        return false;
    }
    try {
        return loadMatrix(filePath, *image);
    } catch (const std::exception&) { // cv::Exception for damaged files and size limits, bad_alloc
        return false;
    }
}
