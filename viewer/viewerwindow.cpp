#include "viewerwindow.h"

#include "about.h"
#include "appearance.h"
#include "crosshairkeys.h"
#include "filedrop.h"
#include "gallerypage.h"
#include "helpoverlay.h"
#include "imagecommands.h"
#include "imagedocument.h"
#include "imagefiles.h"
#include "imagepage.h"
#include "imagetexts.h"
#include "nextimagereader.h"
#include "numbercommands.h"
#include "pagenavigation.h"
#include "pages.h"
#include "picturecommands.h"
#include "pointerreadout.h"
#include "printcommand.h"
#include "regioncommands.h"
#include "settingskeeper.h"
#include "statusline.h"
#include "userguide.h"
#include "viewermenu.h"
#include "waitcursor.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>

namespace {

constexpr int vanishMilliseconds = 30;

} // namespace

ViewerWindow::ViewerWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setAcceptDrops(true);
    createPages();
    m_status = new StatusLine;
    setStatusBar(m_status);
    createMenu();
    m_help = new HelpOverlay(m_menu->keys() + CrossHairKeys::help(), this);
    connectDocument();
    new UserGuide(m_menu, this);
    connect(m_status, &QStatusBar::messageChanged, this, &ViewerWindow::updateBars);
    // Room for the panel column, the strips beside the image and a little image.
    setMinimumSize(scaledForScreen(290) + 350, 480);
    showWelcome();
}

void ViewerWindow::connectDocument()
{
    m_document = new ImageDocument(m_imagePage, this);
    connect(m_document, &ImageDocument::loadStarts, this, &ViewerWindow::startLoad);
    connect(m_document, &ImageDocument::loadProgressed, this, &ViewerWindow::showProgress);
    connect(m_document, &ImageDocument::loaded, this, &ViewerWindow::showImage);
    connect(m_document, &ImageDocument::refused, this, &ViewerWindow::showProblem);
    m_nextReader = new NextImageReader(m_document, this);
    new PageNavigation(m_menu, m_document, m_status, this);
    new PointerReadout(m_imagePage, m_status, this);
    m_settingsKeeper = new SettingsKeeper(m_menu, m_document, m_status, &m_session, this);
}

void ViewerWindow::createMenu()
{
    m_menu = new ViewerMenu(this);
    using Slot = void (ViewerWindow::*)();
    const QVector<QPair<ViewerCommand, Slot>> commands {
        { ViewerCommand::Open, &ViewerWindow::chooseFile },
        { ViewerCommand::OpenFolder, &ViewerWindow::chooseFolder },
        { ViewerCommand::Gallery, &ViewerWindow::showMenuGallery },
        { ViewerCommand::Next, &ViewerWindow::showNext },
        { ViewerCommand::Previous, &ViewerWindow::showPrevious },
        { ViewerCommand::Reload, &ViewerWindow::reload },
        { ViewerCommand::Close, &ViewerWindow::closeFile },
        { ViewerCommand::Quit, &ViewerWindow::quit },
        { ViewerCommand::ClearRecentFiles, &ViewerWindow::clearRecentFiles },
        { ViewerCommand::FullScreen, &ViewerWindow::toggleFullScreen },
        { ViewerCommand::LeaveFullScreen, &ViewerWindow::toggleFullScreen },
        { ViewerCommand::Help, &ViewerWindow::showHelp },
        { ViewerCommand::About, &ViewerWindow::showAbout },
    };
    for (const auto& [command, slot] : commands) {
        connect(m_menu->action(command), &QAction::triggered, this, slot);
    }
    connect(m_menu, &ViewerMenu::recentFileChosen, this, &ViewerWindow::openRecentFile);
    updateRecentFiles();
    connect(m_imagePage, &ImagePage::displayChanged, this, &ViewerWindow::updateMenu);
    new ImageCommands(m_menu, m_imagePage, m_status);
    new CrossHairKeys(m_imagePage);
    m_regions = new RegionCommands(m_menu, m_imagePage);
    new PictureCommands(this, *m_menu, m_imagePage, m_status);
    new NumberCommands(this, m_menu, m_imagePage, m_status);
    new PrintCommand(this, *m_menu, m_imagePage, m_status);
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
    m_imagePage = new ImagePage;
    m_pages->addWidget(m_imagePage);
    setCentralWidget(m_pages);
    connect(m_welcomePage, &WelcomePage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_problemPage, &LoadProblemPage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_galleryPage, &GalleryPage::imageRequested, this,
        [this](const QString& path) { openFile(path); });
    connect(m_galleryPage, &GalleryPage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_galleryPage, &GalleryPage::folderRequested, this, &ViewerWindow::chooseFolder);
    connect(m_imagePage, &ImagePage::returnRequested, this, &ViewerWindow::leaveImage);
}

