#pragma once

#include "cvkintensitywidget.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// Numbers of an image that leave the program at once.
enum class NumberKind {
    RegionStatistics, ///< of all regions
    ImageHistogram,
    RegionHistogram, ///< of the region selected in the panel
    RowProfile, ///< through the cross-hair, as the next ones
    ColumnProfile,
    RowPeaks, ///< as many as the panel is set to
    ColumnPeaks
};

/// What is to be exported, and as what file.
struct ExportChoice
{
    NumberKind kind = NumberKind::RegionStatistics;
    bool isJson = false; ///< else CSV
};

/// The kinds of which there are numbers now, in the order above.
QVector<NumberKind> availableNumbers(const CVKIntensityWidget& widget);

/// All of the file. May throw std::bad_alloc: a histogram of 32-bit samples can be large.
QByteArray exportedFile(const CVKIntensityWidget& widget, const ExportChoice& choice);

/// The same numbers as a table for the clipboard: tabs between the fields, one header line.
QString exportedText(const CVKIntensityWidget& widget, NumberKind kind);
