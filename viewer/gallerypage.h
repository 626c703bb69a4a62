#pragma once

#include "gallerymodel.h"
#include "thumbnailloader.h"

#include <QFrame>

class ElidedLabel;
class EmptyFolderPage;
class QLabel;
class QListView;
class QProgressBar;
class QPushButton;
class QStackedWidget;

/// The images of one folder as small pictures, which come one after the other while a progress bar
/// shows how far they are. Enter or a double click asks for one of them to be opened.
class GalleryPage : public QFrame
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget* parent = nullptr);

    /// Shows what is in `folder` now. `current` is selected if it is there, else the file that was
    /// selected before, else the first. Pictures of the same files are not made again.
    void showFolder(const QString& folder, const QString& current = QString());

    QString folder() const { return m_folder; }

    /// Path of the selected file; empty when there is none.
    QString currentPath() const;

    /// Whether pictures are still being made.
    bool isLoading() const;

    /// The pictures still missing are not made any more.
    void stopLoading();

Q_SIGNALS:
    void imageRequested(const QString& path);
    void openRequested(); ///< a file is to be chosen
    void folderRequested(); ///< a folder is to be chosen

private:
    QWidget* createHeader();
    QListView* createView();
    void describeFolder();
    void startLoading();
    void takePicture(int row, const QImage& picture, CVKIntensityWidget::LoadProblem problem);
    void preferVisible();
    void select(const QString& path);

    QString m_folder; // absolute; empty before the first
    GalleryModel m_model;
    ThumbnailLoader m_loader;
    ElidedLabel* m_name = nullptr;
    QLabel* m_count = nullptr;
    QPushButton* m_choose = nullptr;
    QProgressBar* m_progress = nullptr;
    QStackedWidget* m_body = nullptr;
    QListView* m_view = nullptr;
    EmptyFolderPage* m_emptyPage = nullptr;
};
