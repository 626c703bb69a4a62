#include "appearance.h"

#include <QApplication>
#include <QFile>
#include <QIcon>

void initViewerResources()
{
    Q_INIT_RESOURCE(viewer);
    Q_INIT_RESOURCE(translations);
}

void applyAppearance()
{
    QFile file(":/viewer/style.qss");
    const bool isOpen = file.open(QIODevice::ReadOnly);
    vkintensityhost::applyLook(isOpen ? QString::fromUtf8(file.readAll()) : QString());
    QApplication::setWindowIcon(QIcon(":/viewer/logo.png"));
}

QPixmap scaledPicture(const QString& resource, int side)
{
    const qreal ratio = qApp->devicePixelRatio();
    const int pixels = int(scaledForScreen(side) * ratio);
    QPixmap picture
        = QPixmap(resource).scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
}
