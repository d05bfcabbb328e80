#include "app/start_up.h"

#include <algorithm>
#include <vector>

#include "app/program_text.h"
#include "app/session.h"
#include "app/slot_selection.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "case/site_file.h"
#include "case/slot_files.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "projects/case_list.h"
#include "projects/list_file.h"
#include "projects/project_list.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

constexpr const char* kCollectedModelFiles = "DynamicFilesUOVI.dat";
constexpr int kCopyOrder[] = {kShapeV, kShapeI, kShapeU, kShapeO};
constexpr std::string_view kFolderToken = "YYY";
constexpr std::string_view kFileToken = "ZZZ";
constexpr std::size_t kLongestProfileValue = 63;

std::string Replaced(std::string text, std::string_view token, std::string_view value) {
    const std::size_t at = text.find(token);
    return at == std::string::npos ? text : text.replace(at, token.size(), value);
}

/// Names this machine's folders in the site file of the open case. A path that a site file cannot
/// hold leaves the tokens in it, and the start goes on.
void NameClimateOfThisMachine() {
    const auto entry = SiteClimate(session.CaseFolder);
    const auto climates = ClimateFolder();
    if (!entry || !climates) return;
    const auto files = ListFiles(*climates, "*.CLI");
    if (files.empty()) return;
    const std::string path =
        Replaced(Replaced(*entry, kFolderToken, TrimBlanks(session.SystemFolder)), kFileToken,
                 files.front());
    SetSiteClimate(session.CaseFolder, TrueSpelling(path));
}

bool CopyTemplate(int shape) {
    // The templates of the property files would only be deleted again.
    const auto leaveOut = [&](const std::string& name) { return IsTemplateName(shape, name); };
    const auto source = FindCase(std::string(WordsOf(shape).word));
    bool all = source && CopyCase2(*source, SlotFolderName({shape, 1}), leaveOut);
    const auto first = FindCase(SlotCaseName({shape, 1}));
    if (!first) return false;
    OpenCase(*first);
    NameClimateOfThisMachine();
    for (int number = 2; number <= kCasesPerShape; ++number) {
        all = CopyCase2(*first, SlotFolderName({shape, number}), leaveOut) && all;
    }
    return all;
}

void MendProjectLine(const ProjectRow& row, const std::string& folder) {
    ReplaceList(session.ProjectRoot, kProjectListName,
                [&](const std::string& line) -> std::optional<std::string> {
                    const bool home =
                        EqualNoCase(TrimBlanks(LeftOfSeparator(line, "\t")), row.name);
                    return home ? LowerCase(row.name + "\t" + folder) : line;
                });
}

}  // namespace

MenuState StartUp() {
    ChangeFolder(session.ProjectRoot);
    MenuState menus;
    menus.newProject = !session.ProjectRoot.empty();
    menus.projectCommands = FileExists(JoinPath(session.ProjectRoot, kProjectListName));
    menus.projectDependent = !session.ProjectName.empty();
    menus.caseDependent =
        menus.projectDependent && FileExists(JoinPath(session.ProjectFolder, kCaseListName));
    menus.caseCommands = !session.CaseName.empty();
    return menus;
}

bool OpenHomeProject() {
    auto row = FindProject(kHomeProject);
    const std::string usual = JoinPath(session.ProjectRoot, kHomeProject);
    if (!row) return false;
    if (!FolderExists(row->path) && FolderExists(usual)) {
        MendProjectLine(*row, usual);
        row->path = usual;
    }
    OpenProject(*row);
    return true;
}

bool RebuildSlots() {
    SplitDynamicFiles(JoinPath(session.ProjectFolder, kCollectedModelFiles));
    bool any = false;
    for (const int shape : kCopyOrder) any = CopyTemplate(shape) || any;
    for (int shape = 1; shape <= kShapeCount; ++shape) RemoveSlotTemplates(shape);
    for (int shape = 1; shape <= kShapeCount; ++shape) InstallSlotFiles(shape);
    SelectFamily(kShapeV);
    return any;
}

std::string SimulatorSystemPath() {
    return Left(ReadProfile("Tharm.INI", "THARM", "SystemPath").value_or(""), kLongestProfileValue);
}

bool OpenSession() {
    LoadProgramText();
    return OpenHomeProject();
}

bool StartProject() {
    session.HelpFile = JoinPath(JoinPath(session.SimulatorFolder, "help"), "VITRAS.CMH");
    const bool opened = OpenSession() && RebuildSlots();
    session.ElementKindMark = 0;
    StartUp();
    return opened;
}

bool StartSession() {
    session.ShowGuide = kOff;
    session.ShowDiagrams = kOn;
    return StartProject();
}

}  // namespace verandis
