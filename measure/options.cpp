#include "options.h"

#include <QHash>
#include <QRegularExpression>

#include <limits>

namespace {

// The limits of the fields of the panel, so that both show the same wavelengths.
constexpr int maxPeakCount = 200; // from 1 on
constexpr int maxWavelengthStart = 2000; // from 0 on
constexpr int maxPixelWidth = 100; // from 1 on

constexpr int maxJobs = 64;

/// A whole number from 0 to the largest int; nothing for everything else.
std::optional<int> parsedNumber(const QString& text)
{
    static const QRegularExpression pattern("\\A[0-9]{1,10}\\z");
    const qint64 number = pattern.match(text).hasMatch() ? text.toLongLong() : -1;
    const bool fits = number >= 0 && number <= std::numeric_limits<int>::max();
    return fits ? std::optional<int>(int(number)) : std::nullopt;
}

/// A number from `low` to `high`.
std::optional<int> parsedNumber(const QString& text, int low, int high)
{
    const auto number = parsedNumber(text);
    return number && *number >= low && *number <= high ? number : std::nullopt;
}

/// "A,B,..." as exactly `count` numbers; empty for everything else.
QVector<int> parsedNumbers(const QString& text, int count)
{
    const QStringList parts = text.split(',');
    QVector<int> numbers;
    for (const QString& part : parts) {
        const auto number = parsedNumber(part);
        if (!number || parts.size() != count) {
            return {};
        }
        numbers << *number;
    }
    return numbers;
}

/// Whether the corners of a rectangle are ints, too.
bool fitsIntoInts(const QVector<int>& numbers)
{
    const qint64 most = std::numeric_limits<int>::max();
    return qint64(numbers.at(0)) + numbers.at(2) <= most
        && qint64(numbers.at(1)) + numbers.at(3) <= most;
}

QString readRegion(const QString& value, MeasureOptions* options)
{
    const QVector<int> numbers = parsedNumbers(value, 4);
    if (numbers.isEmpty() || numbers.at(2) < 1 || numbers.at(3) < 1 || !fitsIntoInts(numbers)) {
        return "--roi needs X,Y,WIDTH,HEIGHT in pixels from the top left, WIDTH and HEIGHT from 1";
    }
    options->regions << QRect(numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3));
    return QString();
}

QString readRegionFile(const QString& value, MeasureOptions* options)
{
    if (!options->regionFile.isEmpty()) {
        return "--regions can be given only once";
    }
    options->regionFile = value;
    return value.isEmpty() ? "--regions needs a file name" : QString();
}

QString readRow(const QString& value, MeasureOptions* options)
{
    const auto row = parsedNumber(value);
    options->rows << row.value_or(0);
    return row ? QString() : "--row needs the number of a row, from 0 at the top";
}

QString readColumn(const QString& value, MeasureOptions* options)
{
    const auto column = parsedNumber(value);
    options->columns << column.value_or(0);
    return column ? QString() : "--column needs the number of a column, from 0 at the left";
}

QString readPeaks(const QString& value, MeasureOptions* options)
{
    options->peakCount = parsedNumber(value, 1, maxPeakCount).value_or(0);
    return options->peakCount > 0
        ? QString()
        : QString("--peaks needs a number from 1 to %1").arg(maxPeakCount);
}

/// Takes the unit off the end of a wavelength; micrometers when there is none.
QString takenUnit(QString* value)
{
    const bool isNanometers = value->endsWith(",nm");
    if (isNanometers || value->endsWith(",um")) {
        value->chop(3);
    }
    return isNanometers ? "nm" : "um";
}

QString readWavelength(const QString& value, MeasureOptions* options)
{
    QString text = value;
    MeasuredCalibration calibration;
    calibration.unit = takenUnit(&text);
    const QVector<int> numbers = parsedNumbers(text, 2);
    if (numbers.isEmpty() || numbers.at(0) > maxWavelengthStart || numbers.at(1) < 1
        || numbers.at(1) > maxPixelWidth) {
        return QString(
            "--wavelength needs START,WIDTH[,um|nm], START from 0 to %1, WIDTH from 1 to %2")
            .arg(maxWavelengthStart)
            .arg(maxPixelWidth);
    }
    calibration.start = numbers.at(0);
    calibration.width = numbers.at(1);
    options->calibration = calibration;
    return QString();
}

QString readPage(const QString& value, MeasureOptions* options)
{
    const auto page = parsedNumber(value);
    options->page = page.value_or(0);
    return page ? QString() : "--page needs the number of a page, from 0";
}

QString readFormat(const QString& value, MeasureOptions* options)
{
    options->format = value == "csv" ? MeasureOptions::Format::Csv : MeasureOptions::Format::Json;
    return value == "csv" || value == "json" ? QString() : "--format needs json or csv";
}

QString readJobs(const QString& value, MeasureOptions* options)
{
    const auto jobs = parsedNumber(value, 1, maxJobs);
    options->jobs = jobs.value_or(1);
    return jobs ? QString() : QString("--jobs needs a number from 1 to %1").arg(maxJobs);
}

