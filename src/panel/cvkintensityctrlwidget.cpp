#include "panel/cvkintensityctrlwidget.h"

#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrltitlebar.h"
#include "base/screenscale.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

CVKIntensityCtrlWidget::CVKIntensityCtrlWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose, true);
    buildReturnButton();
    buildModules();
    buildScrollArea();
    buildLayout();
    adjustSize();
}

CVKIntensityCtrlWidget::~CVKIntensityCtrlWidget()
{
    delete m_scrollArea.data(); // its parent is not this widget; with it go the modules
}

CVKDisplayPreferences* CVKIntensityCtrlWidget::displayPreferences() const
{
    return m_preferences;
}

CVKDataHistogram* CVKIntensityCtrlWidget::dataHistogram() const
{
    return m_histogram;
}

void CVKIntensityCtrlWidget::buildReturnButton()
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
    QObject* const host = parent() ? parent()->parent() : nullptr;
    if (host) {
        connect(m_returnButton, SIGNAL(clicked()), host, SLOT(sltSwitchToGallery()));
    }
}

void CVKIntensityCtrlWidget::buildModules()
{
    m_moduleContainer = new QWidget(this);
    m_moduleContainer->setGeometry(0, 0, 290, 0);
    m_moduleContainer->setStyleSheet(QStringLiteral("background: transparent"));

    m_preferencesTitle = new CVKIntensityCtrlTitleBar(this);
    m_preferencesTitle->setTitle(0, tr("Display Preferences"));
    m_preferences = new CVKDisplayPreferences(this);
    m_preferences->setFixedHeight(360);
    m_histogramTitle = new CVKIntensityCtrlTitleBar(this);
    m_histogramTitle->setTitle(0, tr("Data Histogram")); // Deliberate: index 0 as well
    m_histogram = new CVKDataHistogram(this);
    m_histogram->setFixedHeight(450);

    auto* const column = new QVBoxLayout();
    m_moduleContainer->setLayout(column);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_preferencesTitle);
    column->addWidget(m_preferences);
    column->addSpacing(5);
    column->addWidget(m_histogramTitle);
    column->addWidget(m_histogram);
    column->addStretch();

    connect(m_preferencesTitle, SIGNAL(changeShrinkageState(bool)), m_preferences,
        SLOT(onShrinkaged(bool)));
    connect(m_histogramTitle, SIGNAL(changeShrinkageState(bool)), m_histogram,
        SLOT(onShrinkaged(bool)));
}

void CVKIntensityCtrlWidget::buildScrollArea()
{
    QWidget* const owner = parentWidget() ? parentWidget() : this;
    m_scrollArea = new QScrollArea(owner);
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

void CVKIntensityCtrlWidget::buildLayout()
{
    auto* const main = new QVBoxLayout(this);
    auto* const buttonRow = new QHBoxLayout();
    buttonRow->addWidget(m_returnButton);
    buttonRow->setSpacing(scaledPixels(80.0F, primaryDotsPerInch()));
    buttonRow->addStretch();
    main->addLayout(buttonRow);
    main->addStretch();
}

void CVKIntensityCtrlWidget::resizeEvent(QResizeEvent* event)
{
    if (!m_scrollArea) {
        return;
    }
    const int top = scaledPixels(57.0F, primaryDotsPerInch());
    const QSize size = event->size();
    // Deliberate: a panel that ends above the scroll area gives it a negative height.
    const QRect place(0, top, size.width(), size.height() - top);
    m_scrollArea->setGeometry(place);
    qDebug("[resizeEvent]x: %d, y: %d, wid: %d, hei: %d\n", place.x(), place.y(), place.width(),
        place.height());
}
