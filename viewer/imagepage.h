#pragma once

#include "imagecontrols.h"

#include <QPointer>
#include <QWidget>

class CVKIntensityWidget;

/// The page of an image: an intensity widget and what else works its controls. A fresh widget takes
/// the place of one that was closed or cannot be used any more.
class ImagePage : public QWidget
{
    Q_OBJECT

public:
    explicit ImagePage(QWidget* parent = nullptr);

    /// Shows the file in place of the image that is open. To be called with the page in front,
    /// since only the page in front has its size. False when there is nothing to show: the canvas
    /// is then as it was, and another page belongs in front.
    bool load(const QString& path);

    /// Closes the image, if one is open, and brings the button that asked for it, if it did, back
    /// up.
    void closeImage();

    /// Sets the controls for the image that was just loaded; its size is `imageSize`, in pixels.
    void apply(const ControlSettings& settings, const QSize& imageSize);

    ImageControls* controls() { return &m_controls; }

public Q_SLOTS:
    /// The Return button of the intensity widget calls this by name.
    void sltSwitchToGallery();

Q_SIGNALS:
    void returnRequested();

    /// Another view of the image is shown.
    void viewChanged();

private:
    void createWidget();

    QPointer<CVKIntensityWidget> m_widget; // deletes itself when it is closed
    ImageControls m_controls; // of that widget
};
