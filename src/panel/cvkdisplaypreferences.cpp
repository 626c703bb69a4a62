#include "panel/cvkdisplaypreferences.h"

#include "panel/controlenabled.h"
#include "panel/modulebackground.h"
#include "base/grayramp.h"
#include "panel/palettefile.h"
#include "ui_cvkdisplaypreferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QIntValidator>
#include <QPainter>
#include <QPointer>

namespace {

constexpr int wavelengthType = 1; // index in the axis type names
constexpr int grayPalette = 0;
constexpr int largestPeakCount = 200;
constexpr int largestStart = 2000;
constexpr int largestPixelWidth = 100;

/// File of palette `index` >= 1, below the directory of the application.
QString paletteFileName(int index)
{
    // Deliberate: two files are named with slashes and two with backslashes.
    static const char* const names[]
        = { "/pal/red.pal", "/pal/green.pal", "\\pal\\blue.pal", "\\pal\\color.pal" };
    return QString::fromLatin1(names[index - 1]);
}

} // namespace

CVKDisplayPreferences::CVKDisplayPreferences(QWidget* parent)
    : QWidget(parent)
    , m_form(new Ui::CVKDisplayPreferences)
{
    // Palettes travel through connections made by signature.
    qRegisterMetaType<QVector<QColor>>("QVector<QColor>");
    m_form->setupUi(this);
    setLayout(m_form->verticalLayout);
    setAttribute(Qt::WA_DeleteOnClose, true);
    m_applicationDirectory = QDir(QCoreApplication::applicationDirPath()).path();
    attachValidators();
    fillComboBoxes();
    m_palettes[grayPalette] = grayRamp();
    resetDefaults();
}

CVKDisplayPreferences::~CVKDisplayPreferences() = default;

void CVKDisplayPreferences::attachValidators()
{
    m_form->lineEditPeaks->setValidator(new QIntValidator(1, largestPeakCount, this));
    m_form->lineEditXStart->setValidator(new QIntValidator(0, largestStart, this));
    m_form->lineEditPixelWidth->setValidator(new QIntValidator(1, largestPixelWidth, this));
}

void CVKDisplayPreferences::fillComboBoxes()
{
    m_form->comboBoxDisplay->clear();
    m_form->comboBoxDisplay->addItems({ tr("X-Axis"), tr("Y-Axis") });
    m_typeNames = QStringList { tr("Pixels Number"), tr("Wavelength") };
    m_form->comboBoxType->clear();
    m_form->comboBoxType->addItems(m_typeNames);
    m_unitNames = QStringList { tr("um"), tr("nm") };
    m_form->comboBoxUnits->clear();
    m_form->comboBoxUnits->addItems(m_unitNames);
}

void CVKDisplayPreferences::resetDefaults()
{
    const QPointer<CVKDisplayPreferences> self(this);
    m_announcedPalette = grayPalette;
    Q_EMIT switchDisplayType(0);
    if (self) { // a receiver may have deleted the panel
        Q_EMIT changePalette(m_palettes[grayPalette]);
    }
    if (!self) {
        return;
    }
    m_form->radioButton2D->setChecked(false);
    m_form->radioButtonImage->setChecked(true);
    m_form->lineEditPeaks->setText(QStringLiteral("10"));
    m_form->checkBoxPeak->setChecked(false); // Deliberate: without announcing it, nor the number
    m_form->lineEditXStart->setText(QStringLiteral("100"));
    m_form->lineEditPixelWidth->setText(QStringLiteral("1"));
    // Deliberate: with nm chosen the unit goes back after the type, and its change is announced
    // with the wavelength title, which so comes last although the type is pixels.
    m_form->comboBoxType->setCurrentIndex(0);
    m_form->comboBoxUnits->setCurrentIndex(0);
    m_form->comboBoxDisplay->setCurrentIndex(0);
    selectPalette(grayPalette);
    setPeakGroupEnabled(false);
    setUnitRowEnabled(false);
}

void CVKDisplayPreferences::setPeakGroupEnabled(bool enabled)
{
    const std::array<QWidget*, 4> controls { m_form->labelPeaks, m_form->checkBoxPeak,
        m_form->lineEditPeaks, m_form->comboBoxDisplay };
    for (QWidget* const control : controls) {
        setControlEnabled(control, enabled, styleSheet());
    }
}

void CVKDisplayPreferences::setUnitRowEnabled(bool enabled)
{
    const std::array<QWidget*, 6> controls { m_form->labelUnits, m_form->comboBoxUnits,
        m_form->labelXStart, m_form->lineEditXStart, m_form->labelPixelWidth,
        m_form->lineEditPixelWidth };
    for (QWidget* const control : controls) {
        setControlEnabled(control, enabled, styleSheet());
    }
}

