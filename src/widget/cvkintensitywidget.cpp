#include "widget/cvkintensitywidget.h"

#include "panel/scaledpixels.h"
#include "widget/columnskin.h"
#include "widget/cvkintensitymdiwidget.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QResizeEvent>

CVKIntensityWidget::CVKIntensityWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose, true);
    setWindowFlags(Qt::FramelessWindowHint);
    m_applicationDirectory = QDir(QCoreApplication::applicationDirPath()).path();
    m_bodySkin.load(QStringLiteral(":img_mdi_res/skin/mdi_mod_body.png"));
    m_headerSkin.load(QStringLiteral(":img_mdi_res/skin/mdi_mod_header.png"));
    m_borderSkin.load(QStringLiteral(":img_mdi_res/skin/mdi_mod_border.png"));
    createIntensityUI();
}

CVKIntensityWidget::~CVKIntensityWidget() = default;

bool CVKIntensityWidget::createIntensityUI()
{
    if (m_host) {
        return false;
    }
    m_host = new CVKIntensityMdiWidget(this);
    m_host->show();
    return true;
}

bool CVKIntensityWidget::loadImage(const QString& path)
{
    if (!m_host) {
        return false;
    }
    try {
        return m_host->loadImage(path);
    } catch (...) {
        return false; // out of memory in a container; nothing is thrown into the application
    }
}

void CVKIntensityWidget::closeImage()
{
    if (m_host) {
        m_host->closeImage();
    }
}

float CVKIntensityWidget::getDpiMultiple()
{
    return dpiMultiple(primaryDotsPerInch());
}

void CVKIntensityWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintColumnSkin(
        painter, m_headerSkin, m_bodySkin, m_borderSkin, height(), primaryDotsPerInch());
}

void CVKIntensityWidget::resizeEvent(QResizeEvent* event)
{
    const int columnWidth = scaledPixels(panelColumnPixels, primaryDotsPerInch());
    if (m_host) {
        m_host->move(columnWidth, 0);
        m_host->resize(event->size().width() - columnWidth, event->size().height());
    }
    QWidget::resizeEvent(event);
}
