#pragma once

#include <QColor>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <array>
#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class CVKDisplayPreferences;
}
QT_END_NAMESPACE

/// The module with which the user chooses between image and 2D chart, the chart's axis and peak
/// labels, the palette, and the unit of the horizontal axis. Announces every choice and does
/// nothing with it itself.
class CVKDisplayPreferences : public QWidget
{
    Q_OBJECT

public:
    /// Deletes itself when closed (Qt::WA_DeleteOnClose).
    explicit CVKDisplayPreferences(QWidget* parent = nullptr);
    ~CVKDisplayPreferences() override;

    /// Image view, grey palette, pixel numbers, peaks hidden; announces what changes, and in any
    /// case the first two.
    void resetDefaults();

    /// Redirects the wheel to this panel. A host may install it on the combo boxes, so that the
    /// wheel scrolls the panel instead of changing them.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void switchAxis(int index); ///< 0: row, 1: column
    void switchDisplayType(int index); ///< 0: image, 1: 2D chart
    void changeMaxPeaksCount(int count);
    void changeShowPeaksState(bool isShow);
    void changePalette(QVector<QColor> pal);
    void changeVerticalRulerTitle(QString title); ///< part of the interface; not emitted
    void changeHorizontalRulerTitle(QString title);
    /// Wavelength at pixel 0 and width of a pixel, both -1 for pixel numbers.
    void changePixelsToWavelength(qreal startX, qreal pixelWidth);

public Q_SLOTS:
    void onShrinkaged(bool shrinkaged);

protected:
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
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
    void on_lineEditPeaks_textEdited(QString arg1);
    void on_lineEditPixelWidth_textEdited(QString arg1);

private:
    static constexpr int paletteCount = 5;

    void attachValidators();
    void fillComboBoxes();
    void stylePaletteButtons();
    void fillPalette(int index);
    void choosePalette(int index);
    void selectPalette(int index);
    void setControlsEnabled(const QVector<QWidget*>& controls, bool enabled);
    void setPeakGroupEnabled(bool enabled);
    void setUnitRowEnabled(bool enabled);
    void sendWavelengths();
    QString axisTitle(int typeIndex, int unitIndex) const;

    int m_currentPalette = 0;
    QString m_applicationDirectory;
    QStringList m_unitNames;
    QStringList m_axisTypeNames;
    std::array<QVector<QColor>, paletteCount> m_palettes; ///< filled when first chosen, and kept
    std::unique_ptr<Ui::CVKDisplayPreferences> m_ui;
    bool m_redirectingWheel = false;
};