void CVKDisplayPreferences::onShrinkaged(bool shrinkaged)
{
    setVisible(!shrinkaged);
}

void CVKDisplayPreferences::on_radioButtonImage_clicked(bool checked)
{
    m_form->radioButton2D->setChecked(!checked);
    setPeakGroupEnabled(!checked);
    Q_EMIT switchDisplayType(0); // Deliberate: also when the button is not checked
}

void CVKDisplayPreferences::on_radioButton2D_clicked(bool checked)
{
    m_form->radioButtonImage->setChecked(!checked);
    setPeakGroupEnabled(checked);
    Q_EMIT switchDisplayType(1); // Deliberate: also when the button is not checked
}

void CVKDisplayPreferences::on_comboBoxDisplay_currentIndexChanged(int index)
{
    Q_EMIT switchAxis(index);
}

void CVKDisplayPreferences::on_checkBoxPeak_clicked(bool checked)
{
    Q_EMIT changeShowPeaksState(checked);
}

void CVKDisplayPreferences::on_comboBoxType_currentIndexChanged(int index)
{
    Q_EMIT changeHorizontalRulerTitle(axisTitle(index, m_form->comboBoxUnits->currentIndex()));
    if (index == wavelengthType) {
        sendWavelength();
    } else {
        m_announcedWavelength.reset();
        Q_EMIT changePixelsToWavelength(-1.0, -1.0);
    }
    setUnitRowEnabled(index != 0);
}

void CVKDisplayPreferences::on_comboBoxUnits_currentIndexChanged(int index)
{
    // Deliberate: the title of the wavelength, whatever the axis type is.
    Q_EMIT changeHorizontalRulerTitle(axisTitle(wavelengthType, index));
}

void CVKDisplayPreferences::on_pushButtonApply_clicked()
{
    const QPointer<CVKDisplayPreferences> self(this);
    if (m_form->comboBoxType->currentIndex() == wavelengthType) {
        sendWavelength();
    }
    if (self && m_form->radioButton2D->isChecked()) {
        sendPeakCount();
    }
}

void CVKDisplayPreferences::sendWavelength()
{
    const int start = m_form->lineEditXStart->text().toInt();
    const int pixelWidth = m_form->lineEditPixelWidth->text().toInt();
    m_announcedWavelength = Wavelength { start, pixelWidth, 0 };
    Q_EMIT changePixelsToWavelength(start, pixelWidth);
}

void CVKDisplayPreferences::sendPeakCount()
{
    Q_EMIT changeMaxPeaksCount(m_form->lineEditPeaks->text().toInt());
}

void CVKDisplayPreferences::chooseDisplayType(int index)
{
    if (index == 0) {
        m_form->radioButtonImage->setChecked(true);
        on_radioButtonImage_clicked(true);
    } else {
        m_form->radioButton2D->setChecked(true);
        on_radioButton2D_clicked(true);
    }
}

void CVKDisplayPreferences::chooseAxis(int index)
{
    m_form->comboBoxDisplay->setCurrentIndex(index);
}

int CVKDisplayPreferences::axis() const
{
    return m_form->comboBoxDisplay->currentIndex();
}

bool CVKDisplayPreferences::takesWavelength(int start, int pixelWidth)
{
    return start >= 0 && start <= largestStart && pixelWidth >= 1
        && pixelWidth <= largestPixelWidth;
}

bool CVKDisplayPreferences::takesPeakCount(int count)
{
    return count >= 1 && count <= largestPeakCount;
}

void CVKDisplayPreferences::chooseWavelength(const Wavelength& wavelength)
{
    const QPointer<CVKDisplayPreferences> self(this);
    m_form->lineEditXStart->setText(QString::number(wavelength.start));
    m_form->lineEditPixelWidth->setText(QString::number(wavelength.pixelWidth));
    m_form->comboBoxUnits->setCurrentIndex(wavelength.unit); // announces the title
    if (!self) {
        return;
    }
    if (m_form->comboBoxType->currentIndex() == wavelengthType) {
        sendWavelength();
    } else {
        m_form->comboBoxType->setCurrentIndex(wavelengthType); // announces title and wavelength
    }
}

void CVKDisplayPreferences::choosePixelNumbers()
{
    m_form->comboBoxType->setCurrentIndex(0);
}

void CVKDisplayPreferences::choosePeakLabels(bool areShown, int count)
{
    const QPointer<CVKDisplayPreferences> self(this);
    m_form->lineEditPeaks->setText(QString::number(count));
    sendPeakCount();
    if (self) {
        m_form->checkBoxPeak->setChecked(areShown);
        on_checkBoxPeak_clicked(areShown);
    }
}

