#include "pages.h"

#include "appearance.h"
#include "elidedlabel.h"
#include "plainlabel.h"

#include <QFileInfo>
#include <QFont>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

template <class Label = QLabel>
Label* centredLabel(const char* objectName, const QString& text = QString())
{
    auto* label = plainLabel<Label>(objectName, text);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

QLabel* picture(const QString& resource)
{
    auto* label = new QLabel;
    label->setAlignment(Qt::AlignCenter);
    label->setPixmap(scaledPicture(resource, 112));
    return label;
}

QPushButton* namedButton(const QString& objectName, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QPushButton* openButton()
{
    return namedButton("pageOpenButton", WelcomePage::tr("Open Image..."));
}

QLabel* titleLabel(const QString& text)
{
    auto* label = centredLabel("pageTitle", text);
    QFont font = label->font();
    font.setPixelSize(scaledForScreen(22));
    label->setFont(font);
    return label;
}

/// Picture, texts and a row of buttons one below the other, on a card in the middle of the page.
void fillPage(QFrame* page, const QVector<QWidget*>& widgets, const QVector<QPushButton*>& buttons)
{
    auto* card = new QFrame;
    card->setObjectName("pageCard");
    card->setMaximumSize(scaledForScreen(640), scaledForScreen(400));
    auto* column = new QVBoxLayout(card);
    const int margin = scaledForScreen(24);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(scaledForScreen(10));
    column->addStretch(1);
    for (QWidget* widget : widgets) {
        column->addWidget(widget);
    }
    column->addSpacing(scaledForScreen(10));
    auto* row = new QHBoxLayout;
    row->setSpacing(scaledForScreen(10));
    row->addStretch(1);
    for (QPushButton* button : buttons) {
        row->addWidget(button);
    }
    row->addStretch(1);
    column->addLayout(row);
    column->addStretch(1);

    auto* centre = new QHBoxLayout(page);
    centre->setContentsMargins(margin, margin, margin, margin);
    centre->addWidget(card);
}

} // namespace

WelcomePage::WelcomePage(QWidget* parent)
    : QFrame(parent)
{
    setObjectName("welcomePage");
    QPushButton* button = openButton();
    const QVector<QWidget*> widgets {
        picture(":/viewer/logo.png"),
        titleLabel(tr("Drop a camera image here")),
        centredLabel("pageText", tr("JPEG, TIFF, BMP, PNG, or a raw camera file")),
    };
    fillPage(this, widgets, { button });
    connect(button, &QPushButton::clicked, this, &WelcomePage::openRequested);
}

LoadProblemPage::LoadProblemPage(QWidget* parent)
    : QFrame(parent)
    , m_fileName(centredLabel<ElidedLabel>("pageFileName"))
    , m_reason(centredLabel("pageReason"))
{
    setObjectName("loadProblemPage");
    QPushButton* button = openButton();
    const QVector<QWidget*> widgets {
        picture(":/viewer/problem.png"),
        titleLabel(tr("This file cannot be shown")),
        m_fileName,
        m_reason,
    };
    fillPage(this, widgets, { button });
    connect(button, &QPushButton::clicked, this, &LoadProblemPage::openRequested);
}

void LoadProblemPage::showProblem(const QString& path, const QString& reason)
{
    const QString name = QFileInfo(path).fileName();
    m_fileName->setText(name.isEmpty() ? path : name);
    m_fileName->setToolTip(path.toHtmlEscaped());
    m_reason->setText(reason);
}

QString LoadProblemPage::fileName() const
{
    return m_fileName->text();
}

QString LoadProblemPage::reason() const
{
    return m_reason->text();
}

EmptyFolderPage::EmptyFolderPage(QWidget* parent)
    : QFrame(parent)
    , m_title(titleLabel(QString()))
    , m_text(centredLabel("pageText"))
{
    setObjectName("emptyFolderPage");
    QPushButton* file = openButton();
    QPushButton* folder = namedButton("pageFolderButton", tr("Choose Folder..."));
    fillPage(this, { picture(":/viewer/logo.png"), m_title, m_text }, { folder, file });
    connect(file, &QPushButton::clicked, this, &EmptyFolderPage::openRequested);
    connect(folder, &QPushButton::clicked, this, &EmptyFolderPage::folderRequested);
}

void EmptyFolderPage::setTexts(const QString& title, const QString& text)
{
    m_title->setText(title);
    m_text->setText(text);
}
