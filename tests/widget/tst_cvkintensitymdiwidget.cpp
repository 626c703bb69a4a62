#include "hostparts.h"
#include "qtcompat.h"

#include <QLayout>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWheelEvent>

class TestCVKIntensityMdiWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metaObject_listsSignalAndSlotsInOrder();
    void palettesAreAMetaType();
    void canvas_isSetUp();
    void canvas_holdsItsItemsInOrder();
    void zoomPanel_hasTwoNamedButtons();
    void load_failsForWhatCannotBeRead_data();
    void load_failsForWhatCannotBeRead();
    void load_laysOutTheSquareImageAt1000x800();
    void load_putsTheAnchorIntoTheBottomRow();
    void load_givesTheGreyScaleTheValueRange();
    void load_feedsBothProfiles();
    void load_beforeTheFirstLayout();
    void wires_existWhileAnImageIsLoaded();
    void wires_doubleWhenLoadedTwice();
    void wires_runInOrder();
    void load_takesTheImageFromTheItemFirst();
    void click_movesTheAnchorAndReadsThePixel();
    void zoomButtons_zoom();
    void wheel_zooms();
    void strips_scrollTheImage();
    void strips_areDraggedInTheView();
    void palette_reachesTheDisplayImage();
    void palette_withoutImageIsKeptByTheBar();
    void titles_arePainted();
    void close_withoutImageDoesNothing();
    void close_undoesTheConnectionsAndKeepsThePicture();
    void close_andLoadAgainConnectsOnce();
    void resize_movesTheReadout();
    void readout_isPlacedByTheResizeEventAlone();
    void readout_atXEqualsWidth();
    void resize_downToNothing();
    void emptyRawFile_afterAnImageLeavesTheCanvas();
    void opensEveryKindOfFile_data();
    void opensEveryKindOfFile();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void openSquare(Host& host) { openFrame(host, path("square.raw")); }

    QTemporaryDir m_folder;
};

void TestCVKIntensityMdiWidget::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QVERIFY(writeSquareFrame(path("square.raw")));
    QVERIFY(writeRawFile(path("small.raw"),
        rawFile(4, 2, 1, 1, bytesOf(std::vector<uchar> { 10, 20, 30, 40, 50, 60, 70, 80 }))));
    QVERIFY(writeRawFile(path("empty.raw"), rawFile(0, 5, 1, 2, QByteArray())));
    RawFile unsignedFrame = rawFile(4, 2, 1, 1, QByteArray(8, 'a'));
    unsignedFrame.signature = "vorlak";
    QVERIFY(writeRawFile(path("lowercase.raw"), unsignedFrame));
    QVERIFY(writeFile(path("text.png"), "not a picture"));
    QVERIFY(writeFile(path("picture.gif"), "GIF89a"));
}

