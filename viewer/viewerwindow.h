#pragma once

#include "displaysettings.h"
#include "sessionstore.h"

#include <QMainWindow>

#include <memory>

class GalleryPage;
class HelpOverlay;
class ImageDocument;
class ImagePage;
class LoadProblemPage;
class NextImageReader;
class QSettings;
class QStackedWidget;
class RegionCommands;
class SettingsKeeper;
class StatusLine;
class ViewerMenu;
class WelcomePage;

/// The program's window: one image at a time in an intensity widget, the gallery of a folder, or a
/// page in their place.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ViewerWindow(QWidget* parent = nullptr);

    /// Takes place, folder and recent files of the window from `settings` and keeps them there from
    /// now on. Without this nothing is read or stored. False when no place was stored yet.
    bool restoreSession(std::unique_ptr<QSettings> settings);

    /// Closes the image that is open and shows the file, or its page `page`, instead, or the page
    /// of the window that says why not. True when the image is shown.
    bool openFile(const QString& path, int page = 0);

    /// Closes the image that is open and shows the images of `folder`.
    void showGallery(const QString& folder);

    /// Shows the gallery when `path` is a folder, else opens the file. False when there is an image
    /// to show and it is not shown.
    bool openPath(const QString& path, int page = 0);

    /// Whether the gallery is shown and has pictures still to come.
    bool isGalleryLoading() const;

    /// Why the file last opened is not shown; empty when it is, or when none is open.
    QString problem() const;

    /// Of the image in front, in pixels; not valid without one.
    QSize imageSize() const;

    /// Sets how the image in front is shown. Returns one line that says what went wrong; empty on
    /// success.
    QString applySettings(const DisplaySettings& settings);

    /// Takes the time of the load, which is another one each time, off the status line.
    void hideLoadTime();

public Q_SLOTS:
    void chooseFile();
    void chooseFolder();

    /// Closes what is shown: an image or a problem gives way to the gallery of its folder if there
    /// are images in it, everything else to the welcome page.
    void closeFile();

    /// Closes the image and shows the gallery of its folder; the welcome page before any file was
    /// opened.
    void leaveImage();

    /// The gallery of the folder that was shown last; before any, the user chooses one.
    void showMenuGallery();

    /// The image after or before this one in its folder, by name. At either end the status bar says
    /// so, and nothing else happens.
    void showNext();
    void showPrevious();

    /// Loads the file once more, shown as it is, or looks at the folder of the gallery once more.
    void reload();

    void openRecentFile(int index);
    void clearRecentFiles();

    void toggleFullScreen();
    void showHelp();
    void showAbout();
    void quit();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void createPages();
    void createMenu();
    void openSoon(const QString& path);
    void connectDocument();
    void updateBars();
    void showPage(QWidget* page);
    void updateMenu();
    void updateRecentFiles();
    void showWelcome();
    void startLoad();
    void showProgress(int percent);
    void showImage(qint64 milliseconds, const QString& problem);
    void showProblem();
    void showNeighbour(int step, const QString& lackOfOne);
    void nameFile();
    void nameWindow(const QString& shown, const QString& path);

    QStackedWidget* m_pages = nullptr;
    WelcomePage* m_welcomePage = nullptr;
    LoadProblemPage* m_problemPage = nullptr;
    GalleryPage* m_galleryPage = nullptr;
    ImagePage* m_imagePage = nullptr;
    ViewerMenu* m_menu = nullptr;
    RegionCommands* m_regions = nullptr;
    HelpOverlay* m_help = nullptr;
    StatusLine* m_status = nullptr;
    ImageDocument* m_document = nullptr;
    NextImageReader* m_nextReader = nullptr;
    SettingsKeeper* m_settingsKeeper = nullptr;
    SessionStore m_session;
    QString m_folder; // of the file last opened, or the one of the gallery; empty before any
};
