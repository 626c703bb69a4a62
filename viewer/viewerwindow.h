#pragma once

#include <QMainWindow>
#include <QPointer>

class CVKIntensityWidget;
class ElidedLabel;
class GalleryPage;
class LoadProblemPage;
class QLabel;
class QMimeData;
class QStackedWidget;
class WelcomePage;

/// The program's window: one image at a time in an intensity widget, the gallery of a folder, or a
/// page in their place.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ViewerWindow(QWidget* parent = nullptr);

    /// Closes the image that is open and shows the file instead, or the page that says why not.
    /// True when the image is shown.
    bool openFile(const QString& path);

    /// Closes the image that is open and shows the images of `folder`.
    void showGallery(const QString& folder);

    /// Shows the gallery when `path` is a folder, else opens the file. False when there is an image
    /// to show and it is not shown.
    bool openPath(const QString& path);

    /// Whether the gallery is shown and has pictures still to come.
    bool isGalleryLoading() const;

    /// Why the file last opened is not shown; empty when it is, or when none is open.
    QString problem() const;

    /// Whether a drag carries exactly one local file; its path, or an empty string.
    static QString draggedFile(const QMimeData* data);

public Q_SLOTS:
    void chooseFile();
    void chooseFolder();

    /// Closes what is shown: an image or a problem gives way to the gallery of its folder if there
    /// are images in it, everything else to the welcome page.
    void closeFile();

    /// Closes the image and shows the gallery of its folder; the welcome page before any file was
    /// opened. The Return button of the intensity widget calls this by name.
    void sltSwitchToGallery();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void createMenu();
    void createPages();
    void createIntensityWidget();
    void showMenuGallery();
    void showWelcome();
    void releaseImage();
    bool loadIntoWidget(const QString& path);
    void showProblem(const QString& path);
    void nameFile(const QString& path, const QString& summary);
    void nameWindow(const QString& shown, const QString& status, const QString& summary);

    QStackedWidget* m_pages = nullptr;
    WelcomePage* m_welcomePage = nullptr;
    LoadProblemPage* m_problemPage = nullptr;
    GalleryPage* m_galleryPage = nullptr;
    QPointer<CVKIntensityWidget> m_intensityWidget; // deletes itself when it is closed
    ElidedLabel* m_fileName = nullptr;
    QLabel* m_imageSize = nullptr;
    QString m_folder; // of the file last opened, or the one of the gallery; empty before any
    QString m_file; // last opened; absolute
};
