#pragma once

#include <QObject>
#include <QPointer>
#include <QTextBrowser>

class ViewerMenu;

/// Shows pages of one folder, and follows links to other pages there only. Pictures are made to
/// fit.
class GuideBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit GuideBrowser(const QString& folder, QWidget* parent = nullptr);

    /// The page of this name; false when it is not there.
    bool showPage(const QString& name);

    QVariant loadResource(int type, const QUrl& url) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isInFolder(const QUrl& url) const;
    void follow(const QUrl& link);

    QString m_folder; // without links and dots in its path; empty when it is not there
};

/// The entry "User Guide": opens the guide, which the build puts into the folder "guide" beside the
/// program, in a window of its own.
class UserGuide : public QObject
{
    Q_OBJECT

public:
    UserGuide(ViewerMenu* menu, QWidget* window);

    /// The guide's folder, in place of the one beside the program.
    void setFolder(const QString& folder) { m_folder = folder; }

private:
    void open();

    QWidget* m_parent;
    QString m_folder;
    QPointer<GuideBrowser> m_browser; // while it is open
};
