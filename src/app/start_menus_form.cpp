#include "app/start_menus_form.h"

#include <QAction>
#include <QMenuBar>
#include <stdexcept>

#include "app/session.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

/// What has to be there before a command can be used.
enum class Needs { Nothing, ProjectList, NewProject, Project, Cases, Case, ModelCommands, Later };

struct MenuCommand {
    const char* menu;  // command name of the menu it stands in; empty for the menu bar
    const char* name;  // empty for a separator
    int text;
    Needs needs;
    bool opensMenu = false;
    const char* keys = "";
    const char* builtIn = "";  // caption while there is no catalogue
};

constexpr const char* kBar = "";

// In the order on the screen. The libraries and the editors of the detailed model stand in the menu
// of the case, because the three menus that are named after them are never enabled.
constexpr MenuCommand kCommands[] = {
    {kBar, "M_File", 500, Needs::Nothing, true, "", "Project"},
    {"M_File", "M_NewProject", 501, Needs::NewProject, false, "Ctrl+N"},
    {"M_File", "M_OpenProject", 502, Needs::ProjectList, false, "Ctrl+O"},
    {"M_File", "M_CopyProject", 503, Needs::ProjectList},
    {"M_File", "M_RenameProject", 504, Needs::ProjectList},
    {"M_File", "M_DeleteProject", 505, Needs::ProjectList},
    {"M_File", "", 0, Needs::Nothing},
    {"M_File", "M_NewCase", 506, Needs::Project},
    {"M_File", "M_OpenCase", 507, Needs::Cases},
    {"M_File", "M_CopyCase", 508, Needs::Cases},
    {"M_File", "M_RenameCase", 509, Needs::Cases},
    {"M_File", "", 0, Needs::Nothing},
    {"M_File", "M_Export", 511, Needs::Later},
    {"M_File", "M_ConvertProjectList", 510, Needs::Nothing},
    {"M_File", "M_EditSystemFile", 512, Needs::Nothing, false, "", "System settings..."},
    {"M_File", "", 0, Needs::Nothing},
    {"M_File", "M_Quit", 513, Needs::Nothing, false, "Ctrl+Q", "Quit"},

    {kBar, "M_Case", 196, Needs::Case, true},
    {"M_Case", "M_EditBuildingData", 515, Needs::Case},
    {"M_Case", "M_DesignDemands", 517, Needs::Case},
    {"M_Case", "GS_Notes", 516, Needs::Case},
    {"M_Case", "M_BuildingPicture", 961, Needs::Case},
    {"M_Case", "", 0, Needs::Nothing},
    {"M_Case", "M_ReferenceWindows", 518, Needs::Case},
    {"M_Case", "M_OpaqueWalls", 519, Needs::Case},
    {"M_Case", "", 0, Needs::Nothing},
    {"M_Case", "M_GlassTypes", 520, Needs::Later},
    {"M_Case", "M_Gases", 521, Needs::Later},
    {"M_Case", "M_WindowTypes", 522, Needs::Later},
    {"M_Case", "M_WallMaterials", 523, Needs::Later},
    {"M_Case", "M_MovableInsulation", 524, Needs::Later},
    {"M_Case", "", 0, Needs::Nothing},
    {"M_Case", "M_Site", 525, Needs::Later},
    {"M_Case", "M_Surfaces", 526, Needs::Later},
    {"M_Case", "M_Schedules", 527, Needs::Later},
    {"M_Case", "M_Ventilation", 528, Needs::Later},

    {kBar, "GS_Sets", 529, Needs::Nothing, true},
    {"GS_Sets", "GS_Save", 530, Needs::Project},
    {"GS_Sets", "GS_Load", 531, Needs::Project},
    {"GS_Sets", "GS_Show", 532, Needs::Project},
    {"GS_Sets", "GS_Delete", 533, Needs::Project},
    {"GS_Sets", "GS_Copy", 581, Needs::Project},
    {"GS_Sets", "GS_List", 582, Needs::Project},
    {"GS_Sets", "", 0, Needs::Nothing},
    {"GS_Sets", "GS_Redefine", 583, Needs::Case},

    {kBar, "M_Calculation", 543, Needs::Nothing, true},
    {"M_Calculation", "M_Calculate", 544, Needs::Nothing, false, "F5"},
    {"M_Calculation", "M_Clear", 546, Needs::Nothing},
    {"M_Calculation", "", 0, Needs::Nothing},
    {"M_Calculation", "M_DesignGuide", 548, Needs::Nothing, false, "Ctrl+G"},
    {"M_Calculation", "M_MinTemp", 584, Needs::Nothing},
    {"M_Calculation", "M_Print", 547, Needs::Nothing, false, "Ctrl+P"},
    {"M_Calculation", "M_PrintDiagram", 585, Needs::Nothing},
    {"M_Calculation", "", 0, Needs::Nothing},
    {"M_Calculation", "M_ReportPdf", 586, Needs::Nothing},
    {"M_Calculation", "M_ReportCsv", 588, Needs::Nothing},
    {"M_Calculation", "M_ReportPrint", 587, Needs::Nothing},

    {kBar, "M_Detailed", 534, Needs::Nothing, true},
    {"M_Detailed", "M_ThermalLoads", 535, Needs::Project, true},
    {"M_ThermalLoads", "M_RunStages", 536, Needs::Later},
    {"M_Detailed", "M_Result", 537, Needs::Project, true},
    {"M_Result", "M_OutputChoice", 538, Needs::Later},
    {"M_Result", "M_TextResults", 539, Needs::Later},
    {"M_Detailed", "", 0, Needs::Nothing},
    {"M_Detailed", "M_Library", 540, Needs::ModelCommands},
    {"M_Detailed", "M_MOdel", 541, Needs::ModelCommands},
    {"M_Detailed", "M_Output", 542, Needs::ModelCommands},

    {kBar, "M_Help", 13, Needs::Nothing, true},
    {"M_Help", "M_HelpContents", 247, Needs::Nothing, false, "F1"},
    {"M_Help", "M_Contact", 960, Needs::Nothing},
    {"M_Help", "M_About", 551, Needs::Nothing},
};

