#include "imagedocument.h"

#include "imagefiles.h"
#include "imagepage.h"
#include "readahead.h"
#include "waitcursor.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>

ImageDocument::ImageDocument(ImagePage* imagePage, QObject* parent)
    : QObject(parent)
    , m_imagePage(imagePage)
{
    connect(&m_watch, &FileWatch::changed, this, &ImageDocument::follow);
}

bool ImageDocument::isShown() const
{
    return m_imagePage->intensityWidget()->imageInfo().isValid();
}

bool ImageDocument::open(const QString& path, int page)
{
    takeSettings();
    if (!m_areSettingsKept) {
        m_settings = DisplaySettings();
    }
    m_file = QFileInfo(path).absoluteFilePath();
    m_page = page;
    m_pageCount = 0;
    m_isOpen = true;
    return load();
}

bool ImageDocument::reload()
{
    takeSettings();
    return m_isOpen && load();
}

bool ImageDocument::showPage(int page)
{
    if (!m_isOpen || page < 0) {
        return false;
    }
    takeSettings();
    m_page = page;
    return load();
}

void ImageDocument::close()
{
    takeSettings();
    m_isOpen = false;
    stopFollowing();
    m_imagePage->closeImage();
    Q_EMIT closed();
}

void ImageDocument::forget()
{
    m_file.clear();
    close();
    m_settings = DisplaySettings();
}

void ImageDocument::stopFollowing()
{
    m_watch.watch(QString());
}

/// Without an image those of the one before stay: a file may be good again after its next change.
void ImageDocument::takeSettings()
{
    if (isShown()) {
        m_settings = displaySettings(*m_imagePage->intensityWidget());
    }
}

/// The file has changed on disk. Nothing is replaced under a pressed button.
void ImageDocument::follow()
{
    if (!m_isOpen) {
        return;
    }
    if (QGuiApplication::mouseButtons() == Qt::NoButton) {
        reload();
    } else {
        QTimer::singleShot(FileWatch::restMilliseconds, this, &ImageDocument::follow);
    }
}

/// Nothing of the image page is painted before the receivers of the last signal have decided which
/// page stays in front.
bool ImageDocument::load()
{
    const WaitCursor waitCursor;
    QElapsedTimer clock;
    clock.start();
    m_watch.watch(m_file); // before the load, which could miss the end of it
    Q_EMIT loadStarts();
    readFile();
    if (!m_imagePage->load(m_file, m_page)) {
        Q_EMIT refused();
        return false;
    }
    CVKIntensityWidget* widget = m_imagePage->intensityWidget();
    m_pageCount = widget->imageInfo().pageCount;
    const qint64 milliseconds = clock.elapsed();
    const QString problem = applySettings(m_settings, widget);
    Q_EMIT loaded(milliseconds, problem);
    return true;
}

/// A page after the first load finds the file in memory.
void ImageDocument::readFile()
{
    const bool isLarge = QFileInfo(m_file).size() > smallFileSize;
    if (isLarge && hasImageSuffix(m_file) && m_pageCount <= 1) {
        Q_EMIT loadProgressed(0);
        readAhead(m_file, [this](int percent) { Q_EMIT loadProgressed(percent); });
    }
}
