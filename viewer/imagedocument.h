#pragma once

#include "displaysettings.h"
#include "filewatch.h"

#include <QObject>

class ImagePage;

/// The file that the window shows: loads it, one page at a time, into the page of the image,
/// follows its changes on disk, and keeps how it is shown.
class ImageDocument : public QObject
{
    Q_OBJECT

public:
    explicit ImageDocument(ImagePage* imagePage, QObject* parent = nullptr);

    /// Absolute path of the file last opened, also after close(); empty before any.
    QString file() const { return m_file; }

    /// Page last asked for, from 0.
    int page() const { return m_page; }

    /// Pages of the file as of its last load; 0 as long as none has succeeded.
    int pageCount() const { return m_pageCount; }

    /// From open() to close(), also when the file is not shown.
    bool isOpen() const { return m_isOpen; }

    /// Whether the image is in the widget.
    bool isShown() const;

    /// Closes the image that is open and loads another file. True when it is shown.
    bool open(const QString& path, int page = 0);

    /// Loads the file once more. View, palette, peaks, wavelengths and regions of interest stay,
    /// apart from regions that lie outside the image if that has become smaller.
    bool reload();

    /// Loads another page of the file, which is shown as the one before. Below 0, and without a
    /// file: false, and nothing happens.
    bool showPage(int page);

    /// Closes the image; the file is not followed any more.
    void close();

    /// Closes the image and forgets the file and how it was shown.
    void forget();

    /// The image stays; what becomes of the file is not looked at any more.
    void stopFollowing();

    /// Whether another file is shown as the one before, as far as it can be; at first it is.
    void setSettingsKept(bool kept) { m_areSettingsKept = kept; }

Q_SIGNALS:
    /// file() and page() are about to be loaded. The page of the image has to be brought in front:
    /// a load needs its size.
    void loadStarts();

    /// A large file is being read: 0 to 100 percent of it, rising.
    void loadProgressed(int percent);

    /// The image is shown, with all of its settings. `problem` says in one line what of these it
    /// did not take; empty when nothing.
    void loaded(qint64 milliseconds, const QString& problem);

    /// No image is shown; the widget knows why.
    void refused();

    void closed(); ///< by close() or forget()

private:
    void follow();
    void takeSettings();
    bool load();
    void readFile();

    ImagePage* m_imagePage;
    FileWatch m_watch; // on the file, while it is open
    QString m_file;
    int m_page = 0;
    int m_pageCount = 0;
    bool m_isOpen = false;
    bool m_areSettingsKept = true;
    DisplaySettings m_settings; // of the image shown last, for the one that comes next
};
