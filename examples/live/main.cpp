#include <cvkintensitywidget.h>
#include <vkintensityhost.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

constexpr int side = 2048, spotSide = 256, spareRows = 64; // pixels

/// Stands in for a camera: a bright spot that wanders over a gradient with noise, 16 bits a pixel.
class Scene
{
public:
    Scene()
        : m_background(side * (side + spareRows))
        , m_spot(spotSide * spotSide)
        , m_frame(side * side)
    {
        std::normal_distribution<double> noise(0.0, 40.0);
        for (size_t i = 0; i < m_background.size(); ++i) {
            m_background[i] = quint16(1000.0 + double(i % side) + noise(m_random));
        }
        for (int i = 0; i < spotSide * spotSide; ++i) {
            const double x = (i % spotSide - spotSide / 2) / 40.0;
            const double y = (i / spotSide - spotSide / 2) / 40.0;
            m_spot[size_t(i)] = quint16(30000.0 * std::exp(-0.5 * (x * x + y * y)));
        }
    }

    /// The next frame; its samples last until the next call.
    CVKIntensityWidget::Frame next()
    {
        const size_t firstRow = m_random() % spareRows; // other noise, and the same gradient
        std::copy_n(m_background.begin() + firstRow * side, m_frame.size(), m_frame.begin());
        m_angle += 0.02;
        addSpot(int((side - spotSide) * (0.5 + 0.5 * std::cos(m_angle))),
            int((side - spotSide) * (0.5 + 0.5 * std::sin(1.7 * m_angle))));
        return { m_frame.data(), side, side, 1, 2 };
    }

private:
    void addSpot(int left, int top)
    {
        for (int y = 0; y < spotSide; ++y) {
            quint16* row = &m_frame[size_t(top + y) * side + left];
            const quint16* spot = &m_spot[size_t(y) * spotSide];
            std::transform(row, row + spotSide, spot, row, std::plus<int>());
        }
    }

    std::mt19937 m_random;
    std::vector<quint16> m_background;
    std::vector<quint16> m_spot;
    std::vector<quint16> m_frame;
    double m_angle = 0.0;
};

// Usage: live [FRAMES]
// Shows frames from memory at the screen's rate; quits after FRAMES of them, if that is given.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const int lastFrame = QApplication::arguments().value(1).toInt();
    vkintensityhost::applyLook();
    QMainWindow window;
    auto* intensity = new CVKIntensityWidget; // without a parent that Return would call
    window.setCentralWidget(intensity);
    Scene scene;
    if (!intensity->showFrame(scene.next())) {
        return 1;
    }
    window.resize(1280, 800);
    window.show();
    intensity->addRegion({ 768, 768, 512, 512 });
    int count = 1, counted = 0;
    QElapsedTimer clock;
    clock.start();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, intensity, [&] {
        if (!intensity->updateFrame(scene.next()) || ++count == lastFrame) {
            QApplication::exit(count == lastFrame ? 0 : 1);
        }
        if (clock.elapsed() >= 1000) {
            const double rate = (count - counted) * 1000.0 / double(clock.restart());
            window.setWindowTitle(QString("%1 frames a second").arg(rate, 0, 'f', 1));
            counted = count;
        }
    });
    timer.start(int(1000.0 / window.screen()->refreshRate()));
    return QApplication::exec();
}
