#pragma once

#include <QComboBox>

#include "dialogs/hvac.h"
#include "dialogs/hvac_conditions_form.h"

namespace verandis {

/// Set points, infiltration, internal loads and forced ventilation of the active case.
class HVACForm : public ConditionsForm {
    Q_OBJECT
public:
    explicit HVACForm(QWidget* parent = nullptr);

    /// Fills the controls from the active case.
    void Form_Load();

    /// True when all boxes pass; otherwise shows what is wrong.
    bool ValidateHVAC();

    void CMBFV_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

private:
    HvacTexts Contents() const;
    void ShowContents(const HvacTexts& contents);

    QComboBox* CMBFV;
};

}  // namespace verandis