void TestCVKIntensityMdiWidget::metaObject_listsSignalAndSlotsInOrder()
{
    const QMetaObject& meta = CVKIntensityMdiWidget::staticMetaObject;
    const QString palette = QMetaObject::normalizedType("QVector<QColor>"); // as this Qt spells it
    QStringList methods;
    QStringList parameters;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << meta.method(i).methodSignature();
        parameters << meta.method(i).parameterNames().join(',');
        const bool isSignal = i == meta.methodOffset();
        QCOMPARE(meta.method(i).methodType(), isSignal ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    QCOMPARE(parameters,
        (QStringList { "itemNames", "index", "index", "count", "isShow", "pal", "title", "title",
            "anchor", "isHorizontal,position", "startX,pixelWidth" }));
    QCOMPARE(methods,
        (QStringList { "updateItemNames(QStringList)", "switchAxis(int)", "switchDisplayType(int)",
            "changedMaxPeaksCount(int)", "changedShowPeaksState(bool)",
            "changedPalette(" + palette + ")", "changedVerticalRulerTitle(QString)",
            "changedHorizontalRulerTitle(QString)", "changedAnchorImagePosition(QPointF)",
            "changedAnchorImagePosition(bool,int)", "changedPixelsToWavelength(double,double)" }));
}

void TestCVKIntensityMdiWidget::palettesAreAMetaType()
{
    Host host;
    QVERIFY(QtCompat::isTypeName("QVector<QColor>"));
    const QVariant palette = QVariant::fromValue(ramp(255, 0, 0));
    QVERIFY(palette.canConvert<QVariantList>());
    QCOMPARE(palette.value<QSequentialIterable>().at(255).value<QColor>(), QColor(255, 0, 0));
}

void TestCVKIntensityMdiWidget::canvas_isSetUp()
{
    Host host;
    QVERIFY(host.widget.testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(host.view->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(host.view->styleSheet(), QString("border: 0px;"));
    QCOMPARE(host.view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(host.view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(!host.view->horizontalScrollBar()->isEnabled());
    QVERIFY(!host.view->verticalScrollBar()->isEnabled());
    QCOMPARE(host.widget.layout()->contentsMargins(), QMargins());
    QCOMPARE(host.view->contentsMargins(), QMargins());
    QCOMPARE(host.scene->backgroundBrush().texture().size(), QSize(10, 100)); // of this program
    QVERIFY(host.scene->parent() == nullptr);
    QCOMPARE(host.readout->font().pixelSize(), 13);
    QCOMPARE(host.readout->defaultTextColor(), QColor(Qt::white));
    QCOMPARE(host.readout->toPlainText(), QString());
}

void TestCVKIntensityMdiWidget::canvas_holdsItsItemsInOrder()
{
    Host host;
    QList<QGraphicsItem*> topLevel;
    const QList<QGraphicsItem*> items = host.scene->items(Qt::AscendingOrder);
    for (QGraphicsItem* const item : items) {
        if (!item->parentItem()) {
            topLevel.append(item);
        }
    }
    QCOMPARE(topLevel,
        (QList<QGraphicsItem*> { host.readout, host.image, host.bottomCurve, host.leftCurve,
            host.bottomRuler, host.leftRuler, host.colorBar, host.grayRuler, host.rowChart.curve,
            host.rowChart.valueRuler, host.rowChart.pixelRuler, host.columnChart.curve,
            host.columnChart.valueRuler, host.columnChart.pixelRuler }));
    QCOMPARE(host.grayRuler->labelPrecision(), 0);
    QCOMPARE(host.bottomRuler->labelPrecision(), 1);
}

void TestCVKIntensityMdiWidget::zoomPanel_hasTwoNamedButtons()
{
    Host host;
    QCOMPARE(host.zoomIn->toolTip(), QString("Zoom In"));
    QCOMPARE(host.zoomOut->toolTip(), QString("Zoom Out"));
    for (const QPushButton* const button : { host.zoomIn, host.zoomOut }) {
        QCOMPARE(button->size(), QSize(40, 40)); // at 96 dots per inch
        QCOMPARE(button->minimumSize(), button->maximumSize());
        QCOMPARE(button->text(), QString());
        QVERIFY(button->icon().isNull());
    }
    QWidget* const panel = host.zoomIn->parentWidget();
    QCOMPARE(panel->parentWidget(), &host.widget);
    QCOMPARE(panel->layout()->spacing(), 1);
}

void TestCVKIntensityMdiWidget::load_failsForWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "nothing.raw";
    QTest::newRow("unknown suffix") << "picture.gif";
    QTest::newRow("not a picture") << "text.png";
    QTest::newRow("signature in lower case") << "lowercase.raw";
    QTest::newRow("a folder") << ".";
    QTest::newRow("no name") << "";
}

void TestCVKIntensityMdiWidget::load_failsForWhatCannotBeRead()
{
    QFETCH(QString, name);
    Host host;
    QVERIFY(!host.widget.loadImage(path(name)));
    QVERIFY(host.image->image == nullptr);

    openSquare(host);
    const QImage* const shown = host.image->image;
    const QString text = host.readout->toPlainText();
    QSignalSpy images(host.widget.analysis(), SIGNAL(updateImage()));
    QVERIFY(!host.widget.loadImage(path(name)));
    QVERIFY(host.image->image == shown);
    QCOMPARE(host.readout->toPlainText(), text);
    QCOMPARE(images.size(), 0);
    host.widget.changedPalette(ramp(255, 0, 0));
    QCOMPARE(images.size(), 1); // still connected, and once
}

void TestCVKIntensityMdiWidget::load_laysOutTheSquareImageAt1000x800()
{
    Host host;
    openSquare(host);
    QCOMPARE(host.image->size, QSizeF(580.0, 580.0)); // min(860, 580) / 512
    QCOMPARE(host.image->geometry(), QRectF(280.0, 75.0, 580.0, 580.0));
    QCOMPARE(host.image->pos(), QPointF(280.0, 75.0));
    QCOMPARE(host.bottomRuler->geometry(), QRectF(280.0, 656.0, 580.0, 50.0));
    QCOMPARE(host.bottomRuler->size, QSizeF(580.0, 50.0));
    QCOMPARE(host.leftRuler->geometry(), QRectF(210.0, 75.0, 70.0, 580.0));
    QCOMPARE(host.leftRuler->size, QSizeF(70.0, 580.0));
    QCOMPARE(host.bottomCurve->geometry(), QRectF(280.0, 705.0, 580.0, 70.0));
    QCOMPARE(host.bottomCurve->size, QSizeF(580.0, 70.0));
    QCOMPARE(host.leftCurve->geometry(), QRectF(140.0, 75.0, 70.0, 580.0));
    QCOMPARE(host.leftCurve->size, QSizeF(70.0, 580.0));
    // The bar is drawn as wide as the image and laid out 512 wide.
    QCOMPARE(host.colorBar->size, QSizeF(580.0, 10.0));
    QCOMPARE(host.colorBar->geometry(), QRectF(280.0, 20.0, 512.0, 10.0));
    QCOMPARE(host.grayRuler->geometry(), QRectF(280.0, 31.0, 580.0, 50.0));
    QCOMPARE(host.zoomOut->y() - host.zoomIn->y(), 41);
    const QWidget* const panel = host.zoomIn->parentWidget();
    QCOMPARE(panel->pos(), QPoint(1000 - panel->width(), (800 - panel->height()) / 2));
}

void TestCVKIntensityMdiWidget::load_putsTheAnchorIntoTheBottomRow()
{
    Host host;
    openSquare(host);
    QCOMPARE(host.image->anchor, QPointF(256.0, 511.0));
    QCOMPARE(host.widget.analysis()->anchor, QPoint(256, 511));
    // The charts are centred after that, and their picks announced: row 256 is what it says.
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:255\nData:1256"));
    // ceil(256 x 580 / 512) and ceil(511 x 580 / 512) = ceil(578.87)
    QCOMPARE(host.bottomCurve->anchorPosition(), 290);
    QCOMPARE(host.leftCurve->anchorPosition(), 579);
}

void TestCVKIntensityMdiWidget::load_givesTheGreyScaleTheValueRange()
{
    Host host;
    int start = 0;
    int end = 0;
    host.grayRuler->getValueRange(&start, &end);
    QVERIFY(start < 0); // nothing loaded: 0 .. 0 widened downward counts as no range
    openSquare(host);
    host.grayRuler->getValueRange(&start, &end);
    QCOMPARE(start, 1000);
    QCOMPARE(end, 5000);
}

void TestCVKIntensityMdiWidget::load_feedsBothProfiles()
{
    Host host;
    openSquare(host);
    QVERIFY(!host.bottomCurve->curveLines().isEmpty());
    QVERIFY(!host.leftCurve->curveLines().isEmpty());
    // Column 256 is 1256 everywhere, level trunc(256 x 255 / 4000) = 16, but 255 in row 128.
    double widest = 0.0;
    for (const QLineF& line : host.leftCurve->curveLines()) {
        widest = qMax(widest, line.x2());
    }
    QVERIFY(widest == 255 * (70.0 / 255.0) - 1.0);
    QVERIFY(host.leftCurve->curveLines().first().x1() == 16 * (70.0 / 255.0) - 1.0);
}

void TestCVKIntensityMdiWidget::load_beforeTheFirstLayout()
{
    Host host; // 100 x 30, as Qt makes a child widget; never shown
    host.widget.resize(100, 30);
    QVERIFY(host.widget.loadImage(path("square.raw")));
    QCOMPARE(host.image->size, QSizeF(4.0, 0.0));
    host.image->zoomIn();
    host.image->scrollDistanceHorizontal(1);
    QVERIFY(host.image->scale == 0.0);
    host.window.show();
    host.widget.resize(1000, 800);
    QCOMPARE(host.image->size, QSizeF(580.0, 580.0));
    QVERIFY(host.image->scale == 580.0 / 512.0);
    host.widget.grab();
}

void TestCVKIntensityMdiWidget::wires_existWhileAnImageIsLoaded()
{
    for (const bool closed : { false, true }) {
        Host host;
        openSquare(host);
        if (closed) {
            host.widget.closeImage();
        }
        const QVector<Row> rows = loadedImageRows(host);
        QCOMPARE(rows.size(), 18 + 5 + 5);
        for (const Row& row : rows) {
            QVERIFY2(QObject::disconnect(row.sender, row.signal, row.receiver, row.slot) != closed,
                qPrintable(QString("%1 -> %2").arg(row.signal, row.slot)));
        }
    }
}

void TestCVKIntensityMdiWidget::wires_doubleWhenLoadedTwice()
{
    Host host;
    openSquare(host);
    QVERIFY(host.widget.loadImage(path("square.raw")));

    // One palette reaches the engine twice, and each time it renders.
    QSignalSpy images(host.widget.analysis(), SIGNAL(updateImage()));
    host.widget.changedPalette(ramp(255, 0, 0));
    QCOMPARE(images.size(), 2);
    // One click zooms twice.
    const double scale = host.image->scale;
    QTest::mouseClick(host.zoomIn, Qt::LeftButton);
    QVERIFY(host.image->scale == scale * 1.5 * 1.5);
    // One anchor cuts the lines twice.
    QSignalSpy lines(host.widget.analysis(), SIGNAL(updateLineValueRange(qreal, qreal)));
    host.image->resetAnchor();
    QCOMPARE(lines.size(), 2);

    // One close undoes both.
    host.widget.closeImage();
    for (const Row& row : loadedImageRows(host)) {
        QVERIFY(!QObject::disconnect(row.sender, row.signal, row.receiver, row.slot));
    }
}

void TestCVKIntensityMdiWidget::wires_runInOrder()
{
    Host host;
    openSquare(host);
    const ImageIntensityAnalysis* const engine = host.widget.analysis();

    // An anchor goes to the engine first, to the read-out after; the cross is there before both.
    QStringList readouts;
    QVector<int> anchorPositions;
    QObject::connect(engine, &ImageIntensityAnalysis::updateLineValueRange, &host.widget, [&] {
        readouts << host.readout->toPlainText();
        anchorPositions << host.leftCurve->anchorPosition();
    });
    host.click(QPointF(571.0, 221.0));
    QCOMPARE(readouts, QStringList { "X:256  Y:255\nData:1256" }); // still the old one
    QCOMPARE(anchorPositions, QVector<int> { 146 }); // the new one

    // A view goes to both rulers first, to the engine after.
    QVector<QVector<QLineF>> ticks { host.bottomRuler->ticks(), host.leftRuler->ticks() };
    QVector<QVector<QLineF>> ticksAtTheEngine;
    QObject::connect(engine, &ImageIntensityAnalysis::updateLineValueRange, &host.widget, [&] {
        ticksAtTheEngine = { host.bottomRuler->ticks(), host.leftRuler->ticks() };
    });
    host.image->zoomIn();
    QVERIFY(ticksAtTheEngine.at(0) != ticks.at(0));
    QVERIFY(ticksAtTheEngine.at(1) != ticks.at(1));
    QCOMPARE(ticksAtTheEngine.at(0), host.bottomRuler->ticks());
    QCOMPARE(ticksAtTheEngine.at(1), host.leftRuler->ticks());
}

void TestCVKIntensityMdiWidget::load_takesTheImageFromTheItemFirst()
{
    Host host;
    openSquare(host);
    QVector<bool> shown;
    QObject::connect(host.widget.analysis(), &ImageIntensityAnalysis::newHistogramSize,
        &host.widget, [&] { shown << (host.image->image != nullptr); });
    QVERIFY(host.widget.loadImage(path("small.raw")));
    QCOMPARE(shown, QVector<bool> { false });
    QVERIFY(host.image->image != nullptr);
}

void TestCVKIntensityMdiWidget::click_movesTheAnchorAndReadsThePixel()
{
    Host host;
    openSquare(host);
    // 290 and 145 units into the content: int(512 / 580 x 290), int(512 / 580 x 145).
    host.click(QPointF(280.0 + 1.0 + 290.0, 75.0 + 1.0 + 145.0));
    QCOMPARE(host.image->anchor, QPointF(256.0, 128.0));
    QCOMPARE(host.widget.analysis()->anchor, QPoint(256, 128));
    QCOMPARE(host.readout->toPlainText(), QString("X:256  Y:383\nData:5000"));
    QCOMPARE(host.bottomCurve->anchorPosition(), 291);
    QCOMPARE(host.leftCurve->anchorPosition(), 146);
    // The row through the anchor is 5000 all along: level 255, at the top of the strip.
    for (const QLineF& line : host.bottomCurve->curveLines()) {
        QVERIFY(qAbs(line.y2() - 1.0) < 1e-9);
    }
}

void TestCVKIntensityMdiWidget::zoomButtons_zoom()
{
    Host host;
    openSquare(host);
    const double fitted = host.image->scale;
    QTest::mouseClick(host.zoomIn, Qt::LeftButton);
    QVERIFY(host.image->scale == fitted * 1.5);
    // int(580 / 1.69921875) = 341 pixels remain visible.
    QCOMPARE(host.widget.analysis()->drawRect.size(), QSize(341, 341));
    QTest::mouseClick(host.zoomOut, Qt::LeftButton);
    QVERIFY(host.image->scale == fitted);
    QCOMPARE(host.widget.analysis()->drawRect, QRect(0, 0, 512, 512));
}

void TestCVKIntensityMdiWidget::wheel_zooms()
{
    Host host;
    openSquare(host);
    const double fitted = host.image->scale;
    const QPoint position = host.view->mapFromScene(QPointF(500.0, 300.0));
    QWheelEvent wheel(position, host.view->viewport()->mapToGlobal(position), QPoint(),
        QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(host.view->viewport(), &wheel);
    QVERIFY(host.image->scale == fitted * 1.5);
}

void TestCVKIntensityMdiWidget::strips_scrollTheImage()
{
    Host host;
    openSquare(host);
    host.click(QPointF(571.0, 366.0));
    host.image->zoomIn();
    const QRectF before = host.image->drawRect;
    Q_EMIT host.bottomCurve->scrollDistance(4);
    QCOMPARE(host.image->drawRect, before.translated(10.0, 0.0));
    Q_EMIT host.leftCurve->scrollDistance(-4);
    QCOMPARE(host.image->drawRect, before.translated(10.0, -10.0));
    QCOMPARE(host.widget.analysis()->drawRect, QtCompat::toRect(host.image->drawRect));
}

void TestCVKIntensityMdiWidget::strips_areDraggedInTheView()
{
    Host host;
    openSquare(host);
    host.click(QPointF(571.0, 366.0));
    host.image->zoomIn();
    const QRectF before = host.image->drawRect;
    // The pointer goes left: the view goes on to the right. It is held on its row meanwhile.
    host.drag(QPointF(600.0, 740.0), QPoint(-7, 4));
    QCOMPARE(host.image->drawRect, before.translated(10.0, 0.0));
    QCOMPARE(QCursor::pos(), host.view->viewport()->mapToGlobal(QPoint(593, 740)));
    // Downward: the view goes up.
    host.drag(QPointF(175.0, 300.0), QPoint(3, 8));
    QCOMPARE(host.image->drawRect, before.translated(10.0, -10.0));
    QCOMPARE(QCursor::pos(), host.view->viewport()->mapToGlobal(QPoint(175, 308)));
}

void TestCVKIntensityMdiWidget::palette_reachesTheDisplayImage()
{
    Host host;
    openSquare(host);
    QCOMPARE(host.image->image->pixelColor(0, 0), QColor(0, 0, 0));
    QCOMPARE(host.image->image->pixelColor(0, 128), QColor(255, 255, 255));
    host.widget.changedPalette(ramp(255, 0, 0));
    QCOMPARE(host.colorBar->colors(), ramp(255, 0, 0));
    QCOMPARE(host.image->image->pixelColor(0, 128), QColor(255, 0, 0));
    QCOMPARE(host.image->pixmap.toImage().pixelColor(0, 128), QColor(255, 0, 0));
}

void TestCVKIntensityMdiWidget::palette_withoutImageIsKeptByTheBar()
{
    Host host;
    host.widget.changedPalette(ramp(0, 255, 0));
    QCOMPARE(host.colorBar->colors(), ramp(0, 255, 0));
    openSquare(host);
    // Nothing was connected when the palette came.
    QCOMPARE(host.image->image->pixelColor(0, 128), QColor(255, 255, 255));
    host.widget.changedPalette(QVector<QColor>());
    QCOMPARE(host.image->image->pixelColor(0, 128), QColor(255, 255, 255));
    host.widget.grab();
}

void TestCVKIntensityMdiWidget::titles_arePainted()
{
    Host host;
    openSquare(host);
    const QStringList before = host.paintedTexts();
    QVERIFY(before.contains("Pixel Number"));
    QVERIFY(before.contains("Gray"));
    host.widget.changedHorizontalRulerTitle("Wavelength  (nm)");
    host.widget.changedVerticalRulerTitle("Rows");
    const QStringList after = host.paintedTexts();
    QVERIFY(after.contains("Wavelength  (nm)"));
    QVERIFY(after.contains("Rows"));
    QVERIFY(!after.contains("Pixel Number"));
    QVERIFY(after.contains("Gray"));
}

void TestCVKIntensityMdiWidget::close_withoutImageDoesNothing()
{
    Host host;
    host.widget.closeImage();
    QVERIFY(host.image->image == nullptr);
    QVERIFY(host.widget.analysis()->image == nullptr);
}

void TestCVKIntensityMdiWidget::close_undoesTheConnectionsAndKeepsThePicture()
{
    Host host;
    openSquare(host);
    host.click(QPointF(571.0, 221.0));
    host.image->zoomIn();
    QVector<bool> engineHadTheImage;
    QObject::connect(host.image, &ImageLayoutItem::changeDrawRect, &host.widget,
        [&] { engineHadTheImage << (host.widget.analysis()->image != nullptr); });
    host.widget.closeImage();
    QVERIFY(host.widget.analysis()->image == nullptr);
    // The item got the display image once more, before the engine lost the pixels: fitted, with
    // the anchor in the bottom row.
    QCOMPARE(engineHadTheImage, QVector<bool> { true });
    QVERIFY(host.image->image == host.widget.analysis()->displayImage);
    QVERIFY(!host.image->image->isNull());
    QVERIFY(host.image->scale == 580.0 / 512.0);
    QCOMPARE(host.image->drawRect, QRectF(0.0, 0.0, 512.0, 512.0));
    QCOMPARE(host.image->anchor, QPointF(256.0, 511.0));

    const QString text = host.readout->toPlainText();
    const double scale = host.image->scale;
    host.click(QPointF(500.0, 300.0));
    QTest::mouseClick(host.zoomIn, Qt::LeftButton);
    QCOMPARE(host.readout->toPlainText(), text);
    QVERIFY(host.image->scale == scale);
    host.widget.closeImage();
    host.widget.grab();
}

void TestCVKIntensityMdiWidget::close_andLoadAgainConnectsOnce()
{
    Host host;
    openSquare(host);
    host.widget.closeImage();
    QVERIFY(host.widget.loadImage(path("small.raw")));
    QCOMPARE(host.readout->toPlainText(), QString("X:2  Y:0\nData:70"));
    host.widget.changedAnchorImagePosition(QPointF(1.5, 0.4)); // rounded to (2, 0)
    QCOMPARE(host.readout->toPlainText(), QString("X:2  Y:1\nData:30"));
    QSignalSpy images(host.widget.analysis(), SIGNAL(updateImage()));
    host.widget.changedPalette(ramp(255, 0, 0));
    QCOMPARE(images.size(), 1);
}

void TestCVKIntensityMdiWidget::resize_movesTheReadout()
{
    Host host;
    openSquare(host); // the text has two lines from now on
    host.widget.resize(900, 600);
    QCOMPARE(host.view->size(), QSize(900, 600));
    QCOMPARE(host.scene->sceneRect(), QRectF(0.0, 0.0, 900.0, 600.0));
    QCOMPARE(
        host.readout->pos(), QPointF(0.0, 600.0 - host.readout->boundingRect().height() - 10.0));
    QCOMPARE(host.image->size, QSizeF(380.0, 380.0)); // min(760, 380) / 512
}

void TestCVKIntensityMdiWidget::readout_isPlacedByTheResizeEventAlone()
{
    Host host;
    host.widget.resize(1000, 800);
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
    const QPointF ofNoText = host.readout->pos();
    QCOMPARE(ofNoText, QPointF(0.0, 800.0 - host.readout->boundingRect().height() - 10.0));
    const double oneLine = host.readout->boundingRect().height();
    QVERIFY(host.widget.loadImage(path("square.raw")));
    QVERIFY(host.readout->boundingRect().height() > oneLine); // two lines
    QCOMPARE(host.readout->pos(), ofNoText);
    host.click(QPointF(571.0, 221.0));
    QCOMPARE(host.readout->pos(), ofNoText);
    // By the height that the event names, whatever the widget's own is.
    QResizeEvent event(QSize(1000, 700), QSize(1000, 800));
    QCoreApplication::sendEvent(&host.widget, &event);
    QCOMPARE(
        host.readout->pos(), QPointF(0.0, 700.0 - host.readout->boundingRect().height() - 10.0));
    host.widget.changedAnchorImagePosition(QPointF(3.0, 3.0));
    QCOMPARE(
        host.readout->pos(), QPointF(0.0, 700.0 - host.readout->boundingRect().height() - 10.0));
}

void TestCVKIntensityMdiWidget::readout_atXEqualsWidth()
{
    Host host;
    openSquare(host);
    // Row 127 holds 1000 + x and row 128 holds 5000: behind the last column comes the next row.
    host.widget.changedAnchorImagePosition(QPointF(511.0, 127.0));
    QCOMPARE(host.readout->toPlainText(), QString("X:511  Y:384\nData:1511"));
    host.widget.changedAnchorImagePosition(QPointF(512.0, 127.0));
    QCOMPARE(host.readout->toPlainText(), QString("X:512  Y:384\nData:5000"));
    host.widget.changedAnchorImagePosition(QPointF(513.0, 127.0)); // limited to the width
    QCOMPARE(host.readout->toPlainText(), QString("X:512  Y:384\nData:5000"));
    host.widget.changedAnchorImagePosition(QPointF(512.0, 511.0)); // behind the last row is nothing
    QCOMPARE(host.readout->toPlainText(), QString("X:512  Y:0\nData:0"));
}

void TestCVKIntensityMdiWidget::resize_downToNothing()
{
    Host host;
    openSquare(host);
    for (const QSize& size : { QSize(0, 0), QSize(1, 1), QSize(140, 220), QSize(141, 221),
             QSize(370, 370), QSize(1000, 1), QSize(1, 800) }) {
        host.widget.resize(size);
        host.image->zoomIn();
        host.image->scrollDistanceVertical(1);
        host.image->zoomOut();
        QCOMPARE(host.view->size(), size);
        host.widget.grab();
    }
    host.widget.resize(1000, 800);
    QCOMPARE(host.image->size, QSizeF(580.0, 580.0));
}

void TestCVKIntensityMdiWidget::emptyRawFile_afterAnImageLeavesTheCanvas()
{
    Host host;
    openSquare(host);
    const QImage before = host.image->pixmap.toImage();
    QVERIFY(host.widget.loadImage(path("empty.raw")));
    QCOMPARE(host.image->pixmap.toImage(), before);
    QVERIFY(host.image->image == host.widget.analysis()->displayImage);
    host.click(QPointF(571.0, 221.0));
    QTest::mouseClick(host.zoomIn, Qt::LeftButton);
    host.widget.changedPalette(ramp(0, 0, 255));
    host.widget.closeImage(); // no image is loaded: nothing is undone
    host.widget.resize(700, 500);
    host.widget.grab();
    QVERIFY(host.widget.loadImage(path("small.raw")));
    host.widget.grab();
}

void TestCVKIntensityMdiWidget::opensEveryKindOfFile_data()
{
    QTest::addColumn<QString>("name");
    const auto raw = [this](const char* title, int width, int height, int channels, int bytes) {
        const QString name = QString("%1.raw").arg(title);
        QByteArray pixels;
        for (int i = 0; i < width * height * channels * bytes; ++i) {
            pixels.append(char(i * 7));
        }
        QVERIFY(writeRawFile(path(name), rawFile(width, height, channels, bytes, pixels)));
        QTest::newRow(title) << name;
    };
    raw("one pixel", 1, 1, 1, 1);
    raw("one column", 1, 60000, 1, 2);
    raw("one row", 60000, 1, 1, 2);
    raw("odd width 8 bit", 403, 7, 1, 1);
    raw("odd width 16 bit", 401, 9, 1, 2);
    raw("32 bit", 33, 17, 1, 4);
    raw("colour", 33, 17, 3, 1);
    raw("colour 16 bit", 33, 17, 3, 2);
    raw("colour 32 bit", 33, 17, 3, 4);
    raw("two channels", 33, 17, 2, 1);
    raw("four channels", 33, 17, 4, 2);
    raw("depth 24", 33, 17, 1, 3);
    raw("depth 64", 33, 17, 1, 8);
    raw("no channel", 33, 17, 0, 1);
    raw("no bytes a channel", 33, 17, 1, 0);
    const std::vector<float> billions { -4e9F, 1.5F, 3e9F, 0.0F };
    QVERIFY(writeImageFile(path("float.tif"), 2, 2, 1, FrameSample::Float32, bytesOf(billions)));
    QTest::newRow("float values of billions") << "float.tif";
    const std::vector<double> doubles { 1.0, 2.0, 3.0, 4.0 };
    QVERIFY(writeImageFile(path("double.tif"), 2, 2, 1, FrameSample::Float64, bytesOf(doubles)));
    QTest::newRow("64-bit float") << "double.tif";
}

void TestCVKIntensityMdiWidget::opensEveryKindOfFile()
{
    QFETCH(QString, name);
    Host host;
    openSquare(host);
    for (const bool closeFirst : { true, false }) {
        if (closeFirst) {
            host.widget.closeImage();
        }
        QVERIFY(host.widget.loadImage(path(name)));
        for (const QSize& size : { QSize(1000, 800), QSize(300, 400) }) {
            host.widget.resize(size);
            host.click(host.image->pos() + QPointF(2.0, 2.0));
            for (int i = 0; i < 15; ++i) {
                host.image->zoomIn();
            }
            host.image->scrollDistanceHorizontal(-1);
            host.image->scrollDistanceVertical(1);
            host.widget.changedPalette(ramp(255, 255, 0));
            QVERIFY(!host.widget.grab().isNull());
            host.image->zoomOut();
        }
    }
}

QTEST_MAIN(TestCVKIntensityMdiWidget)
#include "tst_cvkintensitymdiwidget.moc"
