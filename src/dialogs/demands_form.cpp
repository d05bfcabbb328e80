#include "dialogs/demands_form.h"

#include "app/program_text.h"
#include "dialogs/demands.h"
#include "platform/prompts.h"
#include "text/numbers.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kCancelText = 42,
    kCheckText = 111,
    kCloseText = 155,
    kDemandsText = 822,
    kNoDemandTip = 863,
    kNotJudgedRemark = 864,
    kRangeTip = 865
};

constexpr ConditionRow kRows[] = {
    {924, "1/h", "MTB1", "MTB2"},
    {925, "\u00B0C", "MTB3", nullptr},
    {926, "\u00B0C", "MTB4", nullptr},
    {930, "\u00B0C", nullptr, "MTB5"},
    {927, "W", "MTB6", nullptr, kNoDemandTip},
    {928, "kWh", "MTB7", nullptr, kNoDemandTip},
    {929, "kWh", "MTB8", nullptr, kNoDemandTip},
};

}  // namespace

HVACformX::HVACformX(QWidget* parent)
    : ConditionsForm("HVACformX", kDemandsText, kCheckText, parent) {
    AddRows(kRows);
    for (const DemandField& each : DemandFields()) {
        NumberField* box = Box(each.field.control);
        QString tip = Label(kRangeTip).replace("%1", Shown(NumberOnScreen(each.most)));
        if (!box->toolTip().isEmpty()) tip += "\n" + box->toolTip();
        box->setToolTip(tip);
    }
    auto* Command1 = Named("Command1", new QPushButton(Label(kCloseText)));
    auto* Command2 = Named("Command2", new QPushButton(Label(kHelpText)));
    auto* Command3 = Named("Command3", new QPushButton(Label(kCancelText)));
    connect(Command1, &QPushButton::clicked, this, &HVACformX::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &HVACformX::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &HVACformX::Command3_Click);
    AddEnd(kNotJudgedRemark, Command2, Command1, Command3);
    Form_Load();
}

void HVACformX::Form_Load() {
    ShowTexts(LoadDemands());
}

bool HVACformX::ValidateDemands() {
    return Passes(CheckDemands(Texts()));
}

void HVACformX::Command1_Click() {
    if (ValidateDemands() && StoreDemands(Texts())) accept();
}

void HVACformX::Command2_Click() {
    ShowMessage("...will be implemented soon..");
}

void HVACformX::Command3_Click() {
    reject();
}

}  // namespace verandis
