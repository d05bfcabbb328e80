#pragma once

#include "dialogs/hvac_conditions_form.h"

namespace verandis {

/// The design demands of the active case, with which the design guide compares results.
class HVACformX : public ConditionsForm {
    Q_OBJECT
public:
    explicit HVACformX(QWidget* parent = nullptr);

    /// Fills the boxes from the active case.
    void Form_Load();

    /// True when all boxes pass; otherwise shows what is wrong.
    bool ValidateDemands();

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
};

}  // namespace verandis
