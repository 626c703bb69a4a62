#include "scenes.h"

#include "lightfield.h"
#include "noisesource.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

struct Colour
{
    int red;
    int green;
    int blue;
};

/// Paints the pixels of a rectangle that lie inside the frame.
void fillRect(RawFrame* frame, int left, int top, int width, int height, const Colour& colour)
{
    for (int y = std::max(top, 0); y < std::min(top + height, frame->height); ++y) {
        for (int x = std::max(left, 0); x < std::min(left + width, frame->width); ++x) {
            const int sample = (y * frame->width + x) * 3;
            setSample(frame, sample, quint32(colour.blue));
            setSample(frame, sample + 1, quint32(colour.green));
            setSample(frame, sample + 2, quint32(colour.red));
        }
    }
}

RawFrame blankFrame(int width, int height, int channels)
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.channels = channels;
    frame.bytes.fill('\0', width * height * channels);
    return frame;
}

/// A colour of the hue circle; hue, saturation and value run from 0 to 1.
Colour colourOfHue(double hue, double saturation, double value)
{
    const auto channel = [&](double shift) {
        const double position = std::fmod(hue * 6.0 + shift, 6.0);
        const double ramp = std::clamp(std::min(position, 4.0 - position), 0.0, 1.0);
        return int(std::lround(255.0 * value * (1.0 - saturation * ramp)));
    };
    return { channel(5.0), channel(3.0), channel(1.0) };
}

} // namespace

RawFrame dimCells()
{
    LightField light(1280, 960, 0.0);
    NoiseSource random(1280);
    for (int cell = 0; cell < 36; ++cell) {
        const double x = random.uniform() * light.width;
        const double y = random.uniform() * light.height;
        const double size = 18.0 + 16.0 * random.uniform();
        const double peak = 120.0 + 260.0 * random.uniform();
        light.addSpot(x, y, peak, size);
        light.addSpot(x + 0.3 * size, y - 0.2 * size, 0.9 * peak, 0.35 * size); // the nucleus
        for (int spot = 0; spot < 5; ++spot) {
            const double angle = 2.0 * pi * random.uniform();
            const double distance = size * (0.5 + 0.6 * random.uniform());
            light.addSpot(
                x + distance * std::cos(angle), y + distance * std::sin(angle), 0.5 * peak, 2.5);
        }
    }
    Sensor sensor;
    sensor.darkOffset = 96.0;
    sensor.readNoise = 7.0;
    sensor.noisePerCount = 0.4;
    sensor.fullScale = 4095;
    sensor.bytesPerChannel = 2;
    sensor.seed = 1212;
    return exposed(light, sensor);
}

RawFrame ringCounts()
{
    LightField light(640, 480, 0.0);
    for (int y = 0; y < light.height; ++y) {
        for (int x = 0; x < light.width; ++x) {
            const double dx = x - 331.0;
            const double dy = y - 236.0;
            const double squared = dx * dx + dy * dy;
            const double beam = std::exp(-squared / (2.0 * 170.0 * 170.0));
            const double fringes = 0.5 + 0.45 * std::cos(squared / 1500.0);
            light.at(x, y) = 2600000.0 * beam * fringes;
        }
    }
    Sensor sensor;
    sensor.darkOffset = 90000.0;
    sensor.readNoise = 900.0;
    sensor.noisePerCount = 3.0;
    sensor.fullScale = 4000000;
    sensor.bytesPerChannel = 4;
    sensor.seed = 32;
    return exposed(light, sensor);
}

RawFrame colourChart()
{
    constexpr int margin = 28;
    constexpr int gap = 8;
    constexpr int patch = 144; // six of them and five gaps leave a margin on both sides;
    RawFrame frame = blankFrame(960, 640, 3);
    fillRect(&frame, 0, 0, frame.width, frame.height, { 38, 38, 40 });
    const double tones[3][2] = { { 0.85, 0.95 }, { 0.55, 0.75 }, { 0.75, 0.45 } };
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 6; ++column) {
            const double hue = (column + row / 3.0) / 6.0;
            fillRect(&frame, margin + column * (patch + gap), margin + row * (patch + gap), patch,
                patch, colourOfHue(hue, tones[row][0], tones[row][1]));
        }
    }
    const int wedgeTop = margin + 3 * (patch + gap) + gap;
    const int wedgeWidth = frame.width - 2 * margin;
    for (int step = 0; step < 16; ++step) {
        const int grey = step * 17;
        const int left = wedgeWidth * step / 16;
        const int right = wedgeWidth * (step + 1) / 16;
        fillRect(&frame, margin + left, wedgeTop, right - left, frame.height - margin - wedgeTop,
            { grey, grey, grey });
    }
    return frame;
}

RawFrame greyTarget()
{
    constexpr int wedgeHeight = 48;
    RawFrame frame = blankFrame(501, 377, 1);
    const double centreX = 250.0;
    const double centreY = (frame.height - wedgeHeight) / 2.0;
    for (int y = 0; y < frame.height; ++y) {
        for (int x = 0; x < frame.width; ++x) {
            const double dx = x - centreX;
            const double dy = y - centreY;
            const double radius = std::sqrt(dx * dx + dy * dy);
            double level = 150.0 - 0.25 * radius;
            if (y >= frame.height - wedgeHeight) {
                level = 255.0 * (x * 12 / frame.width) / 11.0;
            } else if (radius < 145.0) {
                level = 128.0 + 112.0 * std::sin(36.0 * std::atan2(dy, dx));
            }
            setSample(&frame, y * frame.width + x, quint32(level));
        }
    }
    return frame;
}

QVector<Scene> allScenes()
{
    return {
        { "lamp", "lamp-spectrum.raw", lampSpectrum },
        { "stars", "star-field.raw", starField },
        { "dim", "dim-cells-12bit.raw", dimCells },
        { "rings", "interference-rings-32bit.raw", ringCounts },
        { "chart", "colour-chart.png", colourChart },
        { "target", "grey-target-odd-width.bmp", greyTarget },
    };
}
