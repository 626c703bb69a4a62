#pragma once

#include "filesaver.h"

#include <QImage>
#include <QObject>

class ImagePage;
class QMainWindow;
class StatusLine;
class ViewerMenu;

/// What the menus offer to do with pictures: copying window and canvas, saving the window, and
/// saving the image in its colors.
class PictureCommands : public QObject
{
    Q_OBJECT

public:
    /// Connects the menu entries. All parts belong to the window and are there as long as it is.
    PictureCommands(
        QMainWindow* window, const ViewerMenu& menu, ImagePage* page, StatusLine* status);

private:
    void copyWindow();
    void copyCanvas();
    void saveScreenshot();
    void savePicture();
    void saveVisiblePart();
    void saveImage(const QString& title, const QString& content, const QImage& image);

    QMainWindow* m_window;
    ImagePage* m_page;
    StatusLine* m_status;
    FileSaver m_saver;
};
