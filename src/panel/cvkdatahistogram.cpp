#include "panel/cvkdatahistogram.h"

#include "base/limits.h"
#include "panel/controlenabled.h"
#include "panel/modulebackground.h"
#include "ui_cvkdatahistogram.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace {

const QColor curveColor(40, 128, 140);

/// Pixels between two inclusive corners. Limited to 32 bits, so that a product fits 64.
qint64 extent(int first, int last)
{
    constexpr qint64 limit = qint64(1) << 31;
    return std::clamp(qint64(last) - first + 1, -limit, limit);
}

} // namespace

CVKDataHistogram::CVKDataHistogram(QWidget* parent)
    : QWidget(parent)
    , m_form(new Ui::CVKDataHistogram)
{
    m_form->setupUi(this);
    setLayout(m_form->verticalLayout);
    setAttribute(Qt::WA_DeleteOnClose, true);
    resetRoiList();
}

CVKDataHistogram::~CVKDataHistogram() = default;

void CVKDataHistogram::resetRoiList()
{
    fillRoiList({});
    clearValues();
}

void CVKDataHistogram::fillRoiList(const QStringList& names)
{
    m_form->comboBoxRoi->clear();
    m_form->comboBoxRoi->addItem(tr("None Select"));
    m_form->comboBoxRoi->addItems(names);
}

void CVKDataHistogram::clearValues()
{
    for (QLabel* const value : { m_form->labelValueX, m_form->labelValueY, m_form->labelValueCounts,
             m_form->labelValueMean, m_form->labelValueMin, m_form->labelValueMax,
             m_form->labelValueStandard, m_form->labelValueNoise }) {
        value->clear();
    }
    setDeleteEnabled(false);
}

void CVKDataHistogram::setDeleteEnabled(bool enabled)
{
    setControlEnabled(m_form->pushButtonDelete, enabled, styleSheet());
}

void CVKDataHistogram::onShrinkaged(bool shrinkaged)
{
    setVisible(!shrinkaged);
}

void CVKDataHistogram::updateItemNames(QStringList itemNames)
{
    if (itemNames.isEmpty()) {
        resetRoiList();
        return;
    }
    fillRoiList(itemNames);
    setDeleteEnabled(true); // Deliberate: although "None Select" is selected
}

void CVKDataHistogram::on_pushButtonAdd_clicked()
{
    Q_EMIT addRoiItem();
}

void CVKDataHistogram::on_pushButtonDelete_clicked()
{
    const int index = m_form->comboBoxRoi->currentIndex();
    if (index >= 1) {
        Q_EMIT deleteRoiItem(index - 1);
    }
}

void CVKDataHistogram::on_comboBoxRoi_currentIndexChanged(int index)
{
    if (index == 0) {
        clearValues();
        Q_EMIT updateIntensityHistogram();
        return;
    }
    // Deliberate: -1, which a combo box reports when it is emptied, counts as a region too, so that
    // Delete is enabled and -2 sent before "None Select" is back.
    setDeleteEnabled(true);
    Q_EMIT selectRoiItem(index - 1);
}

bool CVKDataHistogram::chooseRegion(int index)
{
    if (index < -1 || index >= m_form->comboBoxRoi->count() - 1) {
        return false;
    }
    const int row = index + 1; // behind "None Select"
    if (m_form->comboBoxRoi->currentIndex() == row) {
        on_comboBoxRoi_currentIndexChanged(row);
    } else {
        m_form->comboBoxRoi->setCurrentIndex(row);
    }
    return true;
}

int CVKDataHistogram::chosenRegion() const
{
    return std::max(m_form->comboBoxRoi->currentIndex(), 0) - 1;
}

