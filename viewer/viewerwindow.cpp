#include "viewerwindow.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "elidedlabel.h"
#include "imagefiles.h"
#include "pages.h"

#include <QApplication>
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
    closeFile();
}

void ViewerWindow::createMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open..."), this, &ViewerWindow::chooseFile, QKeySequence::Open);
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
    setCentralWidget(m_pages);
    connect(m_welcomePage, &WelcomePage::openRequested, this, &ViewerWindow::chooseFile);
    connect(m_problemPage, &LoadProblemPage::openRequested, this, &ViewerWindow::chooseFile);

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
    // The canvas would accept a dragged file and then do nothing with it.
    for (QWidget* child : m_intensityWidget->findChildren<QWidget*>()) {
        child->setAcceptDrops(false);
    }
}

bool ViewerWindow::openFile(const QString& path)
{
    const WaitCursor waitCursor;
    const QFileInfo file(path);
    m_folder = file.absolutePath();
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
    const QString application = tr("VKIntensity Viewer");
    const QString name = QFileInfo(path).fileName().simplified();
    setWindowTitle(name.isEmpty() ? application : name + " - " + application);
    const QString absolute = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    m_fileName->setText(path.isEmpty() ? tr("No image") : absolute);
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

void ViewerWindow::closeFile()
{
    if (m_intensityWidget) {
        m_intensityWidget->closeImage();
    }
    m_pages->setCurrentWidget(m_welcomePage);
    nameFile(QString(), QString());
}

void ViewerWindow::sltSwitchToGallery()
{
    closeFile();
    auto* const button
        = m_intensityWidget ? m_intensityWidget->findChild<QPushButton*>("Return") : nullptr;
    if (button) {
        button->setChecked(false); // it is checkable, and the click has checked it
    }
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
    QTimer::singleShot(0, this, [this, path] { openFile(path); });
}
