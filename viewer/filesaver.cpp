#include "filesaver.h"

#include "statusline.h"
#include "waitcursor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPixmap>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

/// Context of the texts for translation.
struct FileSaverTexts
{
    Q_DECLARE_TR_FUNCTIONS(FileSaver)
};

/// Both names lead to one file that exists.
bool isSameFile(const QString& path, const QString& other)
{
    const QString file = QFileInfo(path).canonicalFilePath(); // empty for a missing one
    return !file.isEmpty() && file == QFileInfo(other).canonicalFilePath();
}

} // namespace

QString writeWhole(const QString& path, const WriteFile& write)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && write(&file) && file.commit()) {
        return QString();
    }
    return FileSaverTexts::tr("%1: cannot be written: %2").arg(path, file.errorString());
}

QString savePicture(const QPixmap& picture, const QString& path)
{
    return writeWhole(path, [&picture](QIODevice* file) { return picture.save(file, "PNG"); });
}

QString picturesFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

QString shownFolder(const QWidget& window)
{
    const QFileInfo shown(window.windowFilePath());
    if (shown.filePath().isEmpty()) {
        return QDir::homePath();
    }
    return shown.isDir() ? shown.absoluteFilePath() : shown.absolutePath();
}

FileSaver::FileSaver(QWidget* window, StatusLine* status)
    : m_window(window)
    , m_status(status)
{
}

bool FileSaver::save(const Request& request, const WriteFile& write)
{
    const QString path = chosenPath(request);
    if (path.isEmpty()) {
        return false;
    }
    const QString problem = problemOf(path, write);
    if (!problem.isEmpty()) {
        QMessageBox::warning(m_window, request.title, problem);
        return false;
    }
    m_folder = QFileInfo(path).absolutePath();
    m_status->tellSaved(path);
    return true;
}

QString FileSaver::chosenPath(const Request& request) const
{
    const QString folder = m_folder.isEmpty() ? request.folder : m_folder;
    QFileDialog dialog(m_window, request.title, folder, request.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(request.suffix);
    dialog.selectFile(offeredName(request) + '.' + request.suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString FileSaver::offeredName(const Request& request) const
{
    const QFileInfo shown(m_window->windowFilePath());
    const QString name
        = shown.isDir() ? QDir(shown.filePath()).dirName() : shown.completeBaseName();
    return name.isEmpty() ? request.content : name + '-' + request.content;
}

QString FileSaver::problemOf(const QString& path, const WriteFile& write) const
{
    if (isSameFile(path, m_window->windowFilePath())) {
        return FileSaverTexts::tr("%1: this is the image that is shown. Choose another name.")
            .arg(path);
    }
    const WaitCursor waitCursor;
    return writeWhole(path, write);
}
