#include "scenes.h"

#include "lightfield.h"
#include "noisesource.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int side = 2048;
constexpr int starCount = 1400;

struct Glow
{
    double x;
    double y;
    double width; // standard deviations in pixels
    double height;
    double peak; // counts
};

const Glow glows[] = {
    { 760.0, 1120.0, 330.0, 230.0, 15000.0 },
    { 980.0, 940.0, 190.0, 260.0, 12500.0 },
    { 560.0, 1290.0, 150.0, 120.0, 9500.0 },
    { 1490.0, 560.0, 210.0, 170.0, 7000.0 },
};

/// Values of a bell curve at every pixel of a row or column.
std::vector<double> bell(double centre, double sigma)
{
    std::vector<double> values(side);
    for (int i = 0; i < side; ++i) {
        const double distance = (i - centre) / sigma;
        values[std::size_t(i)] = std::exp(-0.5 * distance * distance);
    }
    return values;
}

/// Dark lanes and bright wisps of the gas: around 1, between 0.4 and 1.6.
double gasDensity(int x, int y)
{
    const double fold = 40.0 * std::sin(y / 97.0) + 25.0 * std::sin(x / 61.0 + 1.0);
    const double wide = std::sin((x + 0.6 * y + fold) / 118.0);
    const double fine = std::sin((y - 0.35 * x + 2.0 * fold) / 47.0);
    return 1.0 + 0.38 * wide + 0.22 * fine * wide;
}

void addGlow(LightField* light, const Glow& glow)
{
    const std::vector<double> across = bell(glow.x, glow.width);
    const std::vector<double> down = bell(glow.y, glow.height);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double shape = across[std::size_t(x)] * down[std::size_t(y)];
            if (shape > 0.001) {
                light->at(x, y) += glow.peak * shape * gasDensity(x, y);
            }
        }
    }
}

/// Many faint stars and few bright ones: the number above a brightness falls with its power 1.1.
/// Bright stars carry a wide faint halo of light scattered in the telescope.
void addStars(LightField* light)
{
    NoiseSource random(2048);
    for (int i = 0; i < starCount; ++i) {
        const double x = random.uniform() * side;
        const double y = random.uniform() * side;
        const double faintness = std::max(random.uniform(), 1e-4);
        const double peak = std::min(2200.0 * std::pow(faintness, -1.0 / 1.1), 90000.0);
        light->addSpot(x, y, peak, 2.1 + 0.5 * random.uniform());
        if (peak > 12000.0) {
            light->addSpot(x, y, 0.09 * peak, 10.0);
        }
    }
}

} // namespace

RawFrame starField()
{
    LightField light(side, side, 0.0);
    for (const Glow& glow : glows) {
        addGlow(&light, glow);
    }
    addStars(&light);
    Sensor sensor;
    sensor.darkOffset = 1800.0; // bias and sky
    sensor.readNoise = 160.0;
    sensor.noisePerCount = 8.0;
    sensor.fullScale = 65535;
    sensor.bytesPerChannel = 2;
    sensor.seed = 4711;
    return exposed(light, sensor);
}
