#pragma once

#include <QString>

#include <functional>

class QIODevice;
class QPixmap;
class QWidget;
class StatusLine;

/// Fills an open device; false when that fails.
using WriteFile = std::function<bool(QIODevice*)>;

/// Writes a file, whole or not at all: a file of that name stays as it was until the new one is
/// complete. Returns what went wrong as one line that names the file; empty on success.
QString writeWhole(const QString& path, const WriteFile& write);

/// Writes the picture as PNG, likewise.
QString savePicture(const QPixmap& picture, const QString& path);

/// The user's folder for pictures, or the home folder where there is none.
QString picturesFolder();

/// The folder of what the window shows, or the home folder while it shows nothing.
QString shownFolder(const QWidget& window);

/// Asks where to save a file, and saves it there. The status line tells the path of the file, a
/// message why there is none. The folder saved to last is offered again.
class FileSaver
{
public:
    /// What the dialog asks for.
    struct Request
    {
        QString title; ///< of the dialog and of messages
        QString filter; ///< "PNG picture (*.png)"
        QString suffix; ///< for names without one
        QString folder; ///< offered until a file has been saved
        QString content; ///< ends the offered name, behind the name of what the window shows
    };

    /// `window` names what it shows as its window file path; that file is never written over.
    FileSaver(QWidget* window, StatusLine* status);

    /// True when the file is written. Nothing happens when the user cancels.
    bool save(const Request& request, const WriteFile& write);

private:
    QString chosenPath(const Request& request) const;
    QString offeredName(const Request& request) const;
    QString problemOf(const QString& path, const WriteFile& write) const;

    QWidget* m_window;
    StatusLine* m_status;
    QString m_folder; // saved to last; empty before
};
