#include <cvkintensitywidget.h>
#include <vkintensityhost.h>

#include <QApplication>
#include <QMainWindow>

// Usage: minimal IMAGE [PICTURE]
// Shows IMAGE in a window; with PICTURE, saves the window to that file and quits.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    vkintensityhost::applyLook();
    QMainWindow window;
    auto* intensity = new CVKIntensityWidget;
    window.setCentralWidget(intensity);
    intensity->setReading(CVKIntensityWidget::Reading::Faithful);
    if (!intensity->loadImage(arguments.value(1))) {
        qWarning("The image cannot be shown.");
        return 1;
    }
    window.resize(1280, 800);
    window.show();
    if (arguments.size() > 2) {
        return window.grab().save(arguments.at(2)) ? 0 : 1;
    }
    return QApplication::exec();
}
