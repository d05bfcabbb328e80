#include "projects/saved_target_form.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "projects/saved_cases.h"
#include "projects/saved_list_form.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int {
    kCancelText = 42,
    kCaseText = 196,
    kOkText = 246,
    kShapeText = 258,
    kLoadTitle = 986,
    kCopyTitle = 988,
    kSourceText = 994,
    kTargetText = 995,
    kLoadedAsText = 996,
    kOtherShapeRemark = 997
};

constexpr int kNameWidth = 40;  // characters
constexpr int kRemarkLines = 2;

struct UseFacts {
    int title;
    int targetLabel;
    bool (*act)(const std::string& file, const Slot& slot);
};

constexpr UseFacts kUses[] = {
    {kLoadTitle, kLoadedAsText,
     [](const std::string& file, const Slot& slot) { return LoadSavedCase(file, slot); }},
    {kCopyTitle, kTargetText,
     [](const std::string& file, const Slot& slot) {
         return CopySavedCase(file, slot).has_value();
     }},
};

const UseFacts& FactsOf(TargetUse use) {
    return kUses[static_cast<std::size_t>(use)];
}

QLineEdit* MakeShownName(const char* name) {
    auto* field = Named(name, new QLineEdit);
    field->setReadOnly(true);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kNameWidth);
    return field;
}

void AddRow(QGridLayout& grid, QLabel* label, QWidget* field) {
    label->setBuddy(field);
    field->setAccessibleName(label->text());
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(field, row, 1);
}

}  // namespace

TargetFile::TargetFile(QWidget* parent)
    : QDialog(parent),
      SourceFile(MakeShownName("SourceFile")),
      TagretFile(MakeShownName("TagretFile")),
      shapes_(new QButtonGroup(this)),
      target(Named("target", new QComboBox)),
      targetLabel_(new QLabel(Label(kTargetText))),
      remark_(Named("Remark", new QLabel)),
      Command1(Named("Command1", new QPushButton(Label(kOkText)))),
      Command2(Named("Command2", new QPushButton(Label(kCancelText)))) {
    setObjectName("TargetFile");
    setModal(true);
    Build();
    connect(shapes_, &QButtonGroup::idToggled, this, &TargetFile::ShowTarget);
    connect(target, &QComboBox::currentIndexChanged, this, &TargetFile::ShowTarget);
    connect(Command1, &QPushButton::clicked, this, &TargetFile::accept);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    ShowTarget();
    AssignMnemonics(*this);
}

void TargetFile::Build() {
    auto* options = new QHBoxLayout;
    options->setSpacing(kMargin);
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        auto* option = new QRadioButton(Label(WordsOf(shape).textNumber));
        option->setObjectName(IndexedName("Option1", shape));
        option->setAccessibleDescription(Label(kShapeText));
        shapes_->addButton(option, shape);
        options->addWidget(option);
    }
    options->addStretch();
    for (int caseNo = 1; caseNo <= kCasesPerShape; ++caseNo) {
        target->addItem(QString::number(caseNo));
    }
    target->setCurrentIndex(-1);
    target->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    grid->setColumnStretch(1, 1);
    AddRow(*grid, new QLabel(Label(kSourceText)), SourceFile);
    grid->addWidget(new QLabel(Label(kShapeText)), grid->rowCount(), 0);
    grid->addLayout(options, grid->rowCount() - 1, 1);
    AddRow(*grid, new QLabel(Label(kCaseText)), target);
    AddRow(*grid, targetLabel_, TagretFile);
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    remark_->setMinimumHeight(fontMetrics().lineSpacing() * kRemarkLines);
    remark_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(grid);
    column->addWidget(remark_);
    column->addStretch();
    column->addLayout(MakeButtonRow(nullptr, {Command1, Command2}));
}

void TargetFile::Ask(const std::string& file, TargetUse use) {
    file_ = file;
    use_ = use;
    setWindowTitle(TitleFromEntry(FactsOf(use).title));
    SourceFile->setText(Shown(file));
    targetLabel_->setText(Label(FactsOf(use).targetLabel));
    TagretFile->setAccessibleName(targetLabel_->text());
    const Slot own = SavedCaseOf(file).slot;
    if (IsShape(own.shape)) {
        shapes_->button(own.shape)->setChecked(true);
        target->setCurrentIndex(own.caseNo - 1);
    }
    ShowTarget();
    (IsShape(own.shape) ? static_cast<QWidget*>(target) : shapes_->button(1))->setFocus();
}

Slot TargetFile::ChosenSlot() const {
    return {shapes_->checkedId(), target->currentIndex() + 1};
}

std::string TargetFile::Target() const {
    const Slot slot = ChosenSlot();
    return IsShape(slot.shape) && slot.caseNo >= 1 ? FileInSlot(file_, slot) : "";
}

void TargetFile::ShowTarget() {
    TagretFile->setText(Shown(Target()));
    Command1->setEnabled(!Target().empty());
    const Slot own = SavedCaseOf(file_).slot;
    const bool foreign = IsShape(own.shape) && own.shape != ChosenSlot().shape;
    remark_->setText(foreign ? Label(kOtherShapeRemark) : QString());
}

void TargetFile::accept() {
    if (Target().empty()) return;
    if (FactsOf(use_).act(file_, ChosenSlot())) QDialog::accept();
}

}  // namespace verandis