std::optional<CVKDisplayPreferences::Wavelength> CVKDisplayPreferences::announcedWavelength() const
{
    if (!m_announcedWavelength) {
        return std::nullopt;
    }
    return Wavelength { m_announcedWavelength->start, m_announcedWavelength->pixelWidth,
        m_form->comboBoxUnits->currentIndex() };
}

/// "Wavelength  (um)"; the unit belongs to wavelengths only. Empty for an unknown type.
QString CVKDisplayPreferences::axisTitle(int typeIndex, int unitIndex) const
{
    if (typeIndex < 0 || typeIndex >= m_typeNames.size()) {
        return QString();
    }
    const QString type = m_typeNames.at(typeIndex);
    if (typeIndex != wavelengthType || unitIndex < 0 || unitIndex >= m_unitNames.size()) {
        return type;
    }
    return type + QStringLiteral("  (") + m_unitNames.at(unitIndex) + QLatin1Char(')');
}

void CVKDisplayPreferences::on_lineEditPeaks_textEdited(const QString& arg1)
{
    if (arg1.toInt() == 0) {
        m_form->lineEditPeaks->setText(QStringLiteral("1"));
    }
}

void CVKDisplayPreferences::on_lineEditPixelWidth_textEdited(const QString& arg1)
{
    if (arg1.toInt() == 0) {
        m_form->lineEditPixelWidth->setText(QStringLiteral("1"));
    }
}

void CVKDisplayPreferences::on_pushButtonGray_clicked(bool)
{
    choosePalette(grayPalette);
}

void CVKDisplayPreferences::on_pushButtonRed_clicked(bool)
{
    choosePalette(1);
}

void CVKDisplayPreferences::on_pushButtonGreen_clicked(bool)
{
    choosePalette(2);
}

void CVKDisplayPreferences::on_pushButtonBlue_clicked(bool)
{
    choosePalette(3);
}

void CVKDisplayPreferences::on_pushButtonColor_clicked(bool)
{
    choosePalette(4);
}

std::array<QPushButton*, CVKDisplayPreferences::paletteCount>
CVKDisplayPreferences::paletteButtons() const
{
    return { m_form->pushButtonGray, m_form->pushButtonRed, m_form->pushButtonGreen,
        m_form->pushButtonBlue, m_form->pushButtonColor };
}

/// The colors of a palette, read from its file at first use; empty without a readable file.
const QVector<QColor>& CVKDisplayPreferences::readPalette(int index)
{
    QVector<QColor>& palette = m_palettes[size_t(index)];
    if (palette.isEmpty()) { // never so for Gray
        readPaletteFile(paletteFilePath(m_applicationDirectory, paletteFileName(index)), palette);
    }
    return palette;
}

bool CVKDisplayPreferences::choosePaletteIfReadable(int index)
{
    if (readPalette(index).isEmpty()) {
        return false;
    }
    choosePalette(index);
    return true;
}

void CVKDisplayPreferences::choosePalette(int index)
{
    const QVector<QColor> palette = readPalette(index);
    const QPointer<CVKDisplayPreferences> self(this);
    if (!palette.isEmpty()) {
        m_announcedPalette = index;
        Q_EMIT changePalette(palette);
    }
    if (self) {
        selectPalette(index); // Deliberate: also when the file could not be read
    }
}

void CVKDisplayPreferences::selectPalette(int index)
{
    const auto buttons = paletteButtons();
    for (size_t i = 0; i < buttons.size(); ++i) {
        buttons[i]->setChecked(i == size_t(index));
    }
    m_currentPalette = index;
    m_form->groupBoxPalette->repaint();
}

/// One pixel around the button of the current palette, in pixels of the panel.
QRect CVKDisplayPreferences::selectionFrame() const
{
    const QRect button = paletteButtons()[size_t(m_currentPalette)]->geometry();
    return QRect(m_form->groupBoxPalette->pos() + button.topLeft() - QPoint(1, 1),
        button.size() + QSize(1, 1));
}

void CVKDisplayPreferences::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintModuleBackground(&painter, width(), height());
    painter.drawRect(selectionFrame()); // Deliberate: in the panel's text colour, not in white
}

/// Redirects the wheel to this panel, so that a control on which the application installs this
/// filter is not changed by scrolling over it.
bool CVKDisplayPreferences::eventFilter(QObject* watched, QEvent* event)
{
    // A handler of the panel's may send the wheel back to what is watched.
    if (event->type() != QEvent::Wheel || watched == this || m_isRedirectingWheel) {
        return QWidget::eventFilter(watched, event);
    }
    const QPointer<CVKDisplayPreferences> self(this);
    m_isRedirectingWheel = true;
    const bool isHandled = QCoreApplication::sendEvent(this, event); // marks it not spontaneous
    if (self) {
        m_isRedirectingWheel = false;
    }
    return isHandled;
}
