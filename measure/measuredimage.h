#pragma once

#include "analysis/imagenumbers.h"
#include "analysis/profilenumbers.h"
#include "formats/measurement.h"
#include "image/imagedata.h"

#include <functional>

/// The gray image of a file with its numbers, each found when it is asked for.
class MeasuredImage
{
public:
    /// Reads the file faithfully and reduces colors to gray. Returns why that failed, as one
    /// sentence; empty on success.
    QString load(const QString& path, int page);

    const MeasurementSource& source() const { return m_source; }
    QRect rect() const { return QRect(QPoint(0, 0), m_source.size); }
    bool holds(const QRect& rect) const { return isInsideImage(rect, m_image); }

    /// `rect` lies inside the image, as in all members.
    RegionStatistics statistics(const QRect& rect);

    /// Calls `begin` with the smallest value, then `visit` with blocks of counts. False, without
    /// a call, for more values than are counted.
    bool histogram(
        const QRect& rect, const std::function<void(quint32)>& begin, const CountVisitor& visit);

    /// A row or column with its peaks, unless `peakCount` is 0. Positions of pixels are left out:
    /// scale() has them.
    MeasuredProfile profile(MeasuredProfile::Axis axis, int index, int peakCount,
        const std::optional<MeasuredCalibration>& calibration);

    ProfileScale scale(
        MeasuredProfile::Axis axis, const std::optional<MeasuredCalibration>& calibration) const;

private:
    SampleRange imageRange();
    QVector<MeasuredPeak> peaks(
        const MeasuredProfile& profile, int count, const ProfileScale& scale);

    ImageData m_image;
    MeasurementSource m_source;
    std::optional<SampleRange> m_range; ///< of all pixels, once it is known
};
