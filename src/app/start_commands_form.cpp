// The commands of the main window's menus and what they open.

#include "app/about_form.h"
#include "app/case_changes.h"
#include "app/case_note.h"
#include "app/contact_form.h"
#include "app/help_form.h"
#include "app/session.h"
#include "app/start_form.h"
#include "app/sys_init_form.h"
#include "dialogs/demands_form.h"
#include "libraries/type_library_form.h"
#include "projects/case_forms_form.h"
#include "projects/project_list.h"
#include "projects/saved_default_form.h"
#include "projects/saved_list_form.h"
#include "projects/saved_slots_form.h"
#include "projects/slot_activation.h"
#include "results/min_temp_form.h"
#include "results/print_diagram_form.h"
#include "results/run_report_form.h"
#include "results/show_cases_form.h"
#include "ui/help.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr const char* kRunReports[] = {"M_ReportPdf", "M_ReportCsv", "M_ReportPrint"};

}  // namespace

void StartForm::ConnectMenus() {
    ConnectProjectMenus();
    ConnectCaseMenus();
    menus_->Connect("M_EditSystemFile", [this] { EditSystemFile(); });
    menus_->Connect("M_Quit", [this] { close(); });
    menus_->Connect("GS_Notes", [this] { GS_Notes_Click(); });
    menus_->Connect("M_Calculate", [this] { Calculate_Click(); });
    menus_->Connect("M_Clear", [this] { Command10_Click(); });
    menus_->Connect("M_DesignGuide", [this] { OpenDesignGuide(); });
    menus_->Connect("M_MinTemp", [this] { BMinTemp(this).exec(); });
    menus_->Connect("M_PrintDiagram", [this] { PrintDiagram(this).exec(); });
    menus_->Connect("M_ReportPdf", [this] { ReportRun(this); });
    menus_->Connect("M_ReportCsv", [this] { SaveRunTables(this); });
    menus_->Connect("M_ReportPrint", [this] { PrintRun(this); });
    menus_->Connect("M_Print", [this] { SSTab1->PrintActive(); });
    menus_->Connect("M_HelpContents", [] { ShowHelp(kHelpContentsTopic); });
    menus_->Connect("M_Contact", [this] { ContactWindow(this).exec(); });
    menus_->Connect("M_About", [this] { ShowAboutBox(); });
    menus_->Connect("M_BuildingPicture", [this] { ShowBuildingPicture(); });
}

template <class Dialog>
void StartForm::OpenDialog() {
    const std::string before = session.ProjectFolder;
    Dialog(this).exec();
    if (session.ProjectFolder != before) steadyResults_ = false;  // results of other slots
    FollowSession();
}

/// After a dialog that may have opened another project or case, also when it failed half-way.
void StartForm::FollowSession() {
    GoIdle();
    EditOpenCase();
    ShowPlans();
    StartUp();
}

void StartForm::ShowPlans() {
    for (int shape = 1; shape <= kShapeCount; ++shape) ShowShapePicture(shape, 1);
    ShowShapePicture(session.ActiveShape, session.ActiveCaseNo);
    ShowShapeState(session.ActiveShape);
}

void StartForm::ConnectProjectMenus() {
    menus_->Connect("M_NewProject", [this] { OpenDialog<forms::NewProject>(); });
    menus_->Connect("M_OpenProject", [this] { OpenDialog<forms::OpenProject>(); });
    menus_->Connect("M_CopyProject", [this] { OpenDialog<forms::CopyProject>(); });
    menus_->Connect("M_RenameProject", [this] { OpenDialog<forms::RenProject>(); });
    menus_->Connect("M_DeleteProject", [this] { OpenDialog<forms::DelProject>(); });
    menus_->Connect("M_NewCase", [this] { OpenDialog<forms::NewCase>(); });
    menus_->Connect("M_OpenCase", [this] { OpenDialog<forms::OpenCase>(); });
    menus_->Connect("M_CopyCase", [this] { OpenDialog<forms::CopyCase>(); });
    menus_->Connect("M_RenameCase", [this] { OpenDialog<forms::RenCase>(); });
    menus_->Connect("M_ConvertProjectList", [this] {
        ConvertProjectList();
        StartUp();
    });
}

void StartForm::ConnectCaseMenus() {
    menus_->Connect("M_EditBuildingData", [this] { OpenCaseData(); });
    menus_->Connect("M_DesignDemands", [this] { OpenDemands(); });
    menus_->Connect("M_ReferenceWindows", [this] { ReferenceWindowsLib(this).exec(); });
    menus_->Connect("M_OpaqueWalls", [this] { OpaqueWallsLib(this).exec(); });
    ConnectSetMenus();
    OnCaseChanged([this](bool resultsOutdated) { TakeCaseChange(resultsOutdated); });
}

void StartForm::ConnectSetMenus() {
    menus_->Connect("GS_Save", [this] { SaveCases(this).exec(); });
    menus_->Connect("GS_Load", [this] { LoadCases(this).exec(); });
    menus_->Connect("GS_Show", [this] { ShowCases(this).exec(); });
    menus_->Connect("GS_Delete", [this] { DeleteCases(this).exec(); });
    menus_->Connect("GS_Copy", [this] { CopyCaseInLib(this).exec(); });
    menus_->Connect("GS_List", [this] { LIstOfSavedCases(this).exec(); });
    menus_->Connect("GS_Redefine", [this] { BasRedef(this).exec(); });
}

void StartForm::OpenCaseData() {
    if (session.RunInProgress || !EditedSlotIsOpen()) return;
    if (!editor_) {
        editor_ = new EditBuildingData(this);
        connect(editor_, &EditBuildingData::DemandsWanted, this, &StartForm::OpenDemands);
    }
    editor_->Refresh();
    editor_->show();
    editor_->raise();
    editor_->activateWindow();
}

void StartForm::OpenDemands() {
    if (!EditedSlotIsOpen()) return;
    HVACformX(this).exec();
}

/// A dialog has stored something in the open case.
void StartForm::TakeCaseChange(bool resultsOutdated) {
    if (resultsOutdated) AllowPrinting(false);
    // They would tell the inputs of today beside the results of yesterday.
    for (const char* command : kRunReports) menus_->Command(command).setEnabled(false);
    ShowPlans();  // a saved case may have been loaded into any slot
    header_->Refresh();
    if (editor_) editor_->Refresh();
}

void StartForm::GS_Notes_Click() {
    if (session.RunInProgress) return;
    EditCaseNote();
    header_->Refresh();
    SSTab1->update();
}

void StartForm::EditSystemFile() {
    SysInit dialog(this);
    if (dialog.exec() != QDialog::Accepted || !dialog.StartedAnew()) return;
    TakeTexts();
    TakeSession();
}

void StartForm::ShowAboutBox() {
    AboutBox(this).exec();
}

void StartForm::ShowBuildingPicture() {
    if (!picture_) picture_ = new BuildingPicture(this);
    picture_->show();
    picture_->raise();
    picture_->activateWindow();
}

}  // namespace verandis
