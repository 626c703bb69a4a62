#pragma once

#include <QStatusBar>

class ElidedLabel;
class QLabel;
class QProgressBar;

/// The line at the bottom of the window: name of the file, progress of a long load, what is known
/// about the image, and the time that it took to load.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    /// Shows `text` alone, without an image.
    void showName(const QString& text);

    /// Says at once that the file is being read, and starts the progress at 0. Painted without
    /// looking at other events: a key or a drop in the middle of a load waits for its end.
    void showLoading(const QString& fileName);

    /// From 0 to 100; painted at once.
    void showProgress(int percent);

    void hideProgress();

    /// Adds what is known about the image behind the name.
    void showImage(const QString& summary, qint64 milliseconds);

    /// Says something for a few seconds, in place of the name.
    void tell(const QString& text);

    /// Says likewise where a file was saved, with the middle left out of a path that is too long.
    void tellSaved(const QString& path);

    /// Leaves the time out from now on.
    void hideTime();

private:
    ElidedLabel* m_name;
    QProgressBar* m_progress;
    QLabel* m_summary;
    QLabel* m_time;
};
