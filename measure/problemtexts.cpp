#include "problemtexts.h"

#include "formats/imagefolder.h"

#include <QFileInfo>

namespace {

QString readProblem(const QFileInfo& file)
{
    if (!file.isReadable()) {
        return "there is no permission to read it";
    }
    return file.size() == 0 ? "it is empty"
                            : "it is damaged, or of another format than its suffix says";
}

} // namespace

QString problemText(const QString& path, LoadProblem problem)
{
    const QFileInfo file(path);
    switch (problem) {
    case LoadProblem::None: return QString();
    case LoadProblem::Missing: return "there is no file of this name";
    case LoadProblem::NotAFile: return "it is not a regular file";
    case LoadProblem::UnknownSuffix: return "its suffix is none of " + imageSuffixes().join(", ");
    case LoadProblem::NotReadable: return readProblem(file);
    case LoadProblem::UnsupportedKind:
        return "its number of bits a sample or its compression is not supported";
    case LoadProblem::NoPixels: return "it holds no pixels";
    case LoadProblem::TooLarge: return "it is larger than can be loaded, or than the free memory";
    case LoadProblem::OverPixelLimit: return "it has more pixels than are allowed";
    case LoadProblem::NoSuchPage: return "it has no such page (--page)";
    case LoadProblem::UnfaithfulValues:
        return "it has values that are negative, fractional or larger than 4294967295";
    case LoadProblem::UnfaithfulDepth: return "it has other than 8, 16 or 32 bits a sample";
    case LoadProblem::UnfaithfulChannels:
        return "it has neither one channel nor three, with or without alpha";
    case LoadProblem::BadFrame: break; // no file has this
    }
    return "it cannot be read";
}
