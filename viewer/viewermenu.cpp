#include "viewermenu.h"

#include "recentfiles.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
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

QString keyText(const QAction& action)
{
    return action.shortcut().toString(QKeySequence::NativeText);
}

} // namespace

ViewerMenu::ViewerMenu(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
    buildFileMenu();
    buildEditMenu();
    buildRegionsMenu();
    buildViewMenu();
    buildHelpMenu();
    m_window->addActions(m_actions);
    setAvailable(false, false);
}

QMenu* ViewerMenu::addMenu(const QString& title)
{
    return m_window->menuBar()->addMenu(title);
}

QAction* ViewerMenu::add(QMenu* menu, ViewerCommand command, const char* name, const QString& text,
    const QList<QKeySequence>& keys, Needs needs)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    m_commands.insert(int(command), action);
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
    QMenu* menu = addMenu(tr("&File"));
    add(menu, ViewerCommand::Open, "actionOpen", tr("&Open..."), { QKeySequence("Ctrl+O") });
    add(menu, ViewerCommand::OpenFolder, "actionOpenFolder", tr("Open &Folder..."),
        { QKeySequence("Ctrl+Shift+O") });
    buildRecentMenu(menu->addMenu(tr("Open &Recent")));
    add(menu, ViewerCommand::Gallery, "actionGallery", tr("&Gallery"), { QKeySequence("Ctrl+G") });
    menu->addSeparator();
    add(menu, ViewerCommand::Next, "actionNext", tr("&Next Image"), { QKeySequence("PgDown") },
        Needs::File);
    add(menu, ViewerCommand::Previous, "actionPrevious", tr("&Previous Image"),
        { QKeySequence("PgUp") }, Needs::File);
    add(menu, ViewerCommand::NextPage, "actionNextPage", tr("Next P&age"),
        { QKeySequence("Ctrl+PgDown") });
    add(menu, ViewerCommand::PreviousPage, "actionPreviousPage", tr("Previo&us Page"),
        { QKeySequence("Ctrl+PgUp") });
    add(menu, ViewerCommand::Reload, "actionReload", tr("Re&load"), { QKeySequence("F5") });
    menu->addSeparator();
    add(menu, ViewerCommand::SaveScreenshot, "actionSaveScreenshot", tr("&Save Screenshot..."),
        { QKeySequence("Ctrl+S") });
    addOutput(menu);
    menu->addSeparator();
    add(menu, ViewerCommand::Close, "actionClose", tr("&Close"), { QKeySequence("Ctrl+W") });
    add(menu, ViewerCommand::Quit, "actionQuit", tr("&Quit"), { QKeySequence("Ctrl+Q") });
}

/// Files made from the image in front, and paper.
void ViewerMenu::addOutput(QMenu* menu)
{
    add(menu, ViewerCommand::SavePicture, "actionSavePicture", tr("Save P&icture..."), {},
        Needs::Image);
    add(menu, ViewerCommand::SaveVisiblePart, "actionSaveVisiblePart", tr("Save &Visible Part..."),
        {}, Needs::Image);
    add(menu, ViewerCommand::ExportNumbers, "actionExportNumbers", tr("&Export Numbers..."),
        { QKeySequence("Ctrl+E") }, Needs::Image);
    menu->addSeparator();
    add(menu, ViewerCommand::Print, "actionPrint", tr("Prin&t..."), { QKeySequence("Ctrl+P") });
}

/// The entries stay and change their texts: one of them may just be the caller of what changes
/// them.
void ViewerMenu::buildRecentMenu(QMenu* menu)
{
    m_recent = menu;
    m_recent->setObjectName("menuRecent");
    for (int i = 0; i < RecentFiles::most; ++i) {
        QAction* action = m_recent->addAction(QString());
        connect(action, &QAction::triggered, this, [this, i] { Q_EMIT recentFileChosen(i); });
        m_recentActions << action;
    }
    m_recent->addSeparator();
    m_commands.insert(int(ViewerCommand::ClearRecentFiles), m_recent->addAction(tr("&Clear")));
    setRecentFiles({});
}

void ViewerMenu::buildEditMenu()
{
    QMenu* menu = addMenu(tr("&Edit"));
    add(menu, ViewerCommand::CopyWindow, "actionCopyWindow", tr("&Copy Window"), {})
        ->setWhatsThis(tr("Copy Window or Value"));
    add(menu, ViewerCommand::CopyCanvas, "actionCopyCanvas", tr("Copy C&anvas"),
        { QKeySequence("Ctrl+Shift+C") }, Needs::Image);
    add(menu, ViewerCommand::CopyNumbers, "actionCopyNumbers", tr("Copy &Numbers..."), {},
        Needs::Image);
    add(menu, ViewerCommand::CopyValue, "actionCopyValue", tr("Copy &Value"), {}, Needs::Image);
    setCopyKey(false);
}

