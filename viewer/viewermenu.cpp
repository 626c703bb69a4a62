#include "viewermenu.h"

#include "imagecontrols.h"
#include "recentfiles.h"
#include "viewerwindow.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

namespace {

/// The text of a menu entry without what marks its access key and that a question follows.
QString plainText(const QString& text)
{
    static const QRegularExpression accessKeyBehind("\\s*\\(&.\\)"); // as in Chinese menus
    static const QRegularExpression dots("(\\.\\.\\.|…)$");
    return QString(text).remove(accessKeyBehind).remove(dots).remove('&');
}

QString keyTexts(const QAction& action)
{
    return action.shortcut().toString(QKeySequence::NativeText);
}

} // namespace

ViewerMenu::ViewerMenu(ViewerWindow* window)
    : QObject(window)
    , m_window(window)
{
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildHelpMenu();
    m_window->addActions(m_actions);
    setAvailable(false, false);
}

QAction* ViewerMenu::add(QMenu* menu, const char* name, const QString& text,
    const QList<QKeySequence>& keys, Slot slot, Needs needs)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, m_window, slot);
    m_actions << action;
    if (needs == Needs::Image) {
        m_imageActions << action;
    } else if (needs == Needs::File) {
        m_fileActions << action;
    }
    return action;
}

void ViewerMenu::buildFileMenu()
{
    QMenu* menu = m_window->menuBar()->addMenu(tr("&File"));
    add(menu, "actionOpen", tr("&Open..."), { QKeySequence("Ctrl+O") }, &ViewerWindow::chooseFile);
    add(menu, "actionOpenFolder", tr("Open &Folder..."), { QKeySequence("Ctrl+Shift+O") },
        &ViewerWindow::chooseFolder);
    buildRecentMenu(menu->addMenu(tr("Open &Recent")));
    add(menu, "actionGallery", tr("&Gallery"), { QKeySequence("Ctrl+G") },
        &ViewerWindow::showMenuGallery);
    menu->addSeparator();
    add(menu, "actionNext", tr("&Next Image"), { QKeySequence("PgDown") }, &ViewerWindow::showNext,
        Needs::File);
    add(menu, "actionPrevious", tr("&Previous Image"), { QKeySequence("PgUp") },
        &ViewerWindow::showPrevious, Needs::File);
    add(menu, "actionReload", tr("Re&load"), { QKeySequence("F5") }, &ViewerWindow::reload,
        Needs::File);
    menu->addSeparator();
    add(menu, "actionSaveScreenshot", tr("&Save Screenshot..."), { QKeySequence("Ctrl+S") },
        &ViewerWindow::saveScreenshot);
    menu->addSeparator();
    add(menu, "actionClose", tr("&Close"), { QKeySequence("Ctrl+W") }, &ViewerWindow::closeFile);
    add(menu, "actionQuit", tr("&Quit"), { QKeySequence("Ctrl+Q") }, &ViewerWindow::quit);
}

/// The entries stay and change their texts: one of them may just be the caller of what changes
/// them.
void ViewerMenu::buildRecentMenu(QMenu* menu)
{
    m_recent = menu;
    m_recent->setObjectName("menuRecent");
    for (int i = 0; i < RecentFiles::most; ++i) {
        QAction* action = m_recent->addAction(QString());
        connect(action, &QAction::triggered, m_window, [this, i] { m_window->openRecentFile(i); });
        m_recentActions << action;
    }
    m_recent->addSeparator();
    m_recent->addAction(tr("&Clear"), m_window, &ViewerWindow::clearRecentFiles);
    setRecentFiles({});
}

void ViewerMenu::buildEditMenu()
{
    QMenu* menu = m_window->menuBar()->addMenu(tr("&Edit"));
    add(menu, "actionCopyWindow", tr("&Copy Window"), { QKeySequence("Ctrl+C") },
        &ViewerWindow::copyWindow);
    add(menu, "actionCopyCanvas", tr("Copy C&anvas"), { QKeySequence("Ctrl+Shift+C") },
        &ViewerWindow::copyCanvas, Needs::Image);
}

