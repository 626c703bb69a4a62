#pragma once

#include <QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

/// Shows and chooses the page of a file with several pages: "Page [2] of 7" between two arrows.
/// People count pages from 1, the members from 0.
class PageControl : public QWidget
{
    Q_OBJECT

public:
    explicit PageControl(QWidget* parent = nullptr);

    /// Shows page `page` of `count`; a page behind the last one can be shown as well, and left.
    /// Announces nothing.
    void showPage(int page, int count);

    /// Whether there is another page to go to.
    bool isNeeded() const;

Q_SIGNALS:
    void pageChosen(int page); ///< by the user

private:
    QToolButton* addArrow(const char* name, Qt::ArrowType arrow, const QString& text, int step);

    QToolButton* m_previous;
    QSpinBox* m_number;
    QLabel* m_count;
    QToolButton* m_next;
};
