#pragma once

#include <QMap>
#include <QString>

#include <memory>

class ImageData;
class ImageLoadBase;
class ImageLoadCv;
class ImageLoadVk;

/// Picks the loader for a file by its suffix in any case: jpg, jpeg, tif, tiff, bmp and png go
/// through OpenCV, raw is the camera's own format.
class ImageLoadRegistry
{
public:
    ImageLoadRegistry();
    ~ImageLoadRegistry();
    ImageLoadRegistry(const ImageLoadRegistry&) = delete;
    ImageLoadRegistry& operator=(const ImageLoadRegistry&) = delete;

    /// Fills `image` from the file. False, with the record as it was, for a missing file, an
    /// unknown suffix, a null record or a file that its loader refuses.
    bool load(const QString& path, ImageData* image);

private:
    std::unique_ptr<ImageLoadCv> m_cvLoader;
    std::unique_ptr<ImageLoadVk> m_rawLoader;
    QMap<QString, ImageLoadBase*> m_loaderBySuffix;
};
