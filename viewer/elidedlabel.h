#pragma once

#include <QLabel>

/// One line of plain text that gives way in the middle when there is no room for all of it, so
/// that a long file name never widens the window.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
