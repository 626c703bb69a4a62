#include "statusline.h"

#include "appearance.h"
#include "elidedlabel.h"
#include "plainlabel.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLocale>
#include <QProgressBar>

namespace {

constexpr int messageMilliseconds = 4000;
constexpr int messageMargin = 8; // pixels that QStatusBar leaves beside a message, and some

/// "12 ms", or "1.4 s" from a second on.
QString durationText(qint64 milliseconds)
{
    const QLocale locale;
    return milliseconds < 1000
        ? StatusLine::tr("%1 ms").arg(locale.toString(milliseconds))
        : StatusLine::tr("%1 s").arg(locale.toString(double(milliseconds) / 1000.0, 'f', 1));
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent)
    , m_name(plainLabel<ElidedLabel>("statusFileName"))
    , m_progress(new QProgressBar)
    , m_summary(plainLabel("statusImageSize"))
    , m_time(plainLabel("statusLoadTime"))
{
    m_progress->setObjectName("statusProgress");
    m_progress->setAccessibleName(tr("Progress of the load"));
    m_progress->setFixedSize(scaledForScreen(160), scaledForScreen(14));
    m_time->setToolTip(tr("Time that the image took to load"));
    addWidget(m_name, 1);
    addPermanentWidget(m_progress);
    addPermanentWidget(m_summary);
    addPermanentWidget(m_time);
    m_progress->hide();
}

void StatusLine::showName(const QString& text)
{
    m_name->setText(text);
    m_summary->clear();
    m_time->clear();
}

void StatusLine::showLoading(const QString& fileName)
{
    showName(tr("Loading %1...").arg(fileName));
    m_progress->setValue(0);
    m_progress->show();
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
}

void StatusLine::showImage(const QString& summary, qint64 milliseconds)
{
    m_summary->setText(summary);
    m_time->setText(durationText(milliseconds));
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
    m_time->hide();
}
