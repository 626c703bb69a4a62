// The members of the exported widget that bring an image in: files, frames, and what is known of
// them.

#include "widget/cvkintensitywidget.h"

#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrlwidget.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/intensitydoor.h"
#include "widget/preview.h"

namespace {

// The public types repeat those of the loaders, which know nothing of widgets.

CVKIntensityWidget::LoadProblem publicProblem(LoadProblem problem)
{
    using Public = CVKIntensityWidget::LoadProblem;
    static_assert(int(Public::Missing) == int(LoadProblem::Missing)
        && int(Public::NotAFile) == int(LoadProblem::NotAFile)
        && int(Public::UnknownSuffix) == int(LoadProblem::UnknownSuffix)
        && int(Public::NotReadable) == int(LoadProblem::NotReadable)
        && int(Public::UnsupportedKind) == int(LoadProblem::UnsupportedKind)
        && int(Public::NoPixels) == int(LoadProblem::NoPixels)
        && int(Public::TooLarge) == int(LoadProblem::TooLarge)
        && int(Public::OverPixelLimit) == int(LoadProblem::OverPixelLimit)
        && int(Public::NoSuchPage) == int(LoadProblem::NoSuchPage)
        && int(Public::UnfaithfulValues) == int(LoadProblem::UnfaithfulValues)
        && int(Public::UnfaithfulDepth) == int(LoadProblem::UnfaithfulDepth)
        && int(Public::UnfaithfulChannels) == int(LoadProblem::UnfaithfulChannels)
        && int(Public::BadFrame) == int(LoadProblem::BadFrame));
    return Public(problem);
}

CVKIntensityWidget::SampleKind publicKind(SampleKind kind)
{
    using Public = CVKIntensityWidget::SampleKind;
    static_assert(int(Public::Signed) == int(SampleKind::Signed)
        && int(Public::Floating) == int(SampleKind::Floating));
    return Public(kind);
}

FrameView viewOf(const CVKIntensityWidget::Frame& frame)
{
    return { frame.samples, frame.width, frame.height, frame.channels, frame.bytesPerSample,
        frame.bytesPerLine };
}

ReadReport reportOf(const CVKIntensityWidget::Frame& frame)
{
    ReadReport report;
    report.channels = frame.channels;
    return report;
}

} // namespace

bool CVKIntensityWidget::loadImage(const QString& path)
{
    return loadPage(path, 0);
}

bool CVKIntensityWidget::loadPage(const QString& path, int page)
{
    const ChangeReporter::Call call(&m_door->changes);
    try {
        return showFile(path, page);
    } catch (...) {
        m_door->problem = ::LoadProblem::TooLarge;
        return false; // out of memory in a container; nothing is thrown into the application
    }
}

bool CVKIntensityWidget::showFile(const QString& path, int page)
{
    m_door->problem = ::LoadProblem::None;
    if (!m_host || !m_controlPanel) {
        return false;
    }
    ReadOptions options = m_door->options;
    options.page = page;
    // The preferences announce their gray ramp one extra time below.
    const ImageIntensityAnalysis::LoadScope load(m_host->analysis());
    ReadReport report;
    if (!m_host->loadImage(path, options, &report)) {
        m_door->problem = report.problem;
        return false;
    }
    m_door->file = path;
    m_door->report = report;
    ++m_door->imageNumber;
    return resetPanel();
}

/// Brings the panel to what a fresh image shows. False when a part of it is missing; the new image
/// stays shown.
bool CVKIntensityWidget::resetPanel()
{
    const QPointer<CVKDataHistogram> histogram = m_door->dataHistogram();
    if (!histogram) {
        return false;
    }
    histogram->resetRoiList();
    if (histogram) {
        Q_EMIT histogram->updateIntensityHistogram();
    }
    CVKDisplayPreferences* const preferences = m_door->preferences();
    if (!preferences) {
        return false;
    }
    preferences->resetDefaults();
    return true;
}

