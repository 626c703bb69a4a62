#pragma once

#include <QMessageBox>
#include <QObject>
#include <QRect>
#include <QString>

class ImagePage;
class RegionHistory;
class ViewerMenu;

/// What the menu "Regions" does to the regions of the image in front.
class RegionCommands : public QObject
{
    Q_OBJECT

public:
    /// Connects the entries of the menu, and belongs to the page.
    RegionCommands(ViewerMenu* menu, ImagePage* page);

    /// What has been done to the regions so far can no longer be undone.
    void forgetSteps();

    /// Loads a region file where an image is in front. False for any other file, and without an
    /// image.
    bool takesFile(const QString& path);

private:
    void connectEntries();
    void update();
    void nameSteps();
    void add();
    void addByNumbers();
    void edit();
    void remove();
    void save();
    void load();
    void loadFile(const QString& path);
    QRect askForRegion(const QString& title, const QRect& start);
    void tell(QMessageBox::Icon icon, const QString& title, const QString& text);
    QString suggestedFile() const;

    ViewerMenu* m_menu;
    ImagePage* m_page;
    RegionHistory* m_history;
    QString m_folder; // of the file saved or loaded last; empty before any
};
