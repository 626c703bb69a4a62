#include "imagepage.h"

#include "controldriver.h"
#include "cvkintensitywidget.h"
#include "imagefiles.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QRadioButton>
#include <QVBoxLayout>

ImagePage::ImagePage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("imagePage");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    createWidget();
}

/// Makes a fresh intensity widget in place of the one there is.
void ImagePage::createWidget()
{
    if (m_widget) {
        m_widget->hide();
        layout()->removeWidget(m_widget);
        m_widget->deleteLater();
    }
    m_widget = new CVKIntensityWidget(this); // its panel looks for the slot in its parent
    layout()->addWidget(m_widget);
    m_widget->show();
    layout()->activate(); // a load asks for the size at once
    m_controls = ImageControls(m_widget);
    m_controls.prepare();
    for (const auto* button : m_widget->findChildren<QRadioButton*>()) {
        connect(button, &QRadioButton::toggled, this, &ImagePage::viewChanged);
    }
    if (auto* axis = m_widget->findChild<QComboBox*>("comboBoxDisplay")) {
        connect(
            axis, qOverload<int>(&QComboBox::currentIndexChanged), this, &ImagePage::viewChanged);
    }
}

bool ImagePage::load(const QString& path)
{
    if (!m_widget) {
        createWidget();
    }
    closeImage();
    m_controls.forgetPalette();
    if (isHugeRawFileCutShort(path) || !m_widget->loadImage(path)) {
        return false;
    }
    if (isRawFileWithoutPixels(path)) {
        createWidget(); // it loads, but its canvas keeps the picture before
        return false;
    }
    return true;
}

void ImagePage::closeImage()
{
    if (!m_widget) {
        return;
    }
    m_widget->closeImage();
    if (auto* button = m_widget->findChild<QAbstractButton*>("Return")) {
        button->setChecked(false);
    }
}

void ImagePage::apply(const ControlSettings& settings, const QSize& imageSize)
{
    if (m_widget) {
        ControlDriver(m_widget, imageSize).apply(settings);
    }
}

void ImagePage::sltSwitchToGallery()
{
    Q_EMIT returnRequested();
}
