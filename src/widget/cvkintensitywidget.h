#pragma once

#include "vkintensitywidget_export.h"

#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

class CVKIntensityCtrlWidget;
class CVKIntensityMdiWidget;

/// Shows one camera image with everything needed to examine its intensity: canvas with cross-hair,
/// row and column profiles, rulers, palette bar and regions of interest, a 2D chart of the row or
/// the column with its peaks, and the control panel on the left.
///
/// The panel's Return button calls the slot sltSwitchToGallery() of the object that is passed as
/// the parent, if it has one; it is looked up during construction.
///
/// The one exported class of the library; use it on the GUI thread only. Close the image before
/// each load: a load on top of an open image connects everything once more. The skin images come
/// from the host application's Qt resources; a missing one leaves its part unpainted. `false` is
/// all that a failed load says; diagnostic lines go to the Qt debug log.
class VKINTENSITYWIDGET_EXPORT CVKIntensityWidget : public QWidget
{
    Q_OBJECT

public:
    /// Deletes itself when closed (Qt::WA_DeleteOnClose).
    explicit CVKIntensityWidget(QWidget* parent = nullptr);
    ~CVKIntensityWidget() override;

    /// Loads the image file `path`, picking the reader by its suffix (jpg, jpeg, tif, tiff, bmp,
    /// png, raw; any case), and shows it. False, with everything as it was, for a missing file, an
    /// unknown suffix or data that cannot be read as that format. Nothing is thrown. A load resets
    /// the panel: image view, grey palette, pixel numbers, no region selected.
    /// A raw file whose header gives no width or no height loads, as an image without pixels: true,
    /// and the canvas keeps the last picture.
    bool loadImage(const QString& path);

    /// Forgets the image and removes the regions of interest. The canvas keeps showing the last
    /// picture, and the panel what it says, until the next load. Without an image nothing happens.
    void closeImage();

    /// Logical dots per inch of the primary screen over 96.
    float getDpiMultiple();

Q_SIGNALS:
    /// For the host application; the widget itself never emits it.
    void sglChangeSize();

protected:
    /// Paints the skin of the column behind the panel.
    void paintEvent(QPaintEvent* event) override;
    /// Gives the panel its column and the canvas the rest.
    void resizeEvent(QResizeEvent* event) override;

private:
    bool createIntensityUI();
    void connectPreferences();
    void connectHistogram();

    QString m_applicationDirectory;
    QPixmap m_sparePixmap;
    QPixmap m_headerSkin;
    QPixmap m_bodySkin;
    QPixmap m_borderSkin;
    QPointer<CVKIntensityMdiWidget> m_host; // deletes itself when closed, like the panel
    QPointer<CVKIntensityCtrlWidget> m_controlPanel;
};
