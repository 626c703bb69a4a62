#include "plainpeaks.h"
#include "ratioreporter.h"

#include "plots/intensitycurveaxisitem.h"
#include "analysis/peakdetection.h"
#include "plots/peaklabels.h"

#include <QFontMetricsF>

#include <cmath>
#include <random>

namespace {

using Profile = std::vector<uchar>;

Profile noise(int count)
{
    std::mt19937 random(uint(count) + 3);
    Profile samples(size_t(count), 0);
    for (uchar& sample : samples) {
        sample = uchar(random() % 256);
    }
    return samples;
}

/// Narrow lines of different strengths on a dark floor with a little noise, as a row of a
/// calibration lamp's spectrum looks.
Profile lamp(int count)
{
    std::mt19937 random(uint(count) + 4);
    std::vector<double> light(size_t(count), 3.0);
    for (int line = 0; line < 30; ++line) {
        const double centre = double(random() % uint(count));
        const double strength = 10.0 + double(random() % 240);
        for (int i = 0; i < count; ++i) {
            const double distance = (i - centre) / (count * 0.0017);
            light[size_t(i)] += strength * std::exp(-0.5 * distance * distance);
        }
    }
    Profile samples(size_t(count), 0);
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = uchar(std::min(255.0, light[i] + double(random() % 3)));
    }
    return samples;
}

/// Half a sine wave over all samples.
Profile hump(int count)
{
    Profile samples(size_t(count), 0);
    for (int i = 0; i < count; ++i) {
        samples[size_t(i)] = uchar(255.0 * std::sin(3.14159265358979 * i / count));
    }
    return samples;
}

BenchmarkLoop plainDetection(const Profile& samples)
{
    return [samples](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(plain::detectPeaks(samples.data(), int(samples.size())));
        }
    };
}

void addDetectionPair(const std::string& name, const Profile& samples, double limit)
{
    addPair("peaks " + name, limit, plainDetection(samples), [samples](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(detectPeaks(samples.data(), int(samples.size())));
        }
    });
}

void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

/// A new profile each time, until polyline, ticks and labels are ready; the plain side only
/// detects.
void addChartPair(const std::string& name, const Profile& samples, double limit)
{
    addPair(name, limit, plainDetection(samples), [samples](benchmark::State& state) {
        const QtMessageHandler log = qInstallMessageHandler(ignoreMessage);
        Profile next = samples;
        IntensityCurveAxisItem chart(nullptr);
        chart.setSize(1000.0, 400.0);
        QFont font;
        font.setPixelSize(9);
        const QFontMetricsF metrics(font);
        for (auto _ : state) {
            std::rotate(next.begin(), next.begin() + 1, next.end()); // never the same one again
            chart.updateCurve(next.data(), int(next.size()));
            QVector<Peak> peaks = chart.peaks();
            QVector<double> widths;
            for (int i = 0; i < chart.peakTicks().size(); ++i) {
                widths.append(metrics.horizontalAdvance(
                    peakLabelNumbers(ValueRange(), int(next.size()), 1).text(peaks.at(i).index)));
            }
            layOutPeakLabels(peaks, chart.peakTicks(), widths, metrics.height());
            benchmark::DoNotOptimize(peaks.data());
        }
        qInstallMessageHandler(log);
    });
}

const bool pairsAdded = [] {
    addDetectionPair("4096, noise", noise(4096), 0.01);
    addDetectionPair("8192, noise", noise(8192), 0.01);
    addDetectionPair("4096, lamp", lamp(4096), 0.06);
    addDetectionPair("8192, lamp", lamp(8192), 0.06);
    addDetectionPair("4096, hump", hump(4096), 0.06);
    addDetectionPair("8192, hump", hump(8192), 0.06);
    addChartPair("chart of 4096, noise", noise(4096), 0.02);
    return true;
}();

} // namespace
