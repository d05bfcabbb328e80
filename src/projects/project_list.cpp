#include "projects/project_list.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "projects/case_list.h"
#include "projects/folder_tree.h"
#include "projects/list_file.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

constexpr const char* kConvertTitle = "Convert";
enum : int { kNotCopied = 473, kNotWritten = 475 };
constexpr const char* kDeliveredLibraries[] = {"GASTP.INP", "GLASSTP.INP", "Wndtp.LIB",
                                               "OPAQUE.LIB"};

std::string ListPath() {
    return JoinPath(session.ProjectRoot, kProjectListName);
}

std::string NameOfLine(std::string_view line) {
    return std::string(TrimBlanks(LeftOfSeparator(line, "\t")));
}

bool Refuse(const std::string& text) {
    ShowMessage(text, kMessageTitle, Icon::Exclamation);
    return false;
}

std::string Bounded(const std::string& begin, const std::string& end) {
    return begin + std::to_string(kLongestName) + end;
}

bool RefuseName() {
    return Refuse(Bounded("Name must be <= ", " characters long and no spaces in the name !"));
}

/// True when a line holds the name or the path, compared in lower case.
bool Clashes(const std::string& name, const std::string& path) {
    const auto rows = ReadProjects();
    return std::any_of(rows.begin(), rows.end(), [&](const ProjectRow& row) {
        return EqualNoCase(row.name, name) || EqualNoCase(row.path, path);
    });
}

bool IsSystemFolder(const std::string& path) {
    return EqualNoCase(path, session.ProjectRoot) || EqualNoCase(path, session.SimulatorFolder) ||
           EqualNoCase(path, session.StageFolder);
}

void CloseOpenCase() {
    session.CaseName.clear();
    session.CaseTitle.clear();
    session.CaseFolder.clear();
}

std::string WithoutTrailingSeparator(std::string path) {
    if (path.size() > 1 && (path.ends_with('/') || path.ends_with('\\'))) path.pop_back();
    return path;
}

}  // namespace

std::vector<ProjectRow> ReadProjects() {
    std::vector<ProjectRow> rows;
    for (const std::string& line : ReadLines(ListPath()).value_or(std::vector<std::string>{})) {
        const std::string_view trimmed = TrimBlanks(line);
        if (trimmed.empty()) continue;
        rows.push_back(
            {NameOfLine(trimmed), std::string(TrimBlanks(RightOfSeparator(trimmed, "\t")))});
    }
    return rows;
}

std::string ProjectListRow(const ProjectRow& row) {
    return LowerCase(row.name + " - " + row.path);
}

std::optional<ProjectRow> FindProject(const std::string& name) {
    const auto rows = ReadProjects();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const ProjectRow& row) {
        return EqualNoCase(row.name, name);
    });
    if (found == rows.end()) return std::nullopt;
    return *found;
}

std::string NewProjectPath(const std::string& name) {
    return JoinPath(session.ProjectRoot, TrimBlanks(name));
}

bool NameClimbs(const std::string& name) {
    return name.starts_with('.') || name.find_first_of("/\\:\t") != std::string::npos;
}

void AddProject(const std::string& name, const std::string& path) {
    const std::string folder = WithoutTrailingSeparator(path);
    if (session.ProjectRoot.empty()) return;
    if (!AppendLine(ListPath(), LowerCase(name + "\t" + folder))) return;
    if (!MakeFolders(folder)) return;
    OpenProject({name, folder});
    ChangeFolder(session.ProjectRoot);
}

void OpenProject(const ProjectRow& row) {
    session.ProjectName = LowerCase(row.name);
    session.ProjectFolder = LowerCase(WithMachineSeparators(row.path));
    ChangeFolder(session.ProjectFolder);
    CloseOpenCase();
    session.WindowTitle = "THARM (" + session.ProjectName + ")";
}

void DeleteProjectFolder(const std::string& name, const std::string& path) {
    RemoveTree(path);
    std::size_t left = 1;
    ReplaceList(
        session.ProjectRoot, kProjectListName,
        [&](const std::string& line) -> std::optional<std::string> {
            if (EqualNoCase(NameOfLine(line), name)) return std::nullopt;
            return line;
        },
        &left);
    if (left == 0) DeleteFile(ListPath());
}

