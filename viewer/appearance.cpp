#include "appearance.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>

void initViewerResources()
{
    Q_INIT_RESOURCE(viewer);
    Q_INIT_RESOURCE(skin);
    Q_INIT_RESOURCE(translations);
}

namespace {

QPalette darkPalette()
{
    QPalette palette;
    const QColor text(223, 229, 236);
    const QColor dimmed(112, 122, 134);
    palette.setColor(QPalette::Window, QColor(27, 32, 39));
    palette.setColor(QPalette::Base, QColor(18, 22, 27));
    palette.setColor(QPalette::AlternateBase, QColor(24, 29, 35));
    palette.setColor(QPalette::Button, QColor(44, 52, 62));
    palette.setColor(QPalette::ToolTipBase, QColor(44, 52, 62));
    palette.setColor(QPalette::Highlight, QColor(38, 119, 131));
    palette.setColor(QPalette::Link, QColor(72, 172, 186));
    for (const QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text,
             QPalette::ButtonText, QPalette::ToolTipText, QPalette::HighlightedText }) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dimmed);
    }
    palette.setColor(QPalette::PlaceholderText, dimmed);
    return palette;
}

QString styleSheet()
{
    QFile file(":/viewer/style.qss");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

void applyAppearance()
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(darkPalette());
    QFont font = QApplication::font();
    font.setPixelSize(scaledForScreen(13)); // platforms disagree about the default size
    QApplication::setFont(font);
    QApplication::setWindowIcon(QIcon(":/viewer/logo.png"));
    qApp->setStyleSheet(styleSheet());
}

int scaledForScreen(int pixels)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? int(pixels * screen->logicalDotsPerInch() / 96.0) : pixels;
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
