#include "image/imageloadregistry.h"

#include "image/imageloadcv.h"
#include "image/imageloadvk.h"

#include <QFileInfo>

ImageLoadRegistry::ImageLoadRegistry()
    : m_cvLoader(std::make_unique<ImageLoadCv>())
    , m_rawLoader(std::make_unique<ImageLoadVk>())
{
    for (const char* suffix : { "jpg", "jpeg", "tif", "tiff", "bmp", "png" }) {
        m_loaderBySuffix.insert(QString::fromLatin1(suffix), m_cvLoader.get());
    }
    m_loaderBySuffix.insert(QStringLiteral("raw"), m_rawLoader.get());
}

ImageLoadRegistry::~ImageLoadRegistry() = default;

bool ImageLoadRegistry::load(const QString& path, ImageData* image)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return false;
    }
    ImageLoadBase* loader = m_loaderBySuffix.value(file.suffix().toLower(), nullptr);
    if (!loader) {
        return false;
    }
    loader->filePath = path;
    return loader->load(image);
}
