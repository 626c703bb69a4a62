#include "image/imageloadcv.h"

#include "image/faithfulsamples.h"
#include "image/imagedata.h"
#include "image/imageheader.h"
#include "image/quietopencv.h"

#include <QFile>
#include <QFileInfo>

#include <opencv2/core/core.hpp>
#if __has_include(<opencv2/imgcodecs/imgcodecs.hpp>)
#include <opencv2/imgcodecs/imgcodecs.hpp>
#else
#include <opencv2/highgui/highgui.hpp> // OpenCV 2.4 keeps the codecs here
#endif

#include <cstring>
#include <exception>
#include <new>
#include <vector>

#if CV_VERSION_MAJOR > 4 || (CV_VERSION_MAJOR == 4 && CV_VERSION_MINOR >= 6)
#define VKINTENSITY_OPENCV_READS_PAGES
#endif

namespace {

constexpr int keepDepthAndChannels = -1;
constexpr int outOfMemoryCode = -4; // the name of this number differs between versions

// OpenCV decodes no more than this.
constexpr qint64 decodedSideLimit = qint64(1) << 20;
constexpr qint64 decodedPixelLimit = qint64(1) << 30;

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

SampleKind sampleKindOf(const cv::Mat& matrix)
{
    switch (matrix.depth()) {
    case CV_8S:
    case CV_16S:
    case CV_32S: return SampleKind::Signed;
    case CV_32F:
    case CV_64F: return SampleKind::Floating;
    }
    return SampleKind::Unsigned;
}

/// Copies the rows; each line of `image` is no longer than one of the matrix.
void copyRows(const cv::Mat& matrix, ImageData& image)
{
    const size_t lineBytes = size_t(image.bytesPerLine);
    for (int row = 0; row < matrix.rows; ++row) {
        std::memcpy(image.data + size_t(row) * lineBytes, matrix.ptr(row), lineBytes);
    }
}

LoadProblem takeAsStored(const cv::Mat& matrix, ImageData& image)
{
    const int bitDepth = bitDepthOf(matrix);
    if (bitDepth == 64) {
        // Deliberate: nothing is copied, the image of zeros counts as loaded.
        const bool allocated
            = image.allocate(matrix.cols, matrix.rows, bitDepth, matrix.channels());
        return allocated ? LoadProblem::None : LoadProblem::TooLarge;
    }
    const size_t sampleBytes = size_t(bitDepth) / 8;
    if (sampleBytes > matrix.elemSize1()) {
        return LoadProblem::UnsupportedKind; // the record's lines would reach past the matrix's
    }
    const size_t fillBytes = matrix.total() * size_t(matrix.channels()) * sampleBytes;
    if (!image.allocateForFill(matrix.cols, matrix.rows, bitDepth, matrix.channels(), fillBytes)) {
        return LoadProblem::TooLarge;
    }
    copyRows(matrix, image);
    return LoadProblem::None;
}

bool isOpaque(const cv::Mat& matrix)
{
    for (int row = 0; row < matrix.rows; ++row) {
        const uchar* const line = matrix.ptr(row);
        for (int pixel = 0; pixel < matrix.cols; ++pixel) {
            if (line[qint64(pixel) * 4 + 3] != 255) {
                return false;
            }
        }
    }
    return true;
}

/// Whether the TIFF library has multiplied the colors by an alpha that is not opaque.
bool isMultipliedByAlpha(const cv::Mat& matrix, const ImageHeader& header)
{
    return header.hasUnassociatedAlpha && matrix.type() == CV_8UC4 && !isOpaque(matrix);
}

/// Zero bits that OpenCV has put below packed samples of 10, 12 or 14 bits.
int unusedLowBits(const cv::Mat& matrix, const ImageHeader& header)
{
    const bool isPacked = header.bitsPerSample > 8 && header.bitsPerSample < 16;
    return isPacked && matrix.depth() == CV_16U ? 16 - header.bitsPerSample : 0;
}

DecodedSamples decodedSamples(const cv::Mat& matrix, const ImageHeader& header, SampleKind kind)
{
    DecodedSamples samples;
    samples.bytes = matrix.data;
    samples.bytesPerLine = qint64(matrix.step[0]);
    samples.width = matrix.cols;
    samples.height = matrix.rows;
    samples.channels = matrix.channels();
    samples.bytesPerSample = int(matrix.elemSize1());
    samples.kind = kind;
    samples.unusedLowBits = unusedLowBits(matrix, header);
    return samples;
}

/// One load through OpenCV: what the file's header says, the decoded pixels, and what came of them.
class CvLoad
{
public:
    CvLoad(const QString& path, const ReadOptions& options, ReadReport& report)
        : m_path(path)
        , m_options(options)
        , m_report(report)
    {
    }

    /// May throw what OpenCV throws, all of it before the record changes.
    LoadProblem run(ImageData& image);
    /// Why OpenCV refused the file.
    LoadProblem refusal() const;

private:
    bool isFaithful() const { return m_options.reading == Reading::Faithful; }
    bool isOverLimit(qint64 width, qint64 height) const;
    void readHeader();
    LoadProblem headerProblem() const;
    LoadProblem kindProblem() const;
    cv::Mat decoded() const;
    LoadProblem take(const cv::Mat& matrix, ImageData& image);
    SampleKind fileSampleKind(const cv::Mat& matrix) const;

