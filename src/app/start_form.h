#pragma once

#include <QGroupBox>
#include <QMainWindow>
#include <QPointer>
#include <QProgressBar>
#include <QScrollArea>
#include <QVBoxLayout>
#include <array>
#include <memory>

#include "app/building_picture_form.h"
#include "app/calculation_panel_form.h"
#include "app/family_frame_form.h"
#include "app/run_events_form.h"
#include "app/slot_header_form.h"
#include "app/start_menus_form.h"
#include "calc/run_control.h"
#include "dialogs/building_data_form.h"
#include "results/diagram_tabs_form.h"
#include "results/guide_form.h"
#include "ui/message_boxes.h"
#include "ui/plan_view.h"

namespace verandis {

/// The one main window, owner of the session. Making it is the start of the system: settings,
/// catalogue, project of the slots, slots. Closing it ends the program; nothing is stored then.
class StartForm : public QMainWindow, private RunDisplay {
    Q_OBJECT
public:
    explicit StartForm(QWidget* parent = nullptr);
    ~StartForm() override;

    /// Runs the chosen calculation for the marked slots.
    void Calculate_Click();

    /// Asks for the note of the active case.
    void GS_Notes_Click();

    void ShowAboutBox();

    /// After a change of project or case: menus and title follow it.
    void StartUp();

    /// Empties the diagrams and closes their enlarged forms and the design guide.
    void UnLoadGraphics();

    /// Shows the plan of a slot: large, and small in its family's frame.
    void ShowShapePicture(int shape, int caseNo);

    /// Lets only this family's case buttons be pressed.
    void ShowShapeState(int shape);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildWindow();
    QWidget* BuildSideBar();
    void FitSideBar();
    QWidget* BuildResults();
    void MakeDiagramTabs();
    void ConnectSlots();
    void ConnectCalculation();
    void ConnectMenus();
    void ConnectProjectMenus();
    void ConnectCaseMenus();
    void ConnectSetMenus();
    template <class Dialog>
    void OpenDialog();
    void TakeTexts();
    void TakeSession();

    void Form_Load();
    void FollowSession();
    void ShowPlans();
    void Want(std::int16_t& what, bool wanted);
    bool HasSteadyResults() const;
    void AllowResultCommands();
    void GoIdle();
    void ChooseFamily(int shape);
    void ChooseCase(int caseNo);
    void PressCase(int caseNo);
    void Mark(int shape, int caseNo, bool marked);
    void ChooseCalculation(float mode);
    void Command10_Click();
    void OpenCaseData();
    void OpenDemands();
    void TakeCaseChange(bool resultsOutdated);
    void EditSystemFile();
    void OpenDesignGuide();
    void ShowBuildingPicture();
    void ShowTold(int text);

    void HideDiagrams() override;
    void SetCaption(const std::string& text) override;
    void AllowPrinting(bool allowed) override;
    void AllowCancel(bool allowed) override;
    void CloseGuide() override;
    void OpenGuide() override;
    void ShowSteadyCharts() override;
    void ShowDynamicCharts() override;
    void ShowDiagrams() override;
    void AllowTwoCaseView(bool allowed) override;
    void ResetSeriesBoxes() override;
    void BlackenMarkLabels() override;

    std::unique_ptr<StartMenus> menus_;
    std::array<FamilyFrame*, kShapeCount> families_{};
    QScrollArea* sideBar_ = nullptr;
    CalculationPanel* panel_ = nullptr;
    SlotHeader* header_ = nullptr;
    QGroupBox* Frame8 = nullptr;  // caption and bar of a run
    QProgressBar* ProgressBar1 = nullptr;
    QVBoxLayout* results_ = nullptr;
    PlanView* Image1 = nullptr;  // the active slot's plan
    DiagramTabs* SSTab1 = nullptr;
    std::unique_ptr<BarProgress> progress_;
    bool steadyResults_ = false;  // the result tables are those of a steady-state run
    QPointer<Ststcalcchart> guide_;
    QPointer<BuildingPicture> picture_;
    QPointer<EditBuildingData> editor_;
};

}  // namespace verandis
