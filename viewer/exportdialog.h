#pragma once

#include "numberexport.h"

#include <QDialog>
#include <QHash>

class QDialogButtonBox;
class QRadioButton;
class QVBoxLayout;

/// Asks which numbers leave the program, and whether as a file or to the clipboard.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Way { File, Clipboard };

    /// Starts at `choice`, or at the first kind that is available where that is not. Return goes
    /// the way `first`.
    ExportDialog(const QVector<NumberKind>& available, const ExportChoice& choice, Way first,
        QWidget* parent = nullptr);

    ExportChoice choice() const;

    /// That was chosen, once the dialog is accepted.
    Way way() const { return m_way; }

private:
    void addKinds(QVBoxLayout* layout, const QVector<NumberKind>& available, NumberKind chosen);
    void addFormats(QVBoxLayout* layout, bool isJson);
    QDialogButtonBox* buttons(Way first);
    void acceptAs(Way way);

    QHash<int, QRadioButton*> m_kinds; // by NumberKind
    QRadioButton* m_json = nullptr;
    Way m_way = Way::File;
};
