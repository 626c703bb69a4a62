#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QPushButton;

namespace Ui {
class CVKDisplayPreferences;
}

/// Module of the control panel in which the user chooses view, axis, peak labels, palette and axis
/// units. It only announces the choices. Palettes other than Gray are read from files beside the
/// application when they are first chosen, and kept.
class CVKDisplayPreferences : public QWidget
{
    Q_OBJECT

public:
    explicit CVKDisplayPreferences(QWidget* parent = nullptr);
    ~CVKDisplayPreferences() override;

    /// Announces the image view and the Gray palette, then puts every control back, which announces
    /// what changes by that: the axis type, the unit, the axis, in this order.
    void resetDefaults();

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Wavelengths as they were announced last.
    struct Wavelength
    {
        int start = 0; ///< of the first pixel
        int pixelWidth = 0;
        int unit = 0; ///< 0 um, 1 nm
    };

    static constexpr int paletteCount = 5; // Gray, Red, Green, Blue, Color

    /// What the user does at the controls, with the same signals and the same look afterwards.
    /// Indices are those of the signals; other ones, and numbers that the fields do not take, are
    /// not to be passed.
    void chooseDisplayType(int index);
    void chooseAxis(int index);
    /// False, and nothing changes, when the file of the palette cannot be read.
    bool choosePaletteIfReadable(int index);
    void chooseWavelength(const Wavelength& wavelength);
    void choosePixelNumbers();
    void choosePeakLabels(bool areShown, int count);
    static bool takesWavelength(int start, int pixelWidth);
    static bool takesPeakCount(int count);

    int axis() const; ///< 0 X-Axis, 1 Y-Axis
    int announcedPalette() const { return m_announcedPalette; }
    std::optional<Wavelength> announcedWavelength() const; ///< nothing for pixel numbers

Q_SIGNALS:
    void switchAxis(int index); ///< 0 X-Axis, 1 Y-Axis
    void switchDisplayType(int index); ///< 0 image, 1 two-dimensional curve
    void changeMaxPeaksCount(int count);
    void changeShowPeaksState(bool isShow);
    void changePalette(QVector<QColor> pal); ///< never empty
    void changeVerticalRulerTitle(QString title); ///< not sent yet by any control
    void changeHorizontalRulerTitle(QString title);
    /// Wavelength of the first pixel and of one pixel's width; both -1.0 for pixel numbers.
    void changePixelsToWavelength(qreal startX, qreal pixelWidth);

public Q_SLOTS:
    void onShrinkaged(bool shrinkaged);

protected:
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS: // connected by name
    void on_radioButtonImage_clicked(bool checked);
    void on_radioButton2D_clicked(bool checked);
    void on_comboBoxDisplay_currentIndexChanged(int index);
    void on_comboBoxType_currentIndexChanged(int index);
    void on_comboBoxUnits_currentIndexChanged(int index);
    void on_pushButtonGray_clicked(bool checked);
    void on_pushButtonRed_clicked(bool checked);
    void on_pushButtonGreen_clicked(bool checked);
    void on_pushButtonBlue_clicked(bool checked);
    void on_pushButtonColor_clicked(bool checked);
    void on_pushButtonApply_clicked();
    void on_checkBoxPeak_clicked(bool checked);
    void on_lineEditPeaks_textEdited(const QString& arg1);
    void on_lineEditPixelWidth_textEdited(const QString& arg1);

private:
    void attachValidators();
    void fillComboBoxes();
    void setPeakGroupEnabled(bool enabled);
    void setUnitRowEnabled(bool enabled);
    void sendWavelength();
    void sendPeakCount();
    QString axisTitle(int typeIndex, int unitIndex) const;
    std::array<QPushButton*, paletteCount> paletteButtons() const;
    const QVector<QColor>& readPalette(int index);
    void choosePalette(int index);
    void selectPalette(int index);
    QRect selectionFrame() const;

    std::unique_ptr<Ui::CVKDisplayPreferences> m_form;
    QString m_applicationDirectory;
    QStringList m_unitNames;
    QStringList m_typeNames;
    std::array<QVector<QColor>, paletteCount> m_palettes; ///< filled at first use
    int m_currentPalette = 0; ///< whose button is marked
    int m_announcedPalette = 0; ///< another one after a file that could not be read
    std::optional<Wavelength> m_announcedWavelength; ///< without the unit
    bool m_isRedirectingWheel = false;
};
