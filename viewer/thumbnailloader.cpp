#include "thumbnailloader.h"

#include <QMutex>
#include <QThread>

#include <algorithm>

namespace {

// Each may hold a whole decoded image.
constexpr int maxThreadCount = 3;

} // namespace

/// What the threads share: the requests, and which of them somebody has taken.
class ThumbnailLoader::Batch
{
public:
    explicit Batch(const QVector<ThumbnailRequest>& requests)
        : m_requests(requests)
        , m_taken(requests.size(), false)
        , m_left(int(requests.size()))
    {
    }

    /// The next request; false when there is none, or when the batch was cancelled.
    bool take(ThumbnailRequest* request);
    void preferFrom(int row);
    void cancel();

private:
    QMutex m_mutex;
    const QVector<ThumbnailRequest> m_requests; // rows rising
    QVector<bool> m_taken;
    int m_next = 0; // where to look for one that is not taken
    int m_left;
};

bool ThumbnailLoader::Batch::take(ThumbnailRequest* request)
{
    const QMutexLocker lock(&m_mutex);
    if (m_left == 0) {
        return false;
    }
    while (m_taken.at(m_next)) { // ends, since one is left
        m_next = (m_next + 1) % int(m_requests.size());
    }
    m_taken[m_next] = true;
    --m_left;
    *request = m_requests.at(m_next);
    return true;
}

void ThumbnailLoader::Batch::preferFrom(int row)
{
    const auto found = std::lower_bound(m_requests.begin(), m_requests.end(), row,
        [](const ThumbnailRequest& request, int wanted) { return request.row < wanted; });
    const QMutexLocker lock(&m_mutex);
    m_next = found == m_requests.end() ? 0 : int(found - m_requests.begin());
}

void ThumbnailLoader::Batch::cancel()
{
    const QMutexLocker lock(&m_mutex);
    m_left = 0;
}

ThumbnailLoader::ThumbnailLoader(QObject* parent)
    : QObject(parent)
{
    // One processor is left to the window.
    m_pool.setMaxThreadCount(std::clamp(QThread::idealThreadCount() - 1, 1, maxThreadCount));
}

ThumbnailLoader::~ThumbnailLoader()
{
    cancel();
    m_pool.waitForDone(); // the threads call this object
}

void ThumbnailLoader::start(const QVector<ThumbnailRequest>& requests, const QSize& bounds)
{
    cancel();
    if (requests.isEmpty()) {
        return;
    }
    m_batch = std::make_shared<Batch>(requests);
    m_missing = int(requests.size());
    const int threads = std::min(m_pool.maxThreadCount(), m_missing);
    for (int i = 0; i < threads; ++i) {
        m_pool.start([this, batch = m_batch, bounds] { work(batch, bounds); });
    }
}

void ThumbnailLoader::cancel()
{
    if (m_batch) {
        m_batch->cancel();
        m_batch.reset();
    }
}

bool ThumbnailLoader::isLoading() const
{
    return m_batch != nullptr;
}

void ThumbnailLoader::preferFrom(int row)
{
    if (m_batch) {
        m_batch->preferFrom(row);
    }
}

/// Runs in the pool's threads.
void ThumbnailLoader::work(const std::shared_ptr<Batch>& batch, const QSize& bounds)
{
    ThumbnailRequest request;
    while (batch->take(&request)) {
        auto problem = CVKIntensityWidget::LoadProblem::None;
        const QImage picture
            = CVKIntensityWidget::preview(request.path, bounds, thumbnailPixelLimit, &problem);
        const auto answer = [this, batch, row = request.row, picture, problem] {
            deliver(batch.get(), row, picture, problem);
        };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    }
}

void ThumbnailLoader::deliver(
    const Batch* batch, int row, const QImage& picture, CVKIntensityWidget::LoadProblem problem)
{
    if (batch != m_batch.get()) {
        return; // cancelled meanwhile
    }
    --m_missing;
    Q_EMIT loaded(row, picture, problem);
    if (batch == m_batch.get() && m_missing == 0) {
        m_batch.reset();
        Q_EMIT finished();
    }
}
