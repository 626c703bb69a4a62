#include "imagefile.h"
#include "scenes.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

#include <cstdio>

namespace {

const char help[] = "Usage: vkframe scene NAME OUT    write one synthetic frame\n"
                    "       vkframe scenes DIR        write all of them into a folder\n"
                    "       vkframe raw IN OUT.raw    make a raw camera file out of an image\n"
                    "\n"
                    "OUT's suffix picks the format: raw, png, bmp, tif.\n"
                    "IN is any image with samples of 8, 16 or 32-bit whole numbers.\n"
                    "\n"
                    "Scenes:\n";

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

int fail(const QString& message, int code)
{
    std::fprintf(stderr, "vkframe: %s\n", qUtf8Printable(message.simplified()));
    return code;
}

int failed(const QString& path, const QString& problem)
{
    return fail(QString("%1: %2").arg(path, problem), exitFailed);
}

int printHelp()
{
    std::fputs(help, stdout);
    for (const Scene& scene : allScenes()) {
        std::printf("  %-8s %s\n", qUtf8Printable(scene.name), qUtf8Printable(scene.fileName));
    }
    return 0;
}

int writeScene(const Scene& scene, const QString& path)
{
    QString problem;
    return writeImageFile(path, scene.draw(), &problem) ? 0 : failed(path, problem);
}

int runScene(const QString& name, const QString& path)
{
    for (const Scene& scene : allScenes()) {
        if (scene.name == name) {
            return writeScene(scene, path);
        }
    }
    return fail(QString("there is no scene named %1 (--help lists them)").arg(name), exitUsage);
}

int runScenes(const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        return failed(folder, "the folder cannot be made");
    }
    for (const Scene& scene : allScenes()) {
        const int code = writeScene(scene, QDir(folder).filePath(scene.fileName));
        if (code != 0) {
            return code;
        }
    }
    return 0;
}

int runRaw(const QString& source, const QString& target)
{
    RawFrame frame;
    QString problem;
    if (!readImageFile(source, &frame, &problem)) {
        return failed(source, problem);
    }
    return writeRawFrame(target, frame, &problem) ? 0 : failed(target, problem);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString command = arguments.value(0);
    if (command == "--help" || command == "-h") {
        return printHelp();
    }
    if (command == "scene" && arguments.size() == 3) {
        return runScene(arguments.at(1), arguments.at(2));
    }
    if (command == "scenes" && arguments.size() == 2) {
        return runScenes(arguments.at(1));
    }
    if (command == "raw" && arguments.size() == 3) {
        return runRaw(arguments.at(1), arguments.at(2));
    }
    return fail("scene NAME OUT, scenes DIR or raw IN OUT.raw (see --help)", exitUsage);
}
