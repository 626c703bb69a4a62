#include "statusline.h"

#include "appearance.h"
#include "elidedlabel.h"
#include "pagecontrol.h"
#include "plainlabel.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLocale>
#include <QProgressBar>

namespace {

constexpr int messageMilliseconds = 4000;
constexpr int messageMargin = 8; // pixels that QStatusBar leaves beside a message, and some
constexpr int nameWidth = 120; // at 96 dots per inch; below it other parts go

/// "12 ms", or "1.4 s" from a second on.
QString durationText(qint64 milliseconds)
{
    const QLocale locale;
    return milliseconds < 1000
        ? StatusLine::tr("%1 ms").arg(locale.toString(milliseconds))
        : StatusLine::tr("%1 s").arg(locale.toString(double(milliseconds) / 1000.0, 'f', 1));
}

/// Gives the label the size that `widest` needs, so that no other text moves anything.
void fixWidth(QLabel* label, const QString& widest)
{
    const QString text = label->text();
    label->setMinimumSize(0, 0);
    label->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    label->setText(widest);
    label->ensurePolished();
    label->setFixedSize(label->sizeHint());
    label->setText(text);
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent)
    , m_name(plainLabel<ElidedLabel>("statusFileName"))
    , m_progress(new QProgressBar)
    , m_pixel(plainLabel("statusPixel"))
    , m_zoom(plainLabel("statusZoom"))
    , m_pages(new PageControl)
    , m_summary(plainLabel("statusImageSize"))
    , m_kept(plainLabel("statusSettingsKept"))
    , m_time(plainLabel("statusLoadTime"))
{
    m_progress->setObjectName("statusProgress");
    m_progress->setAccessibleName(tr("Progress of the load"));
    m_progress->setFixedSize(scaledForScreen(160), scaledForScreen(14));
    m_pixel->setToolTip(tr("Pixel under the pointer and its value"));
    m_zoom->setToolTip(tr("Zoom"));
    m_zoom->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_kept->setToolTip(tr("The next image opens with palette, axes, view, peaks and regions of "
                          "this one (View > Keep Settings)"));
    m_time->setToolTip(tr("Time that the image took to load"));
    addWidget(m_name, 1);
    for (QWidget* part :
        QVector<QWidget*> { m_progress, m_pixel, m_zoom, m_pages, m_summary, m_kept, m_time }) {
        addPermanentWidget(part);
        part->hide();
    }
    connect(this, &QStatusBar::messageChanged, this, &StatusLine::fitParts);
}

QVector<StatusLine::Part> StatusLine::partsByImportance() const
{
    return {
        { m_progress, !m_progress->isHidden() },
        { m_pages, m_pages->isNeeded() },
        { m_pixel, m_pixel->maximumWidth() < QWIDGETSIZE_MAX },
        { m_zoom, !m_zoom->text().isEmpty() },
        { m_summary, !m_summary->text().isEmpty() },
        { m_time, m_isTimeShown && !m_time->text().isEmpty() },
        { m_kept, !m_kept->text().isEmpty() },
    };
}

/// Shows the parts that there is room for beside the name, or beside a message in its place.
void StatusLine::fitParts()
{
    m_name->setVisible(currentMessage().isEmpty()); // a new layout would show it below a message
    const int gap = scaledForScreen(10);
    const int message
        = currentMessage().isEmpty() ? 0 : fontMetrics().horizontalAdvance(currentMessage()) + gap;
    int room = width() - qMax(scaledForScreen(nameWidth), message) - gap;
    for (const Part& part : partsByImportance()) {
        part.widget->ensurePolished();
        const int needed = part.widget->sizeHint().boundedTo(part.widget->maximumSize()).width();
        const bool isShown = part.isWanted && needed <= room;
        part.widget->setVisible(isShown);
        if (isShown) {
            room -= needed + gap;
        } else if (part.isWanted) {
            room = 0; // what matters less does not take its place
        }
    }
}

void StatusLine::showName(const QString& text)
{
    m_name->setText(text);
    m_summary->clear();
    m_time->clear();
    fitParts();
}

void StatusLine::showLoading(const QString& fileName)
{
    showName(tr("Loading %1...").arg(fileName));
    m_progress->setValue(0);
    m_progress->show();
    fitParts();
    QCoreApplication::sendPostedEvents(this, QEvent::LayoutRequest);
    repaint();
}

void StatusLine::showProgress(int percent)
{
    m_progress->setValue(percent);
    m_progress->repaint();
}

void StatusLine::hideProgress()
{
    m_progress->hide();
    fitParts();
}

void StatusLine::showImage(const QString& summary, qint64 milliseconds)
{
    m_summary->setText(summary);
    m_time->setText(durationText(milliseconds));
    fitParts();
}

void StatusLine::tell(const QString& text)
{
    showMessage(text, messageMilliseconds);
}

void StatusLine::tellSaved(const QString& path)
{
    const QString text = tr("Saved as %1").arg(QDir::toNativeSeparators(path).simplified());
    const int room = m_summary->x() - 2 * messageMargin;
    tell(fontMetrics().elidedText(text, Qt::ElideMiddle, room));
}

void StatusLine::hideTime()
{
    m_isTimeShown = false;
    fitParts();
}

void StatusLine::reservePixel(const QString& widest)
{
    if (widest.isEmpty()) {
        m_pixel->clear();
        m_pixel->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        fixWidth(m_pixel, widest);
    }
    fitParts();
}

void StatusLine::showPixel(const QString& text)
{
    m_pixel->setText(text);
}

void StatusLine::showZoom(const QString& text)
{
    if (m_zoom->text().isEmpty() != text.isEmpty()) {
        m_zoom->setText(text);
        fixWidth(m_zoom, tr("%1 %").arg("0000"));
        fitParts();
    }
    m_zoom->setText(text);
}

void StatusLine::showSettingsKept(bool kept)
{
    m_kept->setText(kept ? tr("Settings kept") : QString());
    fitParts();
}

void StatusLine::showPages(int page, int count)
{
    m_pages->showPage(page, count);
    fitParts();
}

void StatusLine::resizeEvent(QResizeEvent* event)
{
    QStatusBar::resizeEvent(event);
    fitParts();
}
