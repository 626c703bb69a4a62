#include "lightfield.h"

#include "noisesource.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

LightField::LightField(int columns, int rows, double background)
    : width(columns)
    , height(rows)
    , counts(std::size_t(columns) * std::size_t(rows), background)
{
}

void LightField::addSpot(double x, double y, double peak, double sigma)
{
    const double reach = std::ceil(5.0 * sigma);
    const int left = int(std::max(0.0, std::floor(x - reach)));
    const int right = int(std::min(double(width - 1), std::ceil(x + reach)));
    const int top = int(std::max(0.0, std::floor(y - reach)));
    const int bottom = int(std::min(double(height - 1), std::ceil(y + reach)));
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            const double dx = (column - x) / sigma;
            const double dy = (row - y) / sigma;
            at(column, row) += peak * std::exp(-0.5 * (dx * dx + dy * dy));
        }
    }
}

RawFrame exposed(const LightField& light, const Sensor& sensor)
{
    RawFrame frame;
    frame.width = light.width;
    frame.height = light.height;
    frame.bytesPerChannel = sensor.bytesPerChannel;
    frame.bytes.resize(light.width * light.height * sensor.bytesPerChannel);

    NoiseSource noise(sensor.seed);
    const double floorVariance = sensor.readNoise * sensor.readNoise;
    const int pixelCount = light.width * light.height;
    for (int i = 0; i < pixelCount; ++i) {
        const double signal = light.counts[std::size_t(i)];
        const double deviation = std::sqrt(floorVariance + signal * sensor.noisePerCount);
        const double read = sensor.darkOffset + signal + deviation * noise.gaussian();
        const double limited = std::clamp(read + 0.5, 0.0, double(sensor.fullScale));
        setSample(&frame, i, quint32(limited));
    }
    return frame;
}

void setSample(RawFrame* frame, int index, quint32 value)
{
    char* const sample = frame->bytes.data() + std::ptrdiff_t(index) * frame->bytesPerChannel;
    switch (frame->bytesPerChannel) {
    case 1: *sample = char(value); return;
    case 2: qToLittleEndian<quint16>(quint16(value), sample); return;
    case 4: qToLittleEndian<quint32>(value, sample); return;
    }
}

quint32 sampleAt(const RawFrame& frame, int index)
{
    const char* const sample
        = frame.bytes.constData() + std::ptrdiff_t(index) * frame.bytesPerChannel;
    switch (frame.bytesPerChannel) {
    case 1: return uchar(*sample);
    case 2: return qFromLittleEndian<quint16>(sample);
    case 4: return qFromLittleEndian<quint32>(sample);
    }
    return 0;
}
