#pragma once

#include <QString>

class ImageData;

/// Reads one kind of image file into an image record.
class ImageLoadBase
{
public:
    virtual ~ImageLoadBase() = default;

    QString filePath; ///< the file to read; set before each load

    /// Fills `image` from the file. False, with the record as it was, when the record is null or
    /// the file is no regular file or cannot be read as this loader's format. Does not throw.
    virtual bool load(ImageData* image) = 0;
};
