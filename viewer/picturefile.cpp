#include "picturefile.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QSaveFile>

QString savePicture(const QPixmap& picture, const QString& path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit()) {
        return QString();
    }
    return QCoreApplication::translate("PictureFile", "%1: cannot be written: %2")
        .arg(path, file.errorString());
}