bool ViewerWindow::restoreSession(std::unique_ptr<QSettings> settings)
{
    m_session.open(std::move(settings));
    m_folder = m_session.folder();
    m_settingsKeeper->restore();
    updateRecentFiles();
    const bool restored = restoreGeometry(m_session.geometry());
    setWindowState(windowState() & ~Qt::WindowFullScreen); // nobody expects to start without a menu
    return restored;
}

void ViewerWindow::showPage(QWidget* page)
{
    m_pages->setCurrentWidget(page);
    updateMenu();
}

/// What can be chosen follows the page in front, and within the image the view that it shows.
void ViewerWindow::updateMenu()
{
    const QWidget* page = m_pages->currentWidget();
    const bool isImage = page == m_imagePage;
    const CVKIntensityWidget* image = m_imagePage->intensityWidget();
    const CVKIntensityWidget::View view = image->view();
    const bool isFile = isImage || page == m_problemPage;
    m_menu->setAvailable(isImage, isFile);
    m_menu->action(ViewerCommand::Reload)->setEnabled(isFile || page == m_galleryPage);
    m_menu->setZoomAvailable(isImage && view == CVKIntensityWidget::View::Image);
    m_menu->markView(view);
}

void ViewerWindow::updateRecentFiles()
{
    const RecentFiles& files = m_session.recentFiles();
    QStringList recent;
    for (int i = 0; i < files.paths().size(); ++i) {
        recent << files.menuText(i);
    }
    m_menu->setRecentFiles(recent);
}

bool ViewerWindow::openFile(const QString& path, int page)
{
    return m_document->open(path, page);
}

void ViewerWindow::startLoad()
{
    m_folder = QFileInfo(m_document->file()).absolutePath();
    nameFile();
    m_pages->setCurrentWidget(m_imagePage);
}

void ViewerWindow::showProgress(int percent)
{
    if (percent == 0) {
        m_status->show(); // also on a full screen
        m_status->showLoading(QFileInfo(m_document->file()).fileName());
    } else {
        m_status->showProgress(percent);
    }
}

void ViewerWindow::showImage(qint64 milliseconds, const QString& problem)
{
    m_status->hideProgress();
    m_session.addRecentFile(m_document->file());
    updateRecentFiles();
    updateMenu();
    nameFile();
    m_status->showImage(imageSummary(m_imagePage->intensityWidget()->imageInfo()), milliseconds);
    if (!problem.isEmpty()) {
        m_status->showMessage(tr("Not all is as before: %1.").arg(problem));
    }
    m_regions->forgetSteps(); // regions that were put back are none of the user's changes
    updateBars();
}

void ViewerWindow::showProblem()
{
    const QString path = m_document->file();
    m_status->hideProgress();
    m_problemPage->showProblem(
        path, problemText(path, m_imagePage->intensityWidget()->loadProblem()));
    showPage(m_problemPage);
    nameFile();
    updateBars();
}

void ViewerWindow::nameFile()
{
    const QFileInfo file(m_document->file());
    nameWindow(file.fileName(), file.absoluteFilePath());
}

/// Title of the window and text of the status line; `path` is empty for no image.
void ViewerWindow::nameWindow(const QString& shown, const QString& path)
{
    const QString application = tr("VKIntensity Viewer");
    const QString name = shown.simplified();
    setWindowTitle(name.isEmpty() ? application : name + " - " + application);
    m_status->clearMessage(); // about what was shown before
    m_status->showName(path.isEmpty() ? tr("No image") : QDir::toNativeSeparators(path));
    setWindowFilePath(path); // files are saved under a name made from it
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
        openSoon(path);
    }
}

void ViewerWindow::chooseFolder()
{
    const QString path = QFileDialog::getExistingDirectory(this, tr("Open Folder"), m_folder);
    if (!path.isEmpty()) {
        openSoon(path);
    }
}

/// Opens a file or folder once the dialog or menu that named it has left the screen: a long load
/// would keep it there.
void ViewerWindow::openSoon(const QString& path)
{
    QTimer::singleShot(vanishMilliseconds, this, [this, path] { openPath(path); });
}

