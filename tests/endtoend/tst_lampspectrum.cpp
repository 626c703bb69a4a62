#include "plots/intensitycurveaxisitem.h"
#include "rawframe.h"
#include "scenes.h"
#include "support/recordingpaintdevice.h"
#include "widget/cvkintensitywidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <cmath>

namespace {

/// The eight numbers of the panel, in its order and its words.
QStringList statisticsTexts(const RawFrame& frame, const QRect& region)
{
    const auto* const bytes = reinterpret_cast<const uchar*>(frame.bytes.constData());
    quint64 sum = 0;
    uint smallest = 65535;
    uint largest = 0;
    const auto sampleAt = [&](int x, int y) {
        return uint(qFromLittleEndian<quint16>(bytes + 2 * (y * frame.width + x)));
    };
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            sum += sampleAt(x, y);
            smallest = qMin(smallest, sampleAt(x, y));
            largest = qMax(largest, sampleAt(x, y));
        }
    }
    const int count = region.width() * region.height();
    const double mean = double(sum) / count;
    double squares = 0.0;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            squares += (sampleAt(x, y) - mean) * (sampleAt(x, y) - mean);
        }
    }
    const double deviation = std::sqrt(squares / count);
    return { QString("%1 to %2").arg(region.left()).arg(region.right()),
        QString("%1 to %2").arg(255 - region.bottom()).arg(255 - region.top()),
        QString::number(count), QString::number(mean, 'f', 2), QString::number(smallest),
        QString::number(largest), QString::number(deviation, 'f', 3),
        QString::number(mean / deviation, 'f', 5) };
}

} // namespace

/// The lamp spectrum in the exported widget, used as by hand.
class TestLampSpectrum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void region_isAddedDraggedAndResized();
    void region_ofTheWholeHistogramReturns();
    void chart_findsTheMercuryLines();
    void chart_labelsWavelengths();

private:
    template <class Widget>
    Widget* part(const char* name) const
    {
        return m_widget->findChild<Widget*>(name);
    }

    QStringList shownStatistics() const;
    void moveTo(const QPoint& pixel, Qt::MouseButtons buttons);
    void drag(const QPoint& from, const QPoint& to);
    void showChart(int peaks);
    QStringList paintedTexts() const;
    IntensityCurveAxisItem* shownCurve() const;

    QTemporaryDir m_folder;
    RawFrame m_frame;
    std::unique_ptr<CVKIntensityWidget> m_widget;
    QGraphicsView* m_view = nullptr;
};

void TestLampSpectrum::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    m_frame = lampSpectrum();
    QString problem;
    QVERIFY2(writeRawFrame(m_folder.filePath("lamp.raw"), m_frame, &problem), qPrintable(problem));
}

/// A window in which the image is shown at scale 1: beside the column of 290 the canvas has
/// 1164 x 800 units, and 1164 - 140 is the width of the image.
void TestLampSpectrum::init()
{
    m_widget = std::make_unique<CVKIntensityWidget>();
    m_widget->resize(290 + 1164, 800);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    QVERIFY(m_widget->loadImage(m_folder.filePath("lamp.raw")));
    m_view = m_widget->findChild<QGraphicsView*>();
}

QStringList TestLampSpectrum::shownStatistics() const
{
    QStringList texts;
    for (const char* const name :
        { "labelValueX", "labelValueY", "labelValueCounts", "labelValueMean", "labelValueMin",
            "labelValueMax", "labelValueStandard", "labelValueNoise" }) {
        texts << part<QLabel>(name)->text();
    }
    return texts;
}

/// Moves the pointer to an image pixel. The image stands at ((1164 - 1024 + 140) / 2,
/// (800 - 256 - 70) / 2) = (140, 237).
void TestLampSpectrum::moveTo(const QPoint& pixel, Qt::MouseButtons buttons)
{
    const QPoint position = pixel + QPoint(140, 237);
    QMouseEvent move(QEvent::MouseMove, position, m_view->viewport()->mapToGlobal(position),
        Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(m_view->viewport(), &move);
}

void TestLampSpectrum::drag(const QPoint& from, const QPoint& to)
{
    const QPoint origin(140, 237);
    moveTo(from, Qt::NoButton);
    QTest::mousePress(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, from + origin);
    moveTo((from + to) / 2, Qt::LeftButton);
    moveTo(to, Qt::LeftButton);
    QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, to + origin);
}

