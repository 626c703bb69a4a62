#pragma once

#include "image/reading.h"

#include <QString>

class ImageData;

/// Reads one kind of image file into an image record.
class ImageLoadBase
{
public:
    virtual ~ImageLoadBase() = default;

    QString filePath; ///< the file to read; set before each load
    ReadOptions options; ///< how to read it; as stored and without a limit unless set
    ReadReport report; ///< what the last load found

    /// Fills `image` from the file. False, with the record as it was and the reason in `report`,
    /// when the record is null or the file is no regular file, cannot be read as this loader's
    /// format or is refused by the options. Does not throw.
    virtual bool load(ImageData* image) = 0;
};
