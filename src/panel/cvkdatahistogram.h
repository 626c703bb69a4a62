#pragma once

#include "analysis/intensityinfo.h"
#include "panel/histogrampolyline.h"

#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class CVKDataHistogram;
}
QT_END_NAMESPACE

/// The module that shows the histogram of the image or of the selected region of interest, the list
/// of regions and the statistics of the selected one. All of it arrives through slots; what the
/// user wants leaves as signals.
class CVKDataHistogram : public QWidget
{
    Q_OBJECT

public:
    /// Deletes itself when closed (Qt::WA_DeleteOnClose).
    explicit CVKDataHistogram(QWidget* parent = nullptr);
    ~CVKDataHistogram() override;

    /// An empty list of regions, and no statistics.
    void resetRoiList();

Q_SIGNALS:
    void addRoiItem();
    void deleteRoiItem(int index);
    /// The list has moved to a region, or to -2 while it is refilled.
    void selectRoiItem(int index);
    /// The list has moved to "None Select": the histogram of the whole image is wanted.
    void updateIntensityHistogram();

public Q_SLOTS:
    void onShrinkaged(bool shrinkaged);
    void updateItemNames(QStringList itemNames);
    /// Bins of the image that is about to come. A number that is no possible one (below 1, above
    /// 2^26) removes the histogram.
    void newHistogramSize(int size);
    /// Shows the statistics and moves the list to the region, which selects it once more.
    void updateRoiIntensityInfo(int selected, IntensityInfo info);
    /// Copies max - min + 1 counts from `data`, whatever `maxSize` announces. Null data, a range
    /// turned round or of more than 2^26 values: nothing changes.
    void updateRoiIntensityHistogram(uint* data, int maxSize, uint min, uint max);

protected:
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
    void on_pushButtonAdd_clicked();
    void on_pushButtonDelete_clicked();
    void on_comboBoxRoi_currentIndexChanged(int index);

private:
    bool resizeCounts(int count);
    void clearValues();
    void setDeleteEnabled(bool enabled);
    QRect histogramArea() const;
    void drawRange(QPainter* painter, const QRect& frame);

    std::unique_ptr<uint[]> m_counts;
    int m_capacity = 0; ///< of m_counts
    int m_count = 0; ///< valid counts
    uint m_maximum = 0; ///< value of the last bin
    uint m_minimum = 0; ///< value of the first bin
    CountRange m_countRange;
    QVector<QLineF> m_lines; ///< as last painted
    std::unique_ptr<Ui::CVKDataHistogram> m_ui;
};
