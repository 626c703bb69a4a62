#include "pictureloader.h"

#include <QCoreApplication>
#include <QLibrary>

#include <memory>

namespace {

using CreateLoader = ImageLoadBase* (*)();

/// What the module of the codecs has.
struct Codecs
{
    Codecs()
        : module(QCoreApplication::applicationDirPath() + "/vkmeasurecodecs")
        , create(reinterpret_cast<CreateLoader>(module.resolve("vkmeasureCreateLoader")))
    {
    }

    QLibrary module; ///< stays loaded
    CreateLoader create; ///< null without the module
};

const Codecs& codecs()
{
    static const Codecs loaded;
    return loaded;
}

} // namespace

bool PictureLoader::load(ImageData* image)
{
    report = ReadReport();
    if (!codecs().create) {
        report.problem = LoadProblem::NotReadable;
        return false;
    }
    const std::unique_ptr<ImageLoadBase> loader(codecs().create());
    loader->filePath = filePath;
    loader->options = options;
    const bool isLoaded = loader->load(image);
    report = loader->report;
    return isLoaded;
}

QString PictureLoader::moduleProblem()
{
    return codecs().create ? QString() : "the codecs are missing: " + codecs().module.errorString();
}
