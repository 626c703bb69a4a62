#include "panel/cvkdatahistogram.h"

#include "panel/controlenabled.h"
#include "panel/modulebackground.h"
#include "ui_cvkdatahistogram.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr qint64 maxCounts = qint64(1) << 26;
constexpr int rangePixelSize = 11; // of the texts under the frame
const QColor lineColor(40, 128, 140);

} // namespace

CVKDataHistogram::CVKDataHistogram(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::CVKDataHistogram)
{
    m_ui->setupUi(this);
    setLayout(m_ui->verticalLayout);
    setAttribute(Qt::WA_DeleteOnClose, true);
    resetRoiList();
}

CVKDataHistogram::~CVKDataHistogram() = default;

void CVKDataHistogram::resetRoiList()
{
    m_ui->comboBoxRoi->clear();
    m_ui->comboBoxRoi->addItem(tr("None Select"));
    clearValues();
}

void CVKDataHistogram::clearValues()
{
    for (QLabel* const label : { m_ui->labelValueX, m_ui->labelValueY, m_ui->labelValueCounts,
             m_ui->labelValueMean, m_ui->labelValueMin, m_ui->labelValueMax,
             m_ui->labelValueStandard, m_ui->labelValueNoise }) {
        label->setText(QString());
    }
    setDeleteEnabled(false);
}

void CVKDataHistogram::setDeleteEnabled(bool enabled)
{
    setControlEnabled(m_ui->pushButtonDelete, enabled, styleSheet());
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
    m_ui->comboBoxRoi->clear();
    m_ui->comboBoxRoi->addItem(tr("None Select"));
    m_ui->comboBoxRoi->addItems(itemNames);
    setDeleteEnabled(true);
}

void CVKDataHistogram::on_comboBoxRoi_currentIndexChanged(int index)
{
    if (index == 0) {
        clearValues();
        Q_EMIT updateIntensityHistogram();
        return;
    }
    // Deliberate: -1, which an emptied list reports, counts as a region, too, and sends -2.
    setDeleteEnabled(true);
    Q_EMIT selectRoiItem(index - 1);
}

void CVKDataHistogram::on_pushButtonAdd_clicked()
{
    Q_EMIT addRoiItem();
}

void CVKDataHistogram::on_pushButtonDelete_clicked()
{
    const int index = m_ui->comboBoxRoi->currentIndex();
    if (index >= 1) {
        Q_EMIT deleteRoiItem(index - 1);
    }
}

void CVKDataHistogram::updateRoiIntensityInfo(int selected, IntensityInfo info)
{
    // Past the last int there is no row; Qt makes -1 of any row that does not exist.
    const int row = selected < std::numeric_limits<int>::max() ? selected + 1 : -1;
    if (m_ui->comboBoxRoi->currentIndex() != row) {
        m_ui->comboBoxRoi->setCurrentIndex(row);
    }
    const qint64 left = info.rect.left();
    const qint64 top = info.rect.top();
    const qint64 right = info.rect.right();
    const qint64 bottom = info.rect.bottom();
    const qint64 lastRow = qint64(info.imageHeight) - 1;
    m_ui->labelValueX->setText(QString::number(left) + " to " + QString::number(right));
    // Rows are counted from the bottom of the image.
    m_ui->labelValueY->setText(
        QString::number(lastRow - bottom) + " to " + QString::number(lastRow - top));
    m_ui->labelValueCounts->setText(QString::number((bottom - top + 1) * (right - left + 1)));
    m_ui->labelValueMean->setText(QString::number(info.mean, 'f', 2));
    m_ui->labelValueMin->setText(QString::number(info.min));
    m_ui->labelValueMax->setText(QString::number(info.max));
    m_ui->labelValueStandard->setText(QString::number(info.standardDeviation, 'f', 3));
    m_ui->labelValueNoise->setText(QString::number(info.signalToNoise, 'f', 5));
}

/// Makes room for `count` counts, 0 at first. Without memory for them there is no histogram.
bool CVKDataHistogram::resizeCounts(int count)
{
    if (count > m_capacity || !m_counts) {
        m_counts.reset(); // first, so that both need not fit
        m_counts.reset(new (std::nothrow) uint[size_t(count)]());
        m_capacity = m_counts ? count : 0;
    }
    m_count = m_counts ? count : 0;
    return m_count > 0;
}

void CVKDataHistogram::newHistogramSize(int size)
{
    if (size < 1 || size > maxCounts) {
        m_counts.reset();
        m_capacity = 0;
        m_count = 0;
        m_minimum = 0;
        m_maximum = 0;
        m_lines.clear();
        return;
    }
    if (size != m_count && resizeCounts(size)) {
        std::fill_n(m_counts.get(), size, 0U);
        m_countRange = CountRange();
    }
}

void CVKDataHistogram::updateRoiIntensityHistogram(uint* counts, int maxSize, uint min, uint max)
{
    const qint64 count = qint64(max) - min + 1;
    if (!counts || count < 1 || count > maxCounts) {
        return;
    }
    const qint64 announced = std::clamp<qint64>(maxSize, 0, maxCounts);
    if (!resizeCounts(int(std::max(announced, count)))) {
        return;
    }
    m_minimum = min;
    m_maximum = max;
    m_count = int(count);
    std::copy_n(counts, count, m_counts.get());
    m_countRange = countRange(m_counts.get(), count);
    update();
}

/// Where the form keeps room for the histogram, in the panel's coordinates.
QRect CVKDataHistogram::histogramArea() const
{
    return m_ui->widgetHistogram->geometry().translated(m_ui->groupBoxHistogram->pos());
}

void CVKDataHistogram::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintModuleBackground(&painter, width(), height());
    QPen pen(Qt::white);
    pen.setWidth(1);
    painter.setPen(pen);
    const QRect frame = histogramFrame(histogramArea());
    painter.drawRect(frame);
    if (m_counts && m_count > 0) {
        m_lines = histogramPolyline(m_counts.get(), m_count, m_countRange, frame);
    }
    drawRange(&painter, frame);
    pen.setColor(lineColor);
    painter.setPen(pen);
    painter.drawLines(m_lines);
}

/// Writes the values of the first and the last bin under the ends of the frame.
void CVKDataHistogram::drawRange(QPainter* painter, const QRect& frame)
{
    QFont font = painter->font();
    font.setPixelSize(rangePixelSize);
    painter->setFont(font);
    const QFontMetricsF metrics(font);
    const QRect group = m_ui->groupBoxHistogram->geometry();
    const QString minimum = QString::number(m_minimum);
    const QString maximum = QString::number(m_maximum);
    const auto sizeOf = [&](const QString& text) {
        return QSizeF(metrics.horizontalAdvance(text), metrics.height());
    };
    painter->drawText(minimumTextOrigin(frame, group.left(), sizeOf(minimum)), minimum);
    painter->drawText(maximumTextOrigin(frame, group.right(), sizeOf(maximum)), maximum);
}
