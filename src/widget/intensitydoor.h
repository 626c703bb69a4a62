#pragma once

#include "image/reading.h"
#include "widget/changereporter.h"

#include <QPointer>

class CVKDataHistogram;
class CVKDisplayPreferences;
class CVKIntensityCtrlWidget;
class CVKIntensityMdiWidget;

/// State behind the public members of the exported widget: how to read, what was read, and the
/// reports of changes. The parts of the widget may be closed at any time, since
/// all widgets here delete themselves when they are closed.
class IntensityDoor
{
public:
    /// `state` answers with the widget's present state.
    IntensityDoor(CVKIntensityMdiWidget* host, CVKIntensityCtrlWidget* controlPanel,
        std::function<WidgetState()> state);

    ReadOptions options; ///< for the loads to come
    LoadProblem problem = LoadProblem::None; ///< of the last load or frame
    QString file; ///< of the image that is open
    ReadReport report; ///< about the image that is open
    quint64 imageNumber = 0; ///< counts images and frames shown, and closes
    ChangeReporter changes;

    /// The host while it has an image; null otherwise.
    CVKIntensityMdiWidget* imageHost() const;

    /// Null once they have been closed.
    CVKDisplayPreferences* preferences() const;
    CVKDataHistogram* dataHistogram() const;

private:
    void watchHost();
    void watchPanel();

    QPointer<CVKIntensityMdiWidget> m_host;
    QPointer<CVKIntensityCtrlWidget> m_controlPanel;
};
