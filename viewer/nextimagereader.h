#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>

class ImageDocument;

/// Reads the image that probably comes next into the system's cache while the window has nothing
/// else to do: the neighbor of the one that is shown, in the direction last gone. A thread of low
/// priority does so; it is stopped as soon as a load starts or the image is closed.
class NextImageReader : public QObject
{
    Q_OBJECT

public:
    static constexpr int restMilliseconds = 300; ///< after a load, before the reading starts

    explicit NextImageReader(ImageDocument* document, QObject* parent = nullptr);

    /// Waits for the piece that is being read.
    ~NextImageReader() override;

    /// 1 to read the image after the one that is shown, as at first; -1: the one before.
    void setDirection(int step) { m_step = step; }

    /// Stops at the next piece; nothing more is announced.
    void cancel();

Q_SIGNALS:
    /// The reading has ended by itself. `path` is empty at the end of the folder; `bytes` were
    /// read.
    void finished(const QString& path, qint64 bytes);

private:
    using Cancelled = std::shared_ptr<std::atomic_bool>;

    void start();
    void read(const QString& shown, int step, const Cancelled& cancelled);

    ImageDocument* m_document;
    QTimer m_rest;
    Cancelled m_cancelled; // of the reading that goes on or was the last
    int m_step = 1;
    QThreadPool m_pool;
};
