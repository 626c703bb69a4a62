#include "regiondialog.h"

#include "plainlabel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

RegionDialog::RegionDialog(
    const QString& title, const QRect& region, const QSize& image, QWidget* parent)
    : QDialog(parent)
    , m_image(image)
    , m_x(addNumber("spinRegionX", 0, image.width() - 1, region.x()))
    , m_y(addNumber("spinRegionY", 0, image.height() - 1, region.y()))
    , m_width(addNumber("spinRegionWidth", 1, image.width(), region.width()))
    , m_height(addNumber("spinRegionHeight", 1, image.height(), region.height()))
    , m_problem(plainLabel("regionProblem"))
{
    setObjectName("regionDialog");
    setWindowTitle(title);
    auto* form = new QFormLayout;
    form->addRow(tr("&X:"), m_x);
    form->addRow(tr("&Y:"), m_y);
    form->addRow(tr("&Width:"), m_width);
    form->addRow(tr("&Height:"), m_height);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(plainLabel("regionNote",
        tr("Pixels of the image (%1 × %2), counted from 0 at its top left.\n"
           "The panel counts Y from the bottom row.")
            .arg(image.width())
            .arg(image.height())));
    column->addLayout(form);
    column->addWidget(m_problem);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    check();
    m_x->selectAll();
}

QSpinBox* RegionDialog::addNumber(const char* objectName, int least, int most, int value)
{
    auto* box = new QSpinBox;
    box->setObjectName(objectName);
    box->setRange(least, most);
    box->setValue(value);
    box->setSuffix(tr(" px"));
    box->setAccelerated(true);
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &RegionDialog::check);
    return box;
}

QRect RegionDialog::region() const
{
    return QRect(m_x->value(), m_y->value(), m_width->value(), m_height->value());
}

void RegionDialog::check()
{
    const QRect typed = region();
    QString problem;
    if (typed.x() + typed.width() > m_image.width()) {
        problem = tr("X + width is %1, the image is %2 pixels wide.")
                      .arg(typed.x() + typed.width())
                      .arg(m_image.width());
    } else if (typed.y() + typed.height() > m_image.height()) {
        problem = tr("Y + height is %1, the image is %2 pixels high.")
                      .arg(typed.y() + typed.height())
                      .arg(m_image.height());
    }
    m_problem->setText(problem); // an empty line keeps its height
    m_ok->setEnabled(problem.isEmpty());
}
