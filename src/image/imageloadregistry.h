#pragma once

#include "image/reading.h"

#include <QMap>
#include <QString>

#include <memory>

class ImageData;
class ImageLoadBase;
class ImageLoadVk;

/// Picks the loader for a file by its suffix in any case: jpg, jpeg, tif, tiff, bmp and png go
/// through OpenCV, raw is the camera's own format.
class ImageLoadRegistry
{
public:
    ImageLoadRegistry();

    /// With another loader in place of the one that calls OpenCV. A program that has only this
    /// constructor does not link OpenCV.
    explicit ImageLoadRegistry(std::unique_ptr<ImageLoadBase> pictureLoader);
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
    std::unique_ptr<ImageLoadBase> m_pictureLoader;
    std::unique_ptr<ImageLoadVk> m_rawLoader;
    QMap<QString, ImageLoadBase*> m_loaderBySuffix;
};
