#pragma once

#include <QDialog>
#include <QPushButton>
#include <QStackedWidget>

#include "case/shapes.h"
#include "dialogs/construction_panels_form.h"
#include "dialogs/opaque.h"
#include "ui/number_field.h"
#include "ui/plan_view.h"

namespace verandis {

/// Chooses the opaque constructions of the active case, the windows in the walls towards its glazed
/// space and the absorptances inside. Modal; works on the open case. Its four kinds differ by a
/// table alone.
class ConstructionForm : public QDialog {
    Q_OBJECT
public:
    void done(int result) override;

protected:
    ConstructionForm(int shape, QWidget* parent);

private:
    void BuildWindow();
    QLayout* BuildGroups();
    QWidget* BuildWindowPage();
    QWidget* BuildFloorPage();
    QLayout* BuildButtons();
    void Form_Load();

    void Option_Click(std::uint16_t code);
    void Walls_Click(int row);
    void Glazes_Click(int row);
    void ApplyC_Click();
    void CopyWalls_Click();
    void Command1_Click();
    void Command3_Click();

    void SetConstructionMode(GroupMode mode);
    void EnableWindowFields();
    void DisableWindowFields();
    void TakeFields();
    void ShowChoice();
    void ShowComplaint(const ConstructionComplaint& complaint);
    NumberField* FieldOf(ConstructionField field) const;

    ConstructionChoice choice_;
    GroupOptions* groups_ = nullptr;
    PlanView* plan_ = nullptr;
    TypeList* walls_ = nullptr;
    TypeList* glazings_ = nullptr;
    QStackedWidget* modes_ = nullptr;  // a page for each mode, in their order
    NumberField* share_ = nullptr;
    NumberField* MTB1 = nullptr;
    NumberField* MTB2 = nullptr;
    QPushButton* ApplyC = nullptr;
    QPushButton* copyWalls_ = nullptr;
};

class OpaqueConstrUShape : public ConstructionForm {
    Q_OBJECT
public:
    explicit OpaqueConstrUShape(QWidget* parent = nullptr);
};

/// The capital P belongs to the name.
class OPaqueConstrOShape : public ConstructionForm {
    Q_OBJECT
public:
    explicit OPaqueConstrOShape(QWidget* parent = nullptr) : ConstructionForm(kShapeO, parent) {}
};

class OpaqueConstrVShape : public ConstructionForm {
    Q_OBJECT
public:
    explicit OpaqueConstrVShape(QWidget* parent = nullptr) : ConstructionForm(kShapeV, parent) {}
};

class OpaqueConstrIShape : public ConstructionForm {
    Q_OBJECT
public:
    explicit OpaqueConstrIShape(QWidget* parent = nullptr) : ConstructionForm(kShapeI, parent) {}
};

}  // namespace verandis
