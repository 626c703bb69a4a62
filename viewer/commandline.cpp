#include "commandline.h"

#include <QRegularExpression>

namespace {

/// Takes the value behind the option at the front of `rest`; false when there is none.
bool takeValue(QStringList* rest, QString* value)
{
    if (rest->isEmpty() || rest->first().isEmpty()) {
        return false;
    }
    *value = rest->takeFirst();
    return true;
}

QString readOption(const QString& option, QStringList* rest, CommandLine* line)
{
    QString value;
    if (option == "--screenshot") {
        return takeValue(rest, &line->screenshot) ? QString() : "--screenshot needs a file name";
    }
    if (option == "--size") {
        line->size = takeValue(rest, &value) ? parsedSize(value) : QSize();
        return line->size.isValid()
            ? QString()
            : QString("--size needs WIDTHxHEIGHT, each from 1 to %1").arg(maxScreenshotExtent);
    }
    return QString("unknown option %1 (see --help)").arg(option);
}

QString readImage(const QString& path, CommandLine* line)
{
    if (!line->image.isEmpty()) {
        return QStringLiteral("only one image can be opened");
    }
    line->image = path;
    return path.isEmpty() ? QStringLiteral("the name of the image is empty") : QString();
}

QString contradiction(const CommandLine& line)
{
    if (line.screenshot.isEmpty()) {
        return line.size.isValid() ? QStringLiteral("--size goes with --screenshot") : QString();
    }
    return line.image.isEmpty() ? QStringLiteral("--screenshot needs an image to show") : QString();
}

} // namespace

CommandLine parsedCommandLine(const QStringList& arguments)
{
    CommandLine line;
    QStringList rest = arguments;
    bool optionsEnded = false;
    while (!rest.isEmpty() && line.error.isEmpty()) {
        const QString argument = rest.takeFirst();
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument.startsWith('-')) {
            line.error = readOption(argument, &rest, &line);
        } else {
            line.error = readImage(argument, &line);
        }
    }
    if (line.error.isEmpty()) {
        line.error = contradiction(line);
    }
    return line;
}

QSize parsedSize(const QString& text)
{
    static const QRegularExpression pattern("\\A([0-9]{1,5})x([0-9]{1,5})\\z");
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool inside = size.width() >= 1 && size.width() <= maxScreenshotExtent
        && size.height() >= 1 && size.height() <= maxScreenshotExtent;
    return match.hasMatch() && inside ? size : QSize();
}

QString commandLineHelp()
{
    return QStringLiteral(
        "Usage: vkviewer [IMAGE | FOLDER]\n"
        "       vkviewer --screenshot FILE.png [--size WIDTHxHEIGHT] IMAGE | FOLDER\n"
        "\n"
        "Shows a camera image with its intensity profiles, rulers and palette.\n"
        "IMAGE is a jpg, jpeg, tif, tiff, bmp or png picture or a raw camera file; of a FOLDER\n"
        "its images are shown in a gallery.\n"
        "\n"
        "  --screenshot FILE.png   save the window as a picture and exit\n"
        "  --size WIDTHxHEIGHT     size of that window in pixels\n"
        "  --help                  show this text\n"
        "  --version               show the version\n");
}