bool CVKIntensityWidget::showFrame(const Frame& frame)
{
    const ChangeReporter::Call call(&m_door->changes);
    try {
        m_door->problem = ::LoadProblem::None;
        if (!m_host || !m_controlPanel) {
            return false;
        }
        const ImageIntensityAnalysis::LoadScope load(m_host->analysis());
        m_door->problem = m_host->showFrame(viewOf(frame), m_door->options);
        if (m_door->problem != ::LoadProblem::None) {
            return false;
        }
        m_door->file.clear();
        m_door->report = reportOf(frame);
        ++m_door->imageNumber;
        return resetPanel();
    } catch (...) {
        m_door->problem = ::LoadProblem::TooLarge;
        return false;
    }
}

bool CVKIntensityWidget::updateFrame(const Frame& frame)
{
    const ChangeReporter::Call call(&m_door->changes);
    try {
        m_door->problem = ::LoadProblem::None;
        if (!m_host) {
            return false;
        }
        m_door->problem = m_host->updateFrame(viewOf(frame), m_door->options);
        if (m_door->problem != ::LoadProblem::None) {
            return false;
        }
        m_door->file.clear();
        m_door->report = reportOf(frame);
        ++m_door->imageNumber;
        refreshPanel();
        return true;
    } catch (...) {
        m_door->problem = ::LoadProblem::TooLarge;
        return false;
    }
}

/// Histogram and statistics of what the panel shows, from the present pixels.
void CVKIntensityWidget::refreshPanel()
{
    CVKDataHistogram* const histogram = m_door->dataHistogram();
    if (!histogram || !m_door->imageHost()) {
        return;
    }
    const int selected = histogram->chosenRegion();
    const QVector<QRectF>& rects = m_host->imageItem()->rectangles.rects;
    if (selected >= 0 && selected < rects.size()) {
        m_host->analysis()->changedIntensityRoi(selected, QRectF(rects.at(selected)));
    } else {
        Q_EMIT histogram->updateIntensityHistogram();
    }
}

void CVKIntensityWidget::closeImage()
{
    const ChangeReporter::Call call(&m_door->changes);
    if (!m_host) {
        return;
    }
    const bool wasOpen = m_door->imageHost();
    m_host->closeImage();
    if (wasOpen) {
        ++m_door->imageNumber;
        m_door->file.clear();
    }
}

void CVKIntensityWidget::setReading(Reading reading)
{
    m_door->options.reading
        = reading == Reading::Faithful ? ::Reading::Faithful : ::Reading::AsStored;
}

CVKIntensityWidget::Reading CVKIntensityWidget::reading() const
{
    const bool isFaithful = m_door->options.reading == ::Reading::Faithful;
    return isFaithful ? Reading::Faithful : Reading::AsStored;
}

void CVKIntensityWidget::setPixelLimit(qint64 pixels)
{
    m_door->options.pixelLimit = qMax<qint64>(pixels, 0);
}

qint64 CVKIntensityWidget::pixelLimit() const
{
    return m_door->options.pixelLimit;
}

CVKIntensityWidget::LoadProblem CVKIntensityWidget::loadProblem() const
{
    return publicProblem(m_door->problem);
}

CVKIntensityWidget::ImageInfo CVKIntensityWidget::imageInfo() const
{
    ImageInfo info;
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host) {
        return info;
    }
    const ImageData& image = host->image();
    const ReadReport& report = m_door->report;
    const bool hasRange = image.bitDepth == 8 || image.bitDepth == 16 || image.bitDepth == 32;
    info.file = m_door->file;
    info.size = QSize(image.width, image.height);
    info.bitDepth = image.bitDepth;
    info.channels = report.channels;
    info.sampleKind = publicKind(report.sampleKind);
    info.page = report.page;
    info.pageCount = report.pageCount;
    info.minimum = hasRange ? host->analysis()->histogram.min : 0;
    info.maximum = hasRange ? host->analysis()->histogram.max : 0;
    info.isAlphaDropped = report.isAlphaDropped;
    info.isColorReduced = image.channels == 1 && report.channels >= 3;
    info.isTypeConverted = report.isTypeConverted;
    return info;
}

QImage CVKIntensityWidget::preview(
    const QString& path, const QSize& bounds, qint64 pixelLimit, LoadProblem* problem)
{
    ::LoadProblem reason = ::LoadProblem::None;
    const QImage picture = previewOf(path, bounds, pixelLimit, &reason);
    if (problem) {
        *problem = publicProblem(reason);
    }
    return picture;
}
