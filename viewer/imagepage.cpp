#include "imagepage.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

/// Whether the widget takes page keys itself, or would be left in the middle of a number by them
/// and by the key that adds a region.
bool isField(const QWidget* focused)
{
    return qobject_cast<const QLineEdit*>(focused) || qobject_cast<const QComboBox*>(focused);
}

bool isFieldKey(const QKeyEvent& key)
{
    return key.modifiers() == Qt::NoModifier
        && (key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown
            || key.key() == Qt::Key_Insert);
}

} // namespace

ImagePage::ImagePage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("imagePage");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    createWidget();
}

void ImagePage::createWidget()
{
    m_widget = new CVKIntensityWidget(this); // its panel looks for the slot in its parent
    m_widget->setReading(CVKIntensityWidget::Reading::Faithful);
    m_widget->setListener(this);
    m_markedRegion = -1;
    m_selectedRegion = -1;
    layout()->addWidget(m_widget);
    m_widget->show();
    layout()->activate(); // a load asks for the size at once
    m_access = WidgetAccess(m_widget);
    m_access.prepare();
    if (QWidget* picture = m_access.picture()) {
        picture->setMouseTracking(true);
        picture->installEventFilter(this);
    }
    Q_EMIT imageReplaced(); // what was open in the widget before has gone with it
}

CVKIntensityWidget* ImagePage::intensityWidget()
{
    if (!m_widget) {
        createWidget();
    }
    return m_widget;
}

QWidget* ImagePage::canvas()
{
    intensityWidget();
    return m_access.canvas();
}

bool ImagePage::hasCanvasFocus() const
{
    const QWidget* const canvas = m_access.canvas();
    return canvas && canvas->hasFocus();
}

bool ImagePage::load(const QString& path, int page)
{
    if (!intensityWidget()->loadPage(path, page)) {
        closeImage();
        return false;
    }
    m_access.layOutCanvas();
    return true;
}

void ImagePage::closeImage()
{
    if (m_widget) {
        m_widget->closeImage();
        m_access.releaseReturnButton();
    }
}

void ImagePage::sltSwitchToGallery()
{
    Q_EMIT returnRequested();
}

void ImagePage::imageChanged()
{
    Q_EMIT imageReplaced();
    Q_EMIT displayChanged();
}

void ImagePage::settingsChanged()
{
    Q_EMIT displayChanged();
}

void ImagePage::viewChanged()
{
    Q_EMIT displayChanged();
}

void ImagePage::regionsChanged()
{
    Q_EMIT regionsEdited();
}

/// A click on a region marks it on the canvas alone. The panel follows, so that both mean the
/// region that Delete removes; where the user chooses none in the panel, the mark may stay.
void ImagePage::selectionChanged()
{
    const int marked = m_widget->markedRegion();
    const bool isMarkedAnew = marked != m_markedRegion;
    m_markedRegion = marked;
    if (isMarkedAnew && marked >= 0 && marked != m_widget->selectedRegion()) {
        m_widget->selectRegion(marked);
    }
    const int selected = m_widget->selectedRegion();
    if (selected >= 0 && selected != m_selectedRegion) {
        m_access.showStatistics();
    }
    m_selectedRegion = selected;
    Q_EMIT displayChanged();
}

/// Page keys pressed in a field of the panel do not lead to another image, and Insert adds no
/// region.
bool ImagePage::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isField(window()->focusWidget())
        && isFieldKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

/// Looks at the pointer only: every event goes on to the canvas.
bool ImagePage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && m_widget) {
        const QPoint position = static_cast<QMouseEvent*>(event)->pos();
        Q_EMIT pointerMoved(static_cast<QWidget*>(watched)->mapTo(m_widget, position));
    } else if (event->type() == QEvent::Leave) {
        Q_EMIT pointerLeft();
    }
    return QWidget::eventFilter(watched, event);
}
