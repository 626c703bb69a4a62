#include "exportdialog.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

struct KindText
{
    NumberKind kind;
    const char* objectName;
    QString text;
};

QVector<KindText> kindTexts()
{
    return {
        { NumberKind::RegionStatistics, "exportStatistics",
            ExportDialog::tr("&Statistics of all regions") },
        { NumberKind::ImageHistogram, "exportImageHistogram",
            ExportDialog::tr("&Histogram of the image") },
        { NumberKind::RegionHistogram, "exportRegionHistogram",
            ExportDialog::tr("Histogram of the selected r&egion") },
        { NumberKind::RowProfile, "exportRow", ExportDialog::tr("&Row through the cross-hair") },
        { NumberKind::ColumnProfile, "exportColumn",
            ExportDialog::tr("&Column through the cross-hair") },
        { NumberKind::RowPeaks, "exportRowPeaks", ExportDialog::tr("&Peaks of this row") },
        { NumberKind::ColumnPeaks, "exportColumnPeaks", ExportDialog::tr("Pea&ks of this column") },
    };
}

QRadioButton* addButton(QGroupBox* box, const char* objectName, const QString& text)
{
    auto* button = new QRadioButton(text);
    button->setObjectName(objectName);
    box->layout()->addWidget(button);
    return button;
}

QGroupBox* addBox(QVBoxLayout* layout, const QString& title)
{
    auto* box = new QGroupBox(title);
    box->setLayout(new QVBoxLayout);
    layout->addWidget(box);
    return box;
}

} // namespace

ExportDialog::ExportDialog(
    const QVector<NumberKind>& available, const ExportChoice& choice, Way first, QWidget* parent)
    : QDialog(parent)
{
    setObjectName("exportDialog");
    setWindowTitle(first == Way::File ? tr("Export Numbers") : tr("Copy Numbers"));
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize); // the texts give the size
    addKinds(layout, available,
        available.contains(choice.kind) ? choice.kind
                                        : available.value(0, NumberKind::RegionStatistics));
    addFormats(layout, choice.isJson);
    layout->addWidget(buttons(first));
}

void ExportDialog::addKinds(
    QVBoxLayout* layout, const QVector<NumberKind>& available, NumberKind chosen)
{
    QGroupBox* const box = addBox(layout, tr("Numbers"));
    for (const KindText& kind : kindTexts()) {
        QRadioButton* const button = addButton(box, kind.objectName, kind.text);
        button->setEnabled(available.contains(kind.kind));
        button->setChecked(kind.kind == chosen);
        m_kinds.insert(int(kind.kind), button);
    }
    m_kinds.value(int(chosen))->setFocus();
}

void ExportDialog::addFormats(QVBoxLayout* layout, bool isJson)
{
    QGroupBox* const box = addBox(layout, tr("Format of the file"));
    addButton(box, "exportCsv", tr("CS&V, a table"))->setChecked(!isJson);
    m_json = addButton(box, "exportJson", tr("&JSON, for programs"));
    m_json->setChecked(isJson);
}

QDialogButtonBox* ExportDialog::buttons(Way first)
{
    // A default button has to know its dialog.
    auto* box = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* const file = box->addButton(tr("Sa&ve..."), QDialogButtonBox::AcceptRole);
    QPushButton* const clipboard = box->addButton(tr("C&opy"), QDialogButtonBox::ActionRole);
    file->setObjectName("exportSave");
    clipboard->setObjectName("exportCopy");
    clipboard->setToolTip(tr("The numbers as a table that can be pasted into a spreadsheet"));
    (first == Way::File ? file : clipboard)->setDefault(true);
    connect(file, &QPushButton::clicked, this, [this] { acceptAs(Way::File); });
    connect(clipboard, &QPushButton::clicked, this, [this] { acceptAs(Way::Clipboard); });
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return box;
}

void ExportDialog::acceptAs(Way way)
{
    m_way = way;
    accept();
}

ExportChoice ExportDialog::choice() const
{
    ExportChoice choice;
    for (const KindText& kind : kindTexts()) {
        if (m_kinds.value(int(kind.kind))->isChecked()) {
            choice.kind = kind.kind;
        }
    }
    choice.isJson = m_json->isChecked();
    return choice;
}