enum : int { kLaterTip = 552, kUnderCaseTip = 553 };

bool Allowed(Needs needs, const MenuState& state) {
    switch (needs) {
        case Needs::Nothing: return true;
        case Needs::ProjectList: return state.projectCommands;
        case Needs::NewProject: return state.newProject;
        case Needs::Project: return state.projectDependent;
        case Needs::Cases: return state.caseDependent;
        case Needs::Case: return state.caseCommands;
        case Needs::ModelCommands: return state.modelCommands;
        case Needs::Later: return false;
    }
    return false;
}

QAction* MakeEntry(QMenu* menu, QMenuBar* bar, const MenuCommand& command) {
    if (!command.opensMenu) {
        QAction* action = menu->addAction(QString());
        action->setShortcut(QKeySequence(command.keys));
        return action;
    }
    QMenu* made = menu ? menu->addMenu(QString()) : bar->addMenu(QString());
    made->setToolTipsVisible(true);
    Named(command.name, made);
    return made->menuAction();
}

}  // namespace

StartMenus::StartMenus(QMainWindow& window) : window_(window) {
    for (const MenuCommand& command : kCommands) {
        QMenu* menu = *command.menu ? MenuOf(command.menu) : nullptr;
        if (!*command.name) {
            menu->addSeparator();
            continue;
        }
        Named(command.name, MakeEntry(menu, window.menuBar(), command));
    }
}

QMenu* StartMenus::MenuOf(const char* name) const {
    auto* menu = window_.findChild<QMenu*>(name);
    if (!menu) throw std::logic_error(std::string("no menu ") + name);
    return menu;
}

QAction& StartMenus::Command(const char* command) const {
    auto* action = window_.findChild<QAction*>(command);
    if (!action) throw std::logic_error(std::string("no command ") + command);
    return *action;
}

void StartMenus::Connect(const char* command, std::function<void()> handler) {
    // Not every way to an action is a key or a press that could be dropped during a run.
    QObject::connect(&Command(command), &QAction::triggered, &window_, [run = std::move(handler)] {
        if (!session.RunInProgress) run();
    });
}

void StartMenus::TakeTexts() {
    for (const MenuCommand& command : kCommands) {
        if (!*command.name) continue;
        QAction& action = Command(command.name);
        const QString text = Label(command.text);
        action.setText(text.isEmpty() ? QString(command.builtIn) : text);
        if (command.needs == Needs::Later) action.setToolTip(Label(kLaterTip));
        if (command.needs == Needs::ModelCommands) action.setToolTip(Label(kUnderCaseTip));
    }
}

void StartMenus::Follow(const MenuState& state) {
    for (const MenuCommand& command : kCommands) {
        if (*command.name) Command(command.name).setEnabled(Allowed(command.needs, state));
    }
}

}  // namespace verandis
