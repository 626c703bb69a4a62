#include "pointerreadout.h"

#include "imagepage.h"
#include "statusline.h"

#include <QLocale>

namespace {

constexpr int wavelengthDigits = 10; // the last of 2^31 pixels has one of 12 digits

} // namespace

PointerReadout::PointerReadout(ImagePage* page, StatusLine* status, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_status(status)
{
    connect(page, &ImagePage::displayChanged, this, &PointerReadout::takeDisplay);
    connect(page, &ImagePage::pointerMoved, this, &PointerReadout::follow);
    connect(page, &ImagePage::pointerLeft, this, [this] {
        m_pointer.reset();
        showPixel();
    });
}

QString PointerReadout::pixelText(const QPoint& pixel, quint32 value) const
{
    const QString column = m_unit.isEmpty()
        ? QString::number(pixel.x())
        : QString("%1 (%2 %3)")
              .arg(pixel.x())
              .arg(m_axis.position(pixel.x()), 0, 'g', wavelengthDigits)
              .arg(m_unit);
    return QString("x %1, y %2: %3").arg(column).arg(m_height - 1 - pixel.y()).arg(value);
}

void PointerReadout::follow(const QPoint& position)
{
    m_pointer = position;
    showPixel();
}

/// Runs with every move of the mouse, and looks up nothing but one value.
void PointerReadout::showPixel()
{
    const CVKIntensityWidget* image = m_page->intensityWidget();
    const std::optional<QPoint> pixel = m_pointer ? image->pixelAt(*m_pointer) : std::nullopt;
    const std::optional<quint32> value = pixel ? image->value(*pixel) : std::nullopt;
    m_status->showPixel(value ? pixelText(*pixel, *value) : QString());
}

void PointerReadout::takeDisplay()
{
    using Widget = CVKIntensityWidget;
    const Widget* image = m_page->intensityWidget();
    const Widget::ImageInfo info = image->imageInfo();
    const std::optional<Widget::Calibration> calibration = image->calibration();
    const bool isNanometers = calibration && calibration->unit == Widget::Unit::Nanometers;
    m_height = info.size.height();
    m_axis = calibration ? image->rowProfile(0) : Widget::Profile();
    m_axis.values.clear();
    m_axis.levels.clear();
    m_unit = !calibration ? QString() : isNanometers ? QString("nm") : QString::fromUtf8("µm");
    const QPoint last(info.size.width() - 1, 0);
    m_status->reservePixel(info.isValid() ? pixelText(last, info.maximum) : QString());
    showPixel();
    const bool isImage = info.isValid() && image->view() == Widget::View::Image;
    m_status->showZoom(isImage ? zoomText(image->zoomFactor()) : QString());
}

QString zoomText(double factor)
{
    const double percent = factor * 100.0;
    if (!(percent > 0.0)) {
        return QString();
    }
    const int decimals = percent < 10.0 ? 1 : 0;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return StatusLine::tr("%1 %").arg(locale.toString(percent, 'f', decimals));
}
