#pragma once

#include "cvkintensitywidget.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QThreadPool>
#include <QVector>

#include <memory>

/// Most pixels of a file that a small picture is made of: 2^25, which decoded take 256 MiB with the
/// three 16-bit channels of a color image and the gray values made of them.
constexpr qint64 thumbnailPixelLimit = qint64(1) << 25;

/// One picture to make.
struct ThumbnailRequest
{
    int row = 0; ///< comes back with the picture
    QString path;
};

/// Makes small pictures of files in threads of its own and announces each in the thread that it
/// lives in. One batch at a time: a new one, cancel() and the destructor drop the pictures still
/// missing, of which nothing is heard any more. The destructor waits for the files being read.
class ThumbnailLoader : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailLoader(QObject* parent = nullptr);
    ~ThumbnailLoader() override;

    /// Starts on `requests`, in their order, rows rising; pictures fit `bounds`. An empty batch is
    /// no batch: nothing is announced.
    void start(const QVector<ThumbnailRequest>& requests, const QSize& bounds);
    void cancel();
    bool isLoading() const;

    /// The pictures from `row` on come next, those before after them.
    void preferFrom(int row);

Q_SIGNALS:
    /// `picture` is null when there is a `problem`, of which OverPixelLimit does not keep the file
    /// from being opened.
    void loaded(int row, const QImage& picture, CVKIntensityWidget::LoadProblem problem);
    void finished(); ///< every picture of the batch has been announced

private:
    class Batch;

    void work(const std::shared_ptr<Batch>& batch, const QSize& bounds);
    void deliver(const Batch* batch, int row, const QImage& picture,
        CVKIntensityWidget::LoadProblem problem);

    std::shared_ptr<Batch> m_batch; // null when nothing is being loaded
    int m_missing = 0; // pictures of the batch not announced yet
    QThreadPool m_pool;
};
