#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

/// Numbers of one image as they leave the program: plain data, which the writers of this folder
/// turn into files and text. Coordinates are image pixels, origin top left, x to the right, y down.

/// Where the numbers come from.
struct MeasurementSource
{
    QString file; ///< as it is to be named; empty for a frame from memory
    int page = 0; ///< of the file, from 0
    QSize size; ///< pixels
    int bits = 0; ///< a sample
};

/// Wavelength of pixel 0 and from one pixel to the next.
struct MeasuredCalibration
{
    double start = 0.0;
    double width = 1.0;
    QString unit; ///< "um" or "nm"
};

/// Statistics of a rectangle.
struct RegionStatistics
{
    QRect rect;
    qint64 pixels = 0;
    double mean = 0.0;
    quint32 minimum = 0;
    quint32 maximum = 0;
    double deviation = 0.0; ///< of the population
    double signalToNoise = 0.0;
};

/// counts[i] pixels have the value first + i.
struct MeasuredHistogram
{
    quint32 first = 0;
    QVector<quint32> counts;
};

struct MeasuredPeak
{
    int rank = 0; ///< from 1, the strongest
    int pixel = 0; ///< x in a row, y in a column
    double position = 0.0; ///< wavelength with a calibration, else the pixel
    quint32 value = 0;
};

/// A row from left to right or a column from top to bottom.
struct MeasuredProfile
{
    enum class Axis { Row, Column };

    Axis axis = Axis::Row;
    int index = 0; ///< the row's y or the column's x
    QVector<quint32> values;
    QVector<double> positions; ///< of each pixel: wavelength with a calibration, else the pixel
    std::optional<QVector<MeasuredPeak>> peaks; ///< where asked for
};
