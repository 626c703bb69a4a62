#include "helpoverlay.h"

#include "appearance.h"

#include <QFont>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

namespace {

const QColor veil(8, 10, 12, 215);

QLabel* helpLabel(const char* objectName, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// Lines below a heading: keys on the left, what they do on the right.
QWidget* section(const QString& heading, const QVector<HelpLine>& lines)
{
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(scaledForScreen(14));
    grid->setVerticalSpacing(scaledForScreen(5));
    grid->addWidget(helpLabel("helpHeading", heading), 0, 0, 1, 2);
    for (int i = 0; i < int(lines.size()); ++i) {
        grid->addWidget(helpLabel("helpKeys", lines[i].keys), i + 1, 0);
        grid->addWidget(helpLabel("helpEffect", lines[i].effect), i + 1, 1);
    }
    grid->setRowStretch(int(lines.size()) + 1, 1);
    grid->setColumnStretch(1, 1);
    return box;
}

/// What the intensity widget does with the mouse.
QVector<HelpLine> mouseLines()
{
    return {
        { HelpOverlay::tr("Click the image"), HelpOverlay::tr("Move the cross-hair") },
        { HelpOverlay::tr("Wheel"), HelpOverlay::tr("Zoom the image") },
        { HelpOverlay::tr("Drag a profile"), HelpOverlay::tr("Scroll the zoomed image") },
        { HelpOverlay::tr("Drag a region"), HelpOverlay::tr("Move the region of interest") },
        { HelpOverlay::tr("Drag a corner"), HelpOverlay::tr("Resize the region of interest") },
        { HelpOverlay::tr("Click the chart"), HelpOverlay::tr("Read a sample of the profile") },
        { HelpOverlay::tr("Click a title bar"), HelpOverlay::tr("Fold a part of the panel") },
        { HelpOverlay::tr("Drop a file or folder"), HelpOverlay::tr("Open it") },
    };
}

} // namespace

HelpOverlay::HelpOverlay(const QVector<HelpLine>& keys, QWidget* window)
    : QWidget(window)
    , m_card(new QFrame(this))
    , m_scroll(new QScrollArea)
{
    setObjectName("helpOverlay");
    setAccessibleName(tr("Mouse and keys"));
    setFocusPolicy(Qt::StrongFocus);
    m_card->setObjectName("helpCard");

    auto* columns = new QWidget;
    columns->setObjectName("helpColumns");
    auto* row = new QHBoxLayout(columns);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(scaledForScreen(36));
    const int half = (int(keys.size()) + 1) / 2;
    auto* right = new QWidget;
    auto* rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(0, 0, 0, 0);
    rightColumn->setSpacing(scaledForScreen(16));
    rightColumn->addWidget(section(tr("Mouse"), mouseLines()));
    rightColumn->addStretch(1);
    row->addWidget(section(tr("Keys"), keys.mid(0, half)));
    row->addWidget(section(QString(), keys.mid(half)));
    row->addWidget(right);

    m_scroll->setObjectName("helpScroll");
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(columns);
    auto* card = new QVBoxLayout(m_card);
    const int margin = scaledForScreen(22);
    card->setContentsMargins(margin, margin, margin, margin);
    card->setSpacing(scaledForScreen(14));
    card->addWidget(m_scroll);
    card->addWidget(helpLabel("helpHint", tr("Any key or a click closes this.")));

    window->installEventFilter(this);
    hide();
}

void HelpOverlay::open()
{
    m_focusBefore = window()->focusWidget();
    cover();
    show();
    raise();
    setFocus();
}

void HelpOverlay::dismiss()
{
    hide();
    if (m_focusBefore) {
        m_focusBefore->setFocus();
    }
}

/// Lies over the whole window, with the card in the middle, as large as it wants to be or as the
/// window allows.
void HelpOverlay::cover()
{
    setGeometry(parentWidget()->rect());
    const int around = scaledForScreen(12);
    const QMargins inner = m_card->layout()->contentsMargins();
    const QSize bar(m_scroll->verticalScrollBar()->sizeHint().width(), 0);
    const int hint = m_card->findChild<QLabel*>("helpHint")->sizeHint().height();
    const QSize wanted = m_scroll->widget()->sizeHint()
        + QSize(inner.left() + inner.right(),
            inner.top() + inner.bottom() + m_card->layout()->spacing() + hint)
        + bar;
    const QSize room = size() - QSize(2 * around, 2 * around);
    const QSize granted = wanted.boundedTo(room);
    m_card->setGeometry(
        QRect(QPoint((width() - granted.width()) / 2, (height() - granted.height()) / 2), granted));
}

bool HelpOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        cover();
    }
    return QWidget::eventFilter(watched, event);
}

/// Keys close the help before they can be the shortcut of anything.
bool HelpOverlay::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void HelpOverlay::keyPressEvent(QKeyEvent* event)
{
    QScrollBar* bar = m_scroll->verticalScrollBar();
    const bool scrolls = bar->maximum() > 0;
    switch (event->key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_Meta: return; // on the way to some other key
    case Qt::Key_Down:
        return scrolls ? bar->triggerAction(QScrollBar::SliderSingleStepAdd) : dismiss();
    case Qt::Key_Up:
        return scrolls ? bar->triggerAction(QScrollBar::SliderSingleStepSub) : dismiss();
    case Qt::Key_PageDown:
        return scrolls ? bar->triggerAction(QScrollBar::SliderPageStepAdd) : dismiss();
    case Qt::Key_PageUp:
        return scrolls ? bar->triggerAction(QScrollBar::SliderPageStepSub) : dismiss();
    default: dismiss();
    }
}

void HelpOverlay::mousePressEvent(QMouseEvent*)
{
    dismiss();
}

void HelpOverlay::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), veil);
}