void TestLampSpectrum::region_isAddedDraggedAndResized()
{
    QTest::mouseClick(part<QPushButton>("pushButtonAdd"), Qt::LeftButton);
    // 300 is more than the 256 rows, so the height becomes 256 / 8; centred, 300 x 32 from
    // (362, 112) on. On the way through item units it gains a column and a row.
    QCOMPARE(
        shownStatistics(), statisticsTexts(m_frame, QRect(QPoint(362, 112), QPoint(662, 144))));
    QCOMPARE(part<QComboBox>("comboBoxRoi")->currentText(), QString("ROI 1"));

    drag(QPoint(500, 128), QPoint(600, 78)); // by its inside, 100 to the right and 50 up
    QCOMPARE(shownStatistics(), statisticsTexts(m_frame, QRect(QPoint(462, 62), QPoint(762, 94))));

    drag(QPoint(762, 94), QPoint(860, 192)); // by the handle at the bottom right
    QCOMPARE(shownStatistics(), statisticsTexts(m_frame, QRect(QPoint(462, 62), QPoint(860, 192))));
    QCOMPARE(part<QLabel>("labelValueCounts")->text(), QString("52269")); // 399 x 131

    // By the handle at the top left, past the bottom right one: the corner under the pointer takes
    // over.
    drag(QPoint(462, 62), QPoint(900, 220));
    QCOMPARE(
        shownStatistics(), statisticsTexts(m_frame, QRect(QPoint(860, 192), QPoint(900, 220))));
}

void TestLampSpectrum::region_ofTheWholeHistogramReturns()
{
    QTest::mouseClick(part<QPushButton>("pushButtonAdd"), Qt::LeftButton);
    auto* const list = part<QComboBox>("comboBoxRoi");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(list->currentText(), QString("None Select"));
    QCOMPARE(shownStatistics(), QStringList({ "", "", "", "", "", "", "", "" }));
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(
        shownStatistics(), statisticsTexts(m_frame, QRect(QPoint(362, 112), QPoint(662, 144))));
    QTest::mouseClick(part<QPushButton>("pushButtonDelete"), Qt::LeftButton);
    QCOMPARE(list->count(), 1);
    QCOMPARE(part<QLabel>("labelValueMean")->text(), QString());
}

/// Puts the anchor into row 128 and shows its chart with that many labels.
void TestLampSpectrum::showChart(int peaks)
{
    QTest::mouseClick(
        m_view->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(140 + 30, 237 + 128));
    QTest::mouseClick(part<QRadioButton>("radioButton2D"), Qt::LeftButton, Qt::NoModifier,
        QPoint(8, part<QRadioButton>("radioButton2D")->height() / 2));
    QTest::mouseClick(part<QCheckBox>("checkBoxPeak"), Qt::LeftButton, Qt::NoModifier,
        QPoint(8, part<QCheckBox>("checkBoxPeak")->height() / 2));
    auto* const count = part<QLineEdit>("lineEditPeaks");
    count->setFocus();
    count->selectAll();
    QTest::keyClicks(count, QString::number(peaks));
    QTest::mouseClick(part<QPushButton>("pushButtonApply"), Qt::LeftButton);
}

IntensityCurveAxisItem* TestLampSpectrum::shownCurve() const
{
    const QList<QGraphicsItem*> items = m_view->scene()->items();
    for (QGraphicsItem* const item : items) {
        if (auto* const curve = dynamic_cast<IntensityCurveAxisItem*>(item)) {
            if (curve->isVisible()) {
                return curve;
            }
        }
    }
    return nullptr;
}

QStringList TestLampSpectrum::paintedTexts() const
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    m_view->scene()->render(&painter);
    return recorded.texts();
}

void TestLampSpectrum::chart_findsTheMercuryLines()
{
    showChart(30);
    const IntensityCurveAxisItem* const curve = shownCurve();
    QVERIFY(curve);
    QCOMPARE(curve->shownPeaks(), 30);
    QCOMPARE(curve->peakTicks().size(), 30);
    const QStringList texts = paintedTexts();
    for (const double line : { 253.65, 365.02, 404.66, 435.83, 546.07 }) {
        const double column = line - lampStartWavelength; // 1 nm a pixel
        bool isFound = false;
        for (const Peak& peak : curve->peaks().mid(0, 30)) {
            if (std::abs(peak.index - column) <= 1.0) {
                isFound = texts.contains(QString::number(peak.index));
                break;
            }
        }
        QVERIFY2(isFound, qPrintable(QString::number(line)));
    }
}

void TestLampSpectrum::chart_labelsWavelengths()
{
    auto* const type = part<QComboBox>("comboBoxType");
    type->setFocus();
    QTest::keyClick(type, Qt::Key_Down);
    QCOMPARE(type->currentText(), QString("Wavelength"));
    showChart(30);
    const QStringList texts = paintedTexts();
    QVERIFY(texts.contains("Wavelength  (um)"));
    for (const double line : { 253.65, 365.02, 404.66, 435.83, 546.07 }) {
        // The label is that of a whole pixel at most one away.
        const int nearest = int(std::lround(line));
        QVERIFY2(texts.contains(QString::number(nearest) + ".0")
                || texts.contains(QString::number(nearest - 1) + ".0")
                || texts.contains(QString::number(nearest + 1) + ".0"),
            qPrintable(QString::number(line)));
    }
}

QTEST_MAIN(TestLampSpectrum)
#include "tst_lampspectrum.moc"
