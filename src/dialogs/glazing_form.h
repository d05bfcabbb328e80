#pragma once

#include <QDialog>
#include <QPushButton>
#include <QRadioButton>

#include "case/shapes.h"
#include "dialogs/construction_panels_form.h"
#include "dialogs/glazing.h"
#include "ui/plan_view.h"

namespace verandis {

/// Chooses the window type of each group of glazed elements of the active case. Modal; works on the
/// open case. Its four kinds differ by a table alone.
class GlazingForm : public QDialog {
    Q_OBJECT
public:
    void done(int result) override;

protected:
    GlazingForm(int shape, QWidget* parent);

private:
    void BuildWindow();
    QLayout* BuildGroups();
    QLayout* BuildKinds();
    QLayout* BuildButtons();
    void Form_Load();

    void Option_Click(std::uint16_t code);
    void Option5_Click();
    void Option6_Click();
    void Glazes_Click(int row);
    void Walls_Click(int row);
    void Apply_Click();
    void Command1_Click();
    void Command3_Click();

    void SetGlazedOrWallMode(int mode);
    void ShowChoice();

    GlazingChoice choice_;
    GroupOptions* groups_ = nullptr;
    PlanView* plan_ = nullptr;
    TypeList* glazings_ = nullptr;
    TypeList* walls_ = nullptr;  // only where a group may be a wall
    QRadioButton* Option5 = nullptr;
    QRadioButton* Option6 = nullptr;
    QLabel* Label12 = nullptr;
    QLabel* Label13 = nullptr;
    QPushButton* Apply = nullptr;
};

class GlazingUShape : public GlazingForm {
    Q_OBJECT
public:
    explicit GlazingUShape(QWidget* parent = nullptr) : GlazingForm(kShapeU, parent) {}
};

class GlazingOShape : public GlazingForm {
    Q_OBJECT
public:
    explicit GlazingOShape(QWidget* parent = nullptr) : GlazingForm(kShapeO, parent) {}
};

/// The V shape's roof may be glazed or opaque, so its dialog shows the walls too.
class GlazingVShape : public GlazingForm {
    Q_OBJECT
public:
    explicit GlazingVShape(QWidget* parent = nullptr) : GlazingForm(kShapeV, parent) {}
};

class GlazingIShape : public GlazingForm {
    Q_OBJECT
public:
    explicit GlazingIShape(QWidget* parent = nullptr) : GlazingForm(kShapeI, parent) {}
};

}  // namespace verandis
