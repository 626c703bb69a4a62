#include "userguide.h"

#include "appearance.h"
#include "viewermenu.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>

namespace {

constexpr char firstPage[] = "user-guide.html";

// At 96 dots per inch.
constexpr int windowWidth = 880;
constexpr int windowHeight = 760;
constexpr int widestPicture = 800;

constexpr char pageStyle[] = "a { color: #7fc6d0; } h1, h2, h3 { color: #fafafa; } "
                             "table { border-color: #3d4956; border-style: solid; "
                             "border-collapse: collapse; } "
                             "td { padding: 4px 8px; } "
                             "code, pre { color: #e6c9a8; }";

} // namespace

GuideBrowser::GuideBrowser(const QString& folder, QWidget* parent)
    : QTextBrowser(parent)
    , m_folder(QFileInfo(folder).canonicalFilePath())
{
    setObjectName("guideBrowser");
    setAttribute(Qt::WA_DeleteOnClose);
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDefaultStyleSheet(pageStyle);
    document()->setDocumentMargin(scaledForScreen(20));
    connect(this, &QTextBrowser::anchorClicked, this, &GuideBrowser::follow);
}

bool GuideBrowser::showPage(const QString& name)
{
    const QUrl page = QUrl::fromLocalFile(QDir(m_folder).filePath(name));
    if (!isInFolder(page)) {
        return false;
    }
    setSource(page);
    return true;
}

/// Whether the file is there, wherever links in the file system lead.
bool GuideBrowser::isInFolder(const QUrl& url) const
{
    const QFileInfo file(url.toLocalFile());
    return url.isLocalFile() && file.isFile() && !m_folder.isEmpty()
        && file.canonicalFilePath().startsWith(m_folder + '/');
}

void GuideBrowser::follow(const QUrl& link)
{
    const QUrl page = source().resolved(link);
    if (isInFolder(page)) {
        setSource(page);
    }
}

QVariant GuideBrowser::loadResource(int type, const QUrl& url)
{
    const QUrl resource = source().resolved(url);
    if (!isInFolder(resource)) {
        return QVariant();
    }
    if (type != QTextDocument::ImageResource) {
        return QTextBrowser::loadResource(type, resource);
    }
    const QImage picture(resource.toLocalFile());
    const int widest = scaledForScreen(widestPicture);
    return picture.width() > widest ? picture.scaledToWidth(widest, Qt::SmoothTransformation)
                                    : picture;
}

void GuideBrowser::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close)) {
        close();
    } else {
        QTextBrowser::keyPressEvent(event);
    }
}

UserGuide::UserGuide(ViewerMenu* menu, QWidget* window)
    : QObject(window)
    , m_parent(window)
    , m_folder(QCoreApplication::applicationDirPath() + "/guide")
{
    connect(menu->action(ViewerCommand::UserGuide), &QAction::triggered, this, &UserGuide::open);
}

void UserGuide::open()
{
    if (!m_browser) {
        m_browser = new GuideBrowser(m_folder, m_parent);
        m_browser->setWindowFlags(Qt::Window);
        m_browser->setWindowTitle(tr("User Guide"));
        const QSize size(scaledForScreen(windowWidth), scaledForScreen(windowHeight));
        const QScreen* screen = m_parent->screen();
        m_browser->resize(screen ? size.boundedTo(screen->availableSize() * 0.9) : size);
    }
    if (!m_browser->showPage(firstPage)) {
        delete m_browser;
        QMessageBox::warning(m_parent, tr("User Guide"),
            tr("The user guide is not there: it belongs into the folder %1.")
                .arg(QDir::toNativeSeparators(m_folder)));
        return;
    }
    m_browser->show();
    m_browser->raise();
    m_browser->activateWindow();
}
