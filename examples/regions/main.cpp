#include <cvkintensitywidget.h>
#include <vkintensityhost.h>

#include <QApplication>
#include <QMainWindow>

#include <cstdio>

/// Prints the pixel under the cross-hair and its value.
class CrossHairPrinter : public CVKIntensityWidget::Listener
{
public:
    const CVKIntensityWidget* intensity = nullptr;

    void crossHairChanged() override
    {
        if (const auto pixel = intensity->crossHair()) {
            std::printf("pixel %d, %d: ", pixel->x(), pixel->y());
            std::printf("%u\n", intensity->value(*pixel).value_or(0));
            std::fflush(stdout);
        }
    }
};

// Usage: regions IMAGE [PICTURE]; with PICTURE, saves the window to that file and quits.
// Prints the numbers of two regions, and each pixel that the cross-hair is moved to.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    vkintensityhost::applyLook();
    QMainWindow window;
    auto* intensity = new CVKIntensityWidget; // without a parent that Return would call
    window.setCentralWidget(intensity);
    intensity->setReading(CVKIntensityWidget::Reading::Faithful);
    if (!intensity->loadImage(arguments.value(1))) {
        std::fprintf(stderr, "not shown, problem %d\n", int(intensity->loadProblem()));
        return 1;
    }
    window.resize(1280, 800);
    window.show();
    CrossHairPrinter printer;
    printer.intensity = intensity;
    intensity->setListener(&printer);
    const QSize size = intensity->imageInfo().size / 4;
    intensity->setRegions({ { { 0, 0 }, size }, { { size.width(), size.height() }, size * 2 } });
    for (const QRect& region : intensity->regions()) {
        const auto numbers = intensity->statistics(region);
        std::printf(
            "region %d, %d, %d x %d: ", region.x(), region.y(), region.width(), region.height());
        std::printf("mean %.3f, deviation %.3f, from %u to %u\n", numbers.mean, numbers.deviation,
            numbers.minimum, numbers.maximum);
    }
    intensity->setCrossHair({ size.width() * 2, size.height() * 2 });
    if (arguments.size() > 2) {
        return window.grab().save(arguments.at(2)) ? 0 : 1;
    }
    return QApplication::exec();
}
