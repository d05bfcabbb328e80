#include "dialogs/hvac_form.h"

#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kCancelText = 42,
    kCloseText = 155,
    kCheckText = 209,
    kForcedFlowText = 325,
    kConditionsText = 821,
    kNotHeatedTip = 860,
    kNotCooledTip = 861,
    kNotBelow0Tip = 862,
    kEmptyRemark = 866,
    kForcedVentilationText = 922
};
constexpr int kHelpTopic = 12168;

constexpr ConditionRow kRows[] = {
    {918, "\u00B0C", "HG", "HB", kNotHeatedTip},
    {919, "\u00B0C", "CG", "CB", kNotCooledTip},
    {324, "1/h", "IG", "IB", kNotBelow0Tip},
    {920, "W/m\u00B2", "ILG", "ILB", kNotBelow0Tip},
};
constexpr ConditionRow kFlowRow[] = {{kForcedFlowText, "l/s", "FVV", nullptr, kNotBelow0Tip}};

}  // namespace

HVACForm::HVACForm(QWidget* parent)
    : ConditionsForm("HVACForm", kConditionsText, kCheckText, parent),
      CMBFV(Named("CMBFV", new QComboBox)) {
    AddRows(kRows);
    for (const std::string& row : ForcedFlowRows()) CMBFV->addItem(Shown(row));
    AddWide(kForcedVentilationText, CMBFV);
    AddRows(kFlowRow);
    Box("FVV")->setAccessibleName(Label(kForcedFlowText));  // belongs to no zone
    auto* Command1 = Named("Command1", new QPushButton(Label(kHelpText)));
    auto* Command2 = Named("Command2", new QPushButton(Label(kCancelText)));
    auto* Command3 = Named("Command3", new QPushButton(Label(kCloseText)));
    connect(CMBFV, &QComboBox::currentIndexChanged, this, &HVACForm::CMBFV_Click);
    connect(Command1, &QPushButton::clicked, this, &HVACForm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &HVACForm::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &HVACForm::Command3_Click);
    AddEnd(kEmptyRemark, Command1, Command3, Command2);
    Form_Load();
}

void HVACForm::Form_Load() {
    ShowContents(LoadHvac());
}

HvacTexts HVACForm::Contents() const {
    return {Texts(), CMBFV->currentIndex()};
}

void HVACForm::ShowContents(const HvacTexts& contents) {
    ShowTexts(contents.boxes);
    CMBFV->setCurrentIndex(contents.CMBFV);
    Box("FVV")->setEnabled(ForcedFlowInUse(contents.CMBFV));
}

bool HVACForm::ValidateHVAC() {
    return Passes(CheckHvac(Contents()));
}

void HVACForm::CMBFV_Click() {
    HvacTexts contents = Contents();
    ChooseForcedFlow(contents, CMBFV->currentIndex());
    ShowContents(contents);
}

void HVACForm::Command1_Click() {
    ShowHelp(kHelpTopic);
}

void HVACForm::Command2_Click() {
    reject();
}

void HVACForm::Command3_Click() {
    if (ValidateHVAC() && StoreHvac(Contents())) accept();
}

}  // namespace verandis
