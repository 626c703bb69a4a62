#include "frameseries.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

/// Signal of each column in `frame`: ten lines of falling strength, 3 pixels wide, above an offset
/// that a sensor has in the dark.
std::vector<double> columnSignal(int frame)
{
    std::vector<double> signal(FrameSeries::side, 2000.0);
    for (int line = 0; line < 10; ++line) {
        const double center = 100.0 + 195.0 * line + 4.0 * frame;
        const double strength = 60000.0 * std::pow(0.8, line);
        for (int x = 0; x < FrameSeries::side; ++x) {
            const double distance = (x - center) / 3.0;
            signal[size_t(x)] += strength * std::exp(-0.5 * distance * distance);
        }
    }
    return signal;
}

std::vector<quint16> madeSamples(int frame)
{
    std::mt19937 random(uint(frame) + 1);
    std::normal_distribution<double> noise(0.0, 40.0);
    const std::vector<double> signal = columnSignal(frame);
    std::vector<quint16> samples;
    samples.reserve(size_t(FrameSeries::side) * FrameSeries::side);
    for (int y = 0; y < FrameSeries::side; ++y) {
        for (const double value : signal) {
            samples.push_back(quint16(std::clamp(value + noise(random), 0.0, 65535.0)));
        }
    }
    return samples;
}

} // namespace

FrameSeries::FrameSeries()
{
    for (int i = 0; i < count; ++i) {
        m_samples.push_back(madeSamples(i));
    }
}

CVKIntensityWidget::Frame FrameSeries::frame(int index) const
{
    CVKIntensityWidget::Frame frame;
    frame.samples = samples(index).data();
    frame.width = side;
    frame.height = side;
    frame.bytesPerSample = 2;
    return frame;
}

bool FrameSeries::write(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    for (const std::vector<quint16>& samples : m_samples) {
        const auto bytes = qint64(samples.size() * sizeof(quint16));
        if (file.write(reinterpret_cast<const char*>(samples.data()), bytes) != bytes) {
            return false;
        }
    }
    return file.flush();
}
