#pragma once

#include <QStatusBar>
#include <QVector>

class ElidedLabel;
class PageControl;
class QLabel;
class QProgressBar;

/// The line at the bottom of the window: name of the file, progress of a long load, the pixel under
/// the pointer, the zoom, the page, what is known about the image, and the time that it took to
/// load. In a narrow window the name is shortened, and what matters least goes.
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

    /// Makes room for texts about a pixel up to the width of `widest`; empty: there are none.
    void reservePixel(const QString& widest);
    void showPixel(const QString& text); ///< never moves anything

    void showZoom(const QString& text); ///< in a field of one width; empty: none

    void showSettingsKept(bool kept);

    void showPages(int page, int count); ///< see PageControl::showPage()
    PageControl* pageControl() const { return m_pages; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Part
    {
        QWidget* widget;
        bool isWanted;
    };
    QVector<Part> partsByImportance() const;
    void fitParts();

    ElidedLabel* m_name;
    QProgressBar* m_progress;
    QLabel* m_pixel;
    QLabel* m_zoom;
    PageControl* m_pages;
    QLabel* m_summary;
    QLabel* m_kept;
    QLabel* m_time;
    bool m_isTimeShown = true;
};
