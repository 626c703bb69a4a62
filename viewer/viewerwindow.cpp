#include "viewerwindow.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "elidedlabel.h"
#include "gallerypage.h"
#include "imagefiles.h"
#include "pages.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>

namespace {

/// Shows the wait cursor while it lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};

/// Makes the wheel over a box of `panel` scroll the column; turning it would else change settings
/// that happen to come by under the pointer.
void scrollInsteadOfChoosing(QWidget* panel)
{
    for (QComboBox* box : panel->findChildren<QComboBox*>()) {
        box->installEventFilter(panel);
    }
}

} // namespace

ViewerWindow::ViewerWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setAcceptDrops(true);
    createMenu();
    createPages();
    createIntensityWidget();
    // Room for the panel column, the strips beside the image and a little image.
    setMinimumSize(scaledForScreen(290) + 350, 480);
    showWelcome();
}

void ViewerWindow::createMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open..."), this, &ViewerWindow::chooseFile, QKeySequence::Open);
    file->addAction(
        tr("Open &Folder..."), this, &ViewerWindow::chooseFolder, QKeySequence("Ctrl+Shift+O"));
    file->addAction(tr("&Gallery"), this, &ViewerWindow::showMenuGallery, QKeySequence("Ctrl+G"));
    file->addSeparator();
    file->addAction(tr("&Close"), this, &ViewerWindow::closeFile, QKeySequence("Ctrl+W"));
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &ViewerWindow::close, QKeySequence("Ctrl+Q"));
}

void ViewerWindow::createPages()
{
    m_pages = new QStackedWidget;
    m_pages->setObjectName("pages");
    m_welcomePage = new WelcomePage;
    m_problemPage = new LoadProblemPage;
    m_pages->addWidget(m_welcomePage);
    m_pages->addWidget(m_problemPage);
    m_galleryPage = new GalleryPage;
    m_pages->addWidget(m_galleryPage);
    setCentralWidget(m_pages);
    connect(m_welcomePage, &WelcomePage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_problemPage, &LoadProblemPage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_galleryPage, &GalleryPage::imageRequested, this, &ViewerWindow::openFile);
    connect(m_galleryPage, &GalleryPage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_galleryPage, &GalleryPage::folderRequested, this, &ViewerWindow::chooseFolder);

    m_fileName = new ElidedLabel;
    m_fileName->setObjectName("statusFileName");
    m_imageSize = new QLabel;
    m_imageSize->setObjectName("statusImageSize");
    statusBar()->addWidget(m_fileName, 1);
    statusBar()->addPermanentWidget(m_imageSize);
}

/// Makes a fresh intensity widget in place of the one there is.
void ViewerWindow::createIntensityWidget()
{
    if (m_intensityWidget) {
        m_intensityWidget->hide();
        m_pages->removeWidget(m_intensityWidget);
        m_intensityWidget->deleteLater();
    }
    m_intensityWidget = new CVKIntensityWidget(this); // its panel looks for the slot in its parent
    m_pages->addWidget(m_intensityWidget);
    for (QWidget* child : m_intensityWidget->findChildren<QWidget*>()) {
        // The canvas would accept a dragged file and then do nothing with it.
        child->setAcceptDrops(false);
        if (child->inherits("CVKDisplayPreferences")) {
            scrollInsteadOfChoosing(child);
        }
    }
}

bool ViewerWindow::openFile(const QString& path)
{
    const WaitCursor waitCursor;
    const QFileInfo file(path);
    m_folder = file.absolutePath();
    m_file = file.absoluteFilePath();
    if (!loadIntoWidget(file.absoluteFilePath())) {
        showProblem(path);
        return false;
    }
    nameFile(path, imageSummary(path));
    return true;
}

/// Loads with the widget in front, since only the page in front has its size. Nothing is painted
/// before openFile() has decided which page stays.
bool ViewerWindow::loadIntoWidget(const QString& path)
{
    if (!m_intensityWidget) {
        createIntensityWidget();
    }
    m_intensityWidget->closeImage();
    m_pages->setCurrentWidget(m_intensityWidget);
    if (isHugeRawFileCutShort(path) || !m_intensityWidget->loadImage(path)) {
        return false;
    }
    if (isRawFileWithoutPixels(path)) {
        createIntensityWidget(); // it loads, but its canvas keeps the picture before
        return false;
    }
    return true;
}

