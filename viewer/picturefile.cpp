#include "picturefile.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

struct PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)
};

} // namespace

QString choosePictureFile(QWidget* parent, const QString& folder, const QString& baseName)
{
    QFileDialog dialog(
        parent, PictureFile::tr("Save Screenshot"), folder, PictureFile::tr("PNG picture (*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("png");
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    if (folder.isEmpty() && QFileInfo(pictures).isDir()) {
        dialog.setDirectory(pictures); // beside the images it would become one of them
    }
    dialog.selectFile(baseName + ".png");
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString savePicture(const QPixmap& picture, const QString& path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit()) {
        return QString();
    }
    return PictureFile::tr("%1: cannot be written: %2").arg(path, file.errorString());
}
