#pragma once

#include <string>

// What happens at start, apart from windows: the project of the sixteen slots is opened and every
// slot is made anew from its template.

namespace verandis {

/// Which commands of the main window can be used.
struct MenuState {
    bool projectCommands = false;  // M_OpenProject, M_CopyProject, M_DeleteProject, M_RenameProject
    bool newProject = true;
    bool projectDependent = false;  // M_ThermalLoads, M_Result
    bool caseDependent = false;     // commands that need a list of cases
    bool caseCommands = false;      // M_Case
    bool modelCommands = false;  // M_Library, M_MOdel, M_Output: disabled with a case and without
};

/// After a change of project or case: makes the folder of projects the current one and tells which
/// commands can be used.
MenuState StartUp();

/// Opens the project of the slots. A list line whose folder is gone is mended when the folder of
/// that name stands in the folder of projects. False when there is no such project.
bool OpenHomeProject();

/// Makes the sixteen slots of the open project anew, whatever they held. A step that fails is
/// passed over. Leaves slot V1 open and active. False when no template case could be copied.
bool RebuildSlots();

/// Catalogue and project of the slots, without touching the slots: for work on them as they stand.
/// False when the project is missing.
bool OpenSession();

/// Catalogue, project of the slots and slots, without the switches: after a change of the folder of
/// the data. False when the project of the slots is missing.
bool StartProject();

/// The whole start behind the settings: catalogue, project, slots, switches. False when the project
/// of the slots is missing.
bool StartSession();

/// The value of `SystemPath` of the stand-alone simulator's settings, at most 63 characters; empty
/// when it is not installed, and the export is then hidden.
std::string SimulatorSystemPath();

}  // namespace verandis
