#include "scenes.h"

#include "lightfield.h"

#include <cmath>

namespace {

constexpr int columns = 1024;
constexpr int rows = 256;
constexpr double lineSigma = 1.7; // pixels
constexpr double strongestLine = 52000.0; // counts
constexpr double pi = 3.14159265358979323846;

/// Light of all lines at a column, in counts.
double lineLight(const QVector<SpectralLine>& lines, int column)
{
    double sum = 0.0;
    for (const SpectralLine& line : lines) {
        const double distance = (column + lampStartWavelength - line.wavelength) / lineSigma;
        sum += line.strength / 1000.0 * std::exp(-0.5 * distance * distance);
    }
    return strongestLine * sum;
}

/// Faint glow of the hot bulb, rising into the infrared.
double continuum(int column)
{
    const double t = double(column) / columns;
    return 250.0 + 900.0 * t * t;
}

/// The slit image is a little brighter in the middle, and dust on the slit darkens single rows.
double slitBrightness(int row)
{
    const double arch = 0.82 + 0.18 * std::sin(pi * (row + 0.5) / rows);
    const double dust = 1.0 - 0.10 * std::exp(-0.5 * std::pow((row - 61) / 1.5, 2.0))
        - 0.06 * std::exp(-0.5 * std::pow((row - 190) / 2.5, 2.0));
    return arch * dust;
}

} // namespace

QVector<SpectralLine> mercuryArgonLines()
{
    return {
        // mercury
        { 253.65, 900.0 },
        { 296.73, 130.0 },
        { 302.15, 70.0 },
        { 312.57, 190.0 },
        { 313.16, 210.0 },
        { 334.15, 60.0 },
        { 365.02, 460.0 },
        { 404.66, 520.0 },
        { 435.83, 1000.0 },
        { 546.07, 950.0 },
        { 576.96, 300.0 },
        { 579.07, 310.0 },
        // argon
        { 696.54, 430.0 },
        { 706.72, 260.0 },
        { 714.70, 40.0 },
        { 727.29, 160.0 },
        { 738.40, 320.0 },
        { 750.39, 480.0 },
        { 763.51, 880.0 },
        { 772.38, 420.0 },
        { 794.82, 300.0 },
        { 800.62, 260.0 },
        { 811.53, 760.0 },
        { 826.45, 350.0 },
        { 842.46, 450.0 },
        { 852.14, 170.0 },
        { 866.79, 70.0 },
        { 912.30, 540.0 },
        { 922.45, 180.0 },
        { 965.78, 110.0 },
    };
}

RawFrame lampSpectrum()
{
    LightField light(columns, rows, 0.0);
    const QVector<SpectralLine> lines = mercuryArgonLines();
    for (int x = 0; x < columns; ++x) {
        const double column = lineLight(lines, x) + continuum(x);
        for (int y = 0; y < rows; ++y) {
            light.at(x, y) = column * slitBrightness(y);
        }
    }
    Sensor sensor;
    sensor.darkOffset = 1200.0;
    sensor.readNoise = 45.0;
    sensor.noisePerCount = 1.5;
    sensor.fullScale = 65535;
    sensor.bytesPerChannel = 2;
    sensor.seed = 25365;
    RawFrame frame = exposed(light, sensor);
    setSample(&frame, lampHotPixelRow * columns + lampHotPixelColumn, sensor.fullScale);
    return frame;
}