bool ViewerWindow::openPath(const QString& path, int page)
{
    if (!path.isEmpty() && QFileInfo(path).isDir()) {
        showGallery(path);
        return true;
    }
    return openFile(path, page);
}

void ViewerWindow::showGallery(const QString& folder)
{
    const WaitCursor waitCursor; // for thousands of files
    m_document->close();
    m_galleryPage->showFolder(folder, m_document->file());
    m_folder = m_galleryPage->folder();
    showPage(m_galleryPage);
    m_galleryPage->setFocus();
    nameWindow(QDir(m_folder).dirName(), m_folder);
}

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
    m_document->forget();
    m_galleryPage->stopLoading();
    showPage(m_welcomePage);
    nameWindow(QString(), QString());
}

void ViewerWindow::closeFile()
{
    const QWidget* page = m_pages->currentWidget();
    const bool fromFile = page == m_imagePage || page == m_problemPage;
    if (fromFile && !imagesInFolder(m_folder).isEmpty()) {
        showGallery(m_folder);
    } else {
        showWelcome();
    }
}

void ViewerWindow::leaveImage()
{
    if (m_folder.isEmpty()) {
        showWelcome();
    } else {
        showGallery(m_folder);
    }
}

void ViewerWindow::showNext()
{
    showNeighbour(1, tr("This is the last image of the folder."));
}

void ViewerWindow::showPrevious()
{
    showNeighbour(-1, tr("This is the first image of the folder."));
}

void ViewerWindow::showNeighbour(int step, const QString& lackOfOne)
{
    const QString path = neighbourInFolder(m_document->file(), step);
    if (path.isEmpty()) {
        m_status->tell(lackOfOne);
    } else {
        m_nextReader->setDirection(step);
        openFile(path);
    }
}

void ViewerWindow::reload()
{
    if (m_pages->currentWidget() == m_galleryPage) {
        showGallery(m_folder);
    } else {
        m_document->reload();
    }
}

QSize ViewerWindow::imageSize() const
{
    return m_imagePage->intensityWidget()->imageInfo().size;
}

QString ViewerWindow::applySettings(const DisplaySettings& settings)
{
    if (m_pages->currentWidget() != m_imagePage) {
        return tr("only an image has controls to set");
    }
    const QString problem = ::applySettings(settings, m_imagePage->intensityWidget());
    m_regions->forgetSteps();
    return problem;
}

void ViewerWindow::hideLoadTime()
{
    m_status->hideTime();
}

void ViewerWindow::openRecentFile(int index)
{
    const QString path = m_session.recentFiles().paths().value(index);
    const QFileInfo file(path);
    if (!file.exists() && file.dir().exists()) { // else its drive may just be away
        m_session.removeRecentFile(path);
        updateRecentFiles();
    }
    if (!path.isEmpty()) {
        openSoon(path);
    }
}

void ViewerWindow::clearRecentFiles()
{
    m_session.clearRecentFiles();
    updateRecentFiles();
}

void ViewerWindow::toggleFullScreen()
{
    setWindowState(windowState() ^ Qt::WindowFullScreen); // keeps whether it was maximised
}

void ViewerWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        updateBars();
        m_menu->markFullScreen(isFullScreen());
    }
    QMainWindow::changeEvent(event);
}

/// Nothing but the page is shown on a full screen, whoever asked for it, and messages while there
/// are any; the keys go on working.
void ViewerWindow::updateBars()
{
    menuBar()->setVisible(!isFullScreen());
    m_status->setVisible(!isFullScreen() || !m_status->currentMessage().isEmpty());
}

void ViewerWindow::showHelp()
{
    m_help->open();
}

void ViewerWindow::showAbout()
{
    QMessageBox::about(this, tr("About VKIntensity Viewer"), aboutText());
}

void ViewerWindow::quit()
{
    close();
}

/// Nothing is read any more for a window that nobody sees.
void ViewerWindow::closeEvent(QCloseEvent* event)
{
    m_session.store(saveGeometry(), m_folder);
    m_document->stopFollowing();
    m_nextReader->cancel();
    m_galleryPage->stopLoading();
    QMainWindow::closeEvent(event);
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event)
{
    acceptedFile(event);
}

void ViewerWindow::dropEvent(QDropEvent* event)
{
    const QString path = acceptedFile(event);
    if (!path.isEmpty()) {
        // The program that the file comes from waits until the event is answered.
        QTimer::singleShot(0, this, [this, path] {
            if (!m_regions->takesFile(path)) {
                openPath(path);
            }
        });
    }
}
