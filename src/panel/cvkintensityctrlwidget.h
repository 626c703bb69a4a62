#pragma once

#include <QPointer>
#include <QWidget>

class CVKDataHistogram;
class CVKDisplayPreferences;
class CVKIntensityCtrlTitleBar;
class QPushButton;
class QScrollArea;

/// The control panel: a "Return" button above a scrolling column of two modules, each under a title
/// bar that collapses it. The scroll area lies on the parent widget, over this one, and goes with
/// this one.
class CVKIntensityCtrlWidget : public QWidget
{
    Q_OBJECT

public:
    /// The "Return" button calls sltSwitchToGallery() of the parent's parent at this moment.
    explicit CVKIntensityCtrlWidget(QWidget* parent);
    ~CVKIntensityCtrlWidget() override;

    /// The modules; null once they have been closed.
    CVKDisplayPreferences* displayPreferences() const;
    CVKDataHistogram* dataHistogram() const;

Q_SIGNALS:
    void sglClickedCfg(); ///< not sent yet by any control
    void sglClickedSwitch(); ///< not sent yet by any control

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildReturnButton();
    void buildModules();
    void buildScrollArea();
    void buildLayout();

    // Widgets that delete themselves when they are closed.
    QPointer<QPushButton> m_returnButton;
    QPointer<QWidget> m_moduleContainer;
    QPointer<CVKIntensityCtrlTitleBar> m_preferencesTitle;
    QPointer<CVKDisplayPreferences> m_preferences;
    QPointer<CVKIntensityCtrlTitleBar> m_histogramTitle;
    QPointer<CVKDataHistogram> m_histogram;
    QPointer<QScrollArea> m_scrollArea;
};
