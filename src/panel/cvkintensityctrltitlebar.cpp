#include "panel/cvkintensityctrltitlebar.h"

#include "base/screenscale.h"
#include "panel/titlebarskin.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

CVKIntensityCtrlTitleBar::CVKIntensityCtrlTitleBar(QWidget* parent)
    : QWidget(parent, Qt::SubWindow)
    , m_leftSkin(QStringLiteral(":img_mdi_res/skin/mod_title_left.png"))
    , m_middleSkin(QStringLiteral(":img_mdi_res/skin/mod_title_middle.png"))
    , m_rightSkin(QStringLiteral(":img_mdi_res/skin/mod_title_right.png"))
{
    setAttribute(Qt::WA_DeleteOnClose, true);
    const double dotsPerInch = primaryDotsPerInch();
    setMinimumWidth(scaledPixels(290.0F, dotsPerInch));
    setMinimumHeight(scaledPixels(26.0F, dotsPerInch));
    setMaximumHeight(scaledPixels(28.0F, dotsPerInch));
}

void CVKIntensityCtrlTitleBar::setTitle(int index, const QString& title)
{
    m_moduleIndex = index;
    const double dotsPerInch = primaryDotsPerInch();
    if (!m_label) {
        buildLabel(title, dotsPerInch);
    }
    if (!m_flexButton) {
        buildFlexButton(title);
    }
    if (!m_layout) {
        buildLayout(dotsPerInch);
    }
}

void CVKIntensityCtrlTitleBar::buildLabel(const QString& title, double dotsPerInch)
{
    m_label = new QLabel(title, this);
    QFont font = m_label->font();
    font.setWeight(QFont::Bold);
    m_label->setFont(font);
    m_label->setStyleSheet(QStringLiteral("color: rgb(250, 250, 250);"));
    m_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_label->setFixedWidth(scaledPixels(200.0F, dotsPerInch));
}

void CVKIntensityCtrlTitleBar::buildFlexButton(const QString& title)
{
    m_isShrunk = false;
    m_flexButton = new QPushButton(this);
    m_flexButton->setCheckable(true);
    m_flexButton->setChecked(false);
    m_flexButton->setObjectName(QStringLiteral("left_flex1"));
    m_flexButton->setFixedSize(30, 24); // Deliberate: not scaled
    connect(m_flexButton, SIGNAL(clicked(bool)), this, SLOT(on_pbFlex_clicked(bool)));
    m_stateByTitle[title] = m_isShrunk;
}

/// Label and button stand in the middle of the bar, as one group.
void CVKIntensityCtrlTitleBar::buildLayout(double dotsPerInch)
{
    m_layout = new QHBoxLayout(this);
    m_layout->addStretch();
    m_layout->setSpacing(scaledPixels(10.0F, dotsPerInch));
    m_layout->addWidget(m_label);
    m_layout->addWidget(m_flexButton);
    m_layout->addStretch();
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void CVKIntensityCtrlTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_flexButton) {
        setShrunk(!m_isShrunk);
    }
}

void CVKIntensityCtrlTitleBar::on_pbFlex_clicked(bool checked)
{
    setShrunk(checked);
}

void CVKIntensityCtrlTitleBar::setShrunk(bool isShrunk)
{
    m_isShrunk = isShrunk;
    m_flexButton->setChecked(isShrunk);
    Q_EMIT changeShrinkageState(isShrunk);
}

void CVKIntensityCtrlTitleBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintTitleBarSkin(painter, m_leftSkin, m_middleSkin, m_rightSkin, width(), height());
}
