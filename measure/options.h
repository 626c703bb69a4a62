#pragma once

#include "formats/measurement.h"

#include <QByteArray>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// What the program was asked to do.
struct MeasureOptions
{
    enum class Format { Json, Csv };
    enum class Table { Statistics, Histogram, Profiles, Peaks }; ///< of a CSV file, which has one

    QVector<QRect> regions; ///< image pixels
    QString regionFile; ///< empty: none
    QVector<int> rows; ///< y of each
    QVector<int> columns; ///< x of each
    bool wantsHistogram = false;
    int peakCount = 0; ///< of each row and column; 0: none
    std::optional<MeasuredCalibration> calibration;
    int page = 0;
    Format format = Format::Json;
    Table table = Table::Statistics;
    int jobs = 1;
    QStringList paths; ///< files and folders
    QString error; ///< one line; empty when the arguments make sense
};

/// Reads the arguments behind the program's name. "--" ends the options.
MeasureOptions parsedOptions(const QStringList& arguments);

/// The text of --help.
QString measureHelp();
