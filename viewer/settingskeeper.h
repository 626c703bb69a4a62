#pragma once

#include <QObject>

class ImageDocument;
class SessionStore;
class StatusLine;
class ViewerMenu;

/// The entry "Keep Settings": whether the next image is shown as this one. The choice is in the
/// status line and is found again by the next session.
class SettingsKeeper : public QObject
{
    Q_OBJECT

public:
    SettingsKeeper(ViewerMenu* menu, ImageDocument* document, StatusLine* status,
        SessionStore* session, QObject* parent = nullptr);

    /// Takes over what the session has stored.
    void restore();

private:
    void keep(bool kept);

    ViewerMenu* m_menu;
    ImageDocument* m_document;
    StatusLine* m_status;
    SessionStore* m_session;
};
