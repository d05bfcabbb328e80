#include "dialogs/glazing_form.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

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
    kTitleText = 128,
    kCloseText = 155,
    kWallTypesText = 169,
    kUValueText = 179,
    kApplyText = 836,
    kChooseText = 850,
    kStoredAtOnceText = 851,
    kGlazedText = 852,
    kGlazedRemark,
    kOpaqueText,
    kOpaqueRemark
};

const TypeListNames kGlazes = {
    "LGlazes",
    "Glazes",
    kTitleText,
    {{"Text2", kUValueText, "W/m²K"}, {"Text3", kTransmittanceText, "%"}}};
const TypeListNames kWalls = {
    "Label20", "Walls", kWallTypesText, {{"Text4", kUValueText, "W/m²K"}}};

}  // namespace

GlazingForm::GlazingForm(int shape, QWidget* parent)
    : QDialog(parent), choice_(LoadGlazing(shape)) {
    setObjectName(QString("Glazing%1Shape").arg(QChar(WordsOf(shape).letter)));
    setModal(true);
    setWindowTitle(Shown(CaseDialogTitle(kTitleText, shape)));
    BuildWindow();
    Form_Load();
    AssignMnemonics(*this);
}

void GlazingForm::BuildWindow() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(2 * kMargin);
    columns->addLayout(BuildGroups(), 3);
    columns->addWidget(glazings_ = new TypeList(kGlazes), 1);
    if (choice_.dialog->HasWalls()) columns->addWidget(walls_ = new TypeList(kWalls), 1);
    column->addLayout(columns, 1);
    column->addWidget(MakeRemark(Label(kStoredAtOnceText)));
    column->addLayout(BuildButtons());
    connect(glazings_, &TypeList::RowChanged, this, &GlazingForm::Glazes_Click);
    if (walls_) connect(walls_, &TypeList::RowChanged, this, &GlazingForm::Walls_Click);
}

QLayout* GlazingForm::BuildGroups() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(MakeRemark(Label(kChooseText)));
    groups_ = new GroupOptions;
    groups_->AddGroups({}, choice_.dialog->groups);
    connect(groups_, &GroupOptions::Chosen, this, &GlazingForm::Option_Click);
    column->addWidget(groups_);
    if (choice_.dialog->HasWalls()) column->addLayout(BuildKinds());
    plan_ = new PlanView;
    plan_->ShowSlot({choice_.dialog->shape, session.ActiveCaseNo});
    column->addWidget(plan_, 1);
    return column;
}

QLayout* GlazingForm::BuildKinds() {
    Option5 = Named("Option5", new QRadioButton(Label(kGlazedText)));
    Option6 = Named("Option6", new QRadioButton(Label(kOpaqueText)));
    Label12 = Named("Label12", MakeRemark(Label(kGlazedRemark)));
    Label13 = Named("Label13", MakeRemark(Label(kOpaqueRemark)));
    auto* kinds = new QButtonGroup(this);
    kinds->addButton(Option5);
    kinds->addButton(Option6);
    auto* grid = new QGridLayout;
    grid->setContentsMargins(2 * kMargin, 0, 0, 0);
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kTightGap);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (QWidget* widget : {static_cast<QWidget*>(Option5), static_cast<QWidget*>(Label12),
                            static_cast<QWidget*>(Option6), static_cast<QWidget*>(Label13)}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);  // the plan below is not to jump
        widget->setSizePolicy(policy);
        grid->addWidget(widget, row / 2, row % 2);
        ++row;
    }
    connect(Option5, &QRadioButton::clicked, this, &GlazingForm::Option5_Click);
    connect(Option6, &QRadioButton::clicked, this, &GlazingForm::Option6_Click);
    return grid;
}

QLayout* GlazingForm::BuildButtons() {
    auto* Command1 = Named("Command1", new QPushButton(Label(kHelpText)));
    auto* Command3 = Named("Command3", new QPushButton(Label(kCloseText)));
    auto* Cancel = Named("Cancel", new QPushButton(Label(kCancelText)));
    Apply = Named("Apply", new QPushButton(Label(kApplyText)));
    connect(Command1, &QPushButton::clicked, this, &GlazingForm::Command1_Click);
    connect(Command3, &QPushButton::clicked, this, &GlazingForm::Command3_Click);
    connect(Cancel, &QPushButton::clicked, this, &GlazingForm::reject);
    connect(Apply, &QPushButton::clicked, this, &GlazingForm::Apply_Click);
    return MakeButtonRow(Command1, {Command3, Apply, Cancel});
}

void GlazingForm::Form_Load() {
    glazings_->Fill(choice_.glazings);
    if (walls_) walls_->Fill(choice_.walls);
    ShowChoice();
}

void GlazingForm::Option_Click(std::uint16_t code) {
    ChooseGlazingGroup(choice_, code);
    ShowChoice();
}

void GlazingForm::Option5_Click() {
    ChooseKind(choice_, kGlazedKind);
    ShowChoice();
}

void GlazingForm::Option6_Click() {
    ChooseKind(choice_, kOpaqueKind);
    ShowChoice();
}

void GlazingForm::Glazes_Click(int row) {
    choice_.glazingRow = row;
    glazings_->SetFigures({ShownWindowU(row), ShownWindowTransmittance(row)});
}

void GlazingForm::Walls_Click(int row) {
    choice_.wallRow = row;
    walls_->SetFigures({ShownWallUValue(row)});
}

void GlazingForm::Apply_Click() {
    ApplyGlazing(choice_);
    ShowChoice();
}

void GlazingForm::Command1_Click() {
    ShowHelp(choice_.dialog->helpTopic);
}

void GlazingForm::Command3_Click() {
    if (CloseGlazing(choice_)) return accept();
    ShowChoice();
}

void GlazingForm::done(int result) {
    LeaveGlazing();
    QDialog::done(result);
}

void GlazingForm::SetGlazedOrWallMode(int mode) {
    glazings_->setEnabled(mode == kGlazedKind);
    if (walls_) walls_->setEnabled(mode == kOpaqueKind);
}

void GlazingForm::ShowChoice() {
    const ElementGroup* group = choice_.Group();
    groups_->Mark(session.GlazingGroup);
    groups_->ShowPresent(
        [this](const ElementGroup& each) { return PresentGlazing(choice_, each); });
    plan_->Highlight(
        group ? std::vector<std::string>(group->Elements().begin(), group->Elements().end())
              : std::vector<std::string>());
    Apply->setEnabled(group != nullptr);
    glazings_->SetRow(choice_.glazingRow);
    SetGlazedOrWallMode(choice_.Mode());
    if (!walls_) return;
    walls_->SetRow(choice_.wallRow);
    for (QWidget* widget : {static_cast<QWidget*>(Option5), static_cast<QWidget*>(Label12),
                            static_cast<QWidget*>(Option6), static_cast<QWidget*>(Label13)}) {
        widget->setVisible(choice_.KindShown());
    }
    (choice_.Mode() == kOpaqueKind ? Option6 : Option5)->setChecked(true);
}

}  // namespace verandis
