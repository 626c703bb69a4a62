#include "filedrop.h"

#include <QDropEvent>
#include <QList>
#include <QMimeData>
#include <QUrl>

QString draggedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

QString acceptedFile(QDropEvent* event)
{
    const QString path = draggedFile(event->mimeData());
    if (path.isEmpty() || !event->possibleActions().testFlag(Qt::CopyAction)) {
        event->ignore();
        return QString();
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    return path;
}
