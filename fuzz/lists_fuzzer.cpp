#include "app/session.h"
#include "fuzzing.h"
#include "projects/case_list.h"
#include "projects/project_list.h"
#include "text/separators.h"

// An input is a line with a new name, then the list, which is read as one of cases and as one of
// projects.

namespace verandis::fuzzing {
namespace {

void CheckCases(std::string_view file, const std::string& newName) {
    WriteScratch(kCaseListName, file);
    const auto rows = ReadCases();
    for (const CaseRow& row : rows) {
        const CaseRow again = CaseOfLine(CaseListRow(row));
        Require(again.name == row.name && again.title == row.title, "a row reads as it is written");
    }
    FillTemplateList();
    FindListRow(FillCaseList(), newName);
    if (rows.empty() || rows.front().name.empty()) return;
    Require(FindCase(rows.back().name).has_value(), "a case of the list is found");
    Require(ChangeCaseLine(rows.front(), {newName, "title"}, true), "a line is changed");
    Require(ReadCases().size() == rows.size(), "no case is lost by changing one");
}

void CheckProjects(std::string_view file, const std::string& newName) {
    WriteScratch(kProjectListName, file);
    const auto rows = ReadProjects();
    if (rows.empty() || rows.front().name.empty()) return;
    Require(FindProject(rows.back().name).has_value(), "a project of the list is found");
    ProjectListRow(rows.front());
    Require(ChangeProjectLine(rows.front().name, newName), "a line is changed");
    Require(ReadProjects().size() == rows.size(), "no project is lost by changing one");
    ConvertProjectList();
    Require(ReadProjects().size() == rows.size(), "no project is lost by the conversion");
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    std::string_view rest = TextOf(data, size);
    const std::string newName = TakeDecodedLine(rest);
    verandis::session = {};
    verandis::session.ProjectRoot = Scratch();
    verandis::session.ProjectFolder = Scratch();
    CheckCases(rest, newName);
    CheckProjects(rest, newName);
    return 0;
}
