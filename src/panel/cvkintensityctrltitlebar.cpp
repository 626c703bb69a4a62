#include "panel/cvkintensityctrltitlebar.h"

#include "panel/scaledpixels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

CVKIntensityCtrlTitleBar::CVKIntensityCtrlTitleBar(QWidget* parent)
    : QWidget(parent)
{
    const double dotsPerInch = primaryDotsPerInch();
    setWindowFlags(Qt::SubWindow);
    setAttribute(Qt::WA_DeleteOnClose, true);
    setMinimumWidth(scaledPixels(290.0F, dotsPerInch));
    setMinimumHeight(scaledPixels(26.0F, dotsPerInch));
    setMaximumHeight(scaledPixels(28.0F, dotsPerInch));
    m_leftSkin.load(QStringLiteral(":img_mdi_res/skin/mod_title_left.png"));
    m_middleSkin.load(QStringLiteral(":img_mdi_res/skin/mod_title_middle.png"));
    m_rightSkin.load(QStringLiteral(":img_mdi_res/skin/mod_title_right.png"));
}

void CVKIntensityCtrlTitleBar::setTitle(int index, const QString& title)
{
    const double dotsPerInch = primaryDotsPerInch();
    m_moduleIndex = index;
    if (!m_label) {
        m_label = new QLabel(title, this);
        QFont font = m_label->font();
        font.setWeight(75);
        m_label->setFont(font);
        m_label->setStyleSheet(QStringLiteral("color: rgb(250, 250, 250);"));
        m_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        m_label->setFixedWidth(scaledPixels(200.0F, dotsPerInch));
    }
    if (!m_flex) {
        m_shrinkage = false;
        m_flex = new QPushButton(this);
        m_flex->setCheckable(true);
        m_flex->setChecked(false);
        m_flex->setObjectName(QStringLiteral("left_flex1"));
        m_flex->setFixedSize(30, 24);
        connect(m_flex, SIGNAL(clicked(bool)), this, SLOT(on_pbFlex_clicked(bool)));
        m_stateByTitle[title] = m_shrinkage;
    }
    if (!m_layout) {
        m_layout = new QHBoxLayout(this);
        m_layout->addStretch();
        m_layout->setSpacing(scaledPixels(10.0F, dotsPerInch));
        m_layout->addWidget(m_label);
        m_layout->addWidget(m_flex);
        m_layout->addStretch();
        m_layout->setContentsMargins(0, 0, 0, 0);
    }
}

void CVKIntensityCtrlTitleBar::shrink(bool shrinkage)
{
    m_shrinkage = shrinkage;
    m_flex->setChecked(shrinkage);
    Q_EMIT changeShrinkageState(shrinkage);
}

void CVKIntensityCtrlTitleBar::on_pbFlex_clicked(bool checked)
{
    if (m_flex) {
        shrink(checked);
    }
}

void CVKIntensityCtrlTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_flex) {
        shrink(!m_shrinkage);
    }
}

void CVKIntensityCtrlTitleBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    int x = 0;
    if (!m_leftSkin.isNull()) {
        painter.drawPixmap(QRect(0, 0, m_leftSkin.width(), height()), m_leftSkin);
        x = m_leftSkin.width();
    }
    int right = 0; // without a right skin there is no middle either
    if (!m_rightSkin.isNull()) {
        right = width() - m_rightSkin.width();
        painter.drawPixmap(QRect(right, 0, m_rightSkin.width(), height()), m_rightSkin);
    }
    while (!m_middleSkin.isNull() && x < right) {
        const int tile = std::min(right - x, m_middleSkin.width());
        painter.drawPixmap(QRect(x, 0, tile, height()), m_middleSkin);
        x += tile;
    }
}
