#include "vkintensityhost.h"

#include "focusring.h"
#include "hoststyle.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QScreen>

/// Makes the linker keep the images, which nothing else in a static library asks for. The macro
/// belongs outside of every namespace.
static void initHostResources()
{
    Q_INIT_RESOURCE(vkintensityhost);
}

namespace vkintensityhost {

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

} // namespace

void applyLook(const QString& ownRules)
{
    if (!qApp) {
        return;
    }
    QApplication::setStyle(new HostStyle);
    QApplication::setPalette(darkPalette());
    QFont font = QApplication::font();
    font.setPixelSize(scaledForScreen(13)); // platforms disagree about the default size
    QApplication::setFont(font);
    qApp->setStyleSheet(styleSheet() + ownRules);
    FocusRing::install();
}

QString styleSheet()
{
    initHostResources();
    QFile file(QStringLiteral(":/vkintensityhost/style.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int scaledForScreen(int pixels)
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? int(pixels * screen->logicalDotsPerInch() / 96.0) : pixels;
}

} // namespace vkintensityhost