    const QString m_path;
    const ReadOptions m_options;
    ReadReport& m_report;
    ImageHeader m_header;
    bool m_isCutShort = false; ///< of a TIFF file, and in faithful reading of a JPEG file
};

bool CvLoad::isOverLimit(qint64 width, qint64 height) const
{
    return m_options.pixelLimit > 0 && width > 0 && height > m_options.pixelLimit / width;
}

void CvLoad::readHeader()
{
    QFile file(m_path);
    if (file.open(QIODevice::ReadOnly)) {
        m_header = readImageHeader(&file, m_options.page);
        m_isCutShort = m_header.isCutShort || (isFaithful() && !holdsJpegEnd(&file, m_header));
    }
}

/// What can be said before anything is decoded.
LoadProblem CvLoad::headerProblem() const
{
    if (m_options.page < 0 || m_options.page >= (isFaithful() ? m_header.pageCount : 1)) {
        return LoadProblem::NoSuchPage;
    }
    if (isOverLimit(m_header.width, m_header.height)) {
        return LoadProblem::OverPixelLimit;
    }
    return isFaithful() ? kindProblem() : LoadProblem::None;
}

/// Kinds of files that would be shown as another picture than they hold.
LoadProblem CvLoad::kindProblem() const
{
    if (m_isCutShort) {
        return LoadProblem::NotReadable;
    }
    if (m_header.isSound && m_header.channels > 4) {
        return LoadProblem::UnfaithfulChannels;
    }
    if (m_header.isSound && m_header.bitsPerSample == 64) {
        return LoadProblem::UnfaithfulDepth;
    }
    return m_header.isMisread ? LoadProblem::UnsupportedKind : LoadProblem::None;
}

cv::Mat CvLoad::decoded() const
{
    const std::string path = m_path.toLocal8Bit().toStdString();
    if (m_options.page == 0) {
        return cv::imread(path, keepDepthAndChannels);
    }
    std::vector<cv::Mat> pages;
#if defined(VKINTENSITY_OPENCV_READS_PAGES)
    try {
        cv::imreadmulti(path, pages, m_options.page, 1, keepDepthAndChannels);
    } catch (const cv::Exception&) {
        if (pages.empty()) { // otherwise the header of a later page is at fault
            throw;
        }
    }
#endif
    return pages.empty() ? cv::Mat() : pages.front();
}

/// The matrix has no signs where a version of OpenCV takes all samples for unsigned ones.
SampleKind CvLoad::fileSampleKind(const cv::Mat& matrix) const
{
    const bool isAsInHeader = m_header.isSound && matrix.depth() != CV_32F
        && matrix.depth() != CV_64F && m_header.sampleKind != SampleKind::Floating;
    return isAsInHeader ? m_header.sampleKind : sampleKindOf(matrix);
}

LoadProblem CvLoad::take(const cv::Mat& matrix, ImageData& image)
{
    const bool isGrayWithAlpha = m_header.isSound && m_header.channels == 2;
    m_report.channels = isGrayWithAlpha ? 2 : matrix.channels(); // decoders make 1 or 4 of the two
    m_report.sampleKind = fileSampleKind(matrix);
    m_report.isAlphaDropped = isGrayWithAlpha && matrix.channels() == 1;
    if (isOverLimit(matrix.cols, matrix.rows)) {
        return LoadProblem::OverPixelLimit; // the header did not tell
    }
    if (!isFaithful()) {
        return takeAsStored(matrix, image);
    }
    if (isMultipliedByAlpha(matrix, m_header)) {
        return LoadProblem::UnsupportedKind;
    }
    return takeFaithfully(decodedSamples(matrix, m_header, m_report.sampleKind), image, m_report);
}

LoadProblem CvLoad::run(ImageData& image)
{
    readHeader();
    m_report.page = m_options.page;
    m_report.pageCount = m_header.pageCount;
    const LoadProblem problem = headerProblem();
    if (problem != LoadProblem::None) {
        return problem;
    }
    const QuietOpenCv quiet;
    const cv::Mat matrix = decoded();
    if (!matrix.data || matrix.total() == 0 || matrix.dims != 2) {
        return refusal();
    }
    return take(matrix, image);
}

LoadProblem CvLoad::refusal() const
{
    if (!m_header.isSound) {
        return LoadProblem::NotReadable;
    }
    if (m_header.width > decodedSideLimit || m_header.height > decodedSideLimit
        || m_header.width * m_header.height > decodedPixelLimit) {
        return LoadProblem::TooLarge;
    }
    return m_header.isUnsupportedKind ? LoadProblem::UnsupportedKind : LoadProblem::NotReadable;
}

LoadProblem loadProblem(const QString& path, CvLoad& load, ImageData* image)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return LoadProblem::Missing;
    }
    if (!file.isFile()) {
        return LoadProblem::NotAFile;
    }
    if (!image) {
        return LoadProblem::NotReadable;
    }
    try {
        return load.run(*image);
    } catch (const cv::Exception& exception) { // damaged files, size limits, memory
        return exception.code == outOfMemoryCode ? LoadProblem::TooLarge : load.refusal();
    } catch (const std::bad_alloc&) {
        return LoadProblem::TooLarge;
    } catch (const std::exception&) {
        return load.refusal();
    }
}

} // namespace

bool ImageLoadCv::load(ImageData* image)
{
    report = ReadReport();
    CvLoad load(filePath, options, report);
    report.problem = loadProblem(filePath, load, image);
    return report.problem == LoadProblem::None;
}
