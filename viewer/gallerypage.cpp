#include "gallerypage.h"

#include "appearance.h"
#include "elidedlabel.h"
#include "gallerydelegate.h"
#include "imagefiles.h"
#include "pages.h"

#include <QDir>
#include <QFont>
#include <QHBoxLayout>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

GalleryPage::GalleryPage(QWidget* parent)
    : QFrame(parent)
{
    setObjectName("galleryPage");
    m_view = createView();
    m_emptyPage = new EmptyFolderPage;
    m_body = new QStackedWidget;
    m_body->addWidget(m_view);
    m_body->addWidget(m_emptyPage);
    setFocusProxy(m_view);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(createHeader());
    column->addWidget(m_progress);
    column->addWidget(m_body, 1);

    connect(m_emptyPage, &EmptyFolderPage::openRequested, this, &GalleryPage::openRequested);
    connect(m_emptyPage, &EmptyFolderPage::folderRequested, this, &GalleryPage::folderRequested);
    connect(&m_loader, &ThumbnailLoader::loaded, this, &GalleryPage::takePicture);
    connect(&m_loader, &ThumbnailLoader::finished, this, &GalleryPage::stopLoading);
}

/// Name of the folder, number of images, and a button, above the bar that shows the progress.
QWidget* GalleryPage::createHeader()
{
    m_name = new ElidedLabel;
    m_name->setObjectName("galleryFolder");
    QFont font = m_name->font();
    font.setPixelSize(scaledForScreen(18));
    m_name->setFont(font);
    m_count = new QLabel;
    m_count->setObjectName("galleryCount");
    m_choose = new QPushButton(tr("Choose Folder..."));
    m_choose->setObjectName("galleryFolderButton");
    connect(m_choose, &QPushButton::clicked, this, &GalleryPage::folderRequested);

    m_progress = new QProgressBar;
    m_progress->setObjectName("galleryProgress");
    m_progress->setAccessibleName(tr("Progress of the small pictures"));
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(scaledForScreen(4));
    QSizePolicy policy = m_progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the tiles do not jump when it goes
    m_progress->setSizePolicy(policy);
    m_progress->hide();

    auto* header = new QFrame;
    header->setObjectName("galleryHeader");
    auto* row = new QHBoxLayout(header);
    const int margin = scaledForScreen(14);
    row->setContentsMargins(margin, margin, margin, scaledForScreen(10));
    row->setSpacing(margin);
    row->addWidget(m_name);
    row->addWidget(m_count);
    row->addStretch(1);
    row->addWidget(m_choose);
    return header;
}

QListView* GalleryPage::createView()
{
    auto* view = new QListView;
    view->setObjectName("galleryView");
    view->setAccessibleName(tr("Images of the folder"));
    view->setModel(&m_model);
    view->setItemDelegate(new GalleryDelegate(view));
    view->setViewMode(QListView::IconMode);
    view->setMovement(QListView::Static);
    view->setResizeMode(QListView::Adjust);
    view->setUniformItemSizes(true);
    view->setGridSize(GalleryDelegate::tileSize());
    view->setSelectionRectVisible(false);
    view->setMouseTracking(true);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->verticalScrollBar()->setSingleStep(GalleryDelegate::tileSize().height() / 4);
    connect(view, &QListView::activated, this,
        [this](const QModelIndex& index) { Q_EMIT imageRequested(m_model.pathAt(index.row())); });
    connect(
        view->verticalScrollBar(), &QScrollBar::valueChanged, this, &GalleryPage::preferVisible);
    return view;
}

void GalleryPage::showFolder(const QString& folder, const QString& current)
{
    const QString before = currentPath();
    m_loader.cancel();
    m_folder = QDir(folder).absolutePath();
    m_model.setFiles(imagesInFolder(m_folder));
    describeFolder();
    select(m_model.rowOf(current) >= 0 ? current : before);
    startLoading();
}

void GalleryPage::describeFolder()
{
    const int count = m_model.rowCount();
    const QString name = QDir(m_folder).dirName();
    m_name->setText(name.isEmpty() ? QDir::toNativeSeparators(m_folder) : name);
    m_name->setToolTip(QDir::toNativeSeparators(m_folder).toHtmlEscaped());
    m_count->setText(count == 1 ? tr("1 image") : tr("%1 images").arg(count));
    m_choose->setVisible(count > 0); // else the page below has one
    if (count > 0) {
        m_body->setCurrentWidget(m_view);
        return;
    }
    if (QDir(m_folder).isReadable()) {
        m_emptyPage->setTexts(tr("No images in this folder"),
            tr("Images end in %1.").arg(imageSuffixes().join(", ")));
    } else {
        m_emptyPage->setTexts(tr("This folder cannot be read"),
            tr("It is missing, or you have no permission to read it."));
    }
    m_body->setCurrentWidget(m_emptyPage);
}

void GalleryPage::startLoading()
{
    const QVector<ThumbnailRequest> requests = m_model.waiting();
    m_loader.start(requests, GalleryDelegate::pictureSize() * devicePixelRatioF());
    preferVisible();
    m_progress->setRange(0, int(requests.size()));
    m_progress->setValue(0);
    m_progress->setVisible(m_loader.isLoading());
}

void GalleryPage::takePicture(
    int row, const QImage& picture, CVKIntensityWidget::LoadProblem problem)
{
    if (!m_model.setPicture(row, picture, problem)) {
        stopLoading(); // thousands have come; the rest stands without
        return;
    }
    m_progress->setValue(m_progress->value() + 1);
}

bool GalleryPage::isLoading() const
{
    return m_loader.isLoading();
}

void GalleryPage::stopLoading()
{
    m_loader.cancel();
    m_progress->hide();
}

/// What the user looks at comes first.
void GalleryPage::preferVisible()
{
    const QModelIndex first = m_view->indexAt(QPoint(GalleryDelegate::tileSize().width() / 2, 0));
    m_loader.preferFrom(first.isValid() ? first.row() : 0);
}

QString GalleryPage::currentPath() const
{
    return m_model.pathAt(m_view->currentIndex().row());
}

void GalleryPage::select(const QString& path)
{
    const int row = qMax(m_model.rowOf(path), 0);
    m_view->setCurrentIndex(m_model.index(row));
    m_view->scrollTo(m_view->currentIndex());
}
