#include "printcommand.h"

#include "imagepage.h"
#include "imagereport.h"
#include "statusline.h"
#include "viewermenu.h"
#include "waitcursor.h"

#include <QAction>
#include <QFileInfo>
#include <QLocale>
#include <QIODevice>
#include <QMainWindow>
#include <QMessageBox>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace {

constexpr double largestPrintedWidth = 2400.0; // pixels; some 300 dots per inch of paper
constexpr double mostDots = 4.0; // along a pixel of the screen

/// The widget with finer lines and texts than a screen has.
QImage finePicture(QWidget* widget)
{
    const double ratio
        = std::clamp(largestPrintedWidth / std::max(1, widget->width()), 1.0, mostDots);
    QImage picture((QSizeF(widget->size()) * ratio).toSize(), QImage::Format_RGB32);
    if (!picture.isNull()) {
        picture.setDevicePixelRatio(ratio);
        widget->render(&picture);
        picture.setDevicePixelRatio(1.0);
    }
    return picture;
}

QPageLayout::Orientation orientationFor(const QImage& picture)
{
    return picture.width() > picture.height() * 3 / 2 ? QPageLayout::Landscape
                                                      : QPageLayout::Portrait;
}

bool writePdf(const Printout& printout, QIODevice* file)
{
    QPdfWriter writer(file);
    const bool isLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    writer.setPageSize(QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageOrientation(orientationFor(printout.picture));
    writer.setPageMargins(QMarginsF(15.0, 15.0, 15.0, 15.0), QPageLayout::Millimeter);
    writer.setTitle(printout.title);
    return print(printout, &writer);
}

} // namespace

PrintCommand::PrintCommand(
    QMainWindow* window, const ViewerMenu& menu, ImagePage* page, StatusLine* status)
    : QObject(window)
    , m_window(window)
    , m_page(page)
    , m_status(status)
    , m_saver(window, status)
{
    connect(menu.action(ViewerCommand::Print), &QAction::triggered, this, &PrintCommand::print);
}

void PrintCommand::print()
{
    const Printout printout = shown(); // before a dialog covers it
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        savePdf(printout);
    } else {
        printOnPaper(printout);
    }
}

Printout PrintCommand::shown()
{
    if (m_page->isVisible()) {
        Printout printout = imageReport(*m_page->intensityWidget());
        printout.picture = finePicture(m_page->canvas());
        return printout;
    }
    Printout printout;
    printout.title = QFileInfo(m_window->windowFilePath()).fileName();
    printout.picture = finePicture(m_window);
    return printout;
}

void PrintCommand::printOnPaper(const Printout& printout)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(printout.title);
    printer.setPageOrientation(orientationFor(printout.picture));
    QPrintDialog dialog(&printer, m_window);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false); // mostly there is one page
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const WaitCursor waitCursor;
    if (::print(printout, &printer)) {
        m_status->tell(tr("The page is printed."));
    } else {
        QMessageBox::warning(m_window, tr("Print"), tr("The printer or its file takes no pages."));
    }
}

void PrintCommand::savePdf(const Printout& printout)
{
    const FileSaver::Request request { tr("No Printer: Save as PDF"), tr("PDF document (*.pdf)"),
        "pdf", shownFolder(*m_window), "print" };
    m_saver.save(request, [&printout](QIODevice* file) { return writePdf(printout, file); });
}
