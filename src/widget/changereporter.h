#pragma once

#include "widget/cvkintensitywidget.h"

#include <QObject>

#include <functional>
#include <memory>

/// Everything of an intensity widget that its listener is told about.
struct WidgetState
{
    quint64 imageNumber = 0; ///< counts images and frames shown, and closes
    CVKIntensityWidget::View view = CVKIntensityWidget::View::Image;
    CVKIntensityWidget::Axis chartAxis = CVKIntensityWidget::Axis::Row;
    QRect visiblePixels;
    double zoomFactor = 0.0;
    std::optional<QPoint> crossHair;
    QVector<QRect> regions;
    int selectedRegion = -1;
    int markedRegion = -1;
    QString colorPalette;
    std::optional<CVKIntensityWidget::Calibration> calibration;
    CVKIntensityWidget::PeakLabels peakLabels;
};

/// Tells a listener what has changed since it was told last. Many signals belong to one change, and
/// the widget is not consistent while they are sent: within a Call they are gathered up to its end,
/// outside of any up to the next turn of the event loop.
class ChangeReporter : public QObject
{
public:
    using Listener = CVKIntensityWidget::Listener;

    /// A listener that may be destroyed at any time.
    using WeakListener = std::weak_ptr<Listener*>;

    /// Brackets a call into the widget; the outermost one reports at its end.
    class Call
    {
    public:
        explicit Call(ChangeReporter* reporter);
        ~Call();
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

    private:
        QPointer<ChangeReporter> m_reporter;
    };

    /// `state` answers with the present state.
    explicit ChangeReporter(std::function<WidgetState()> state);

    /// From now on; what has changed before is not told.
    void setListener(const WeakListener& listener);

    /// Something may have changed.
    void touch();

protected:
    bool event(QEvent* event) override;

private:
    using Notice = void (Listener::*)();

    void post();
    void report();
    void tellDifferences(const WidgetState& before, const WidgetState& now);
    void tell(Notice notice);

    std::function<WidgetState()> m_state;
    WeakListener m_listener;
    WidgetState m_told;
    int m_openCalls = 0;
    bool m_isPosted = false;
    bool m_isTelling = false;
    bool m_isMissed = false; ///< something may have changed while the listener was told
};
