#include "imagecommands.h"

#include "imagepage.h"
#include "statusline.h"
#include "viewermenu.h"

#include <QAction>
#include <QPair>
#include <QVector>

#include <functional>

ImageCommands::ImageCommands(ViewerMenu* menu, ImagePage* page, StatusLine* status)
    : QObject(page)
    , m_page(page)
    , m_status(status)
{
    using Widget = CVKIntensityWidget;
    const QVector<QPair<ViewerCommand, std::function<void(Widget*)>>> commands {
        { ViewerCommand::ZoomIn, [](Widget* image) { image->zoomIn(); } },
        { ViewerCommand::ZoomOut, [](Widget* image) { image->zoomOut(); } },
        { ViewerCommand::Fit, [](Widget* image) { image->fit(); } },
        { ViewerCommand::ImageView, [](Widget* image) { image->setView(Widget::View::Image); } },
        { ViewerCommand::RowChart, [](Widget* image) { image->setView(Widget::View::RowChart); } },
        { ViewerCommand::ColumnChart,
            [](Widget* image) { image->setView(Widget::View::ColumnChart); } },
    };
    for (const auto& [command, call] : commands) {
        connect(menu->action(command), &QAction::triggered, this,
            [this, call = call] { call(m_page->intensityWidget()); });
    }
    connect(menu, &ViewerMenu::paletteChosen, this, &ImageCommands::choosePalette);
}

void ImageCommands::choosePalette(const QString& name)
{
    if (!m_page->intensityWidget()->setColorPalette(name)) {
        m_status->tell(tr("The palette %1 cannot be read.").arg(name));
    }
}
