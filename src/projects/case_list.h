#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// `CASES.LIB`, the list of the open project's cases: name in lower case, " - ", the title as typed.

namespace verandis {

inline constexpr const char* kCaseListName = "CASES.LIB";
inline constexpr std::size_t kStageCount = 6;  // stage programs of the detailed simulator

struct CaseRow {
    std::string name;
    std::string title;
};

/// Name and title of a line or list row.
CaseRow CaseOfLine(const std::string& line);

/// How a list shows a case: name, " - ", title.
std::string CaseListRow(const CaseRow& row);

/// The lines of the open project's list; empty when there is none.
std::vector<CaseRow> ReadCases();

/// The rows of a case list as a list control shows them.
std::vector<std::string> FillCaseList();

/// The rows that the copying of templates offers: all but "temporar" and "base1".
std::vector<std::string> FillTemplateList();

/// The row of a name, compared whole without regard to letter case.
std::optional<CaseRow> FindCase(const std::string& name);

/// Appends the case, makes its folder with the status file that tells that no stage has run, and
/// opens the case. The folder takes the name as given, the list its lower case.
void AddCase(const std::string& name, const std::string& title);

/// Opens a case: sets the session's case. What is remembered of paths is searched anew, so that
/// changes by other programs are seen.
void OpenCase(const CaseRow& row);

/// Removes the case's folder tree and its line.
void DeleteCase(const std::string& name);

/// Rewrites the line that holds exactly the old name and title; unless `keepFolder`, the folder
/// takes the new name. False when a step failed.
bool ChangeCaseLine(const CaseRow& oldRow, const CaseRow& newRow, bool keepFolder);

/// Ok of the dialog `NewCase`.
bool CreateCase(const std::string& typedName, const std::string& title);

/// Ok of `CopyCase`: everything of the source but its results, and the project's wall library.
bool CopyCase(const CaseRow& source, const std::string& typedName, const std::string& title);

/// The same copy for the start-up, without any message: `target` becomes equal to the template,
/// whatever it held before, but for results and the files that `leaveOut` tells. A case that stands
/// in the list keeps its line. False when a step failed.
bool CopyCase2(const CaseRow& source, const std::string& target,
               const std::function<bool(const std::string& name)>& leaveOut);

/// Ok of `RenCase`.
bool RenameCase(const CaseRow& row, const std::string& typedName, const std::string& title);

/// Deletes the results of the detailed simulator in a case folder.
void DeleteResultFiles(const std::string& caseFolder);

/// Which of the six stages have to run again.
using StageFlags = std::array<bool, kStageCount>;
inline constexpr StageFlags kAllStages = {true, true, true, true, true, true};

/// Sets "X" in the status line of one case folder, or of every case of the list with "ALL".
void MarkStagesToRun(const std::string& which, const StageFlags& flags);

}  // namespace verandis
