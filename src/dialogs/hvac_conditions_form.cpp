#include "dialogs/hvac_conditions_form.h"

#include <QLabel>

#include "app/program_text.h"
#include "app/session.h"
#include "case/shapes.h"
#include "dialogs/case_title.h"
#include "platform/prompts.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int { kCaseText = 196, kBuildingText = 201, kGlazedSpaceText = 203 };
enum : int { kLabelColumn, kGlazedColumn, kBuildingColumn, kUnitColumn };

QLabel* MakeHead(const QString& text) {
    auto* head = new QLabel(text);
    head->setTextFormat(Qt::PlainText);
    QFont font = head->font();
    font.setBold(true);
    head->setFont(font);
    return head;
}

QString ActiveCase() {
    if (!IsShape(session.ActiveShape)) return {};
    return Label(WordsOf(session.ActiveShape).textNumber) + ", " + Label(kCaseText) + " " +
           QString::number(session.ActiveCaseNo);
}

}  // namespace

ConditionsForm::ConditionsForm(const char* name, int title, int checkTitle, QWidget* parent)
    : QDialog(parent),
      checkTitle_(checkTitle),
      grid_(new QGridLayout),
      rows_(new QVBoxLayout(this)) {
    setObjectName(name);
    setWindowTitle(Shown(CountedCaseTitle(title)));
    grid_->setHorizontalSpacing(kMargin);
    grid_->setVerticalSpacing(kGap);
    grid_->setColumnStretch(kLabelColumn, 1);
    QLabel* heading = Named("Heading", MakeHead(ActiveCase()));
    heading->setContentsMargins(0, 0, kMargin, 0);
    grid_->addWidget(heading, 0, kLabelColumn);
    grid_->addWidget(MakeHead(Label(kGlazedSpaceText)), 0, kGlazedColumn);
    grid_->addWidget(MakeHead(Label(kBuildingText)), 0, kBuildingColumn);
    rows_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows_->setSpacing(kMargin);
    rows_->addLayout(grid_);
    rows_->addStretch();
}

void ConditionsForm::AddBox(const ConditionRow& row, const char* control, int column, int zone) {
    auto* box = Named(control, new NumberField);
    box->setFixedWidth(fontMetrics().averageCharWidth() * 12);
    box->setAccessibleName(Label(row.label) + ", " + Label(zone));
    if (row.tip) box->setToolTip(Label(row.tip));
    boxes_[control] = box;
    grid_->addWidget(box, grid_->rowCount() - 1, column);
}

void ConditionsForm::AddLabel(int at, int label, QWidget* buddy) {
    auto* caption = new QLabel(Label(label));
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(buddy);
    grid_->addWidget(caption, at, kLabelColumn);
}

void ConditionsForm::AddRows(std::span<const ConditionRow> rows) {
    for (const ConditionRow& row : rows) {
        grid_->addWidget(new QLabel(row.unit), grid_->rowCount(), kUnitColumn);
        if (row.glazed) AddBox(row, row.glazed, kGlazedColumn, kGlazedSpaceText);
        if (row.building) AddBox(row, row.building, kBuildingColumn, kBuildingText);
        AddLabel(grid_->rowCount() - 1, row.label, Box(row.glazed ? row.glazed : row.building));
    }
}

void ConditionsForm::AddWide(int label, QWidget* control) {
    control->setAccessibleName(Label(label));
    grid_->addWidget(control, grid_->rowCount(), kGlazedColumn, 1, 3);
    AddLabel(grid_->rowCount() - 1, label, control);
}

void ConditionsForm::AddEnd(int remark, QPushButton* help, QPushButton* close,
                            QPushButton* cancel) {
    auto* line = Named("Remark", new QLabel(Label(remark)));
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, TintOf(Tint::Muted, *this));
    line->setPalette(muted);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    rows_->addWidget(line);
    rows_->addLayout(MakeButtonRow(help, {close, cancel}));
    AssignMnemonics(*this);
}

ConditionTexts ConditionsForm::Texts() const {
    ConditionTexts texts;
    for (const NumberField* box : boxes_) {
        texts[Typed(box->objectName())] = Typed(box->text());
    }
    return texts;
}

void ConditionsForm::ShowTexts(const ConditionTexts& texts) {
    for (const auto& [control, text] : texts) Box(control.c_str())->setText(Shown(text));
}

bool ConditionsForm::Passes(const ConditionComplaints& found) {
    if (found.empty()) return true;
    ShowMessage(found.text, Text(checkTitle_), Icon::Exclamation);
    for (const std::string& control : found.selected) Box(control.c_str())->selectAll();
    Box(found.focus.c_str())->setFocus();
    return false;
}

}  // namespace verandis