void ViewerWindow::showProblem(const QString& path)
{
    m_problemPage->showProblem(path, loadProblem(path));
    m_pages->setCurrentWidget(m_problemPage);
    nameFile(path, QString());
}

void ViewerWindow::nameFile(const QString& path, const QString& summary)
{
    const QString absolute = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    nameWindow(QFileInfo(path).fileName(), absolute, summary);
}

/// Title of the window and texts of the status bar.
void ViewerWindow::nameWindow(const QString& shown, const QString& status, const QString& summary)
{
    const QString application = tr("VKIntensity Viewer");
    const QString name = shown.simplified();
    setWindowTitle(name.isEmpty() ? application : name + " - " + application);
    m_fileName->setText(status);
    m_imageSize->setText(summary);
}

QString ViewerWindow::problem() const
{
    return m_pages->currentWidget() == m_problemPage ? m_problemPage->reason() : QString();
}

void ViewerWindow::chooseFile()
{
    const QString path
        = QFileDialog::getOpenFileName(this, tr("Open Image"), m_folder, openDialogFilter());
    if (!path.isEmpty()) {
        openFile(path);
    }
}

void ViewerWindow::chooseFolder()
{
    const QString path = QFileDialog::getExistingDirectory(this, tr("Open Folder"), m_folder);
    if (!path.isEmpty()) {
        showGallery(path);
    }
}

bool ViewerWindow::openPath(const QString& path)
{
    if (!path.isEmpty() && QFileInfo(path).isDir()) {
        showGallery(path);
        return true;
    }
    return openFile(path);
}

void ViewerWindow::showGallery(const QString& folder)
{
    const WaitCursor waitCursor; // for thousands of files
    releaseImage();
    m_galleryPage->showFolder(folder, m_file);
    m_folder = m_galleryPage->folder();
    m_pages->setCurrentWidget(m_galleryPage);
    m_galleryPage->setFocus();
    const QString name = QDir(m_folder).dirName();
    nameWindow(name, QDir::toNativeSeparators(m_folder), QString());
}

/// The gallery of the menu: before any folder is known, the user chooses one.
void ViewerWindow::showMenuGallery()
{
    if (m_folder.isEmpty()) {
        chooseFolder();
    } else {
        showGallery(m_folder);
    }
}

bool ViewerWindow::isGalleryLoading() const
{
    return m_pages->currentWidget() == m_galleryPage && m_galleryPage->isLoading();
}

void ViewerWindow::showWelcome()
{
    releaseImage();
    m_galleryPage->stopLoading();
    m_pages->setCurrentWidget(m_welcomePage);
    nameWindow(QString(), tr("No image"), QString());
}

/// Closes the image and brings the button that asked for it, if it did, back up.
void ViewerWindow::releaseImage()
{
    if (!m_intensityWidget) {
        return;
    }
    m_intensityWidget->closeImage();
    if (auto* button = m_intensityWidget->findChild<QPushButton*>("Return")) {
        button->setChecked(false);
    }
}

void ViewerWindow::closeFile()
{
    const QWidget* page = m_pages->currentWidget();
    const bool fromFile = page == m_intensityWidget || page == m_problemPage;
    if (fromFile && !imagesInFolder(m_folder).isEmpty()) {
        showGallery(m_folder);
    } else {
        showWelcome();
    }
}

void ViewerWindow::sltSwitchToGallery()
{
    if (m_folder.isEmpty()) {
        showWelcome();
    } else {
        showGallery(m_folder);
    }
}

/// Nothing is read any more for a window that nobody sees.
void ViewerWindow::closeEvent(QCloseEvent* event)
{
    m_galleryPage->stopLoading();
    QMainWindow::closeEvent(event);
}

QString ViewerWindow::draggedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!draggedFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void ViewerWindow::dropEvent(QDropEvent* event)
{
    const QString path = draggedFile(event->mimeData());
    if (path.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    // The program that the file comes from waits until the event is answered.
    QTimer::singleShot(0, this, [this, path] { openPath(path); });
}
