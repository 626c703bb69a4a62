#include "regioncommands.h"

#include "imagepage.h"
#include "regiondialog.h"
#include "regionfile.h"
#include "regionhistory.h"
#include "viewermenu.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace {

constexpr int usualExtent = 300; // pixels, as the panel's "Add" has it

/// An eighth of what is too narrow or too low for the usual region, as at the panel.
int newExtent(int visible)
{
    return visible >= usualExtent ? usualExtent : qMax(1, visible / 8);
}

/// In the middle of what is seen.
QRect newRegion(const CVKIntensityWidget& image)
{
    const QRect whole(QPoint(), image.imageInfo().size);
    const QRect visible = image.visiblePixels() & whole;
    const QRect seen = visible.isEmpty() ? whole : visible;
    const QSize size(newExtent(seen.width()), newExtent(seen.height()));
    return QRect(seen.x() + (seen.width() - size.width()) / 2,
        seen.y() + (seen.height() - size.height()) / 2, size.width(), size.height());
}

/// The parts of the regions inside the image; a drag can leave an edge outside.
QVector<QRect> regionsInside(const CVKIntensityWidget& image)
{
    const QRect whole(QPoint(), image.imageInfo().size);
    QVector<QRect> inside;
    for (const QRect& region : image.regions()) {
        if (region.intersects(whole)) {
            inside << (region & whole);
        }
    }
    return inside;
}

QString fileFilter()
{
    return RegionCommands::tr("DS9 regions (*.reg)");
}

} // namespace

RegionCommands::RegionCommands(ViewerMenu* menu, ImagePage* page)
    : QObject(page)
    , m_menu(menu)
    , m_page(page)
    , m_history(new RegionHistory(page))
{
    connectEntries();
    connect(page, &ImagePage::displayChanged, this, &RegionCommands::update);
    connect(page, &ImagePage::regionsEdited, this, &RegionCommands::update);
    connect(page, &ImagePage::imageReplaced, this, &RegionCommands::update);
    connect(&m_history->steps(), &QUndoStack::indexChanged, this, &RegionCommands::nameSteps);
    update();
    nameSteps();
}

void RegionCommands::connectEntries()
{
    using Slot = void (RegionCommands::*)();
    const QVector<QPair<ViewerCommand, Slot>> commands {
        { ViewerCommand::AddRegion, &RegionCommands::add },
        { ViewerCommand::AddRegionByNumbers, &RegionCommands::addByNumbers },
        { ViewerCommand::EditRegion, &RegionCommands::edit },
        { ViewerCommand::DeleteRegion, &RegionCommands::remove },
        { ViewerCommand::SaveRegions, &RegionCommands::save },
        { ViewerCommand::LoadRegions, &RegionCommands::load },
    };
    for (const auto& [command, slot] : commands) {
        connect(m_menu->action(command), &QAction::triggered, this, slot);
    }
    connect(
        m_menu->action(ViewerCommand::Undo), &QAction::triggered, m_history, &RegionHistory::undo);
    connect(
        m_menu->action(ViewerCommand::Redo), &QAction::triggered, m_history, &RegionHistory::redo);
}

void RegionCommands::update()
{
    const CVKIntensityWidget* image = m_page->intensityWidget();
    const bool isImage = image->imageInfo().isValid();
    const auto enable = [this](ViewerCommand command, bool isEnabled) {
        m_menu->action(command)->setEnabled(isEnabled);
    };
    enable(ViewerCommand::AddRegion, isImage);
    enable(ViewerCommand::AddRegionByNumbers, isImage);
    enable(ViewerCommand::EditRegion, image->selectedRegion() >= 0);
    enable(ViewerCommand::DeleteRegion, image->selectedRegion() >= 0);
    enable(ViewerCommand::SaveRegions, !image->regions().isEmpty());
    enable(ViewerCommand::LoadRegions, isImage);
}

/// The entries say what they would undo and redo.
void RegionCommands::nameSteps()
{
    const QUndoStack& steps = m_history->steps();
    QAction* undo = m_menu->action(ViewerCommand::Undo);
    undo->setText(steps.canUndo() ? tr("&Undo %1").arg(steps.undoText()) : tr("&Undo"));
    undo->setEnabled(steps.canUndo());
    QAction* redo = m_menu->action(ViewerCommand::Redo);
    redo->setText(steps.canRedo() ? tr("&Redo %1").arg(steps.redoText()) : tr("&Redo"));
    redo->setEnabled(steps.canRedo());
}

