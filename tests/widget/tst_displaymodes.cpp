#include "hostparts.h"
#include "qtcompat.h"

#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

QPair<int, int> rangeOf(const RulerBarLayoutItem* ruler)
{
    int start = 0;
    int end = 0;
    ruler->getValueRange(&start, &end);
    return { start, end };
}

QPair<double, double> rangeOf(const IntensityCurveAxisItem* curve)
{
    return { curve->rangeStart(), curve->rangeEnd() };
}

} // namespace

/// The host with an image: image view, 2D charts, and what both show.
class TestDisplayModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void charts_areSetUp();
    void charts_areLaidOutWithTheImage();
    void modes_showTheirItems();
    void modes_outOfRangeAreIgnored();
    void modes_persistAcrossLoads();
    void chart_isComputedWhenItIsShown();
    void chart_pixelRulerTakesTheWholeImage();
    void chart_pixelRulersMeasureTheirAxis();
    void readout_isRefreshedByEveryMode();
    void readout_ofAPickInTheRowChart();
    void readout_ofAPickInTheColumnChart();
    void readout_withoutImageStaysEmpty();
    void peaks_getHeadroomInBothCharts();
    void peaks_countReachesBothCharts();
    void load_resetsPeaksAndPicks();
    void wavelength_reachesBothAxes();
    void wavelength_scalesTheReadout();
    void wavelength_withoutImageDoesNothing();
    void horizontalTitle_reachesThreeRulers();
    void charts_doubleWhenLoadedTwice();
    void charts_inTinyWindows();
    void regions_reachTheEngine();
    void regions_areClearedByClose();
    void regions_outliveALoadWithoutClose();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void openSquare(Host& host) { openFrame(host, path("square.raw")); }

    QTemporaryDir m_folder;
};

void TestDisplayModes::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QVERIFY(writeSquareFrame(path("square.raw")));
    QVERIFY(writeRawFile(path("small.raw"),
        rawFile(4, 2, 1, 1, bytesOf(std::vector<uchar> { 10, 20, 30, 40, 50, 60, 70, 80 }))));
}

void TestDisplayModes::charts_areSetUp()
{
    Host host;
    for (const Host::Chart& chart : { host.rowChart, host.columnChart }) {
        QCOMPARE(rangeOf(chart.valueRuler), qMakePair(0, 255));
        QCOMPARE(chart.valueRuler->labelPrecision(), 0);
        QVERIFY(!chart.curve->isVisible());
        QVERIFY(!chart.valueRuler->isVisible());
        QVERIFY(!chart.pixelRuler->isVisible());
    }
    QVERIFY(!host.rowChart.curve->isReversed());
    QVERIFY(host.columnChart.curve->isReversed());
}

void TestDisplayModes::charts_areLaidOutWithTheImage()
{
    Host host;
    host.widget.resize(1000, 800);
    QCOMPARE(host.rowChart.curve->geometry().topLeft(), QPointF(0.0, 0.0)); // no image yet
    openSquare(host);
    for (const Host::Chart& chart : { host.rowChart, host.columnChart }) {
        QCOMPARE(chart.curve->size, QSizeF(830.0, 430.0));
        QCOMPARE(chart.curve->pos(), QPointF(130.0, 160.0));
        QCOMPARE(chart.curve->geometry(), QRectF(130.0, 160.0, 830.0, 430.0));
        QCOMPARE(chart.pixelRuler->size, QSizeF(830.0, 50.0));
        QCOMPARE(chart.pixelRuler->geometry(), QRectF(130.0, 591.0, 830.0, 50.0));
        QCOMPARE(chart.valueRuler->size, QSizeF(90.0, 430.0));
        QCOMPARE(chart.valueRuler->geometry(), QRectF(40.0, 160.0, 90.0, 430.0));
    }
    host.widget.resize(600, 500);
    QCOMPARE(host.columnChart.curve->geometry(), QRectF(130.0, 160.0, 430.0, 130.0));
    QCOMPARE(host.rowChart.pixelRuler->geometry(), QRectF(130.0, 291.0, 430.0, 50.0));
}