bool ChangeProjectLine(const std::string& oldName, const std::string& newName) {
    return ReplaceList(session.ProjectRoot, kProjectListName,
                       [&](const std::string& line) -> std::optional<std::string> {
                           if (!EqualNoCase(NameOfLine(line), oldName)) return line;
                           const auto path = RightOfSeparator(line, "\t");
                           return LowerCase(newName) + "\t" + std::string(path);
                       });
}

bool CreateProject(const std::string& typedName) {
    const std::string name(TrimBlanks(typedName));
    const std::string path = NewProjectPath(name);
    if (name.empty()) return Refuse("Name and path must be set");
    if (Length(name) > kLongestName || name.find(' ') != std::string::npos || NameClimbs(name) ||
        !SurvivesCodePage(name)) {
        return RefuseName();
    }
    if (IsSystemFolder(path)) {
        return Refuse("Projectpath can not be the same as System-, Local- or Thermal-path");
    }
    if (Clashes(name, path)) {
        return Refuse("A project with the same name or path already exists");
    }
    AddProject(name, path);
    for (const char* library : kDeliveredLibraries) {
        CopyFile(JoinPath(session.SimulatorFolder, library), JoinPath(path, library));
    }
    return true;
}

bool CopyProject(const ProjectRow& source, const std::string& typedName) {
    const std::string name(TrimBlanks(typedName));
    const std::string path = NewProjectPath(name);
    if (name.empty()) return Refuse("Target name must be set");
    if (Length(name) > kLongestName || NameClimbs(name) || !SurvivesCodePage(name)) {
        return Refuse(Bounded("Target name must be <= ", " characters long"));
    }
    if (Clashes(name, path)) {
        return Refuse("A project with the same name or path already exists");
    }
    AddProject(name, path);
    if (!CopyTree(source.path, path)) {
        return Refuse(Text(kNotCopied) + " " + source.path);
    }
    for (const CaseRow& row : ReadCases()) DeleteResultFiles(JoinPath(path, row.name));
    return true;
}

bool RenameProject(const ProjectRow& row, const std::string& typedName) {
    const std::string name(TrimBlanks(typedName));
    if (name.empty()) return Refuse("Projectname must be set");
    if (NameClimbs(name)) return RefuseName();
    if (!FileExists(ListPath())) return Refuse("Projectfile does not exist");
    if (FindProject(name)) return Refuse("A project with the same name already exist");
    if (!ChangeProjectLine(row.name, name)) return Refuse(Text(kNotWritten) + " " + ListPath());
    if (EqualNoCase(row.name, session.ProjectName)) {
        session.ProjectName = LowerCase(name);
        const std::string open = session.CaseName.empty() ? "" : " - " + session.CaseName;
        session.WindowTitle = "THARM (" + session.ProjectName + open + ")";
    }
    return true;
}

bool DeleteProject(const ProjectRow& row) {
    const bool open = EqualNoCase(row.name, session.ProjectName);
    const std::string question = open ? "Do you really want to delete the CURRENT project "
                                      : "Do you want to delete the project ";
    if (!CurrentPrompts().AskYesNo(question + row.name + " ?", kMessageTitle)) return false;
    DeleteProjectFolder(row.name, row.path);
    if (!open) return true;
    session.ProjectName.clear();
    session.ProjectFolder.clear();
    CloseOpenCase();
    session.WindowTitle = "THARM";
    return true;
}

void ConvertProjectList() {
    const std::string path = ListPath();
    const auto say = [](const std::string& text) { ShowMessage(text, kConvertTitle); };
    const auto lines = ReadLines(path);
    if (!lines) return say("Can't find file " + path);
    const auto rows = ReadProjects();
    const bool converted = std::any_of(rows.begin(), rows.end(), [](const ProjectRow& row) {
        // A path from the root of this kind of machine is never one of the old form.
        return row.path.find(':') != std::string::npos || row.path.starts_with('/');
    });
    if (converted) return say("File " + path + " is already converted");
    say("File " + path + " will be converted");
    if (!CopyFile(path, JoinPath(session.ProjectRoot, "PROJECTS.OLD"))) {
        return say(Text(kNotCopied) + " " + path);
    }
    std::vector<std::string> result;
    for (const ProjectRow& row : rows) {
        const std::string lower = LowerCase(row.path);
        const std::string_view rest = RightOfSeparator(RightOfSeparator(lower, "\\"), "\\");
        result.push_back(LowerCase(row.name) + "\t" + (rest.empty() ? lower : std::string(rest)));
    }
    if (!WriteLines(path, result)) say(Text(kNotWritten) + " " + path);
}

}  // namespace verandis
