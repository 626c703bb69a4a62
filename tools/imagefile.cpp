#include "imagefile.h"

#include "quietstderr.h"

#include <QFile>
#include <QFileInfo>

#include <opencv2/core/core.hpp>
#include <opencv2/core/version.hpp>
#if CV_VERSION_MAJOR >= 3
#include <opencv2/imgcodecs.hpp>
#else
#include <opencv2/highgui/highgui.hpp>
#endif

#include <cstring>

namespace {

constexpr int unchangedFlag = -1; // the file's own depth and channels

/// Bytes of one sample, 0 for floating-point and other samples that a frame does not hold.
int sampleBytes(int depth)
{
    switch (depth) {
    case CV_8U: return 1;
    case CV_16U: return 2;
    case CV_32S: return 4;
    }
    return 0;
}

bool copyMatrix(const cv::Mat& matrix, RawFrame* frame, QString* problem)
{
    const int bytesPerChannel = sampleBytes(matrix.depth());
    if (bytesPerChannel == 0) {
        *problem = QStringLiteral("its samples are no 8, 16 or 32-bit whole numbers");
        return false;
    }
    const quint64 rowBytes = quint64(matrix.cols) * matrix.elemSize();
    if (rowBytes * quint64(matrix.rows) > rawFrameByteLimit) {
        *problem = QStringLiteral("the image is too large");
        return false;
    }
    frame->width = matrix.cols;
    frame->height = matrix.rows;
    frame->channels = matrix.channels();
    frame->bytesPerChannel = bytesPerChannel;
    frame->bytes.resize(int(rowBytes) * matrix.rows);
    for (int row = 0; row < matrix.rows; ++row) {
        std::memcpy(frame->bytes.data() + std::size_t(row) * rowBytes, matrix.ptr(row), rowBytes);
    }
    return true;
}

int matrixType(const RawFrame& frame)
{
    const int depth = frame.bytesPerChannel == 1 ? CV_8U : CV_16U;
    return CV_MAKETYPE(depth, frame.channels);
}

} // namespace

bool readImageFile(const QString& path, RawFrame* frame, QString* problem)
{
    if (!QFileInfo(path).isFile()) {
        *problem = QStringLiteral("there is no such file");
        return false;
    }
    const QuietStandardError quiet;
    try {
        const cv::Mat matrix = cv::imread(QFile::encodeName(path).toStdString(), unchangedFlag);
        if (!matrix.empty()) {
            return copyMatrix(matrix, frame, problem);
        }
    } catch (const std::exception&) {
        // damaged, or larger than OpenCV accepts: reported below as any unreadable file
    }
    *problem = QStringLiteral("the file cannot be read as an image");
    return false;
}

bool writeImageFile(const QString& path, const RawFrame& frame, QString* problem)
{
    if (QFileInfo(path).suffix().toLower() == "raw") {
        return writeRawFrame(path, frame, problem);
    }
    if (frame.bytesPerChannel > 2 || frame.channels > 4) {
        *problem = QStringLiteral("only a raw file holds samples of this depth");
        return false;
    }
    const QuietStandardError quiet;
    try {
        const cv::Mat matrix(frame.height, frame.width, matrixType(frame),
            const_cast<char*>(frame.bytes.constData()));
        if (cv::imwrite(QFile::encodeName(path).toStdString(), matrix)) {
            return true;
        }
    } catch (const std::exception&) {
        // an unknown suffix throws
    }
    *problem = QStringLiteral("the file cannot be written in the format of its suffix");
    return false;
}