void TestDisplayModes::modes_showTheirItems()
{
    Host host;
    openSquare(host);
    const auto imageViewIsShown = [&] {
        QSet<bool> shown { host.image->isVisible(), host.leftCurve->isVisible(),
            host.bottomCurve->isVisible(), host.leftRuler->isVisible(),
            host.bottomRuler->isVisible(), host.colorBar->isVisible(), host.grayRuler->isVisible(),
            host.zoomIn->isVisible(), host.zoomOut->isVisible() };
        return shown == QSet<bool> { true } ? 1 : shown == QSet<bool> { false } ? 0 : -1;
    };
    const auto chartIsShown = [](const Host::Chart& chart) {
        const int shown = int(chart.curve->isVisible()) + int(chart.valueRuler->isVisible())
            + int(chart.pixelRuler->isVisible());
        return shown == 3 ? 1 : shown == 0 ? 0 : -1;
    };
    const auto shownParts = [&] {
        return QVector<int> { imageViewIsShown(), chartIsShown(host.rowChart),
            chartIsShown(host.columnChart) };
    };
    QCOMPARE(shownParts(), (QVector<int> { 1, 0, 0 }));
    host.widget.switchAxis(1);
    QCOMPARE(shownParts(), (QVector<int> { 1, 0, 0 }));
    host.widget.switchDisplayType(1);
    QCOMPARE(shownParts(), (QVector<int> { 0, 0, 1 }));
    host.widget.switchAxis(0);
    QCOMPARE(shownParts(), (QVector<int> { 0, 1, 0 }));
    host.widget.switchDisplayType(0);
    QCOMPARE(shownParts(), (QVector<int> { 1, 0, 0 }));
    QVERIFY(host.readout->isVisible());
}

void TestDisplayModes::modes_outOfRangeAreIgnored()
{
    Host host;
    openSquare(host);
    host.widget.switchDisplayType(1);
    QSignalSpy announced(host.rowChart.curve, SIGNAL(changeAnchorPosition(bool, int)));
    for (const int index : { 2, -1, INT_MAX, INT_MIN }) {
        host.widget.switchDisplayType(index);
        host.widget.switchAxis(index);
    }
    QVERIFY(host.rowChart.curve->isVisible());
    QCOMPARE(announced.size(), 0);
}

void TestDisplayModes::modes_persistAcrossLoads()
{
    Host host;
    openSquare(host);
    host.widget.switchAxis(1);
    host.widget.switchDisplayType(1);
    host.widget.closeImage();
    QVERIFY(host.widget.loadImage(path("small.raw")));
    QVERIFY(host.columnChart.curve->isVisible());
    QVERIFY(!host.image->isVisible());
}

void TestDisplayModes::chart_isComputedWhenItIsShown()
{
    Host host;
    openSquare(host);
    QVERIFY(host.rowChart.curve->curveLines().isEmpty());
    host.widget.switchDisplayType(1);
    QCOMPARE(host.rowChart.curve->curveLines().size(), 830); // one point a column
    QVERIFY(host.columnChart.curve->curveLines().isEmpty());
    // Row 511 rises from 1000 to 1511, in levels trunc(x * 255 / 4000) from 0 to 32; the first
    // point stands on level 0, the last column shows sample 511.
    const double unit = 430.0 / 255.0;
    QVERIFY(host.rowChart.curve->curveLines().first().y1() == 431.0);
    QVERIFY(host.rowChart.curve->curveLines().last().y2() == 431.0 - 32 * unit);
    host.widget.switchAxis(1);
    QCOMPARE(host.columnChart.curve->curveLines().size(), 830);
}

void TestDisplayModes::chart_pixelRulerTakesTheWholeImage()
{
    Host host;
    openSquare(host);
    const QStringList whole = host.rowChart.pixelRuler->labels();
    // 512 pixels: nice(512 / 5) = 200 a label
    QCOMPARE(whole, (QStringList { "200", "400" }));
    host.image->zoomIn();
    QVERIFY(host.rowChart.pixelRuler->labels() != whole); // follows the view while it is hidden
    host.widget.switchDisplayType(1);
    QCOMPARE(host.rowChart.pixelRuler->labels(), whole);
    QCOMPARE(host.columnChart.pixelRuler->labels(), whole); // hidden, and told all the same
}

void TestDisplayModes::chart_pixelRulersMeasureTheirAxis()
{
    Host host;
    openFrame(host, path("small.raw")); // 4 x 2: a tick for each pixel
    QCOMPARE(host.rowChart.pixelRuler->ticks().size(), 4);
    QCOMPARE(host.columnChart.pixelRuler->ticks().size(), 2);
}

