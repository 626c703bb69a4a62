#pragma once

#include <cvkintensitywidget.h>

#include <vector>

/// The frames that are shown in turn, the same ones in each run: dark offset with noise, spectral
/// lines that wander from frame to frame, 16 bits a sample.
class FrameSeries
{
public:
    static constexpr int side = 2048; ///< pixels
    static constexpr int count = 8;

    /// The middle of the frame, 512 x 512 pixels.
    static QRect region() { return QRect(768, 768, 512, 512); }
    static QPoint crossHair() { return QPoint(side / 2, side / 2); }

    FrameSeries();

    /// The samples of frame `index`, top row first.
    const std::vector<quint16>& samples(int index) const { return m_samples[size_t(index)]; }

    CVKIntensityWidget::Frame frame(int index) const;

    /// Writes the samples of all frames one after the other, in host byte order.
    bool write(const QString& path) const;

private:
    std::vector<std::vector<quint16>> m_samples;
};
