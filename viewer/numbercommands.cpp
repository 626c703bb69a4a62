#include "numbercommands.h"

#include "imagepage.h"
#include "statusline.h"
#include "viewermenu.h"
#include "waitcursor.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QIODevice>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>

#include <new>

namespace {

/// Ends the name of a file that holds these numbers.
QString contentName(NumberKind kind)
{
    switch (kind) {
    case NumberKind::RegionStatistics: return "regions";
    case NumberKind::ImageHistogram: return "histogram";
    case NumberKind::RegionHistogram: return "region-histogram";
    case NumberKind::RowProfile: return "row";
    case NumberKind::ColumnProfile: return "column";
    case NumberKind::RowPeaks: return "row-peaks";
    case NumberKind::ColumnPeaks: return "column-peaks";
    }
    return QString();
}

QVector<NumberKind> askedKinds(const CVKIntensityWidget& widget)
{
    const WaitCursor waitCursor; // histograms of a large image
    return availableNumbers(widget);
}

} // namespace

NumberCommands::NumberCommands(
    QMainWindow* window, ViewerMenu* menu, ImagePage* page, StatusLine* status)
    : QObject(window)
    , m_window(window)
    , m_menu(menu)
    , m_page(page)
    , m_status(status)
    , m_saver(window, status)
{
    connect(menu->action(ViewerCommand::ExportNumbers), &QAction::triggered, this,
        [this] { askFor(ExportDialog::Way::File); });
    connect(menu->action(ViewerCommand::CopyNumbers), &QAction::triggered, this,
        [this] { askFor(ExportDialog::Way::Clipboard); });
    connect(menu->action(ViewerCommand::CopyValue), &QAction::triggered, this,
        &NumberCommands::copyValue);
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget*, QWidget* focused) { followFocus(focused); });
}

void NumberCommands::askFor(ExportDialog::Way first)
{
    ExportDialog dialog(askedKinds(*m_page->intensityWidget()), m_choice, first, m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    m_choice = dialog.choice();
    if (!askedKinds(*m_page->intensityWidget()).contains(m_choice.kind)) {
        m_status->tell(tr("The image has changed, and these numbers are gone."));
        return; // its file was written while the dialog was open
    }
    try {
        dialog.way() == ExportDialog::Way::File ? saveFile() : copyText();
    } catch (const std::bad_alloc&) {
        QMessageBox::warning(
            m_window, dialog.windowTitle(), tr("There is not enough memory for the numbers."));
    }
}

void NumberCommands::saveFile()
{
    const QByteArray content = exportedFile(*m_page->intensityWidget(), m_choice);
    FileSaver::Request request;
    request.title = tr("Export Numbers");
    request.filter = m_choice.isJson ? tr("JSON file (*.json)") : tr("CSV table (*.csv)");
    request.suffix = m_choice.isJson ? "json" : "csv";
    request.folder = shownFolder(*m_window);
    request.content = contentName(m_choice.kind);
    m_saver.save(
        request, [&content](QIODevice* file) { return file->write(content) == content.size(); });
}

void NumberCommands::copyText()
{
    QApplication::clipboard()->setText(exportedText(*m_page->intensityWidget(), m_choice.kind));
    m_status->tell(tr("The numbers are on the clipboard."));
}

void NumberCommands::copyValue()
{
    const CVKIntensityWidget* const widget = m_page->intensityWidget();
    const auto cross = widget->crossHair();
    const auto value = cross ? widget->value(*cross) : std::nullopt;
    if (value) {
        const QString number = QString::number(*value);
        QApplication::clipboard()->setText(
            QString("%1\t%2\t%3").arg(cross->x()).arg(cross->y()).arg(number));
        m_status->tell(tr("The value %1 is on the clipboard.").arg(number));
    }
}

/// Neither another window nor the menu bar changes what the key means in this one.
void NumberCommands::followFocus(const QWidget* focused)
{
    const bool isOurs = focused && focused->window() == m_window;
    if (isOurs && m_page && !qobject_cast<const QMenuBar*>(focused)) {
        m_menu->setCopyKey(m_page->hasCanvasFocus());
    }
}