/// Each reads the value behind its option, which is empty when there is none.
QString readOption(const QString& option, QStringList* rest, MeasureOptions* options)
{
    using Reader = QString (*)(const QString&, MeasureOptions*);
    static const QHash<QString, Reader> readers {
        { "--roi", readRegion },
        { "--regions", readRegionFile },
        { "--row", readRow },
        { "--column", readColumn },
        { "--peaks", readPeaks },
        { "--wavelength", readWavelength },
        { "--page", readPage },
        { "--format", readFormat },
        { "--jobs", readJobs },
    };
    if (option == "--histogram") {
        options->wantsHistogram = true;
        return QString();
    }
    const Reader reader = readers.value(option);
    if (!reader) {
        return QString("unknown option %1 (see --help)").arg(option);
    }
    return reader(rest->isEmpty() ? QString() : rest->takeFirst(), options);
}

/// The first option that asks for rows or columns; empty when none does.
QString profileOption(const MeasureOptions& options)
{
    return !options.rows.isEmpty() ? "--row" : !options.columns.isEmpty() ? "--column" : "";
}

QString regionOption(const MeasureOptions& options)
{
    return !options.regions.isEmpty() ? "--roi" : !options.regionFile.isEmpty() ? "--regions" : "";
}

QString twoKinds(const QString& one, const QString& other)
{
    return QString("%1 and %2 are two tables, and a CSV file has one").arg(one, other);
}

QString csvContradiction(const MeasureOptions& options)
{
    const QString profile = profileOption(options);
    const QString region = regionOption(options);
    if (options.wantsHistogram && !profile.isEmpty()) {
        return twoKinds("--histogram", profile);
    }
    return !region.isEmpty() && !profile.isEmpty() ? twoKinds(region, profile) : QString();
}

QString contradiction(const MeasureOptions& options)
{
    if (options.paths.isEmpty()) {
        return "no file is given (see --help)";
    }
    if (options.paths.contains(QString())) {
        return "the name of a file is empty";
    }
    if (options.peakCount > 0 && profileOption(options).isEmpty()) {
        return "--peaks goes with --row or --column";
    }
    return options.format == MeasureOptions::Format::Csv ? csvContradiction(options) : QString();
}

MeasureOptions::Table tableOf(const MeasureOptions& options)
{
    using Table = MeasureOptions::Table;
    if (options.wantsHistogram) {
        return Table::Histogram;
    }
    if (profileOption(options).isEmpty()) {
        return Table::Statistics;
    }
    return options.peakCount > 0 ? Table::Peaks : Table::Profiles;
}

} // namespace

MeasureOptions parsedOptions(const QStringList& arguments)
{
    MeasureOptions options;
    QStringList rest = arguments;
    bool optionsEnded = false;
    while (!rest.isEmpty() && options.error.isEmpty()) {
        const QString argument = rest.takeFirst();
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument.startsWith('-')) {
            options.error = readOption(argument, &rest, &options);
        } else {
            options.paths << argument;
        }
    }
    if (options.error.isEmpty()) {
        options.error = contradiction(options);
    }
    options.table = tableOf(options);
    return options;
}

QString measureHelp()
{
    return "Usage: vkmeasure [OPTIONS] FILE | FOLDER...\n"
           "\n"
           "Prints the numbers of camera images: smallest and largest value, mean and deviation,\n"
           "and what the options ask for, as one JSON object a file and line.\n"
           "FILE is a jpg, jpeg, tif, tiff, bmp or png picture or a raw camera file; of a FOLDER\n"
           "its images are measured, by name.\n"
           "\n"
           "  --roi X,Y,WIDTH,HEIGHT  statistics of these pixels, counted from the top left; can\n"
           "                          be given more than once\n"
           "  --regions FILE.reg      the same for the boxes of a DS9 region file\n"
           "  --row Y                 the values of a row; can be given more than once\n"
           "  --column X              the values of a column; can be given more than once\n"
           "  --peaks N               the N strongest peaks of each row and column, 1 to 200\n"
           "  --histogram             how many pixels have each value, of image and regions\n"
           "  --wavelength START,WIDTH[,UNIT]\n"
           "                          positions in wavelengths: that of the first pixel, 0 to\n"
           "                          2000, what each pixel adds, 1 to 100, and the unit, um or "
           "nm\n"
           "  --page N                a page of files with several, from 0\n"
           "  --format json|csv       JSON lines, or one CSV table with one kind of numbers:\n"
           "                          statistics, --histogram, --row and --column, or their "
           "--peaks\n"
           "  --jobs N                read N files at the same time, 1 to 64\n"
           "  --help                  show this text\n"
           "  --version               show the version\n"
           "\n"
           "Exit status: 0 when all files were measured, 1 when some were not, 2 for arguments\n"
           "that make no sense.\n";
}
