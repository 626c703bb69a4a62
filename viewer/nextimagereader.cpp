#include "nextimagereader.h"

#include "imagedocument.h"
#include "imagefiles.h"
#include "readahead.h"

#include <QThread>

NextImageReader::NextImageReader(ImageDocument* document, QObject* parent)
    : QObject(parent)
    , m_document(document)
    , m_cancelled(std::make_shared<std::atomic_bool>(false))
{
    m_pool.setMaxThreadCount(1);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &NextImageReader::start);
    connect(document, &ImageDocument::loadStarts, this, &NextImageReader::cancel);
    connect(document, &ImageDocument::closed, this, &NextImageReader::cancel);
    connect(document, &ImageDocument::loaded, &m_rest, QOverload<>::of(&QTimer::start));
}

NextImageReader::~NextImageReader()
{
    cancel();
    m_pool.waitForDone(); // the thread calls this object
}

void NextImageReader::cancel()
{
    m_rest.stop();
    *m_cancelled = true;
}

void NextImageReader::start()
{
    cancel();
    m_cancelled = std::make_shared<std::atomic_bool>(false);
    m_pool.start([this, shown = m_document->file(), step = m_step, cancelled = m_cancelled] {
        read(shown, step, cancelled);
    });
}

/// Runs in the pool's thread, which also looks at the folder: that may have thousands of files.
void NextImageReader::read(const QString& shown, int step, const Cancelled& cancelled)
{
    QThread::currentThread()->setPriority(QThread::LowestPriority);
    const QString path = neighbourInFolder(shown, step);
    const qint64 bytes = path.isEmpty() ? 0 : readEarly(path, [&cancelled] { return !*cancelled; });
    const auto announce = [this, cancelled, path, bytes] {
        if (!*cancelled) {
            Q_EMIT finished(path, bytes);
        }
    };
    QMetaObject::invokeMethod(this, announce, Qt::QueuedConnection);
}
