#include "pagecontrol.h"

#include "plainlabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

PageControl::PageControl(QWidget* parent)
    : QWidget(parent)
    , m_number(new QSpinBox)
    , m_count(plainLabel("pageCount"))
{
    setObjectName("pageControl");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(fontMetrics().averageCharWidth() / 2);
    m_previous = addArrow("pagePrevious", Qt::LeftArrow, tr("Previous page"), -1);
    row->addWidget(plainLabel("pageLabel", tr("Page")));
    m_number->setObjectName("pageNumber");
    m_number->setAccessibleName(tr("Page number"));
    m_number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_number->setAlignment(Qt::AlignCenter);
    m_number->setKeyboardTracking(false); // 12 is not asked for by way of 1
    row->addWidget(m_number);
    row->addWidget(m_count);
    m_next = addArrow("pageNext", Qt::RightArrow, tr("Next page"), 1);
    connect(m_number, QOverload<int>::of(&QSpinBox::valueChanged), this,
        [this](int number) { Q_EMIT pageChosen(number - 1); });
    showPage(0, 0);
}

QToolButton* PageControl::addArrow(
    const char* name, Qt::ArrowType arrow, const QString& text, int step)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys with the image
    connect(button, &QToolButton::clicked, this,
        [this, step] { Q_EMIT pageChosen(m_number->value() - 1 + step); });
    layout()->addWidget(button);
    return button;
}

void PageControl::showPage(int page, int count)
{
    const QSignalBlocker blocker(m_number);
    m_number->setRange(1, qMax(qMax(count, page + 1), 1));
    m_number->setValue(page + 1);
    m_count->setText(count > 0 ? tr("of %1").arg(count) : QString());
    m_previous->setEnabled(page > 0);
    m_next->setEnabled(page + 1 < count);
}

bool PageControl::isNeeded() const
{
    return m_number->maximum() > 1;
}
