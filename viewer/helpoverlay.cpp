#include "helpoverlay.h"

#include "appearance.h"
#include "plainlabel.h"

#include <QFont>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

const QColor veil(8, 10, 12, 215);

/// What the intensity widget does with the mouse.
QVector<HelpLine> mouseLines()
{
    return {
        { HelpOverlay::tr("Click the image"), HelpOverlay::tr("Move the cross-hair") },
        { HelpOverlay::tr("Wheel"), HelpOverlay::tr("Zoom the image") },
        { HelpOverlay::tr("Drag a profile"), HelpOverlay::tr("Scroll the zoomed image") },
        { HelpOverlay::tr("Click a region"), HelpOverlay::tr("Select the region of interest") },
        { HelpOverlay::tr("Drag a region"), HelpOverlay::tr("Move the region of interest") },
        { HelpOverlay::tr("Drag a corner"), HelpOverlay::tr("Resize the region of interest") },
        { HelpOverlay::tr("Click the chart"), HelpOverlay::tr("Read a sample of the profile") },
        { HelpOverlay::tr("Click a title bar"), HelpOverlay::tr("Fold a part of the panel") },
        { HelpOverlay::tr("Drop a file or folder"), HelpOverlay::tr("Open it") },
        { HelpOverlay::tr("Double click in the gallery"), HelpOverlay::tr("Open the image") },
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

    auto* lines = new QWidget;
    lines->setObjectName("helpLines");
    m_grid = new QGridLayout(lines);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(scaledForScreen(14));
    m_grid->setVerticalSpacing(scaledForScreen(5));
    const int half = (int(keys.size()) + 1) / 2;
    addSection(tr("Keys"), keys.mid(0, half));
    addSection(QString(), keys.mid(half));
    addSection(tr("Mouse"), mouseLines());
    arrange(false); // from now on the texts belong to the card and are shown with it

    m_scroll->setObjectName("helpScroll");
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(lines);
    m_scroll->setWidgetResizable(true);
    auto* card = new QVBoxLayout(m_card);
    const int margin = scaledForScreen(22);
    card->setContentsMargins(margin, margin, margin, margin);
    card->setSpacing(scaledForScreen(14));
    card->addWidget(m_scroll);
    card->addWidget(plainLabel("helpHint", tr("Any key or a click closes this.")));

    window->installEventFilter(this);
    hide();
}

void HelpOverlay::open()
{
    m_focusBefore = window()->focusWidget();
    show(); // the style sheet reaches the texts, which then know their size
    raise();
    cover();
    setFocus();
}

void HelpOverlay::dismiss()
{
    hide();
    if (m_focusBefore) {
        m_focusBefore->setFocus();
    }
}

void HelpOverlay::addSection(const QString& heading, const QVector<HelpLine>& lines)
{
    Section section;
    section.heading = plainLabel("helpHeading", heading);
    for (const HelpLine& line : lines) {
        section.keys << plainLabel("helpKeys", line.keys);
        section.effects << plainLabel("helpEffect", line.effect);
    }
    m_sections << section;
}

/// The sections side by side, or one below the other.
void HelpOverlay::arrange(bool stacked)
{
    while (QLayoutItem* item = m_grid->takeAt(0)) {
        delete item; // the labels stay
    }
    int row = 0;
    int column = 0;
    for (const Section& section : m_sections) {
        m_grid->addWidget(section.heading, row++, column, 1, 2);
        section.heading->setVisible(!stacked || !section.heading->text().isEmpty());
        for (int i = 0; i < int(section.keys.size()); ++i) {
            m_grid->addWidget(section.keys[i], row, column);
            m_grid->addWidget(section.effects[i], row++, column + 1);
        }
        if (!stacked) {
            row = 0;
            column += 3;
        }
    }
    for (const int gap : { 2, 5 }) {
        m_grid->setColumnMinimumWidth(gap, stacked ? 0 : scaledForScreen(16));
    }
    m_grid->activate();
}

/// Size of the card that needs no scroll bar.
QSize HelpOverlay::wantedSize() const
{
    return m_scroll->widget()->sizeHint() + m_card->sizeHint() - m_scroll->sizeHint();
}

/// Lies over the whole window, with the card in the middle, as large as it wants to be or as the
/// window allows.
void HelpOverlay::cover()
{
    setGeometry(parentWidget()->rect());
    const int around = scaledForScreen(12);
    const QSize room = size() - QSize(2 * around, 2 * around);
    arrange(false);
    QSize wanted = wantedSize();
    if (wanted.width() > room.width()) {
        arrange(true);
        wanted = wantedSize() + QSize(m_scroll->verticalScrollBar()->sizeHint().width(), 0);
    }
    QRect place(QPoint(), wanted.boundedTo(room));
    place.moveCenter(rect().center());
    m_card->setGeometry(place);
}

bool HelpOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        cover();
    }
    return QWidget::eventFilter(watched, event);
}

/// Keys close the help before they can be the shortcut of anything, or (Tab) lead the focus away.
bool HelpOverlay::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
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
