#include "panel/cvkintensityctrlwidget.h"

#include "panel/scaledpixels.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {
constexpr float scrollAreaTop = 57.0F; // at 96 dots per inch, as the button's size
constexpr int modulesGap = 5;
}

CVKIntensityCtrlWidget::CVKIntensityCtrlWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose, true);
    createReturnButton();
    createModules();
    createModuleColumn();
    createScrollArea();
    createMainLayout();
    adjustSize();
}

CVKIntensityCtrlWidget::~CVKIntensityCtrlWidget()
{
    delete m_scrollArea; // no child of this widget
}

void CVKIntensityCtrlWidget::createReturnButton()
{
    const double dotsPerInch = primaryDotsPerInch();
    m_returnButton = new QPushButton(this);
    m_returnButton->setObjectName(QStringLiteral("Return"));
    m_returnButton->setCheckable(true);
    m_returnButton->setToolTip(tr("Return"));
    m_returnButton->setFixedSize(
        scaledPixels(96.0F, dotsPerInch), scaledPixels(44.0F, dotsPerInch));
    // Deliberate: the normal and the pressed state share one image.
    m_returnButton->setStyleSheet(
        QStringLiteral("QPushButton{border-image: url(:res/skin/mod_cfg_close_p.png);}"
                       "QPushButton:hover{border-image: url(:res/skin/mod_cfg_close_h.png);}"
                       "QPushButton:pressed{border-image: url(:res/skin/mod_cfg_close_p.png);}"));
    const QObject* const application = parent() ? parent()->parent() : nullptr;
    if (application && application->metaObject()->indexOfSlot("sltSwitchToGallery()") >= 0) {
        connect(m_returnButton, SIGNAL(clicked()), application, SLOT(sltSwitchToGallery()));
    }
}

void CVKIntensityCtrlWidget::createModules()
{
    m_moduleContainer = new QWidget(this);
    m_moduleContainer->setGeometry(0, 0, 290, 0);
    m_moduleContainer->setStyleSheet(QStringLiteral("background: transparent"));
    m_preferencesTitle = new CVKIntensityCtrlTitleBar(this);
    m_preferencesTitle->setTitle(0, tr("Display Preferences"));
    m_preferences = new CVKDisplayPreferences(this);
    m_preferences->setFixedHeight(360);
    m_histogramTitle = new CVKIntensityCtrlTitleBar(this);
    // Deliberate: index 0 as well; nothing reads it.
    m_histogramTitle->setTitle(0, tr("Data Histogram"));
    m_histogram = new CVKDataHistogram(this);
    m_histogram->setFixedHeight(450);
}

void CVKIntensityCtrlWidget::createModuleColumn()
{
    auto* const column = new QVBoxLayout();
    m_moduleContainer->setLayout(column);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_preferencesTitle);
    column->addWidget(m_preferences);
    column->addSpacing(modulesGap);
    column->addWidget(m_histogramTitle);
    column->addWidget(m_histogram);
    column->addStretch();
    connect(m_preferencesTitle, SIGNAL(changeShrinkageState(bool)), //
        m_preferences, SLOT(onShrinkaged(bool)));
    connect(m_histogramTitle, SIGNAL(changeShrinkageState(bool)), //
        m_histogram, SLOT(onShrinkaged(bool)));
}

void CVKIntensityCtrlWidget::createScrollArea()
{
    // Beside this widget, over the column that it stands in.
    m_scrollArea = new QScrollArea(parentWidget() ? parentWidget() : this);
    m_scrollArea->setObjectName(QStringLiteral("Scroll_ModuleWidget"));
    m_scrollArea->verticalScrollBar()->setObjectName(QStringLiteral("bar_ModuleWidget"));
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setStyleSheet(QStringLiteral("background: transparent"));
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidget(m_moduleContainer);
    m_scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->show();
}

void CVKIntensityCtrlWidget::createMainLayout()
{
    auto* const rows = new QVBoxLayout(this);
    auto* const buttonRow = new QHBoxLayout();
    buttonRow->addWidget(m_returnButton);
    buttonRow->setSpacing(scaledPixels(80.0F, primaryDotsPerInch()));
    buttonRow->addStretch();
    rows->addLayout(buttonRow);
    rows->addStretch();
}

void CVKIntensityCtrlWidget::resizeEvent(QResizeEvent* event)
{
    if (!m_scrollArea) {
        return;
    }
    const int top = scaledPixels(scrollAreaTop, primaryDotsPerInch());
    const int width = event->size().width();
    const int height = event->size().height() - top; // negative in a very low window
    m_scrollArea->setGeometry(0, top, width, height);
    qDebug("[resizeEvent]x: %d, y: %d, wid: %d, hei: %d\n", 0, top, width, height);
}
