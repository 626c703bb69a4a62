#pragma once

#include <QObject>
#include <QRect>
#include <QUndoStack>
#include <QVector>

class CVKIntensityWidget;
class ImagePage;

/// Regions of interest at one time.
struct RegionState
{
    QVector<QRect> regions; ///< image pixels; all lie inside the image
    int selected = -1; ///< in the panel; -1 for none
};

/// What was done to the regions of the image that is open, by the user or by calls, as steps that
/// can be undone. Another image starts afresh.
class RegionHistory : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the page.
    explicit RegionHistory(ImagePage* page);

    /// For texts and whether there is something to undo or redo.
    const QUndoStack& steps() const { return m_steps; }

    void undo();
    void redo();

    /// Replaces all regions in one step of this name. False, and nothing changes, when any does not
    /// lie inside the image.
    bool replaceRegions(const QVector<QRect>& regions, const QString& stepName);

    /// What the regions are now can no longer be undone.
    void forget();

private:
    friend class RegionStep;

    RegionState present() const;
    void follow();
    void followSelection();
    void restore(const RegionState& state);

    ImagePage* m_page;
    QUndoStack m_steps;
    RegionState m_known; // after the last step
    QString m_stepName; // of what is being done; empty: as the change shows
    bool m_isRestoring = false;
};
