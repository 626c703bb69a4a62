#include "widget/changereporter.h"

#include <QCoreApplication>
#include <QEvent>

#include <tuple>
#include <utility>

namespace {

auto viewPart(const WidgetState& state)
{
    return std::make_tuple(state.view, state.chartAxis, state.visiblePixels, state.zoomFactor);
}

auto selectionPart(const WidgetState& state)
{
    return std::make_pair(state.selectedRegion, state.markedRegion);
}

bool areSettingsSame(const WidgetState& a, const WidgetState& b)
{
    return a.colorPalette == b.colorPalette && a.calibration == b.calibration
        && a.peakLabels == b.peakLabels;
}

} // namespace

ChangeReporter::Call::Call(ChangeReporter* reporter)
    : m_reporter(reporter)
{
    ++m_reporter->m_openCalls;
}

ChangeReporter::Call::~Call()
{
    if (m_reporter && --m_reporter->m_openCalls == 0) {
        m_reporter->report();
    }
}

ChangeReporter::ChangeReporter(std::function<WidgetState()> state)
    : m_state(std::move(state))
{
}

void ChangeReporter::setListener(const WeakListener& listener)
{
    m_listener = listener;
    m_told = m_state();
}

void ChangeReporter::touch()
{
    if (m_openCalls == 0 && !m_listener.expired()) {
        post();
    }
}

void ChangeReporter::post()
{
    if (!m_isPosted) {
        m_isPosted = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

bool ChangeReporter::event(QEvent* event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    m_isPosted = false;
    report();
    return true;
}

void ChangeReporter::report()
{
    if (m_listener.expired()) {
        return;
    }
    if (m_isTelling) {
        // Told later: a listener that always changes something must not keep the call from
        // returning.
        m_isMissed = true;
        return;
    }
    const QPointer<ChangeReporter> self(this);
    m_isTelling = true;
    try {
        const WidgetState now = m_state();
        tellDifferences(std::exchange(m_told, now), now);
    } catch (...) {
        qWarning("A listener of CVKIntensityWidget has thrown an exception.");
    }
    if (self) {
        m_isTelling = false;
        if (std::exchange(m_isMissed, false)) {
            post();
        }
    }
}

void ChangeReporter::tellDifferences(const WidgetState& before, const WidgetState& now)
{
    const QPointer<ChangeReporter> self(this);
    const WeakListener told = m_listener;
    const auto isSameListener
        = [&] { return self && !told.owner_before(m_listener) && !m_listener.owner_before(told); };
    const std::pair<bool, Notice> notices[] {
        { before.imageNumber != now.imageNumber, &Listener::imageChanged },
        { viewPart(before) != viewPart(now), &Listener::viewChanged },
        { before.crossHair != now.crossHair, &Listener::crossHairChanged },
        { before.regions != now.regions, &Listener::regionsChanged },
        { selectionPart(before) != selectionPart(now), &Listener::selectionChanged },
        { !areSettingsSame(before, now), &Listener::settingsChanged },
    };
    for (const auto& [isChanged, notice] : notices) {
        if (isChanged && isSameListener()) {
            tell(notice);
        }
    }
}

void ChangeReporter::tell(Notice notice)
{
    if (const auto listener = m_listener.lock()) {
        ((*listener)->*notice)();
    }
}
