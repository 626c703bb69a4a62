#include "picturecommands.h"

#include "imagepage.h"
#include "statusline.h"
#include "viewermenu.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QIODevice>
#include <QMainWindow>
#include <QMessageBox>
#include <QPixmap>

PictureCommands::PictureCommands(
    QMainWindow* window, const ViewerMenu& menu, ImagePage* page, StatusLine* status)
    : QObject(window)
    , m_window(window)
    , m_page(page)
    , m_status(status)
    , m_saver(window, status)
{
    const auto connectTo = [this, &menu](ViewerCommand command, void (PictureCommands::*slot)()) {
        connect(menu.action(command), &QAction::triggered, this, slot);
    };
    connectTo(ViewerCommand::CopyWindow, &PictureCommands::copyWindow);
    connectTo(ViewerCommand::CopyCanvas, &PictureCommands::copyCanvas);
    connectTo(ViewerCommand::SaveScreenshot, &PictureCommands::saveScreenshot);
    connectTo(ViewerCommand::SavePicture, &PictureCommands::savePicture);
    connectTo(ViewerCommand::SaveVisiblePart, &PictureCommands::saveVisiblePart);
}

void PictureCommands::copyWindow()
{
    QApplication::clipboard()->setPixmap(m_window->grab());
    m_status->tell(tr("The window is on the clipboard."));
}

void PictureCommands::copyCanvas()
{
    QApplication::clipboard()->setPixmap(m_page->canvas()->grab());
    m_status->tell(tr("The canvas is on the clipboard."));
}

void PictureCommands::saveScreenshot()
{
    // Before the dialog covers it.
    saveImage(tr("Save Screenshot"), "screenshot", m_window->grab().toImage());
}

void PictureCommands::savePicture()
{
    saveImage(tr("Save Picture"), "picture", m_page->intensityWidget()->picture());
}

void PictureCommands::saveVisiblePart()
{
    const CVKIntensityWidget* const widget = m_page->intensityWidget();
    const QImage picture = widget->picture();
    saveImage(tr("Save Visible Part"), "part",
        picture.isNull() ? picture : picture.copy(widget->visiblePixels()));
}

/// Pictures are offered a folder of their own: beside the images they would become images of the
/// gallery.
void PictureCommands::saveImage(const QString& title, const QString& content, const QImage& image)
{
    if (image.isNull()) {
        QMessageBox::warning(m_window, title, tr("There is not enough memory for the picture."));
        return;
    }
    const FileSaver::Request request { title, tr("PNG picture (*.png)"), "png", picturesFolder(),
        content };
    m_saver.save(request, [&image](QIODevice* file) { return image.save(file, "PNG"); });
}