void CVKDataHistogram::updateRoiIntensityInfo(int selected, IntensityInfo info)
{
    const qint64 row = qint64(selected) + 1;
    if (m_form->comboBoxRoi->currentIndex() != row) {
        // Deliberate: this sends selectRoiItem(selected) back to the sender.
        m_form->comboBoxRoi->setCurrentIndex(row > std::numeric_limits<int>::max() ? -1 : int(row));
    }
    const QRect& rect = info.rect;
    const qint64 bottomRow = qint64(info.imageHeight) - 1; // y is counted from here upward
    m_form->labelValueX->setText(tr("%1 to %2").arg(rect.left()).arg(rect.right()));
    m_form->labelValueY->setText(
        tr("%1 to %2").arg(bottomRow - rect.bottom()).arg(bottomRow - rect.top()));
    m_form->labelValueCounts->setText(
        QString::number(extent(rect.top(), rect.bottom()) * extent(rect.left(), rect.right())));
    m_form->labelValueMean->setText(QString::number(info.mean, 'f', 2));
    m_form->labelValueMin->setText(QString::number(info.min));
    m_form->labelValueMax->setText(QString::number(info.max));
    m_form->labelValueStandard->setText(QString::number(info.standardDeviation, 'f', 3));
    m_form->labelValueNoise->setText(QString::number(info.signalToNoise, 'f', 5));
}

/// Replaces the counts by `capacity` zeros. False, and no counts, when there is no memory.
bool CVKDataHistogram::allocateCounts(qint64 capacity)
{
    m_counts.reset(); // first, so that there are never two
    m_counts.reset(static_cast<uint*>(std::calloc(size_t(capacity), sizeof(uint))));
    if (!m_counts) {
        dropCounts();
        return false;
    }
    m_capacity = capacity;
    return true;
}

void CVKDataHistogram::dropCounts()
{
    m_counts.reset();
    m_capacity = 0;
    m_size = 0;
    m_countRange = CountRange();
    m_minimum = 0;
    m_maximum = 0;
    m_lines.clear();
}

void CVKDataHistogram::newHistogramSize(int size)
{
    if (size < 1 || size > histogramBinLimit) {
        dropCounts(); // the curve of the last image does not stay under a new one
        update();
        return;
    }
    if (size != m_size && allocateCounts(size)) {
        m_size = size;
        m_countRange = CountRange();
    }
}

void CVKDataHistogram::updateRoiIntensityHistogram(uint* counts, int maxSize, uint min, uint max)
{
    const qint64 size = qint64(max) - min + 1;
    if (!counts || size < 1 || size > histogramBinLimit) {
        return;
    }
    // A region left over from another image can have more values than are announced.
    const qint64 capacity = std::max(size, std::min(qint64(maxSize), histogramBinLimit));
    if (m_capacity < capacity && !allocateCounts(capacity)) {
        return;
    }
    std::copy_n(counts, size, m_counts.get());
    m_size = int(size);
    m_countRange = countRange(m_counts.get(), m_size);
    m_minimum = min;
    m_maximum = max;
    update();
}

/// The frame in pixels of the panel.
QRect CVKDataHistogram::histogramFrame() const
{
    const QRect area = m_form->widgetHistogram->geometry();
    return QRect(m_form->groupBoxHistogram->pos() + area.topLeft() + QPoint(12, 8),
        area.size() - QSize(24, 23));
}

void CVKDataHistogram::drawMinimumAndMaximum(QPainter& painter, const QRect& frame) const
{
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const QRect group = m_form->groupBoxHistogram->geometry();
    const QString minimum = QString::number(m_minimum);
    const QString maximum = QString::number(m_maximum);
    painter.drawText(
        minimumTextPlace(frame, group.left(), metrics.horizontalAdvance(minimum), metrics.height()),
        minimum);
    painter.drawText(maximumTextPlace(frame, group.right(), metrics.horizontalAdvance(maximum),
                         metrics.height()),
        maximum);
}

void CVKDataHistogram::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintModuleBackground(&painter, width(), height());
    const QRect frame = histogramFrame();
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(frame);
    if (m_size > 0) {
        buildHistogramPolyline(m_lines, m_counts.get(), m_size, m_countRange, frame);
    }
    drawMinimumAndMaximum(painter, frame);
    painter.setPen(QPen(curveColor, 1));
    painter.drawLines(m_lines);
}
