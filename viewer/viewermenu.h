#pragma once

#include "helpoverlay.h"

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QStringList>

class QAction;
class QMenu;
class ViewerWindow;
enum class ImageView;

/// The menus of the window, whose entries call it. The entries are also actions of the window
/// itself: their keys work while the menu bar is hidden.
class ViewerMenu : public QObject
{
    Q_OBJECT

public:
    explicit ViewerMenu(ViewerWindow* window);

    /// What can be done now: `isImage` with an image in front, `isFile` with an image or the page
    /// that says why there is none.
    void setAvailable(bool isImage, bool isFile);

    /// Whether the zoom buttons are there to be clicked.
    void setZoomAvailable(bool available);

    void markView(ImageView view);

    /// One entry a text, RecentFiles::most of them at most; choosing one calls
    /// ViewerWindow::openRecentFile() with its index.
    void setRecentFiles(const QStringList& texts);

    void markFullScreen(bool isFull);

    /// Every key, in the order of the menus.
    QVector<HelpLine> keys() const;

private:
    enum class Needs { Nothing, File, Image };
    using Slot = void (ViewerWindow::*)();
    QAction* add(QMenu* menu, const char* name, const QString& text,
        const QList<QKeySequence>& keys, Slot slot, Needs needs = Needs::Nothing);
    void buildFileMenu();
    void buildRecentMenu(QMenu* menu);
    void buildEditMenu();
    void buildViewMenu();
    void addViews(QMenu* menu);
    void addPalettes(QMenu* menu);
    void buildHelpMenu();

    ViewerWindow* m_window;
    QMenu* m_recent = nullptr;
    QList<QAction*> m_recentActions; // hidden beyond the files there are
    QList<QAction*> m_actions; // in the order of the menus
    QList<QAction*> m_imageActions;
    QList<QAction*> m_fileActions;
    QList<QAction*> m_zoomActions;
    QList<QAction*> m_viewActions; // in the order of ImageView
    QAction* m_fullScreen = nullptr;
    QAction* m_leaveFullScreen = nullptr; // by a key alone
};
