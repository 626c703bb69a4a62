#include "vkintensityhost.h"

#include "cvkintensitywidget.h"
#include "support/contrast.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QtTest>

#include <algorithm>
#include <memory>

/// One call gives a host everything that the widget draws with.
class TestApplyLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void application_hasStylePaletteAndFont();
    void ownRules_comeAfterThoseOfTheKit();
    void everySkinImageIsFound_data();
    void everySkinImageIsFound();
    void everyImageOfTheStyleSheetIsFound();
    void scaledForScreen_followsTheScreen();
    void modules_haveRoomForTheirControls();

    void zoomButtons_areVisible();
    void zoomButtons_letThePictureThrough();
    void noControlIsBlank_data();
    void noControlIsBlank();
    void disabledControls_areAsLegibleAsTheirColorAllows_data();
    void disabledControls_areAsLegibleAsTheirColorAllows();
    void canvasFont_keepsTitlesClearOfLabels();

private:
    QImage picture(const QWidget* control) const;

    std::unique_ptr<CVKIntensityWidget> m_widget;
};

namespace {

constexpr QRgb disabledText = qRgb(60, 60, 60); // set by the widget

double dotsPerInch()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInch();
}

/// The colour that covers most of the picture.
QRgb groundOf(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
        if (color.value() > counts.value(ground)) {
            ground = color.key();
        }
    }
    return ground;
}

QImage rendered(const char* objectName, bool isDown)
{
    QPushButton button;
    button.setObjectName(objectName);
    button.setFixedSize(40, 40);
    button.setDown(isDown);
    return button.grab().toImage();
}

} // namespace

void TestApplyLook::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false); // set by the test's main()
    vkintensityhost::applyLook("QLabel#ownLabel { color: #123456; }");
    m_widget = std::make_unique<CVKIntensityWidget>();
    m_widget->setAttribute(Qt::WA_DeleteOnClose, false);
    m_widget->resize(1280, 1000); // all of the panel
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
}

/// The control as it stands in the window, with everything behind it.
QImage TestApplyLook::picture(const QWidget* control) const
{
    const QRect place(control->mapTo(m_widget.get(), QPoint()), control->size());
    return m_widget->grab(place).toImage();
}

void TestApplyLook::application_hasStylePaletteAndFont()
{
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 60);
    QVERIFY(QApplication::palette().color(QPalette::WindowText).lightness() > 200);
    // platforms differ in their own default
    QCOMPARE(QApplication::font().pixelSize(), dotsPerInch() == 144.0 ? 19 : 13);
}

void TestApplyLook::ownRules_comeAfterThoseOfTheKit()
{
    QVERIFY(qApp->styleSheet().startsWith(vkintensityhost::styleSheet()));
    QLabel label("own");
    label.setObjectName("ownLabel");
    label.ensurePolished();
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(0x12, 0x34, 0x56));
}

void TestApplyLook::everySkinImageIsFound_data()
{
    QTest::addColumn<QString>("path");
    for (const char* path : { ":img_mdi_res/skin/mdi_mod_header.png",
             ":img_mdi_res/skin/mdi_mod_body.png", ":img_mdi_res/skin/mdi_mod_border.png",
             ":img_mdi_res/skin/mod_title_left.png", ":img_mdi_res/skin/mod_title_middle.png",
             ":img_mdi_res/skin/mod_title_right.png", ":res/skin/mdi_bk.jpg",
             ":res/skin/mod_cfg_close_p.png", ":res/skin/mod_cfg_close_h.png",
             ":/ui/res/icon/module_bl.png", ":/ui/res/icon/module_br.png",
             ":/ui/res/icon/moduel_m.png", ":/ui/res/icon/module_ml.png",
             ":/ui/res/icon/module_mr.png", ":/ui/res/icon/module_bm.png" }) {
        QTest::newRow(path) << path;
    }
}

void TestApplyLook::everySkinImageIsFound()
{
    QFETCH(QString, path);
    QVERIFY(!QPixmap(path).isNull());
}

void TestApplyLook::everyImageOfTheStyleSheetIsFound()
{
    QRegularExpressionMatchIterator matches
        = QRegularExpression("url\\(([^)]*)\\)").globalMatch(vkintensityhost::styleSheet());
    int found = 0;
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(!QPixmap(path).isNull(), qPrintable(path));
        ++found;
    }
    QVERIFY(found >= 6);
}

void TestApplyLook::scaledForScreen_followsTheScreen()
{
    const bool isDense = dotsPerInch() == 144.0;
    QVERIFY(isDense || dotsPerInch() == 96.0);
    QCOMPARE(vkintensityhost::scaledForScreen(290), isDense ? 435 : 290);
    QCOMPARE(vkintensityhost::scaledForScreen(13), isDense ? 19 : 13); // 19.5
    QCOMPARE(vkintensityhost::scaledForScreen(0), 0);
}

/// The modules do not grow with the screen, and neither do the distances in them: the lowest
/// control keeps the distance of 9 pixels that all of them have.
void TestApplyLook::modules_haveRoomForTheirControls()
{
    const auto* apply = m_widget->findChild<QWidget*>("pushButtonApply");
    const QWidget* module = apply->parentWidget();
    QVERIFY(module->height() - apply->geometry().bottom() - 1 >= 9);
    const auto* group = m_widget->findChild<QWidget*>("groupBoxDisplay");
    QCOMPARE(group->style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, group), 9);
    QWidget window;
    const QWidget elsewhere(&window);
    const int margin
        = elsewhere.style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &elsewhere);
    QCOMPARE(margin, dotsPerInch() == 144.0 ? 13 : 9); // 13.5
}

