#pragma once

#include <QObject>

class ImagePage;
class StatusLine;
class ViewerMenu;

/// The entries of the menus that change how the image in front is shown: zoom, view, palette.
class ImageCommands : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the page; menu and status line outlive it.
    ImageCommands(ViewerMenu* menu, ImagePage* page, StatusLine* status);

private:
    void choosePalette(const QString& name);

    ImagePage* m_page;
    StatusLine* m_status;
};
