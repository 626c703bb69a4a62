#pragma once

#include "helpoverlay.h"

#include <QObject>
#include <QPoint>
#include <QVector>

class ImagePage;

/// The arrow keys move the cross-hair of the image in front by one pixel, with Shift by ten. A
/// control that has the focus and uses the arrow keys itself keeps them.
class CrossHairKeys : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the page, which stands in its window already.
    explicit CrossHairKeys(ImagePage* page);

    /// What the help says about the keys.
    static QVector<HelpLine> help();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void move(const QPoint& pixels);

    ImagePage* m_page;
};
