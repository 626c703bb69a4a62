#include "palettes.h"
#include "skinimages.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

#include <cstdio>

// Run by the build: draws the images of the host kit and of the viewer, and writes the palette
// files that go beside every program with the widget.

namespace {

int fail(const QString& message)
{
    std::fprintf(stderr, "vkskin: %s\n", qUtf8Printable(message));
    return 1;
}

bool writeText(const QString& path, const QByteArray& text)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

int writeImages(const QDir& folder, const QVector<SkinImage>& images)
{
    constexpr int jpegQuality = 95;
    for (const SkinImage& image : images) {
        const QString path = folder.filePath(image.fileName);
        const int quality = path.endsWith(".jpg") ? jpegQuality : -1;
        if (!image.draw().save(path, nullptr, quality)) {
            return fail(path + ": cannot be written");
        }
    }
    return 0;
}

int writePalettes(const QDir& folder)
{
    for (const PaletteFile& palette : allPaletteFiles()) {
        const QString path = folder.filePath(palette.fileName);
        if (!writeText(path, paletteFileText(palette.colors()))) {
            return fail(path + ": cannot be written");
        }
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv); // finds the image format plugins
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    if (arguments.size() != 3 || !QStringList({ "widget", "viewer", "palettes" }).contains(what)) {
        return fail("widget DIR, viewer DIR or palettes DIR");
    }
    const QDir folder(arguments.at(2));
    if (!folder.mkpath(".")) {
        return fail(folder.path() + ": the folder cannot be made");
    }
    if (what == "palettes") {
        return writePalettes(folder);
    }
    return writeImages(
        folder, what == "widget" ? widgetSkinImages() + controlGlyphs() : viewerImages());
}
