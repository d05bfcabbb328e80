#include "dialogs/opaque_form.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "app/session.h"
#include "dialogs/case_title.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kCancelText = 42,
    kTransmittanceText = 77,
    kWindowTypesText = 128,
    kCloseText = 155,
    kTitleText = 169,
    kUValueText = 179,
    kBuildingText = 201,
    kGlazedSpaceText = 203,
    kApplyText = 836,
    kShareText,
    kInnerAbsorptanceText,
    kFloorAbsorptanceText,
    kChooseText = 850,
    kStoredAtCloseText = 856,
    kCopyText,
    kCopyTip
};

constexpr const char* kPerSquareMetre = "W/m²K";

/// Name of the window's second figure: that of the two text boxes which is not the share.
const char* TransmittanceName(const ConstructionDialog& dialog) {
    return dialog.share == std::string_view("Text3") ? "Text4" : "Text3";
}

NumberField* MakePercent(const char* name) {
    auto* field = Named(name, new NumberField);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance("00.000") + 2 * kGap);
    return field;
}

std::vector<ElementGroup> GroupsOf(const ConstructionDialog& dialog, bool building) {
    std::vector<ElementGroup> groups;
    std::copy_if(
        dialog.groups.begin(), dialog.groups.end(), std::back_inserter(groups),
        [&](const ElementGroup& each) { return (each.mode == GroupMode::Plain) == building; });
    return groups;
}

}  // namespace

ConstructionForm::ConstructionForm(int shape, QWidget* parent)
    : QDialog(parent), choice_(LoadConstructions(shape)) {
    constexpr std::array kNames = {"OpaqueConstrUShape", "OPaqueConstrOShape", "OpaqueConstrVShape",
                                   "OpaqueConstrIShape"};
    setObjectName(kNames[static_cast<std::size_t>(shape - 1)]);
    setModal(true);
    setWindowTitle(Shown(CaseDialogTitle(kTitleText, shape)));
    BuildWindow();
    Form_Load();
    AssignMnemonics(*this);
}

void ConstructionForm::BuildWindow() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(2 * kMargin);
    columns->addLayout(BuildGroups(), 3);
    walls_ =
        new TypeList({"LWalls", "Walls", kTitleText, {{"Text1", kUValueText, kPerSquareMetre}}});
    columns->addWidget(walls_, 1);
    modes_ = new QStackedWidget;
    modes_->addWidget(new QWidget);
    modes_->addWidget(BuildWindowPage());
    modes_->addWidget(BuildFloorPage());
    columns->addWidget(modes_, 1);
    column->addLayout(columns, 1);
    column->addWidget(MakeRemark(Label(kStoredAtCloseText)));
    column->addLayout(BuildButtons());
    connect(walls_, &TypeList::RowChanged, this, &ConstructionForm::Walls_Click);
    connect(glazings_, &TypeList::RowChanged, this, &ConstructionForm::Glazes_Click);
    for (NumberField* field : {share_, MTB1, MTB2}) {
        connect(field, &NumberField::textChanged, this, &ConstructionForm::TakeFields);
    }
}

QLayout* ConstructionForm::BuildGroups() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(MakeRemark(Label(kChooseText)));
    groups_ = new GroupOptions;
    groups_->AddGroups(Label(kBuildingText), GroupsOf(*choice_.dialog, true));
    groups_->AddGroups(Label(kGlazedSpaceText), GroupsOf(*choice_.dialog, false));
    connect(groups_, &GroupOptions::Chosen, this, &ConstructionForm::Option_Click);
    connect(groups_, &GroupOptions::CopyAsked, this, &ConstructionForm::CopyWalls_Click);
    column->addWidget(groups_);
    plan_ = new PlanView;
    plan_->ShowSlot({choice_.dialog->shape, session.ActiveCaseNo});
    column->addWidget(plan_, 1);
    return column;
}

QWidget* ConstructionForm::BuildWindowPage() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    auto* upper = new FieldGrid;
    upper->AddField(Label(kShareText), share_ = MakePercent(choice_.dialog->share), "%");
    column->addLayout(upper);
    glazings_ = new TypeList({"LGlazes",
                              "Glazes",
                              kWindowTypesText,
                              {{"Text2", kUValueText, kPerSquareMetre},
                               {TransmittanceName(*choice_.dialog), kTransmittanceText, "%"}}});
    column->addWidget(glazings_, 1);
    auto* lower = new FieldGrid;
    lower->AddField(Label(kInnerAbsorptanceText), MTB1 = MakePercent("MTB1"), "%");
    column->addLayout(lower);
    copyWalls_ = Named("CopyWalls", new QPushButton(Label(kCopyText)));
    copyWalls_->setAutoDefault(false);
    copyWalls_->setToolTip(Label(kCopyTip));
    connect(copyWalls_, &QPushButton::clicked, this, &ConstructionForm::CopyWalls_Click);
    column->addWidget(copyWalls_);
    if (choice_.dialog->copies.empty()) copyWalls_->hide();
    return page;
}