void RegionCommands::forgetSteps()
{
    m_history->forget();
}

void RegionCommands::add()
{
    CVKIntensityWidget* image = m_page->intensityWidget();
    image->addRegion(newRegion(*image));
}

void RegionCommands::addByNumbers()
{
    const QRect region = askForRegion(tr("New Region"), newRegion(*m_page->intensityWidget()));
    if (!region.isEmpty()) {
        m_page->intensityWidget()->addRegion(region);
    }
}

void RegionCommands::edit()
{
    const CVKIntensityWidget* image = m_page->intensityWidget();
    const int index = image->selectedRegion();
    const QRect before = image->regions().value(index) & QRect(QPoint(), image->imageInfo().size);
    const QRect region = askForRegion(tr("ROI %1").arg(index + 1), before);
    if (!region.isEmpty() && region != before) {
        m_page->intensityWidget()->setRegion(index, region);
    }
}

/// Empty when the user cancels, or when the image is replaced meanwhile.
QRect RegionCommands::askForRegion(const QString& title, const QRect& start)
{
    RegionDialog dialog(
        title, start, m_page->intensityWidget()->imageInfo().size, m_page->window());
    connect(m_page, &ImagePage::imageReplaced, &dialog, &QDialog::reject);
    return dialog.exec() == QDialog::Accepted ? dialog.region() : QRect();
}

void RegionCommands::remove()
{
    CVKIntensityWidget* image = m_page->intensityWidget();
    image->removeRegion(image->selectedRegion());
}

/// The text may hold the name of a file and is shown as it is.
void RegionCommands::tell(QMessageBox::Icon icon, const QString& title, const QString& text)
{
    QMessageBox message(icon, title, text, QMessageBox::Ok, m_page->window());
    message.setTextFormat(Qt::PlainText);
    message.exec();
}

/// Beside the image and named as it is, or where the last region file stands.
QString RegionCommands::suggestedFile() const
{
    const QFileInfo image(m_page->intensityWidget()->imageInfo().file);
    const QDir folder(m_folder.isEmpty() ? image.absolutePath() : m_folder);
    return folder.filePath(image.completeBaseName() + ".reg");
}

void RegionCommands::save()
{
    const QString suggested = suggestedFile();
    QFileDialog dialog(
        m_page->window(), tr("Save Regions"), QFileInfo(suggested).path(), fileFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("reg");
    dialog.selectFile(QFileInfo(suggested).fileName());
    const CVKIntensityWidget* image = m_page->intensityWidget();
    const QVector<QRect> regions = regionsInside(*image); // as they are before the dialog
    const int height = image->imageInfo().size.height();
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().value(0);
    const QString problem = saveRegionFile(path, regions, height);
    if (problem.isEmpty()) {
        m_folder = QFileInfo(path).absolutePath();
    } else {
        tell(QMessageBox::Warning, tr("Save Regions"), problem);
    }
}

void RegionCommands::load()
{
    const QString path = QFileDialog::getOpenFileName(m_page->window(), tr("Load Regions"),
        QFileInfo(suggestedFile()).path(), fileFilter() + ";;" + tr("All files (*)"));
    if (!path.isEmpty()) {
        m_folder = QFileInfo(path).absolutePath();
        loadFile(path);
    }
}

bool RegionCommands::takesFile(const QString& path)
{
    const bool takes = hasRegionSuffix(path) && m_page->intensityWidget()->imageInfo().isValid();
    if (takes) {
        loadFile(path);
    }
    return takes;
}

void RegionCommands::loadFile(const QString& path)
{
    const QSize size = m_page->intensityWidget()->imageInfo().size;
    const RegionFile file = readRegionFile(path, size);
    if (!file.problem.isEmpty()) {
        tell(QMessageBox::Warning, tr("Load Regions"), file.problem);
        return;
    }
    m_history->replaceRegions(file.regions, tr("Load Regions"));
    if (!file.skipped.isEmpty()) {
        tell(QMessageBox::Information, tr("Load Regions"),
            tr("Not all of %1 is loaded. Left out: %2.")
                .arg(QFileInfo(path).fileName(), file.skipped));
    }
}
