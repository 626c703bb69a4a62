#pragma once

#include "image/reading.h"

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
    /// As stored, page 0, whatever the size.
    bool load(const QString& path, ImageData* image);

    /// Same as `options` say. `report`, which is never null, tells what was found, and for a
    /// refusal the reason. No exception gets out.
    bool load(
        const QString& path, ImageData* image, const ReadOptions& options, ReadReport* report);

private:
    std::unique_ptr<ImageLoadCv> m_cvLoader;
    std::unique_ptr<ImageLoadVk> m_rawLoader;
    QMap<QString, ImageLoadBase*> m_loaderBySuffix;
};