QWidget* ConstructionForm::BuildFloorPage() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    auto* grid = new FieldGrid;
    grid->AddField(Label(kFloorAbsorptanceText), MTB2 = MakePercent("MTB2"), "%");
    column->addLayout(grid);
    column->addStretch(1);
    return page;
}

QLayout* ConstructionForm::BuildButtons() {
    auto* Command1 = Named("Command1", new QPushButton(Label(kHelpText)));
    auto* Command3 = Named("Command3", new QPushButton(Label(kCloseText)));
    auto* Cancel = Named("Cancel", new QPushButton(Label(kCancelText)));
    ApplyC = Named("ApplyC", new QPushButton(Label(kApplyText)));
    connect(Command1, &QPushButton::clicked, this, &ConstructionForm::Command1_Click);
    connect(Command3, &QPushButton::clicked, this, &ConstructionForm::Command3_Click);
    connect(Cancel, &QPushButton::clicked, this, &ConstructionForm::reject);
    connect(ApplyC, &QPushButton::clicked, this, &ConstructionForm::ApplyC_Click);
    return MakeButtonRow(Command1, {Command3, ApplyC, Cancel});
}

void ConstructionForm::Form_Load() {
    walls_->Fill(choice_.walls);
    glazings_->Fill(choice_.glazings);
    ShowChoice();
}

void ConstructionForm::Option_Click(std::uint16_t code) {
    const ConstructionComplaint complaint = ChooseConstructionGroup(choice_, code);
    ShowChoice();
    ShowComplaint(complaint);
}

void ConstructionForm::Walls_Click(int row) {
    choice_.wallRow = row;
    walls_->SetFigures({ShownWallUValue(row)});
}

void ConstructionForm::Glazes_Click(int row) {
    choice_.glazingRow = row;
    glazings_->SetFigures({ShownWindowU(row), ShownWindowTransmittance(row)});
}

void ConstructionForm::ApplyC_Click() {
    const ConstructionComplaint complaint = ApplyConstruction(choice_);
    ShowChoice();
    ShowComplaint(complaint);
}

void ConstructionForm::CopyWalls_Click() {
    const ConstructionComplaint complaint = CopyToOtherWalls(choice_);
    ShowChoice();
    ShowComplaint(complaint);
}

void ConstructionForm::Command1_Click() {
    ShowHelp(choice_.dialog->helpTopic);
}

void ConstructionForm::Command3_Click() {
    if (CloseConstructions(choice_)) accept();
}

void ConstructionForm::done(int result) {
    LeaveConstructions();
    QDialog::done(result);
}

void ConstructionForm::SetConstructionMode(GroupMode mode) {
    modes_->setCurrentIndex(static_cast<int>(mode));
}

void ConstructionForm::EnableWindowFields() {
    glazings_->setEnabled(true);
}

void ConstructionForm::DisableWindowFields() {
    glazings_->setEnabled(false);
}

void ConstructionForm::TakeFields() {
    choice_.share = Typed(share_->text());
    choice_.MTB1 = Typed(MTB1->text());
    choice_.MTB2 = Typed(MTB2->text());
    choice_.HasWindow() ? EnableWindowFields() : DisableWindowFields();
}

void ConstructionForm::ShowChoice() {
    const ElementGroup* group = choice_.Group();
    groups_->Mark(session.GlazingGroup);
    groups_->ShowPresent(
        [this](const ElementGroup& each) { return PresentConstruction(choice_, each); });
    plan_->Highlight(
        group ? std::vector<std::string>(group->Elements().begin(), group->Elements().end())
              : std::vector<std::string>());
    ApplyC->setEnabled(group != nullptr);
    walls_->SetRow(choice_.wallRow);
    glazings_->SetRow(choice_.glazingRow);
    // A change of one field takes all of them, so they are kept aside while they are set.
    const ConstructionChoice wanted = choice_;
    share_->setText(Shown(wanted.share));
    MTB1->setText(Shown(wanted.MTB1));
    MTB2->setText(Shown(wanted.MTB2));
    TakeFields();
    SetConstructionMode(choice_.Mode());
}

void ConstructionForm::ShowComplaint(const ConstructionComplaint& complaint) {
    for (const ConstructionField field : complaint.selected) FieldOf(field)->selectAll();
    NumberField* field = FieldOf(complaint.focus);
    if (!field) return;
    // The share is checked where it is hidden too; the keys must not go to what cannot be seen.
    if (field->isVisible()) return field->setFocus();
    findChild<QListWidget*>("Walls")->setFocus();
}

NumberField* ConstructionForm::FieldOf(ConstructionField field) const {
    switch (field) {
        case ConstructionField::InnerAbsorptance: return MTB1;
        case ConstructionField::Share: return share_;
        case ConstructionField::FloorAbsorptance: return MTB2;
        case ConstructionField::None: break;
    }
    return nullptr;
}

OpaqueConstrUShape::OpaqueConstrUShape(QWidget* parent) : ConstructionForm(kShapeU, parent) {
    // The fifth option of the row stands for no group: it is never shown, and a choice of it sets
    // and reads nothing.
    Named("Option1_4", new QRadioButton(this))->hide();
}

}  // namespace verandis
