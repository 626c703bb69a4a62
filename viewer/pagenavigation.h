#pragma once

#include <QObject>

class ImageDocument;
class StatusLine;
class ViewerMenu;

/// Leads from page to page of a file: by the entries of the menu, and by the control in the status
/// line, which is there for files with several pages.
class PageNavigation : public QObject
{
    Q_OBJECT

public:
    PageNavigation(
        ViewerMenu* menu, ImageDocument* document, StatusLine* status, QObject* parent = nullptr);

private:
    void update();

    ViewerMenu* m_menu;
    ImageDocument* m_document;
    StatusLine* m_status;
};
