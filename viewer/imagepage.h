#pragma once

#include "cvkintensitywidget.h"
#include "widgetaccess.h"

#include <QPointer>
#include <QWidget>

/// The page of an image: an intensity widget, which is asked and told through its members. A fresh
/// widget takes the place of one that was closed.
class ImagePage : public QWidget, private CVKIntensityWidget::Listener
{
    Q_OBJECT

public:
    explicit ImagePage(QWidget* parent = nullptr);

    /// Shows page `page` of the file, from 0, in place of the image that is open. To be called with
    /// the page in front, since only the page in front has its size. False when the file is not
    /// shown: no image is open then, and another page belongs in front.
    bool load(const QString& path, int page = 0);

    /// Closes the image, if one is open, and brings the button that asked for it, if it did, back
    /// up.
    void closeImage();

    /// Never null. Belongs to the page, which replaces it once it has been closed.
    CVKIntensityWidget* intensityWidget();

    /// The canvas alone, without the panel.
    QWidget* canvas();

    /// Whether keys go to the canvas.
    bool hasCanvasFocus() const;

public Q_SLOTS:
    /// The Return button of the intensity widget calls this by name.
    void sltSwitchToGallery();

Q_SIGNALS:
    void returnRequested();

    /// Another image or part of it is shown, or another region selected, or settings have changed.
    void displayChanged();

    /// The pointer moves over the canvas; a position in the intensity widget.
    void pointerMoved(const QPoint& position);
    void pointerLeft();

    /// Another image is open than before, or none.
    void imageReplaced();

    /// Regions were added, moved, resized or removed, by the user or by calls.
    void regionsEdited();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void imageChanged() override;
    void viewChanged() override;
    void regionsChanged() override;
    void settingsChanged() override;
    void selectionChanged() override;
    void createWidget();

    QPointer<CVKIntensityWidget> m_widget; // deletes itself when it is closed
    WidgetAccess m_access; // to that widget
    int m_markedRegion = -1; // as last told
    int m_selectedRegion = -1;
};
