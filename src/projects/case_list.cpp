#include "projects/case_list.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "platform/spelling.h"
#include "projects/folder_tree.h"
#include "projects/list_file.h"
#include "projects/project_list.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

enum : int { kNotCopied = 473, kNotRenamed = 474 };
constexpr const char* kStatusFile = "THERMAL.INP";
constexpr const char* kWallLibrary = "Walls.Lib";
constexpr std::string_view kResultEndings[] = {".txt", ".lis", ".ddd", ".ggg", ".ppp"};
constexpr std::string_view kHiddenTemplates[] = {"temporar", "base1"};

std::string ListPath() {
    return JoinPath(session.ProjectFolder, kCaseListName);
}

std::string FolderOfCase(const std::string& name) {
    return JoinPath(session.ProjectFolder, name);
}

bool Refuse(const std::string& text) {
    ShowMessage(text, kMessageTitle, Icon::Exclamation);
    return false;
}

/// Checks a typed name as the dialogs for new and copied cases do.
bool NameAllowed(const std::string& name) {
    if (name.empty()) return Refuse("Casename must be set");
    const std::string first = Left(name, 1);
    const bool letterFirst = LowerCase(first) != UpperCase(first);
    if (!letterFirst || Length(name) > kLongestName || name.find(' ') != std::string::npos ||
        NameClimbs(name) || !SurvivesCodePage(name)) {
        return Refuse("Case name must be <= " + std::to_string(kLongestName) +
                      " characters long with no spacec in the name !");
    }
    if (FindCase(name)) return Refuse("A case with the same name already exists");
    return true;
}

std::string TitleBehindDash(const std::string& line) {
    return std::string(TrimBlanks(RightOfSeparator(line, " -")));
}

bool IsHidden(const CaseRow& row) {
    return std::any_of(std::begin(kHiddenTemplates), std::end(kHiddenTemplates),
                       [&](std::string_view name) { return LowerCase(row.name) == name; });
}

bool IsResultFile(const std::string& name) {
    const std::string lower = LowerCase(name);
    return std::any_of(std::begin(kResultEndings), std::end(kResultEndings),
                       [&](std::string_view ending) { return lower.ends_with(ending); });
}

void CopyWallLibrary(const std::string& caseFolder) {
    const std::string library = JoinPath(session.ProjectFolder, kWallLibrary);
    if (FileExists(library)) CopyFile(library, JoinPath(caseFolder, kWallLibrary));
}

/// Gives the line that holds exactly the old name and title the new ones.
bool RewriteCaseLine(const CaseRow& oldRow, const CaseRow& newRow) {
    return ReplaceList(session.ProjectFolder, kCaseListName,
                       [&](const std::string& line) -> std::optional<std::string> {
                           // The title is told here by " -" alone, so that a line without the blank
                           // is not taken for one without a title.
                           const bool same = CaseOfLine(line).name == LowerCase(oldRow.name) &&
                                             TitleBehindDash(line) == TrimBlanks(oldRow.title);
                           return same ? CaseListRow({LowerCase(newRow.name), newRow.title}) : line;
                       });
}

void MarkCase(const std::string& caseFolder, const StageFlags& flags) {
    const std::string path = JoinPath(caseFolder, kStatusFile);
    auto lines = ReadLines(path);
    if (!lines) return;
    if (lines->empty()) lines->emplace_back();
    std::string& status = lines->front();
    if (status.size() < kStageCount) status.resize(kStageCount, '-');
    for (std::size_t stage = 0; stage < kStageCount; ++stage) {
        if (flags[stage]) status[stage] = 'X';
    }
    WriteLines(path, *lines);
}

}  // namespace

CaseRow CaseOfLine(const std::string& line) {
    return {std::string(TrimBlanks(LeftOfSeparator(line, " -"))),
            std::string(TrimBlanks(RightOfSeparator(line, " - ")))};
}

std::string CaseListRow(const CaseRow& row) {
    return row.name + " - " + row.title;
}

std::vector<CaseRow> ReadCases() {
    std::vector<CaseRow> rows;
    for (const std::string& line : ReadLines(ListPath()).value_or(std::vector<std::string>{})) {
        if (!TrimBlanks(line).empty()) rows.push_back(CaseOfLine(line));
    }
    return rows;
}

std::vector<std::string> FillCaseList() {
    std::vector<std::string> shown;
    for (const CaseRow& row : ReadCases()) shown.push_back(CaseListRow(row));
    return shown;
}

