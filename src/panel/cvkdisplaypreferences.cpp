#include "panel/cvkdisplaypreferences.h"

#include "panel/controlenabled.h"
#include "panel/modulebackground.h"
#include "panel/palettefile.h"
#include "ui_cvkdisplaypreferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QIntValidator>
#include <QPainter>

namespace {

constexpr int grayPalette = 0;
constexpr int grayLevels = 256;
constexpr int wavelengthType = 1; // index in the list of axis types

/// Files of the palettes under the application's directory, in the order of the buttons; the grey
/// one is built here. Deliberate: the separators are mixed; the reader understands both.
constexpr std::array<const char*, 5> paletteFiles { "", "/pal/red.pal", "/pal/green.pal",
    "\\pal\\blue.pal", "\\pal\\color.pal" };

constexpr std::array<const char*, 5> paletteButtonStyles {
    "background-color: rgb(128, 128, 128);border: 0px;",
    "background-color: rgb(255, 0, 0);border: 0px;",
    "background-color: rgb(0, 255, 0);border: 0px;",
    "background-color: rgb(0, 0, 255);border: 0px;",
    "background-color: qlineargradient(spread:pad, x1:0, y1:0, x2:1, y2:0, "
    "stop:0 rgba(0, 0, 0, 255), stop:0.2 rgba(0, 0, 255, 255), stop:0.4 rgba(0, 153, 0, 255), "
    "stop:0.6 rgba(255, 0, 0, 255), stop:0.8 rgba(255, 255, 0, 255), "
    "stop:1 rgba(255, 255, 255, 255));\nborder: 0px;"
};

/// The palette buttons in the order of the palettes.
std::array<QPushButton*, 5> paletteButtons(const Ui::CVKDisplayPreferences& ui)
{
    return { ui.pushButtonGray, ui.pushButtonRed, ui.pushButtonGreen, ui.pushButtonBlue,
        ui.pushButtonColor };
}

/// Nothing may send 0: the field goes back to "1" while the user edits.
void keepAboveZero(QLineEdit* field, const QString& text)
{
    if (text.toInt() == 0) {
        field->setText(QStringLiteral("1"));
    }
}

} // namespace

CVKDisplayPreferences::CVKDisplayPreferences(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::CVKDisplayPreferences)
{
    qRegisterMetaType<QVector<QColor>>("QVector<QColor>");
    m_ui->setupUi(this);
    setLayout(m_ui->verticalLayout);
    setAttribute(Qt::WA_DeleteOnClose, true);
    m_applicationDirectory = QDir(QCoreApplication::applicationDirPath()).path();
    attachValidators();
    fillComboBoxes();
    stylePaletteButtons();
    fillPalette(grayPalette);
    resetDefaults();
}

CVKDisplayPreferences::~CVKDisplayPreferences() = default;

void CVKDisplayPreferences::attachValidators()
{
    m_ui->lineEditPeaks->setValidator(new QIntValidator(1, 200, this));
    m_ui->lineEditXStart->setValidator(new QIntValidator(0, 2000, this));
    m_ui->lineEditPixelWidth->setValidator(new QIntValidator(1, 100, this));
}

void CVKDisplayPreferences::fillComboBoxes()
{
    m_ui->comboBoxDisplay->clear();
    m_ui->comboBoxDisplay->addItems({ tr("X-Axis"), tr("Y-Axis") });
    m_axisTypeNames = QStringList { tr("Pixels Number"), tr("Wavelength") };
    m_ui->comboBoxType->clear();
    m_ui->comboBoxType->addItems(m_axisTypeNames);
    m_unitNames = QStringList { tr("um"), tr("nm") };
    m_ui->comboBoxUnits->clear();
    m_ui->comboBoxUnits->addItems(m_unitNames);
}

void CVKDisplayPreferences::stylePaletteButtons()
{
    const auto buttons = paletteButtons(*m_ui);
    for (size_t i = 0; i < buttons.size(); ++i) {
        buttons[i]->setFixedSize(30, 30);
        buttons[i]->setStyleSheet(QLatin1String(paletteButtonStyles[i]));
    }
}

void CVKDisplayPreferences::resetDefaults()
{
    Q_EMIT switchDisplayType(0);
    Q_EMIT changePalette(m_palettes[grayPalette]);
    m_ui->radioButton2D->setChecked(false);
    m_ui->radioButtonImage->setChecked(true);
    m_ui->lineEditPeaks->setText(QStringLiteral("10"));
    m_ui->checkBoxPeak->setChecked(false);
    m_ui->lineEditXStart->setText(QStringLiteral("100"));
    m_ui->lineEditPixelWidth->setText(QStringLiteral("1"));
    m_ui->comboBoxType->setCurrentIndex(0);
    // Deliberate: coming back from the second unit announces the wavelength title last, although
    // the axis shows pixel numbers.
    m_ui->comboBoxUnits->setCurrentIndex(0);
    m_ui->comboBoxDisplay->setCurrentIndex(0);
    selectPalette(grayPalette);
    setPeakGroupEnabled(false);
    setUnitRowEnabled(false);
}

void CVKDisplayPreferences::onShrinkaged(bool shrinkaged)
{
    setVisible(!shrinkaged);
}

