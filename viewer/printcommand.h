#pragma once

#include "filesaver.h"
#include "printout.h"

#include <QObject>

class ImagePage;
class QMainWindow;
class StatusLine;
class ViewerMenu;

/// Prints what the window shows: the canvas of an image with the numbers of its regions, or the
/// window with anything else. Without a printer a PDF file is saved.
class PrintCommand : public QObject
{
    Q_OBJECT

public:
    /// Connects the menu entry. All parts belong to the window.
    PrintCommand(QMainWindow* window, const ViewerMenu& menu, ImagePage* page, StatusLine* status);

private:
    void print();
    void printOnPaper(const Printout& printout);
    void savePdf(const Printout& printout);
    Printout shown();

    QMainWindow* m_window;
    ImagePage* m_page;
    StatusLine* m_status;
    FileSaver m_saver;
};