std::vector<std::string> FillTemplateList() {
    std::vector<std::string> shown;
    for (const CaseRow& row : ReadCases()) {
        if (!IsHidden(row)) shown.push_back(CaseListRow(row));
    }
    return shown;
}

std::optional<CaseRow> FindCase(const std::string& name) {
    const auto rows = ReadCases();
    const auto found = std::find_if(
        rows.begin(), rows.end(), [&](const CaseRow& row) { return EqualNoCase(row.name, name); });
    if (found == rows.end()) return std::nullopt;
    return *found;
}

void OpenCase(const CaseRow& row) {
    session.CaseName = LowerCase(row.name);
    session.CaseTitle = row.title;
    session.CaseFolder = FolderOfCase(session.CaseName);
    RecheckSpelling(session.ProjectFolder);
    RecheckSpelling(session.CaseFolder);
    session.WindowTitle = "THARM (" + session.ProjectName + " - " + session.CaseName + ")";
}

void AddCase(const std::string& name, const std::string& title) {
    if (session.ProjectFolder.empty()) return;
    AppendLine(ListPath(), CaseListRow({LowerCase(name), title}));
    const std::string folder = FolderOfCase(name);
    MakeFolders(folder);
    WriteLines(JoinPath(folder, kStatusFile), {std::string(kStageCount, 'X')});
    OpenCase({name, title});
}

void DeleteCase(const std::string& name) {
    RemoveTree(FolderOfCase(name));
    ReplaceList(session.ProjectFolder, kCaseListName,
                [&](const std::string& line) -> std::optional<std::string> {
                    if (EqualNoCase(CaseOfLine(line).name, name)) return std::nullopt;
                    return line;
                });
}

bool ChangeCaseLine(const CaseRow& oldRow, const CaseRow& newRow, bool keepFolder) {
    if (!RewriteCaseLine(oldRow, newRow)) return false;
    if (keepFolder || Rename(FolderOfCase(oldRow.name), newRow.name)) return true;
    RewriteCaseLine(newRow, oldRow);  // the folder stays, and so does its line
    return false;
}

bool CreateCase(const std::string& typedName, const std::string& title) {
    const std::string name(TrimBlanks(typedName));
    if (!NameAllowed(name)) return false;
    AddCase(name, title);
    return true;
}

void DeleteResultFiles(const std::string& caseFolder) {
    for (const std::string& name : ListFolder(caseFolder)) {
        if (IsResultFile(name)) DeleteFile(JoinPath(caseFolder, name));
    }
}

bool CopyCase(const CaseRow& source, const std::string& typedName, const std::string& title) {
    const std::string name(TrimBlanks(typedName));
    if (!NameAllowed(name)) return false;
    AddCase(name, title);
    const std::string target = FolderOfCase(name);
    const bool copied = CopyTree(FolderOfCase(source.name), target);
    DeleteResultFiles(target);
    CopyWallLibrary(target);
    if (!copied) return Refuse(Text(kNotCopied) + " " + source.name);
    return true;
}

bool CopyCase2(const CaseRow& source, const std::string& target,
               const std::function<bool(const std::string& name)>& leaveOut) {
    const std::string folder = FolderOfCase(target);
    if (!FolderExists(FolderOfCase(source.name))) return false;  // the slot keeps what it has
    if (!FindCase(target)) AddCase(target, source.title);
    const bool copied = MirrorTree(FolderOfCase(source.name), folder, [&](const std::string& name) {
        return IsResultFile(name) || leaveOut(name);
    });
    CopyWallLibrary(folder);
    return copied;
}

bool RenameCase(const CaseRow& row, const std::string& typedName, const std::string& title) {
    const std::string name(TrimBlanks(typedName));
    const CaseRow renamed = {name, title};
    if (session.CaseName.empty()) return Refuse("No Case has been opened");
    if (name.empty()) return Refuse("Casename must be set");
    if (!FileExists(ListPath())) return Refuse("Casefile does not exist");
    const bool sameName = EqualNoCase(row.name, name);
    if (!sameName && !NameAllowed(name)) return false;
    if (!ChangeCaseLine(row, renamed, sameName)) {
        return Refuse(Text(kNotRenamed) + " " + row.name);
    }
    if (EqualNoCase(row.name, session.CaseName)) OpenCase(renamed);
    MarkStagesToRun(FolderOfCase(name), kAllStages);
    return true;
}

void MarkStagesToRun(const std::string& which, const StageFlags& flags) {
    if (which != "ALL") return MarkCase(which, flags);
    for (const CaseRow& row : ReadCases()) MarkCase(FolderOfCase(row.name), flags);
}

}  // namespace verandis
