#pragma once

#include "measuredimage.h"
#include "options.h"
#include "orderedoutput.h"

/// What is to be written about one image, which lies in memory.
struct MeasureTask
{
    const MeasureOptions& options;
    MeasuredImage& image;
    QVector<QRect> regions; ///< all inside the image, and so are rows and columns
};

/// What was left out, as one sentence for each; empty in most cases.
using Notes = QStringList;

/// One line with one JSON object.
Notes writeJson(MeasureTask task, OrderedOutput::Part& out);

/// The lines of the table that the options ask for.
Notes writeCsv(MeasureTask task, OrderedOutput::Part& out);

/// What stands before all lines of the table.
QByteArray csvBegin(const MeasureOptions& options);
