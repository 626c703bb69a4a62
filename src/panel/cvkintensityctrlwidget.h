#pragma once

#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrltitlebar.h"

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// The side column: a Return button, and below it a scrolling column of two modules, each under a
/// title bar that hides or shows it.
class CVKIntensityCtrlWidget : public QWidget
{
    Q_OBJECT

public:
    /// Deletes itself when closed (Qt::WA_DeleteOnClose). The scroll area becomes a child of
    /// `parent`, beside this widget, and goes with it. The Return button is connected to the slot
    /// sltSwitchToGallery() of the parent's parent, if there is one.
    explicit CVKIntensityCtrlWidget(QWidget* parent);
    ~CVKIntensityCtrlWidget() override;

    /// Null once it was closed or destroyed.
    CVKDisplayPreferences* displayPreferences() const { return m_preferences; }
    CVKDataHistogram* dataHistogram() const { return m_histogram; }

Q_SIGNALS:
    void sglClickedCfg(); ///< part of the interface; not emitted
    void sglClickedSwitch(); ///< part of the interface; not emitted

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createReturnButton();
    void createModules();
    void createModuleColumn();
    void createScrollArea();
    void createMainLayout();

    // Widgets delete themselves when they are closed.
    QPointer<QPushButton> m_returnButton;
    QPointer<QWidget> m_moduleContainer;
    QPointer<QScrollArea> m_scrollArea;
    QPointer<CVKDisplayPreferences> m_preferences;
    QPointer<CVKIntensityCtrlTitleBar> m_preferencesTitle;
    QPointer<CVKDataHistogram> m_histogram;
    QPointer<CVKIntensityCtrlTitleBar> m_histogramTitle;
};