void CVKDisplayPreferences::setControlsEnabled(const QVector<QWidget*>& controls, bool enabled)
{
    for (QWidget* const control : controls) {
        setControlEnabled(control, enabled, styleSheet());
    }
}

void CVKDisplayPreferences::setPeakGroupEnabled(bool enabled)
{
    setControlsEnabled(
        { m_ui->labelPeaks, m_ui->checkBoxPeak, m_ui->lineEditPeaks, m_ui->comboBoxDisplay },
        enabled);
}

void CVKDisplayPreferences::setUnitRowEnabled(bool enabled)
{
    setControlsEnabled({ m_ui->labelUnits, m_ui->comboBoxUnits, m_ui->labelXStart,
                           m_ui->lineEditXStart, m_ui->labelPixelWidth, m_ui->lineEditPixelWidth },
        enabled);
}

void CVKDisplayPreferences::on_radioButtonImage_clicked(bool checked)
{
    m_ui->radioButton2D->setChecked(!checked);
    setPeakGroupEnabled(!checked);
    Q_EMIT switchDisplayType(0);
}

void CVKDisplayPreferences::on_radioButton2D_clicked(bool checked)
{
    m_ui->radioButtonImage->setChecked(!checked);
    setPeakGroupEnabled(checked);
    Q_EMIT switchDisplayType(1);
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
    Q_EMIT changeHorizontalRulerTitle(axisTitle(index, m_ui->comboBoxUnits->currentIndex()));
    if (index == wavelengthType) {
        sendWavelengths();
    } else {
        Q_EMIT changePixelsToWavelength(-1.0, -1.0);
    }
    setUnitRowEnabled(index != 0);
}

void CVKDisplayPreferences::on_comboBoxUnits_currentIndexChanged(int index)
{
    // Deliberate: the title of the wavelengths, whatever the axis shows.
    Q_EMIT changeHorizontalRulerTitle(axisTitle(wavelengthType, index));
}

void CVKDisplayPreferences::on_pushButtonApply_clicked()
{
    if (m_ui->comboBoxType->currentIndex() == wavelengthType) {
        sendWavelengths();
    }
    if (m_ui->radioButton2D->isChecked()) {
        Q_EMIT changeMaxPeaksCount(m_ui->lineEditPeaks->text().toInt());
    }
}

void CVKDisplayPreferences::sendWavelengths()
{
    Q_EMIT changePixelsToWavelength(
        m_ui->lineEditXStart->text().toInt(), m_ui->lineEditPixelWidth->text().toInt());
}

void CVKDisplayPreferences::on_lineEditPeaks_textEdited(QString arg1)
{
    keepAboveZero(m_ui->lineEditPeaks, arg1);
}

void CVKDisplayPreferences::on_lineEditPixelWidth_textEdited(QString arg1)
{
    keepAboveZero(m_ui->lineEditPixelWidth, arg1);
}

void CVKDisplayPreferences::on_pushButtonGray_clicked(bool)
{
    choosePalette(0);
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

void CVKDisplayPreferences::choosePalette(int index)
{
    if (m_palettes[size_t(index)].isEmpty()) {
        fillPalette(index);
    }
    if (!m_palettes[size_t(index)].isEmpty()) {
        Q_EMIT changePalette(m_palettes[size_t(index)]);
    }
    selectPalette(index); // Deliberate: also when the file could not be read and nothing was sent
}

void CVKDisplayPreferences::fillPalette(int index)
{
    QVector<QColor>& palette = m_palettes[size_t(index)];
    if (index != grayPalette) {
        readPaletteFile(
            m_applicationDirectory + QLatin1String(paletteFiles[size_t(index)]), &palette);
        return;
    }
    for (int level = 0; level < grayLevels; ++level) {
        palette.append(QColor(level, level, level));
    }
}

/// Shows `index` as the chosen palette.
void CVKDisplayPreferences::selectPalette(int index)
{
    const auto buttons = paletteButtons(*m_ui);
    for (size_t i = 0; i < buttons.size(); ++i) {
        buttons[i]->setChecked(int(i) == index);
    }
    m_currentPalette = index;
    m_ui->groupBoxPalette->update(); // and what is painted behind it, the frame
}

/// "Wavelength  (nm)", with two spaces, or the name of the axis type alone.
QString CVKDisplayPreferences::axisTitle(int typeIndex, int unitIndex) const
{
    QString title = m_axisTypeNames.value(typeIndex);
    if (typeIndex == wavelengthType && unitIndex >= 0 && unitIndex < m_unitNames.size()) {
        title += QStringLiteral("  (") + m_unitNames.at(unitIndex) + QStringLiteral(")");
    }
    return title;
}

void CVKDisplayPreferences::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintModuleBackground(&painter, width(), height());
    // Deliberate: drawn in the panel's own foreground colour, not in white.
    const QRect button = paletteButtons(*m_ui)[size_t(m_currentPalette)]->geometry();
    painter.drawRect(button.translated(m_ui->groupBoxPalette->pos()).adjusted(-1, -1, 0, 0));
}

bool CVKDisplayPreferences::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || watched == this || m_redirectingWheel) {
        return QWidget::eventFilter(watched, event);
    }
    m_redirectingWheel = true; // the panel may hand it to a parent that filters, too
    const bool isHandled = QCoreApplication::sendEvent(this, event); // no longer spontaneous
    m_redirectingWheel = false;
    return isHandled;
}