void TestDisplayModes::readout_isRefreshedByEveryMode()
{
    Host host;
    openSquare(host);
    QSignalSpy image(host.image, SIGNAL(changeAnchorImagePosition(QPointF)));
    QSignalSpy row(host.rowChart.curve, SIGNAL(changeAnchorPosition(bool, int)));
    QSignalSpy column(host.columnChart.curve, SIGNAL(changeAnchorPosition(bool, int)));
    const auto counts = [&] {
        const QVector<int> sizes { int(image.size()), int(row.size()), int(column.size()) };
        image.clear();
        row.clear();
        column.clear();
        return sizes;
    };
    host.widget.switchDisplayType(0);
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:0\nData:1256"));
    QCOMPARE(counts(), (QVector<int> { 1, 0, 0 }));
    host.widget.switchDisplayType(1);
    // Sample 256 of the row, in the anchor's row 511.
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:0\nData:1256"));
    QCOMPARE(counts(), (QVector<int> { 0, 1, 0 }));
    host.widget.switchAxis(1);
    // Sample 256 of the column, counted from the bottom: image row 255.
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:256\nData:1256"));
    QCOMPARE(column.first(), (QVariantList { true, 256 }));
    QCOMPARE(counts(), (QVector<int> { 0, 0, 1 }));
}

void TestDisplayModes::readout_ofAPickInTheRowChart()
{
    Host host;
    openSquare(host);
    host.widget.switchDisplayType(1);
    // Row 511 has no peak but, rising in steps, none at all: column c shows sample
    // trunc(c * 512 / 830), column 415 sample 256, column 0 sample 0.
    host.click(QPointF(130.0, 300.0));
    QCOMPARE(host.readout->toPlainText(), QString("X:0  Y:0\nData:1000"));
    host.click(QPointF(130.0 + 829.0, 300.0)); // the last column: trunc(829 * 512 / 830) = 511
    QCOMPARE(host.readout->toPlainText(), QString("X:511  Y:0\nData:1511"));
    QCOMPARE(host.widget.analysis()->anchor, QPoint(256, 511)); // the anchor stays
}

void TestDisplayModes::readout_ofAPickInTheColumnChart()
{
    Host host;
    openSquare(host);
    host.widget.switchAxis(1);
    host.widget.switchDisplayType(1);
    // Row 128 from the top is 383 from the bottom, the one peak of the column. It claims column
    // trunc(383 * 830 / 512) = 620.
    QCOMPARE(host.columnChart.curve->peaks().size(), 1);
    QCOMPARE(host.columnChart.curve->peaks().first().index, 383);
    host.click(QPointF(130.0 + 620.0, 300.0));
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:383\nData:5000"));
    host.click(QPointF(130.0, 300.0));
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:0\nData:1256"));
}

void TestDisplayModes::readout_withoutImageStaysEmpty()
{
    Host host;
    host.window.show();
    host.widget.resize(1000, 800);
    host.widget.switchDisplayType(1);
    host.widget.switchAxis(1);
    host.widget.changedAnchorImagePosition(true, 5);
    QCOMPARE(host.readout->toPlainText(), QString());
    host.widget.grab();
}

void TestDisplayModes::peaks_getHeadroomInBothCharts()
{
    Host host;
    openSquare(host);
    host.widget.switchDisplayType(1);
    const double unit = 430.0 / 255.0;
    QVERIFY(host.rowChart.curve->curveLines().last().y2() == 431.0 - 32 * unit);
    host.widget.changedShowPeaksState(true);
    for (const Host::Chart& chart : { host.rowChart, host.columnChart }) {
        QVERIFY(chart.curve->valueScale() == 1.2);
        QVERIFY(chart.valueRuler->zoom() == 1.2);
    }
    const double lowered = 430.0 / (1.2 * 255.0);
    QVERIFY(host.rowChart.curve->curveLines().last().y2() == 431.0 - 32 * lowered);
    host.widget.changedShowPeaksState(false);
    QVERIFY(host.rowChart.curve->valueScale() == 1.0);
    QVERIFY(host.columnChart.valueRuler->zoom() == 1.0);
    QVERIFY(host.rowChart.curve->curveLines().last().y2() == 431.0 - 32 * unit);
}

