#pragma once

#include "controlsettings.h"

#include <QCoreApplication>
#include <QSize>
#include <QStringList>

class QGraphicsItem;
class QGraphicsView;
class QWidget;

/// Sets the controls of an intensity widget as a user would: finds them by their object names and
/// sends them mouse clicks and keys. The widget is visible, laid out, and shows an image that it
/// has just loaded, fitted into its canvas.
class ControlDriver
{
    Q_DECLARE_TR_FUNCTIONS(ControlDriver)

public:
    /// `imageSize` is the size of the image in pixels.
    ControlDriver(QWidget* intensityWidget, const QSize& imageSize);

    /// Draws the regions, then sets axis units, view, peaks and palette. Returns one line that
    /// says what went wrong, with what follows left undone; empty on success.
    QString apply(const ControlSettings& settings);

    /// One line a region that was drawn: what it became.
    QStringList report() const { return m_report; }

private:
    template <class Control>
    Control* control(const char* name);
    void click(const char* buttonName);
    void chooseRow(const char* comboBoxName, int row);
    void type(const char* lineEditName, int number);

    void setWavelength(const ControlSettings& settings);
    void setView(const QString& view);
    void showPeaks(int count);
    void setPalette(const QString& palette);
    void drawRegion(const QRect& pixels);
    QGraphicsItem* addRegion(const QGraphicsView& view);
    void reportRegion();

    QWidget* m_widget;
    QSize m_imageSize;
    QString m_problem; // the first one; from then on nothing is done
    QStringList m_report;
};
