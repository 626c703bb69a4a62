#include "image/imageloadregistry.h"

#include "image/imageloadbase.h"
#include "image/imageloadvk.h"

#include <QFileInfo>

#include <utility>

ImageLoadRegistry::ImageLoadRegistry(std::unique_ptr<ImageLoadBase> pictureLoader)
    : m_pictureLoader(std::move(pictureLoader))
    , m_rawLoader(std::make_unique<ImageLoadVk>())
{
    for (const char* suffix : { "jpg", "jpeg", "tif", "tiff", "bmp", "png" }) {
        m_loaderBySuffix.insert(QString::fromLatin1(suffix), m_pictureLoader.get());
    }
    m_loaderBySuffix.insert(QStringLiteral("raw"), m_rawLoader.get());
}

ImageLoadRegistry::~ImageLoadRegistry() = default;

bool ImageLoadRegistry::load(const QString& path, ImageData* image)
{
    ReadReport report;
    return load(path, image, ReadOptions(), &report);
}

bool ImageLoadRegistry::load(
    const QString& path, ImageData* image, const ReadOptions& options, ReadReport* report)
{
    *report = ReadReport();
    const QFileInfo file(path);
    if (!file.exists()) {
        report->problem = LoadProblem::Missing;
        return false;
    }
    if (!file.isFile()) {
        report->problem = LoadProblem::NotAFile;
        return false;
    }
    ImageLoadBase* loader = m_loaderBySuffix.value(file.suffix().toLower(), nullptr);
    if (!loader) {
        report->problem = LoadProblem::UnknownSuffix;
        return false;
    }
    loader->filePath = path;
    loader->options = options;
    const bool loaded = loader->load(image);
    *report = loader->report;
    return loaded;
}
