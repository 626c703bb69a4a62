#include "appearance.h"
#include "commandline.h"
#include "languages.h"
#include "qtcompat.h"
#include "screenshot.h"
#include "viewerwindow.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {

/// Whether the option is there, before "--" ends the options.
bool hasArgument(int argc, char* argv[], const char* wanted)
{
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::strcmp(argv[i], wanted) == 0) {
            return true;
        }
    }
    return false;
}

void tell(const QString& message)
{
    std::fprintf(stderr, "vkviewer: %s\n", qUtf8Printable(message.simplified()));
}

int fail(const QString& message)
{
    tell(message);
    return 1;
}

/// Whether a window could only end in the platform plugin's abort.
bool displayIsMissing()
{
#ifdef Q_OS_LINUX
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

/// Diagnostic lines are for developers, who ask for them with QT_LOGGING_RULES. A screenshot has at
/// most one line to say, so the platform's warnings go as well.
void quietLog(bool screenshot)
{
    QLoggingCategory::setFilterRules(
        screenshot ? "*.debug=false\n*.info=false\n*.warning=false" : "*.debug=false");
}

QSize startSize()
{
    return QSize(scaledForScreen(1280), scaledForScreen(800));
}

QSize fittingPrimaryScreen(const QSize& size)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? size.boundedTo(screen->availableSize() * 0.95) : size;
}

/// On a screen of twice the dots everything is drawn twice as large. Only whole factors are taken,
/// which keep image pixels sharp and equal; the widget itself follows what remains.
void prepareForDenseScreens()
{
    QtCompat::enableHighDpiScaling();
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Floor);
}

/// Opens the image once the window has been painted: until a long load has ended, the screen would
/// else show what was there before.
class OpenAfterPaint : public QObject
{
public:
    OpenAfterPaint(ViewerWindow* window, const QString& image, int page)
        : QObject(window)
        , m_window(window)
        , m_image(image)
        , m_page(page)
    {
        window->windowHandle()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose && m_window->windowHandle()->isExposed()) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, m_window, [this] { m_window->openPath(m_image, m_page); });
        }
        return false;
    }

private:
    ViewerWindow* m_window;
    QString m_image;
    int m_page;
};

int runWindow(ViewerWindow* window, const CommandLine& line)
{
    window->resize(fittingPrimaryScreen(startSize()));
    window->restoreSession(std::make_unique<QSettings>());
    window->winId(); // makes the handle that tells of the first painting
    if (!line.image.isEmpty()) {
        new OpenAfterPaint(window, line.image, line.page.value_or(0));
    }
    window->show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    initViewerResources();
    if (hasArgument(argc, argv, "--help")) {
        QCoreApplication application(argc, argv); // needs no display, but knows the language
        installLanguage(&application, QLocale());
        std::fputs(qUtf8Printable(commandLineHelp()), stdout);
        return 0;
    }
    if (hasArgument(argc, argv, "--version")) {
        std::puts("vkviewer " VKVIEWER_VERSION);
        return 0;
    }
    const bool screenshot = hasArgument(argc, argv, "--screenshot");
    if (displayIsMissing() && !hasArgument(argc, argv, "-platform")) {
        if (!screenshot) {
            QCoreApplication application(argc, argv);
            installLanguage(&application, QLocale());
            return fail(CommandLine::tr(
                "there is no display to open a window on (--screenshot needs none)"));
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    quietLog(screenshot);
    prepareForDenseScreens();
    QApplication application(argc, argv);
    QApplication::setOrganizationName("VKIntensity"); // with the next line, where settings are
    QApplication::setApplicationName("vkviewer");
    QApplication::setApplicationVersion(VKVIEWER_VERSION);
    QApplication::setDesktopFileName("org.vkintensity.VKViewer");
    installLanguage(&application, QLocale());
    const CommandLine line = parsedCommandLine(QApplication::arguments().mid(1));
    if (!line.error.isEmpty()) {
        return fail(line.error);
    }
    applyAppearance();
    ViewerWindow window;
    if (line.screenshot.isEmpty()) {
        return runWindow(&window, line);
    }
    window.resize(startSize()); // a picture may be larger than the screen
    QString notice;
    const QString problem = takeScreenshot(&window, line, &notice);
    if (!notice.isEmpty()) {
        tell(notice);
    }
    return problem.isEmpty() ? 0 : fail(problem);
}
