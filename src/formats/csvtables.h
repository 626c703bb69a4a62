#pragma once

#include "formats/measurement.h"

#include <QByteArray>
#include <QVector>

/// Numbers as comma-separated tables: UTF-8, line ends "\n", a point as the decimal mark in every
/// locale, and doubles with as many digits as it takes to read the same double back ("nan", "inf"
/// and "-inf" where there is no number). Each table starts with one header line; fields with a
/// comma, a quote or a line end stand in quotes (RFC 4180).

/// What stands before the header line as "# key: value" lines: program, version, file, page, size,
/// bits, calibration, and `region` where the numbers are of a part of the image; what is not known
/// is left out. Program and version are those of the application object. Line ends inside a value
/// become spaces.
QByteArray csvPreamble(const MeasurementSource& source,
    const std::optional<MeasuredCalibration>& calibration, const QRect& region = QRect());

/// `text` as one field, in quotes where it needs them. A leading "#" needs them too, so that no
/// line of a table looks like one of the preamble.
QByteArray csvField(const QString& text);

/// One line of the header and one a region, numbered from 1:
/// "region,x,y,width,height,pixels,mean,minimum,maximum,deviation,signal_to_noise".
QByteArray csvRegions(const QVector<RegionStatistics>& regions);

/// The fields of one region behind its name, from `x` on, without a line end.
QByteArray csvStatistics(const RegionStatistics& region);

/// "value,count", every value from the first to the last one.
QByteArray csvHistogram(const MeasuredHistogram& histogram);

/// "pixel,position,value"; a position that the profile does not have is the pixel. `unit` of the
/// positions is told in the header as "position [nm]", and left out when it is empty.
QByteArray csvProfile(const MeasuredProfile& profile, const QString& unit);

/// "rank,pixel,position,value", with the unit as above.
QByteArray csvPeaks(const QVector<MeasuredPeak>& peaks, const QString& unit);

/// A table of the above for the clipboard: no preamble, tabs between the fields, which spreadsheets
/// take apart into cells.
QString tabbed(const QByteArray& csvTable);
