#pragma once

#include "cvkintensitywidget.h"
#include "helpoverlay.h"

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QStringList>

class QAction;
class QMainWindow;
class QMenu;

/// What the menus offer beside recent files and palettes.
enum class ViewerCommand {
    Open,
    OpenFolder,
    ClearRecentFiles,
    Gallery,
    Next,
    Previous,
    NextPage,
    PreviousPage,
    Reload,
    SaveScreenshot,
    SavePicture,
    SaveVisiblePart,
    ExportNumbers,
    Print,
    Close,
    Quit,
    CopyWindow,
    CopyCanvas,
    CopyNumbers,
    CopyValue,
    AddRegion,
    AddRegionByNumbers,
    EditRegion,
    DeleteRegion,
    Undo,
    Redo,
    SaveRegions,
    LoadRegions,
    ZoomIn,
    ZoomOut,
    Fit,
    ImageView,
    RowChart,
    ColumnChart,
    KeepSettings,
    FullScreen,
    LeaveFullScreen, ///< by its key alone
    Help,
    UserGuide,
    About
};

/// The menus of a window, with their keys. The entries are also actions of the window itself: their
/// keys work while the menu bar is hidden.
class ViewerMenu : public QObject
{
    Q_OBJECT

public:
    explicit ViewerMenu(QMainWindow* window);

    /// The entry; its triggered() tells that it was chosen.
    QAction* action(ViewerCommand command) const { return m_commands.value(int(command)); }

    /// What can be done now: `isImage` with an image in front, `isFile` with an image or the page
    /// that says why there is none.
    void setAvailable(bool isImage, bool isFile);

    /// Whether the zoom buttons are there to be clicked.
    void setZoomAvailable(bool available);

    void markView(CVKIntensityWidget::View view);

    /// One entry a text, RecentFiles::most of them at most.
    void setRecentFiles(const QStringList& texts);

    void markFullScreen(bool isFull);

    /// Whether Ctrl+C copies the value under the cross-hair; else it copies the window.
    void setCopyKey(bool copiesValue);

    /// Every key, in the order of the menus.
    QVector<HelpLine> keys() const;

Q_SIGNALS:
    void recentFileChosen(int index);
    void paletteChosen(const QString& name); ///< one of CVKIntensityWidget::colorPalettes()

private:
    enum class Needs { Nothing, File, Image };
    QMenu* addMenu(const QString& title);
    QAction* add(QMenu* menu, ViewerCommand command, const char* name, const QString& text,
        const QList<QKeySequence>& keys, Needs needs = Needs::Nothing);
    void buildFileMenu();
    void addOutput(QMenu* menu);
    void buildRecentMenu(QMenu* menu);
    void buildEditMenu();
    void buildRegionsMenu();
    void buildViewMenu();
    void addViews(QMenu* menu);
    void addPalettes(QMenu* menu);
    void buildHelpMenu();

    QMainWindow* m_window;
    QHash<int, QAction*> m_commands; // by ViewerCommand
    QMenu* m_recent = nullptr;
    QList<QAction*> m_recentActions; // hidden beyond the files there are
    QList<QAction*> m_actions; // in the order of the menus, with what is a key alone
    QList<QAction*> m_imageActions;
    QList<QAction*> m_fileActions;
    QList<QAction*> m_zoomActions;
    QList<QAction*> m_viewActions; // in the order of CVKIntensityWidget::View
};
