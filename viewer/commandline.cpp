#include "commandline.h"

#include <QHash>
#include <QRegularExpression>

namespace {

using Widget = CVKIntensityWidget;

// The limits of the panel's fields.
constexpr int maxPeakCount = 200; // from 1 on
constexpr int maxWavelengthStart = 2000; // from 0 on
constexpr int maxPixelWidth = 100; // from 1 on

constexpr int maxPage = 99999; // parsedNumbers() takes five digits

QString readSize(const QString& value, CommandLine* line)
{
    line->size = parsedSize(value);
    return line->size.isValid()
        ? QString()
        : CommandLine::tr("--size needs WIDTHxHEIGHT, each from 1 to %1").arg(maxScreenshotExtent);
}

/// Pages count from 1 here.
QString readPage(const QString& value, CommandLine* line)
{
    const int page = parsedNumbers(value, 1).value(0);
    line->page = page - 1;
    return page >= 1
        ? QString()
        : CommandLine::tr("--page needs the number of a page, from 1 to %1").arg(maxPage);
}

QString readView(const QString& value, CommandLine* line)
{
    static const QHash<QString, Widget::View> views {
        { "image", Widget::View::Image },
        { "x", Widget::View::RowChart },
        { "y", Widget::View::ColumnChart },
    };
    const auto view = views.constFind(value.toLower());
    if (view == views.constEnd()) {
        return CommandLine::tr("--view needs image, x or y");
    }
    line->settings.view = *view;
    return QString();
}

QString readPeaks(const QString& value, CommandLine* line)
{
    const Widget::PeakLabels labels { true, parsedNumbers(value, 1).value(0) };
    line->settings.peakLabels = labels;
    const bool inside = labels.count >= 1 && labels.count <= maxPeakCount;
    return inside ? QString()
                  : CommandLine::tr("--peaks needs a number from 1 to %1").arg(maxPeakCount);
}

QString readPalette(const QString& value, CommandLine* line)
{
    for (const QString& palette : Widget::colorPalettes()) {
        if (palette.compare(value, Qt::CaseInsensitive) == 0) {
            line->settings.palette = palette;
            return QString();
        }
    }
    return CommandLine::tr("--palette needs gray, red, green, blue or color");
}

/// Takes the unit off the end of a wavelength; micrometers when there is none.
Widget::Unit takenUnit(QString* value)
{
    const bool isNanometers = value->endsWith(",nm");
    if (isNanometers || value->endsWith(",um")) {
        value->chop(3);
    }
    return isNanometers ? Widget::Unit::Nanometers : Widget::Unit::Micrometers;
}

QString readWavelength(const QString& value, CommandLine* line)
{
    QString text = value;
    Widget::Calibration calibration;
    calibration.unit = takenUnit(&text);
    const QVector<int> numbers = parsedNumbers(text, 2);
    calibration.start = numbers.value(0);
    calibration.pixelWidth = numbers.value(1);
    line->settings.calibration = calibration;
    const bool inside = calibration.start <= maxWavelengthStart && calibration.pixelWidth >= 1
        && calibration.pixelWidth <= maxPixelWidth;
    return inside
        ? QString()
        : CommandLine::tr(
            "--wavelength needs START,WIDTH[,um|nm], START from 0 to %1, WIDTH from 1 to %2")
              .arg(maxWavelengthStart)
              .arg(maxPixelWidth);
}

QString readRegion(const QString& value, CommandLine* line)
{
    const QVector<int> numbers = parsedNumbers(value, 4);
    const QRect region(numbers.value(0), numbers.value(1), numbers.value(2), numbers.value(3));
    line->settings.regions << region;
    return region.isEmpty()
        ? CommandLine::tr("--roi needs X,Y,WIDTH,HEIGHT in pixels from the top left")
        : QString();
}

QString readRegionFileName(const QString& value, CommandLine* line)
{
    line->regionFile = value;
    return value.isEmpty() ? CommandLine::tr("--regions needs a file name") : QString();
}

QString readScreenshot(const QString& value, CommandLine* line)
{
    line->screenshot = value;
    return value.isEmpty() ? CommandLine::tr("--screenshot needs a file name") : QString();
}

/// Each reads the value behind its option, which is empty when there is none.
QString readOption(const QString& option, QStringList* rest, CommandLine* line)
{
    using Reader = QString (*)(const QString&, CommandLine*);
    static const QHash<QString, Reader> readers {
        { "--screenshot", readScreenshot },
        { "--size", readSize },
        { "--page", readPage },
        { "--view", readView },
        { "--peaks", readPeaks },
        { "--palette", readPalette },
        { "--roi", readRegion },
        { "--regions", readRegionFileName },
        { "--wavelength", readWavelength },
    };
    const Reader reader = readers.value(option);
    if (!reader) {
        return CommandLine::tr("unknown option %1 (see --help)").arg(option);
    }
    return reader(rest->isEmpty() ? QString() : rest->takeFirst(), line);
}

QString readImage(const QString& path, CommandLine* line)
{
    if (!line->image.isEmpty()) {
        return CommandLine::tr("only one image can be opened");
    }
    line->image = path;
    return path.isEmpty() ? CommandLine::tr("the name of the image is empty") : QString();
}

QString contradiction(const CommandLine& line)
{
    if (line.page && line.image.isEmpty()) {
        return CommandLine::tr("--page needs an image to show");
    }
    if (line.screenshot.isEmpty()) {
        if (line.size.isValid()) {
            return CommandLine::tr("--size goes with --screenshot");
        }
        return line.settings.isEmpty() && line.regionFile.isEmpty()
            ? QString()
            : CommandLine::tr("--view, --peaks, --palette, --roi, --regions and --wavelength "
                              "go with --screenshot");
    }
    if (line.image.isEmpty()) {
        return CommandLine::tr("--screenshot needs an image to show");
    }
    const bool isChart = line.settings.view && *line.settings.view != Widget::View::Image;
    return line.settings.peakLabels && !isChart
        ? CommandLine::tr("--peaks goes with --view x or --view y")
        : QString();
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

QVector<int> parsedNumbers(const QString& text, int count)
{
    static const QRegularExpression pattern("\\A[0-9]{1,5}\\z");
    const QStringList parts = text.split(',');
    QVector<int> numbers;
    for (const QString& part : parts) {
        if (!pattern.match(part).hasMatch() || parts.size() != count) {
            return {};
        }
        numbers << part.toInt();
    }
    return numbers;
}

QString commandLineHelp()
{
    return CommandLine::tr(
        "Usage: vkviewer [--page N] [IMAGE | FOLDER]\n"
        "       vkviewer --screenshot FILE.png [OPTIONS] IMAGE | FOLDER\n"
        "\n"
        "Shows a camera image with its intensity profiles, rulers and palette.\n"
        "IMAGE is a jpg, jpeg, tif, tiff, bmp or png picture or a raw camera file; of a FOLDER\n"
        "its images are shown in a gallery.\n"
        "\n"
        "  --page N                show page N of a TIFF file with several pages, counted from 1\n"
        "  --screenshot FILE.png   save the window as a picture and exit\n"
        "  --size WIDTHxHEIGHT     size of that window in pixels, else 1280x800 at 96 dpi\n"
        "  --view image|x|y        show the image, or its row or column as a chart\n"
        "  --peaks N               label the N strongest peaks of the chart, 1 to 200\n"
        "  --palette NAME          gray, red, green, blue or color\n"
        "  --roi X,Y,WIDTH,HEIGHT  mark exactly these pixels, counted from the top left; can be\n"
        "                          given more than once\n"
        "  --regions FILE.reg      mark the regions of a DS9 region file; what is left out is "
        "told\n"
        "  --wavelength START,WIDTH[,UNIT]\n"
        "                          label the axis in wavelengths: that of the first pixel, 0 to\n"
        "                          2000, what each pixel adds, 1 to 100, and the unit, um or nm\n"
        "  --help                  show this text\n"
        "  --version               show the version\n");
}