void ViewerMenu::buildViewMenu()
{
    QMenu* menu = m_window->menuBar()->addMenu(tr("&View"));
    m_zoomActions << add(menu, "actionZoomIn", tr("Zoom &In"),
        { QKeySequence("Ctrl++"), QKeySequence("Ctrl+=") }, &ViewerWindow::zoomIn);
    m_zoomActions << add(
        menu, "actionZoomOut", tr("Zoom &Out"), { QKeySequence("Ctrl+-") }, &ViewerWindow::zoomOut);
    menu->addSeparator();
    addViews(menu);
    menu->addSeparator();
    addPalettes(menu->addMenu(tr("&Palette")));
    menu->addSeparator();
    m_fullScreen = add(menu, "actionFullScreen", tr("&Full Screen"), { QKeySequence("F11") },
        &ViewerWindow::toggleFullScreen);
    m_fullScreen->setCheckable(true);
    m_leaveFullScreen = new QAction(this);
    m_leaveFullScreen->setObjectName("actionLeaveFullScreen");
    m_leaveFullScreen->setShortcut(QKeySequence("Esc"));
    connect(m_leaveFullScreen, &QAction::triggered, m_window, &ViewerWindow::toggleFullScreen);
    m_window->addAction(m_leaveFullScreen);
    markFullScreen(false);
}

void ViewerMenu::addViews(QMenu* menu)
{
    m_viewActions << add(menu, "actionImageView", tr("I&mage"), { QKeySequence("Ctrl+1") },
        &ViewerWindow::showImageView, Needs::Image);
    m_viewActions << add(menu, "actionRowChart", tr("2D Chart of the &Row"),
        { QKeySequence("Ctrl+2") }, &ViewerWindow::showRowChart, Needs::Image);
    m_viewActions << add(menu, "actionColumnChart", tr("2D Chart of the &Column"),
        { QKeySequence("Ctrl+3") }, &ViewerWindow::showColumnChart, Needs::Image);
    auto* group = new QActionGroup(this);
    for (QAction* action : m_viewActions) {
        action->setCheckable(true);
        group->addAction(action);
    }
}

void ViewerMenu::addPalettes(QMenu* menu)
{
    const QStringList texts { tr("&Gray"), tr("&Red"), tr("Gr&een"), tr("&Blue"), tr("&Color") };
    const QStringList helps { tr("Gray palette"), tr("Red palette"), tr("Green palette"),
        tr("Blue palette"), tr("Color palette") };
    const QStringList names = ImageControls::paletteNames();
    for (int i = 0; i < names.size(); ++i) {
        QAction* action = menu->addAction(texts[i]);
        action->setObjectName("actionPalette" + names[i]);
        action->setShortcut(QKeySequence(QString("Alt+%1").arg(i + 1)));
        action->setWhatsThis(helps[i]);
        connect(action, &QAction::triggered, m_window,
            [this, name = names[i]] { m_window->choosePalette(name); });
        m_actions << action;
        m_imageActions << action;
    }
}

void ViewerMenu::buildHelpMenu()
{
    QMenu* menu = m_window->menuBar()->addMenu(tr("&Help"));
    add(menu, "actionHelp", tr("&Mouse and Keys"), { QKeySequence("F1") }, &ViewerWindow::showHelp);
    add(menu, "actionAbout", tr("&About"), {}, &ViewerWindow::showAbout);
}

void ViewerMenu::setAvailable(bool isImage, bool isFile)
{
    for (QAction* action : m_imageActions) {
        action->setEnabled(isImage);
    }
    for (QAction* action : m_fileActions) {
        action->setEnabled(isFile);
    }
}

void ViewerMenu::setZoomAvailable(bool available)
{
    for (QAction* action : m_zoomActions) {
        action->setEnabled(available);
    }
}

void ViewerMenu::markView(ImageView view)
{
    m_viewActions[int(view)]->setChecked(true);
}

void ViewerMenu::setRecentFiles(const QStringList& texts)
{
    for (int i = 0; i < m_recentActions.size(); ++i) {
        m_recentActions[i]->setText(texts.value(i));
        m_recentActions[i]->setVisible(i < texts.size());
    }
    m_recent->setEnabled(!texts.isEmpty());
}

void ViewerMenu::markFullScreen(bool isFull)
{
    m_fullScreen->setChecked(isFull);
    m_leaveFullScreen->setEnabled(isFull);
}

QVector<HelpLine> ViewerMenu::keys() const
{
    QVector<HelpLine> lines;
    for (const QAction* action : m_actions) {
        if (!action->shortcut().isEmpty()) {
            const QString help = action->whatsThis();
            lines << HelpLine { keyTexts(*action),
                help.isEmpty() ? plainText(action->text()) : help };
        }
    }
    return lines;
}
