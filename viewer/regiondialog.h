#pragma once

#include <QDialog>
#include <QRect>

class QLabel;
class QPushButton;
class QSpinBox;

/// Asks for place and size of a region in whole pixels. It can only be accepted with a region that
/// lies inside the image.
class RegionDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts with `region`, which lies inside the image of `image` pixels.
    RegionDialog(
        const QString& title, const QRect& region, const QSize& image, QWidget* parent = nullptr);

    QRect region() const; ///< as typed; origin top left

private:
    QSpinBox* addNumber(const char* objectName, int least, int most, int value);
    void check();

    QSize m_image;
    QSpinBox* m_x;
    QSpinBox* m_y;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QLabel* m_problem;
    QPushButton* m_ok;
};
