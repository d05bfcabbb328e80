#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

#include "dialogs/site.h"
#include "dialogs/site_picture_form.h"
#include "ui/number_field.h"

namespace verandis {

/// Chooses the climate of the active case and turns the building on its site. Cancel and Escape
/// leave the case as it was.
class ShadeSite : public QDialog {
    Q_OBJECT
public:
    explicit ShadeSite(QWidget* parent = nullptr);

    /// Title, list and angle as the active case gives them.
    void Form_Load();
    void FillSite();

    /// Draws the plan at the angle that is shown.
    void DrawPlan();

    void scrAngle_Change();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLayout* MakeClimateSide();
    QLayout* MakeAngleSide();
    void Angle_Change();
    void ShowClimateRemark();
    std::string ChosenClimate() const;

    QListWidget* List1;
    QLabel* ClimateRemark;
    SitePicture* pboxHouse;
    NumberField* Angle;
    QScrollBar* scrAngle;
    QLabel* TurnRemark;
    QLabel* AngleHint;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;

    std::string wanted_;  // the climate that the case had when the dialog opened
    PlanDimensions figures_;
    std::vector<FacingElement> facings_;
};

}  // namespace verandis
