#pragma once

#include <QDialog>
#include <QLabel>
#include <QList>
#include <QPushButton>
#include <string>

#include "dialogs/dimensions.h"
#include "ui/number_field.h"
#include "ui/plan_view.h"

namespace verandis {

/// The dimensions of the active case, with plan and section drawn to what is typed. Close checks
/// and stores; Cancel, Escape and the frame leave the case as it was.
class GeometryForm : public QDialog {
    Q_OBJECT
public:
    /// Title and texts as the active case gives them.
    void Form_Load();

    /// True when the text consists of digits and the session's decimal sign.
    static bool IsNumberText(const std::string& text);

    /// True when all checks pass; otherwise shows what they found and moves the focus there.
    bool ValidateDimensions();

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

protected:
    /// The dialog of shape 1 to 4.
    GeometryForm(int shape, const char* name, QWidget* parent);

private:
    QLayout* MakeFields();
    DimensionTexts Texts() const;
    void ShowFigures();

    const DimensionDialog& dialog_;
    QList<NumberField*> fields_;  // in the order of the dialog's fields
    QLabel* tiltRemark_;
    PlanView* sketch_;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
};

class GeoUShape : public GeometryForm {
    Q_OBJECT
public:
    explicit GeoUShape(QWidget* parent = nullptr) : GeometryForm(kShapeU, "GeoUShape", parent) {}
};

class GeoOShape : public GeometryForm {
    Q_OBJECT
public:
    explicit GeoOShape(QWidget* parent = nullptr) : GeometryForm(kShapeO, "GeoOShape", parent) {}
};

class GeoVShape : public GeometryForm {
    Q_OBJECT
public:
    explicit GeoVShape(QWidget* parent = nullptr) : GeometryForm(kShapeV, "GeoVShape", parent) {}
};

class GeoIShape : public GeometryForm {
    Q_OBJECT
public:
    explicit GeoIShape(QWidget* parent = nullptr) : GeometryForm(kShapeI, "GeoIShape", parent) {}
};

}  // namespace verandis
