#include "pagenavigation.h"

#include "imagedocument.h"
#include "pagecontrol.h"
#include "statusline.h"
#include "viewermenu.h"

#include <QAction>

PageNavigation::PageNavigation(
    ViewerMenu* menu, ImageDocument* document, StatusLine* status, QObject* parent)
    : QObject(parent)
    , m_menu(menu)
    , m_document(document)
    , m_status(status)
{
    connect(menu->action(ViewerCommand::NextPage), &QAction::triggered, document,
        [document] { document->showPage(document->page() + 1); });
    connect(menu->action(ViewerCommand::PreviousPage), &QAction::triggered, document,
        [document] { document->showPage(document->page() - 1); });
    connect(status->pageControl(), &PageControl::pageChosen, document, &ImageDocument::showPage);
    connect(document, &ImageDocument::loaded, this, &PageNavigation::update);
    connect(document, &ImageDocument::refused, this, &PageNavigation::update);
    connect(document, &ImageDocument::closed, this, &PageNavigation::update);
    update();
}

/// A page that is refused is left in the same ways as one that is shown.
void PageNavigation::update()
{
    const int page = m_document->isOpen() ? m_document->page() : 0;
    const int count = m_document->isOpen() ? m_document->pageCount() : 0;
    m_status->showPages(page, count);
    m_menu->action(ViewerCommand::PreviousPage)->setEnabled(page > 0);
    m_menu->action(ViewerCommand::NextPage)->setEnabled(page + 1 < count);
}
