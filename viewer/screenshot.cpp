#include "screenshot.h"

#include "commandline.h"
#include "filesaver.h"
#include "quietstderr.h"
#include "regionfile.h"
#include "viewerwindow.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
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
bool openQuietly(ViewerWindow* window, const QString& path, int page)
{
    const QuietStandardError quiet;
    const bool opened = window->openPath(path, page);
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

/// Adds the regions of a file to the settings, as far as it has some for this image.
QString addRegions(
    const QString& path, const QSize& image, DisplaySettings* settings, QString* notice)
{
    const RegionFile file = readRegionFile(path, image);
    if (!file.problem.isEmpty()) {
        return file.problem;
    }
    settings->regions << file.regions;
    if (!file.skipped.isEmpty()) {
        *notice = Screenshot::tr("%1: left out: %2").arg(path, file.skipped);
    }
    return QString();
}

/// Sets what was asked for. Returns what went wrong as one line; empty on success.
QString setUp(ViewerWindow* window, const CommandLine& line, QString* notice)
{
    if (line.settings.isEmpty() && line.regionFile.isEmpty()) {
        return QString();
    }
    DisplaySettings settings = line.settings;
    const QSize image = window->imageSize();
    if (!line.regionFile.isEmpty() && !image.isEmpty()) {
        const QString unread = addRegions(line.regionFile, image, &settings, notice);
        if (!unread.isEmpty()) {
            return unread;
        }
    }
    const QString problem = window->applySettings(settings);
    return problem.isEmpty() ? QString() : QString("%1: %2").arg(line.image, problem);
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

} // namespace

QString takeScreenshot(ViewerWindow* window, const CommandLine& line, QString* notice)
{
    const QString tooSmall = sizeProblem(*window, line.size);
    if (!tooSmall.isEmpty()) {
        return tooSmall;
    }
    if (line.size.isValid()) {
        window->resize(coveringSize(line.size, window->devicePixelRatioF()));
    }
    window->hideLoadTime(); // the same image, the same picture
    window->show();
    settle(*window);
    if (!openQuietly(window, line.image, line.page.value_or(0))) {
        return QString("%1: %2").arg(line.image, window->problem());
    }
    settle(*window);
    const QString problem = setUp(window, line, notice);
    if (!problem.isEmpty()) {
        return problem;
    }
    settle(*window);
    return savePicture(pictureOf(window, line.size), line.screenshot);
}
