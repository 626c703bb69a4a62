#pragma once

#include "analysis/intensityinfo.h"
#include "panel/histogrampolyline.h"

#include <QLineF>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <cstdlib>
#include <memory>

class QPainter;

namespace Ui {
class CVKDataHistogram;
}

/// Module of the control panel that draws the histogram of the whole image or of the selected
/// region of interest, lists the regions, and shows the statistics of the selected one. It copies
/// what its slots are handed and computes nothing but the drawing.
class CVKDataHistogram : public QWidget
{
    Q_OBJECT

public:
    explicit CVKDataHistogram(QWidget* parent = nullptr);
    ~CVKDataHistogram() override;

    /// Leaves "None Select" as the only entry and clears the statistics. Sends what a combo box
    /// sends that is emptied and filled: selectRoiItem(-2), then updateIntensityHistogram().
    void resetRoiList();

    /// What the user does at the list of regions: selects region `index`, or "None Select" for -1.
    /// An entry that is selected already is announced one more time. False without such an entry.
    bool chooseRegion(int index);
    int chosenRegion() const; ///< -1 for "None Select"

Q_SIGNALS:
    void addRoiItem();
    void deleteRoiItem(int index);
    /// -2 while the list is being filled anew.
    void selectRoiItem(int index);
    /// Asks for the histogram of the whole image.
    void updateIntensityHistogram();

public Q_SLOTS:
    void onShrinkaged(bool shrinkaged);
    void updateItemNames(QStringList itemNames);
    /// Makes room for `size` counts, all 0, unless as many are there. No counts at all, and an
    /// empty curve, for a size below 1 or above 2^26.
    void newHistogramSize(int size);
    /// Shows the statistics of region `selected`, selecting it first if it is not.
    void updateRoiIntensityInfo(int selected, IntensityInfo info);
    /// Copies the counts of the values `min` to `max`. Nothing changes without data, for a range
    /// that is turned round and for one of more than 2^26 values; `maxSize` is the length to make
    /// room for and may be too small.
    void updateRoiIntensityHistogram(uint* data, int maxSize, uint min, uint max);

protected:
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS: // connected by name
    void on_pushButtonAdd_clicked();
    void on_pushButtonDelete_clicked();
    void on_comboBoxRoi_currentIndexChanged(int index);

private:
    struct Free
    {
        void operator()(uint* counts) const { std::free(counts); }
    };

    bool allocateCounts(qint64 capacity);
    void dropCounts();
    void fillRoiList(const QStringList& names);
    void clearValues();
    void setDeleteEnabled(bool enabled);
    QRect histogramFrame() const;
    void drawMinimumAndMaximum(QPainter& painter, const QRect& frame) const;

    std::unique_ptr<Ui::CVKDataHistogram> m_form;
    std::unique_ptr<uint[], Free> m_counts;
    qint64 m_capacity = 0; ///< counts that there is room for
    int m_size = 0; ///< counts that are valid
    CountRange m_countRange; ///< of the valid counts
    uint m_minimum = 0; ///< value of the first count
    uint m_maximum = 0; ///< value of the last count
    QVector<QLineF> m_lines; ///< rebuilt by every paint that has counts
};