void ViewerMenu::buildRegionsMenu()
{
    QMenu* menu = addMenu(tr("&Regions"));
    add(menu, ViewerCommand::AddRegion, "actionAddRegion", tr("&Add Region"),
        { QKeySequence("Ins") });
    add(menu, ViewerCommand::AddRegionByNumbers, "actionAddRegionByNumbers",
        tr("Add Region by &Numbers..."), { QKeySequence("Shift+Ins") })
        ->setWhatsThis(tr("Add by Numbers"));
    add(menu, ViewerCommand::EditRegion, "actionEditRegion", tr("&Edit Numbers..."),
        { QKeySequence(Qt::Key_F2) });
    add(menu, ViewerCommand::DeleteRegion, "actionDeleteRegion", tr("&Delete Region"),
        { QKeySequence(Qt::Key_Delete) });
    menu->addSeparator();
    add(menu, ViewerCommand::Undo, "actionUndo", tr("&Undo"), { QKeySequence("Ctrl+Z") });
    add(menu, ViewerCommand::Redo, "actionRedo", tr("&Redo"),
        { QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y") });
    menu->addSeparator();
    add(menu, ViewerCommand::SaveRegions, "actionSaveRegions", tr("&Save Regions..."), {});
    add(menu, ViewerCommand::LoadRegions, "actionLoadRegions", tr("&Load Regions..."), {});
}

void ViewerMenu::buildViewMenu()
{
    QMenu* menu = addMenu(tr("&View"));
    m_zoomActions << add(menu, ViewerCommand::ZoomIn, "actionZoomIn", tr("Zoom &In"),
        { QKeySequence("Ctrl++"), QKeySequence("Ctrl+=") });
    m_zoomActions << add(
        menu, ViewerCommand::ZoomOut, "actionZoomOut", tr("Zoom &Out"), { QKeySequence("Ctrl+-") });
    m_zoomActions << add(
        menu, ViewerCommand::Fit, "actionFit", tr("&Whole Image"), { QKeySequence("Ctrl+0") });
    menu->addSeparator();
    addViews(menu);
    menu->addSeparator();
    addPalettes(menu->addMenu(tr("&Palette")));
    add(menu, ViewerCommand::KeepSettings, "actionKeepSettings", tr("&Keep Settings"), {})
        ->setCheckable(true);
    menu->addSeparator();
    add(menu, ViewerCommand::FullScreen, "actionFullScreen", tr("&Full Screen"),
        { QKeySequence("F11") })
        ->setCheckable(true);
    auto* leave = new QAction(this);
    leave->setObjectName("actionLeaveFullScreen");
    leave->setShortcut(QKeySequence("Esc"));
    leave->setWhatsThis(tr("Leave the full screen"));
    m_actions << leave;
    m_commands.insert(int(ViewerCommand::LeaveFullScreen), leave);
    markFullScreen(false);
}

void ViewerMenu::addViews(QMenu* menu)
{
    m_viewActions << add(menu, ViewerCommand::ImageView, "actionImageView", tr("I&mage"),
        { QKeySequence("Ctrl+1") }, Needs::Image);
    m_viewActions << add(menu, ViewerCommand::RowChart, "actionRowChart",
        tr("2D Chart of the &Row"), { QKeySequence("Ctrl+2") }, Needs::Image);
    m_viewActions << add(menu, ViewerCommand::ColumnChart, "actionColumnChart",
        tr("2D Chart of the &Column"), { QKeySequence("Ctrl+3") }, Needs::Image);
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
    const QStringList names = CVKIntensityWidget::colorPalettes();
    for (int i = 0; i < names.size(); ++i) {
        QAction* action = menu->addAction(texts[i]);
        action->setObjectName("actionPalette" + names[i]);
        action->setShortcut(QKeySequence(QString("Alt+%1").arg(i + 1)));
        action->setWhatsThis(helps[i]);
        connect(action, &QAction::triggered, this,
            [this, name = names[i]] { Q_EMIT paletteChosen(name); });
        m_actions << action;
        m_imageActions << action;
    }
}

void ViewerMenu::buildHelpMenu()
{
    QMenu* menu = addMenu(tr("&Help"));
    add(menu, ViewerCommand::Help, "actionHelp", tr("&Mouse and Keys"), { QKeySequence("F1") });
    add(menu, ViewerCommand::UserGuide, "actionUserGuide", tr("User &Guide"),
        { QKeySequence("Shift+F1") });
    add(menu, ViewerCommand::About, "actionAbout", tr("&About"), {});
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

void ViewerMenu::markView(CVKIntensityWidget::View view)
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

void ViewerMenu::setCopyKey(bool copiesValue)
{
    const QKeySequence copy("Ctrl+C");
    QAction* const window = action(ViewerCommand::CopyWindow);
    QAction* const value = action(ViewerCommand::CopyValue);
    (copiesValue ? window : value)->setShortcut(QKeySequence()); // one key never means both
    (copiesValue ? value : window)->setShortcut(copy);
}

void ViewerMenu::markFullScreen(bool isFull)
{
    action(ViewerCommand::FullScreen)->setChecked(isFull);
    action(ViewerCommand::LeaveFullScreen)->setEnabled(isFull);
}

QVector<HelpLine> ViewerMenu::keys() const
{
    QVector<HelpLine> lines;
    for (const QAction* action : m_actions) {
        if (!action->shortcut().isEmpty()) {
            const QString help = action->whatsThis();
            lines << HelpLine { keyText(*action),
                help.isEmpty() ? plainText(action->text()) : help };
        }
    }
    return lines;
}