void TestDisplayModes::peaks_countReachesBothCharts()
{
    Host host;
    openSquare(host);
    host.widget.changedMaxPeaksCount(37);
    QCOMPARE(host.rowChart.curve->shownPeaks(), 37);
    QCOMPARE(host.columnChart.curve->shownPeaks(), 37);
}

void TestDisplayModes::load_resetsPeaksAndPicks()
{
    Host host;
    openSquare(host);
    host.widget.switchDisplayType(1);
    host.widget.changedMaxPeaksCount(37);
    host.widget.changedShowPeaksState(true);
    host.click(QPointF(130.0, 300.0));
    QCOMPARE(host.rowChart.curve->anchorIndex(), 0);
    host.widget.closeImage();
    QSignalSpy row(host.rowChart.curve, SIGNAL(changeAnchorPosition(bool, int)));
    QSignalSpy column(host.columnChart.curve, SIGNAL(changeAnchorPosition(bool, int)));
    QVERIFY(host.widget.loadImage(path("square.raw")));
    for (const Host::Chart& chart : { host.rowChart, host.columnChart }) {
        QCOMPARE(chart.curve->shownPeaks(), 10);
        QVERIFY(chart.curve->valueScale() == 1.0);
        QVERIFY(chart.valueRuler->zoom() == 1.0);
        QCOMPARE(chart.curve->anchorIndex(), 256); // 512 / 830 * 415
    }
    QCOMPARE(row.last(), (QVariantList { false, 256 }));
    QCOMPARE(column.last(), (QVariantList { true, 256 }));
    QVERIFY(!host.paintedTexts().contains("511")); // no peak labels
}

void TestDisplayModes::wavelength_reachesBothAxes()
{
    Host host;
    openFrame(host, path("small.raw")); // 4 x 2
    host.widget.changedPixelsToWavelength(400.0, 2.5);
    QCOMPARE(rangeOf(host.bottomRuler), qMakePair(400, 410));
    QCOMPARE(rangeOf(host.rowChart.pixelRuler), qMakePair(400, 410));
    QCOMPARE(rangeOf(host.rowChart.curve), qMakePair(400.0, 410.0));
    // The column, too; its span of 5 is just wide enough.
    QCOMPARE(rangeOf(host.leftRuler), qMakePair(400, 405));
    QCOMPARE(rangeOf(host.columnChart.pixelRuler), qMakePair(400, 405));
    QCOMPARE(rangeOf(host.columnChart.curve), qMakePair(400.0, 405.0));
    QCOMPARE(rangeOf(host.grayRuler), qMakePair(10, 80));
    QCOMPARE(rangeOf(host.rowChart.valueRuler), qMakePair(10, 80));

    host.widget.changedPixelsToWavelength(-1.0, -1.0);
    QCOMPARE(rangeOf(host.bottomRuler), qMakePair(-1, -1));
    QCOMPARE(rangeOf(host.columnChart.pixelRuler), qMakePair(-1, -1));
    QCOMPARE(rangeOf(host.rowChart.curve), qMakePair(-1.0, -1.0));
}

void TestDisplayModes::wavelength_scalesTheReadout()
{
    Host host;
    openSquare(host);
    host.widget.changedPixelsToWavelength(400.0, 2.0);
    // (1424 - 400) / 512 = 2 a pixel: 256 x 2 + 400 and 0 x 2 + 400
    QCOMPARE(host.readout->toPlainText(), QString("X:912.0  Y:400.0\nData:1256"));
    host.widget.switchDisplayType(1);
    host.click(QPointF(130.0 + 829.0, 300.0));
    QCOMPARE(host.readout->toPlainText(), QString("X:1422.0  Y:400.0\nData:1511"));
    host.widget.changedPixelsToWavelength(-1.0, -1.0);
    QCOMPARE(host.readout->toPlainText(), QString("X:511  Y:0\nData:1511"));
}

void TestDisplayModes::wavelength_withoutImageDoesNothing()
{
    Host host;
    host.widget.changedPixelsToWavelength(400.0, 2.0);
    QCOMPARE(rangeOf(host.bottomRuler), qMakePair(-1, -1));
    QCOMPARE(rangeOf(host.columnChart.curve), qMakePair(-1.0, -1.0));
}

