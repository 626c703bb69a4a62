#include "settingskeeper.h"

#include "imagedocument.h"
#include "sessionstore.h"
#include "statusline.h"
#include "viewermenu.h"

#include <QAction>

SettingsKeeper::SettingsKeeper(ViewerMenu* menu, ImageDocument* document, StatusLine* status,
    SessionStore* session, QObject* parent)
    : QObject(parent)
    , m_menu(menu)
    , m_document(document)
    , m_status(status)
    , m_session(session)
{
    connect(
        menu->action(ViewerCommand::KeepSettings), &QAction::triggered, this, [this](bool kept) {
            keep(kept);
            m_session->storeSettingsKept(kept);
        });
    restore();
}

void SettingsKeeper::restore()
{
    const bool kept = m_session->areSettingsKept();
    m_menu->action(ViewerCommand::KeepSettings)->setChecked(kept);
    keep(kept);
}

void SettingsKeeper::keep(bool kept)
{
    m_document->setSettingsKept(kept);
    m_status->showSettingsKept(kept);
}
