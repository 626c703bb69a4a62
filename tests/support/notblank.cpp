#include <QImage>
#include <QSet>

#include <cstdio>

/// Says whether the picture named on the command line can be read and shows something: exit code 0
/// when it has at least 100 different colours.
int main(int argc, char** argv)
{
    const QImage image(argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString());
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    if (colours.size() < 100) {
        std::fprintf(stderr, "notblank: %d colours in %s\n", int(colours.size()), argv[argc - 1]);
        return 1;
    }
    return 0;
}
