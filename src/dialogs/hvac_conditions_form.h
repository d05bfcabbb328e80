#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QHash>
#include <QPushButton>
#include <QVBoxLayout>
#include <span>

#include "dialogs/hvac_fields.h"
#include "ui/number_field.h"

namespace verandis {

/// A row of boxes; a zone without a box is null.
struct ConditionRow {
    int label;  // catalogue text
    const char* unit;
    const char* glazed;  // names of the boxes
    const char* building;
    int tip = 0;  // catalogue text, 0 for none
};

/// A dialog on running conditions of the active case: a column of boxes for the glazed space, one
/// for the building. Escape and the frame leave the case as it was.
class ConditionsForm : public QDialog {
    Q_OBJECT
protected:
    /// `title` and `checkTitle` are the catalogue texts of the caption and of the complaints.
    ConditionsForm(const char* name, int title, int checkTitle, QWidget* parent);

    void AddRows(std::span<const ConditionRow> rows);

    /// A labelled control that stands under both zones.
    void AddWide(int label, QWidget* control);

    /// The remark (a catalogue text) and the buttons; the last to be added.
    void AddEnd(int remark, QPushButton* help, QPushButton* close, QPushButton* cancel);

    NumberField* Box(const char* control) const { return boxes_[control]; }
    ConditionTexts Texts() const;
    void ShowTexts(const ConditionTexts& texts);

    /// True without complaints; otherwise shows them and moves the focus.
    bool Passes(const ConditionComplaints& found);

private:
    void AddBox(const ConditionRow& row, const char* control, int column, int zone);
    void AddLabel(int at, int label, QWidget* buddy);

    int checkTitle_;
    QGridLayout* grid_;
    QVBoxLayout* rows_;
    QHash<QString, NumberField*> boxes_;
};

}  // namespace verandis
