#pragma once

#include "image/imagedata.h"
#include "image/imageloadregistry.h"
#include "support/sampleframes.h"
#include "support/tiffwriter.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

Q_DECLARE_METATYPE(LoadProblem)

inline ReadOptions faithful(int page = 0)
{
    ReadOptions options;
    options.reading = Reading::Faithful;
    options.page = page;
    return options;
}

/// One line of samples as a TIFF image; three and four channels are red, green, blue and alpha.
template <class Sample>
TiffImage tiffLine(const std::vector<Sample>& samples, int channels, int format)
{
    TiffImage image;
    image.width = int(samples.size()) / channels;
    image.bits = int(sizeof(Sample)) * 8;
    image.samples = channels;
    image.format = format;
    image.photometric = channels >= 3 ? 2 : 1;
    image.pixels = bytesOf(samples);
    return image;
}

/// Loads files of a folder of its own into a record that a refusal must leave as it is.
class LoadFixture
{
public:
    LoadFixture() { resetRecord(); }

    void resetRecord()
    {
        if (image.allocate(3, 1, 8, 1)) {
            std::memcpy(image.data, "xyz", 3);
        }
    }

    bool recordIsUntouched() const
    {
        return image.width == 3 && image.height == 1 && image.bitDepth == 8
            && pixels() == QByteArray("xyz");
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Whether the load and its report agree that the file is loaded.
    bool load(const QString& name, const ReadOptions& options = faithful())
    {
        report = ReadReport();
        report.problem = LoadProblem::BadFrame; // must be overwritten
        const bool loaded = loaders.load(path(name), &image, options, &report);
        return loaded && report.problem == LoadProblem::None;
    }

    bool loadTiff(const TiffImage& tiff)
    {
        return writeFile(path("image.tif"), tiffOf(tiff)) && load("image.tif");
    }

    QByteArray pixels() const
    {
        return QByteArray(reinterpret_cast<const char*>(image.data), image.dataSize);
    }

    ImageLoadRegistry loaders;
    ImageData image;
    ReadReport report;

private:
    QTemporaryDir m_folder;
};
