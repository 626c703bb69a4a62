#include <cvkintensitywidget.h>
#include <vkintensityhost.h>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>

#include <cstdio>

namespace {

/// Whether the picture has saturated red in it, as the red palette draws the brightest pixels.
bool showsRed(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = picture.width() / 2; x < picture.width(); ++x) { // beside the panel
            const QRgb pixel = picture.pixel(x, y);
            if (qRed(pixel) > 200 && qGreen(pixel) == 0 && qBlue(pixel) == 0) {
                return true;
            }
        }
    }
    return false;
}

int fail(const char* problem)
{
    std::fprintf(stderr, "%s\n", problem);
    return 1;
}

} // namespace

// Usage: plain IMAGE
// Checks that skin, style sheet and palettes arrive in a program that links the host kit.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    vkintensityhost::applyLook();
    CVKIntensityWidget widget;
    widget.setAttribute(Qt::WA_DeleteOnClose, false);
    widget.resize(1000, 800);
    widget.show();
    if (!widget.loadImage(application.arguments().value(1))) {
        return fail("the image cannot be loaded");
    }
    if (QImage(":res/skin/mdi_bk.jpg").isNull()) {
        return fail("there is no skin");
    }
    if (!application.styleSheet().contains("tool_Zoom_In")) {
        return fail("there is no style sheet");
    }
    if (showsRed(widget.grab().toImage())) {
        return fail("red is there before its palette was chosen");
    }
    widget.findChild<QAbstractButton*>("pushButtonRed")->click();
    QApplication::processEvents();
    return showsRed(widget.grab().toImage()) ? 0 : fail("the red palette is not there");
}
