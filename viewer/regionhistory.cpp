#include "regionhistory.h"

#include "imagepage.h"

#include <QScopedValueRollback>
#include <QUndoCommand>

namespace {

constexpr int mostSteps = 100;

/// The part of a region that a call can set again: a drag can leave an edge outside of the image,
/// or a region without pixels.
QRect insideImage(const QRect& region, const QSize& image)
{
    const int left = qBound(0, region.left(), image.width() - 1);
    const int top = qBound(0, region.top(), image.height() - 1);
    const int right = qBound(left, region.right(), image.width() - 1);
    const int bottom = qBound(top, region.bottom(), image.height() - 1);
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

/// First region that is not the same in both lists.
int firstDifference(const QVector<QRect>& a, const QVector<QRect>& b)
{
    const int count = int(qMin(a.size(), b.size()));
    int index = 0;
    while (index < count && a[index] == b[index]) {
        ++index;
    }
    return index;
}

/// Whether `longer` is `shorter` with one more region at `index`.
bool hasOneMore(const QVector<QRect>& longer, const QVector<QRect>& shorter, int index)
{
    return longer.size() == shorter.size() + 1 && longer.mid(index + 1) == shorter.mid(index);
}

/// Whether the lists differ at `index` alone.
bool hasOneChanged(const QVector<QRect>& a, const QVector<QRect>& b, int index)
{
    return a.size() == b.size() && index < a.size() && a.mid(index + 1) == b.mid(index + 1);
}

QString nameOfStep(const QVector<QRect>& before, const QVector<QRect>& after)
{
    const int index = firstDifference(before, after);
    if (hasOneMore(after, before, index)) {
        return RegionHistory::tr("Add Region");
    }
    if (hasOneMore(before, after, index)) {
        return RegionHistory::tr("Delete Region");
    }
    if (hasOneChanged(before, after, index)) {
        return before[index].size() == after[index].size() ? RegionHistory::tr("Move Region")
                                                           : RegionHistory::tr("Resize Region");
    }
    return RegionHistory::tr("Change Regions");
}

/// Touches as few regions as possible: those that are replaced are drawn anew.
void setRegions(CVKIntensityWidget* image, const QVector<QRect>& now, const QVector<QRect>& wanted)
{
    const int index = firstDifference(now, wanted);
    if (hasOneChanged(now, wanted, index)) {
        image->setRegion(index, wanted[index]);
    } else if (hasOneMore(now, wanted, index)) {
        image->removeRegion(index);
    } else if (hasOneMore(wanted, now, index) && index == now.size()) {
        image->addRegion(wanted.last());
    } else if (now != wanted) {
        image->setRegions(wanted);
    }
}

} // namespace

/// Is done already when it is pushed.
class RegionStep : public QUndoCommand
{
public:
    RegionStep(RegionHistory* history, const QString& name, const RegionState& before,
        const RegionState& after)
        : QUndoCommand(name)
        , m_history(history)
        , m_before(before)
        , m_after(after)
    {
    }

    void undo() override
    {
        m_history->restore(m_before);
        m_isDone = false;
    }

    void redo() override
    {
        if (!m_isDone) {
            m_history->restore(m_after);
            m_isDone = true;
        }
    }

private:
    RegionHistory* m_history;
    RegionState m_before;
    RegionState m_after;
    bool m_isDone = true;
};

RegionHistory::RegionHistory(ImagePage* page)
    : QObject(page)
    , m_page(page)
{
    m_steps.setUndoLimit(mostSteps);
    connect(page, &ImagePage::imageReplaced, this, &RegionHistory::forget);
    connect(page, &ImagePage::regionsEdited, this, &RegionHistory::follow);
    connect(page, &ImagePage::displayChanged, this, &RegionHistory::followSelection);
}

RegionState RegionHistory::present() const
{
    const CVKIntensityWidget* image = m_page->intensityWidget();
    const QSize size = image->imageInfo().size;
    RegionState state;
    for (const QRect& region : image->regions()) {
        state.regions << insideImage(region, size);
    }
    state.selected = image->selectedRegion();
    return state;
}

/// Takes over what has been done since the last step.
void RegionHistory::follow()
{
    if (m_isRestoring) {
        return;
    }
    const RegionState now = present();
    if (now.regions == m_known.regions) {
        return;
    }
    const QString name
        = m_stepName.isEmpty() ? nameOfStep(m_known.regions, now.regions) : m_stepName;
    auto* step = new RegionStep(this, name, m_known, now);
    m_known = now;
    m_steps.push(step);
}

void RegionHistory::followSelection()
{
    if (!m_isRestoring) {
        m_known.selected = m_page->intensityWidget()->selectedRegion();
    }
}

/// What the user has done may not be told yet.
void RegionHistory::undo()
{
    follow();
    m_steps.undo();
}

void RegionHistory::redo()
{
    follow();
    m_steps.redo();
}

bool RegionHistory::replaceRegions(const QVector<QRect>& regions, const QString& stepName)
{
    follow();
    const QScopedValueRollback<QString> named(m_stepName, stepName);
    return m_page->intensityWidget()->setRegions(regions);
}

void RegionHistory::forget()
{
    m_steps.clear();
    m_known = present();
}

void RegionHistory::restore(const RegionState& state)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    CVKIntensityWidget* image = m_page->intensityWidget();
    setRegions(image, present().regions, state.regions);
    image->selectRegion(state.selected);
    m_known = present();
}
