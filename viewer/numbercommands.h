#pragma once

#include "exportdialog.h"
#include "filesaver.h"

#include <QObject>
#include <QPointer>

class ImagePage;
class QMainWindow;
class StatusLine;
class ViewerMenu;

/// What the menus offer to do with numbers: exporting them as a file, and copying them or the one
/// value under the cross-hair. While the canvas has the keyboard focus, the copy key means that
/// value.
class NumberCommands : public QObject
{
    Q_OBJECT

public:
    /// Connects the menu entries. All parts belong to the window.
    NumberCommands(QMainWindow* window, ViewerMenu* menu, ImagePage* page, StatusLine* status);

private:
    void askFor(ExportDialog::Way first);
    void saveFile();
    void copyText();
    void copyValue();
    void followFocus(const QWidget* focused);

    QMainWindow* m_window;
    ViewerMenu* m_menu;
    QPointer<ImagePage> m_page;
    StatusLine* m_status;
    FileSaver m_saver;
    ExportChoice m_choice; // of the last time
};