void TestDisplayModes::horizontalTitle_reachesThreeRulers()
{
    Host host;
    openSquare(host);
    host.widget.changedHorizontalRulerTitle("Wavelength  (um)");
    QCOMPARE(host.paintedTexts().count("Wavelength  (um)"), 1);
    host.widget.switchDisplayType(1);
    QCOMPARE(host.paintedTexts().count("Wavelength  (um)"), 1);
    QVERIFY(host.paintedTexts().contains("Gray"));
    host.widget.switchAxis(1);
    QCOMPARE(host.paintedTexts().count("Wavelength  (um)"), 1);
    QVERIFY(!host.paintedTexts().contains("Pixel Number"));
}

void TestDisplayModes::charts_doubleWhenLoadedTwice()
{
    Host host;
    openSquare(host);
    QVERIFY(host.widget.loadImage(path("square.raw")));
    for (const Row& row : loadedImageRows(host)) {
        QVERIFY2(QObject::disconnect(row.sender, row.signal, row.receiver, row.slot), row.signal);
        QVERIFY2(!QObject::disconnect(row.sender, row.signal, row.receiver, row.slot), row.signal);
    }
}

void TestDisplayModes::charts_inTinyWindows()
{
    Host host;
    openSquare(host);
    host.widget.changedShowPeaksState(true);
    for (const int axis : { 0, 1 }) {
        host.widget.switchAxis(axis);
        host.widget.switchDisplayType(1);
        for (const QSize& size : { QSize(0, 0), QSize(1, 1), QSize(170, 370), QSize(171, 371),
                 QSize(172, 372), QSize(1000, 370), QSize(170, 800), QSize(60, 800) }) {
            host.widget.resize(size);
            host.click(QPointF(130.0, 160.0));
            host.widget.switchDisplayType(0);
            host.widget.switchDisplayType(1);
            host.widget.grab();
            QCOMPARE((axis == 0 ? host.rowChart : host.columnChart).curve->size,
                QSizeF(size.width() - 170, size.height() - 370));
        }
        host.widget.resize(1000, 800);
    }
    QCOMPARE(host.columnChart.curve->curveLines().size(), 830);
}

void TestDisplayModes::regions_reachTheEngine()
{
    Host host;
    openSquare(host);
    QSignalSpy histograms(
        host.widget.analysis(), SIGNAL(updateRoiIntensityHistogram(uint*, int, uint, uint)));
    host.image->rectangles.addItem();
    QCOMPARE(host.widget.analysis()->roiInfo.imageWidth, 512);
    QCOMPARE(host.widget.analysis()->roiInfo.rect,
        QtCompat::toRect(host.image->rectangles.rects.first()));
    QCOMPARE(histograms.size(), 1);
    // The rectangle comes through the view's rounding; its first column is its smallest value, and
    // row 128 lies inside.
    QCOMPARE(int(host.widget.analysis()->roiInfo.min),
        1000 + host.widget.analysis()->roiInfo.rect.left());
    QCOMPARE(host.widget.analysis()->roiInfo.max, 5000U);
}

void TestDisplayModes::regions_areClearedByClose()
{
    Host host;
    openSquare(host);
    host.image->rectangles.addItem();
    host.image->rectangles.addItem();
    QSignalSpy names(&host.image->rectangles, SIGNAL(updateItemNames(QStringList)));
    host.widget.closeImage();
    QVERIFY(host.image->rectangles.items.isEmpty());
    QVERIFY(host.image->rectangles.rects.isEmpty());
    QCOMPARE(names.size(), 0);
    host.widget.grab();
}

void TestDisplayModes::regions_outliveALoadWithoutClose()
{
    Host host;
    openSquare(host);
    host.image->rectangles.addItem();
    QVERIFY(host.widget.loadImage(path("small.raw")));
    QCOMPARE(host.image->rectangles.items.size(), 1);
    QSignalSpy selected(&host.image->rectangles, SIGNAL(updateSelectedRoi(int, QRectF)));
    host.image->rectangles.selectItem(0); // far outside the image of 4 x 2
    QCOMPARE(selected.size(), 1);
    host.image->zoomIn();
    host.widget.grab();
    host.image->rectangles.deleteItem(0);
    QVERIFY(host.image->rectangles.items.isEmpty());
}

QTEST_MAIN(TestDisplayModes)
#include "tst_displaymodes.moc"
