#include "screenshot.h"

#include "commandline.h"
#include "controldriver.h"
#include "cvkintensitywidget.h"
#include "imagefiles.h"
#include "picturefile.h"
#include "quietstderr.h"
#include "viewerwindow.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLabel>
#include <QTimer>
#include <QWindow>
#include <QtMath>

namespace {

/// Context of the texts for translation.
struct Screenshot
{
    Q_DECLARE_TR_FUNCTIONS(Screenshot)
};

constexpr int exposeMilliseconds = 5000; // a screen that shows no window must not hang the program
constexpr int settleMilliseconds = 150;
constexpr int galleryMilliseconds = 60000; // then the picture shows what has come

void runEvents(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Lets the window system answer, and layouts and queued calls run.
void settle(const ViewerWindow& window)
{
    QElapsedTimer waited;
    waited.start();
    const QWindow* handle = window.windowHandle();
    while (handle && !handle->isExposed() && !waited.hasExpired(exposeMilliseconds)) {
        runEvents(10);
    }
    runEvents(settleMilliseconds);
}

void waitForGallery(const ViewerWindow& window)
{
    QElapsedTimer waited;
    waited.start();
    while (window.isGalleryLoading() && !waited.hasExpired(galleryMilliseconds)) {
        runEvents(10);
    }
}

/// Opens what is asked for, a gallery with all its pictures.
bool openQuietly(ViewerWindow* window, const QString& path)
{
    const QuietStandardError quiet;
    const bool opened = window->openPath(path);
    waitForGallery(*window);
    return opened;
}

/// Size of a window, in units of `ratio` pixels, that covers `pixels`.
QSize coveringSize(const QSize& pixels, qreal ratio)
{
    return QSize(qCeil(pixels.width() / ratio), qCeil(pixels.height() / ratio));
}

/// The window as exactly so many pixels.
QPixmap pictureOf(ViewerWindow* window, const QSize& pixels)
{
    const QPixmap picture = window->grab();
    return pixels.isValid() ? picture.copy(QRect(QPoint(), pixels)) : picture;
}

QString sizeProblem(const ViewerWindow& window, const QSize& size)
{
    const QSize least = window.minimumSize() * window.devicePixelRatioF();
    if (!size.isValid() || size.expandedTo(least) == size) {
        return QString();
    }
    return Screenshot::tr("the window is at least %1x%2 pixels")
        .arg(least.width())
        .arg(least.height());
}

QString regionProblem(const QVector<QRect>& regions, const QSize& imageSize)
{
    if (!regions.isEmpty() && imageSize.isEmpty()) {
        return Screenshot::tr("the size of the image cannot be told");
    }
    for (const QRect& region : regions) {
        if (!QRect(QPoint(), imageSize).contains(region)) {
            return Screenshot::tr(
                "the region %1,%2,%3,%4 does not lie inside the image of %5x%6 pixels")
                .arg(region.x())
                .arg(region.y())
                .arg(region.width())
                .arg(region.height())
                .arg(imageSize.width())
                .arg(imageSize.height());
        }
    }
    return QString();
}

QString setControls(ViewerWindow* window, const CommandLine& line, QStringList* report)
{
    auto* intensityWidget = window->findChild<CVKIntensityWidget*>();
    if (!intensityWidget || !intensityWidget->isVisible()) {
        return Screenshot::tr("%1: only an image has controls to set").arg(line.image);
    }
    const QSize size = imageSize(line.image);
    const QString outside = regionProblem(line.controls.regions, size);
    if (!outside.isEmpty()) {
        return QString("%1: %2").arg(line.image, outside);
    }
    ControlDriver driver(intensityWidget, size);
    const QString problem = driver.apply(line.controls);
    *report = driver.report();
    if (QWidget* focused = window->focusWidget()) {
        focused->clearFocus(); // no cursor blinks in the picture
    }
    return problem;
}

} // namespace

QString takeScreenshot(ViewerWindow* window, const CommandLine& line, QStringList* report)
{
    const QString tooSmall = sizeProblem(*window, line.size);
    if (!tooSmall.isEmpty()) {
        return tooSmall;
    }
    if (line.size.isValid()) {
        window->resize(coveringSize(line.size, window->devicePixelRatioF()));
    }
    window->findChild<QLabel*>("statusLoadTime")->hide(); // the same image, the same picture
    window->show();
    settle(*window);
    if (!openQuietly(window, line.image)) {
        return QString("%1: %2").arg(line.image, window->problem());
    }
    settle(*window);
    if (!line.controls.isEmpty()) {
        const QString problem = setControls(window, line, report);
        if (!problem.isEmpty()) {
            return problem;
        }
        settle(*window);
    }
    return savePicture(pictureOf(window, line.size), line.screenshot);
}