void TestApplyLook::zoomButtons_areVisible()
{
    const QImage in = rendered("tool_Zoom_In", false);
    const QImage out = rendered("tool_Zoom_Out", false);
    QVERIFY(in.pixelColor(20, 20).lightness() > 180); // both glyphs cross the middle
    QVERIFY(out.pixelColor(20, 20).lightness() > 180);
    QVERIFY(in.pixelColor(20, 13).lightness() > 180); // only the plus reaches up
    QVERIFY(out.pixelColor(20, 13).lightness() < 100);
    QVERIFY(in != rendered("tool_Zoom_In", true));
    QVERIFY(out != rendered("tool_Zoom_Out", true));
}

/// They lie over the canvas: what is behind them stays to be seen, and the glyph to be read even
/// over white.
void TestApplyLook::zoomButtons_letThePictureThrough()
{
    for (const char* name : { "tool_Zoom_In", "tool_Zoom_Out" }) {
        QWidget bright;
        bright.setStyleSheet("QWidget#bright { background: #ffffff; }");
        bright.setObjectName("bright");
        auto* button = new QPushButton(&bright);
        button->setObjectName(name);
        button->setFixedSize(40, 40);
        const QImage over = bright.grab(QRect(0, 0, 40, 40)).toImage();
        const QColor ground = over.pixelColor(6, 30);
        QVERIFY2(ground.lightness() > 100, qPrintable(ground.name())); // opaque: about 50
        // 3 to 1 for graphic objects, after WCAG 2.1, success criterion 1.4.11
        QVERIFY(contrastRatio(over.pixel(20, 20), ground.rgb()) >= 3.0);
    }
}

void TestApplyLook::noControlIsBlank_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<double>("least");
    for (const char* name :
        { "Return", "left_flex1", "radioButtonImage", "radioButton2D", "pushButtonGray",
            "pushButtonRed", "pushButtonGreen", "pushButtonColor", "comboBoxType",
            "pushButtonApply", "comboBoxRoi", "pushButtonAdd", "tool_Zoom_In", "tool_Zoom_Out" }) {
        QTest::newRow(name) << name << 3.0;
    }
    // Pure blue is dark, and what is disabled has no light text.
    for (const char* name : { "pushButtonBlue", "comboBoxDisplay", "checkBoxPeak", "lineEditPeaks",
             "comboBoxUnits", "lineEditXStart", "lineEditPixelWidth", "pushButtonDelete" }) {
        QTest::newRow(name) << name << 2.0;
    }
}

/// Each control differs in some part from what it covers.
void TestApplyLook::noControlIsBlank()
{
    QFETCH(QString, objectName);
    QFETCH(double, least);
    auto* control = m_widget->findChild<QWidget*>(objectName);
    QVERIFY(control && control->isVisible());
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
    const QImage shown = picture(control);
    control->setVisible(false);
    const QImage behind = picture(control);
    control->setVisible(true);
    double best = 1.0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            best = std::max(best, contrastRatio(shown.pixel(x, y), behind.pixel(x, y)));
        }
    }
    QVERIFY2(best >= least, qPrintable(QString::number(best)));
}

void TestApplyLook::disabledControls_areAsLegibleAsTheirColorAllows_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<double>("least");
    // White text keeps 4.5 on the ground that the labels share with enabled ones, and 21 / 4.5
    // leaves 1.05 / 4.5 / (0.0452 + 0.05) = 2.45 for the disabled colour, of which 2.3 are used.
    for (const char* name :
        { "labelPeaks", "checkBoxPeak", "labelUnits", "labelXStart", "labelPixelWidth" }) {
        QTest::newRow(name) << name << 2.3;
    }
    // These have a ground of their own.
    for (const char* name : { "lineEditPeaks", "comboBoxDisplay", "comboBoxUnits", "lineEditXStart",
             "lineEditPixelWidth", "pushButtonDelete" }) {
        QTest::newRow(name) << name << 4.5;
    }
}

void TestApplyLook::disabledControls_areAsLegibleAsTheirColorAllows()
{
    QFETCH(QString, objectName);
    QFETCH(double, least);
    const auto* control = m_widget->findChild<QWidget*>(objectName);
    QVERIFY(control && !control->isEnabled());
    const double ratio = contrastRatio(groundOf(picture(control)), disabledText);
    QVERIFY2(ratio >= least, qPrintable(QString::number(ratio)));
}

/// A ruler is 50 pixels high. A label's baseline lies half a line of 13 pixels and 6 more below a
/// tick of 6 pixels, the title's a line of 14 pixels above the bottom, both truncated.
void TestApplyLook::canvasFont_keepsTitlesClearOfLabels()
{
    QFont font = m_widget->findChild<QGraphicsView*>()->viewport()->font();
    font.setPixelSize(13);
    const QFontMetricsF label(font);
    const int labelBaseline = int(6.0 + label.height() * 0.5 + 6.0);
    const double labelBottom = labelBaseline + label.tightBoundingRect("0123456789").bottom();
    font.setPixelSize(14);
    const QFontMetricsF title(font);
    const int titleBaseline = int(50.0 - title.height());
    const QString text = QString::fromUtf8("\345\203\217\347\264\240\345\272\217\345\217\267");
    const double titleTop = titleBaseline + title.tightBoundingRect(text).top();
    QVERIFY2(titleTop >= labelBottom,
        qPrintable(QString("%1: %2, %3").arg(font.family()).arg(labelBottom).arg(titleTop)));
}

QTEST_MAIN(TestApplyLook)
#include "tst_applylook.moc"
