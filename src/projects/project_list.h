#pragma once

#include <optional>
#include <string>
#include <vector>

// `PROJECTS.LIB`, the list of projects in `session.ProjectRoot`: name, TAB, path, in lower case.
// The functions that a dialog's Ok runs make their checks, show what is wrong and tell whether all
// is done.

namespace verandis {

inline constexpr const char* kProjectListName = "PROJECTS.LIB";
inline constexpr const char* kHomeProject = "verandis";  // the project of the sixteen slots
inline constexpr int kLongestName = 8;                   // of projects and cases, in characters
inline constexpr const char* kMessageTitle = "MESSAGE";

struct ProjectRow {
    std::string name;
    std::string path;  // without a trailing separator
};

/// The lines of the list; empty when there is none.
std::vector<ProjectRow> ReadProjects();

/// How a list shows a project: name, " - ", path, in lower case.
std::string ProjectListRow(const ProjectRow& row);

/// The row of a name, compared whole without regard to letter case.
std::optional<ProjectRow> FindProject(const std::string& name);

/// Path that a new project of this name gets.
std::string NewProjectPath(const std::string& name);

/// True for a name that could leave its folder: with "/", "\", ":" or a leading point.
bool NameClimbs(const std::string& name);

/// Appends the project, makes its folders and opens it. A folder that cannot be made leaves the
/// line without a folder.
void AddProject(const std::string& name, const std::string& path);

/// Opens a project: sets the session's project, clears its case.
void OpenProject(const ProjectRow& row);

/// Removes the folder tree and the line; an emptied list is deleted itself.
void DeleteProjectFolder(const std::string& name, const std::string& path);

/// Gives the line of `oldName` a new name; its path stays.
bool ChangeProjectLine(const std::string& oldName, const std::string& newName);

/// Ok of the dialog `NewProject`.
bool CreateProject(const std::string& typedName);

/// Ok of `CopyProject`: the whole folder of the source, without the results of its cases.
bool CopyProject(const ProjectRow& source, const std::string& typedName);

/// Ok of `RenProject`: only the list's text changes, the folder keeps its name.
bool RenameProject(const ProjectRow& row, const std::string& typedName);

/// Choice of a row in `DelProject`: asks, then deletes.
bool DeleteProject(const ProjectRow& row);

/// Turns a list whose paths hold a machine's root folder into one that does not, once.
void ConvertProjectList();

}  // namespace verandis
