#include "projects/saved_cases.h"

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "case/slot_files.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "projects/project_list.h"
#include "projects/slot_activation.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

constexpr const char* kPropertiesMarker = "***** SimpPropertiesOfCase.Dat";
constexpr const char* kResultsMarker = "***** SimpResults.Dat";
constexpr const char* kResultFileName = "SimpResults.Dat";
constexpr const char* kEnding = ".CAS";

enum : int {
    kOverWord = 6,
    kCaseWord = 14,
    kRefusedWord = 43,
    kCopyTitle = 47,
    kDeleteWord = 48,
    kCharactersWord = 107,
    kAtMostWord = 108,
    kSaveTitle = 187,
    kSetNameWord = 188,
    kBadNameText = 189,
    kLongNameText = 190,
    kLoadQuestion = 192,
    kRedefineQuestion = 193,
    kConfirmWord = 254,
    kNewNameTitle = 337,
    kTakenText = 338,
    kFromNowOn = 340,
    kNoSlotText = 900,
    kNotWrittenText = 901,
    kNotReadText = 902
};

std::string InProject(const std::string& file) {
    return JoinPath(session.ProjectFolder, file);
}

std::string SlotPropertyFile(const Slot& slot) {
    return JoinPath(InProject(SlotFolderName(slot)), kPropertyFileName);
}

void AppendFile(std::vector<std::string>& lines, const std::string& path) {
    const auto content = ReadLines(path);
    if (content) lines.insert(lines.end(), content->begin(), content->end());
}

bool TellFile(int text, const std::string& file, int title) {
    ShowMessage(Text(text) + " " + file, Text(title), Icon::Exclamation);
    return false;
}

std::string NamePrompt() {
    return Text(kSetNameWord) + ", " + Text(kAtMostWord) + " " + std::to_string(kLongestSetName) +
           " " + Text(kCharactersWord);
}

/// Asks until the name is good, with complaints under one title.
std::optional<std::string> AskName(int title, int complaintTitle) {
    while (true) {
        const auto reply = CurrentPrompts().AskText(NamePrompt(), Text(title), "");
        if (!reply) return std::nullopt;
        const std::string name(TrimBlanks(*reply));
        const int refusal = RefusalOfSetName(name);
        if (refusal == 0) return name;
        ShowMessage(Text(refusal), Text(complaintTitle), Icon::Information);
    }
}

}  // namespace

SavedCase SavedCaseOf(const std::string& file) {
    SavedCase saved{file, "", {}};
    const std::size_t mark = file.rfind('!');
    if (mark == std::string::npos) return saved;
    saved.set = file.substr(0, mark);
    const std::string behind = file.substr(mark + 1);
    saved.slot = SlotOfLabel(std::string(LeftOfSeparator(behind, ".")));
    return saved;
}

std::vector<SavedCase> SavedCases() {
    std::vector<SavedCase> cases;
    if (session.ProjectFolder.empty()) return cases;
    for (const std::string& file : ListFiles(session.ProjectFolder, "*.Cas")) {
        cases.push_back(SavedCaseOf(file));
    }
    return cases;
}

int RefusalOfSetName(const std::string& name) {
    if (name.find(' ') != std::string::npos || NameClimbs(name)) return kBadNameText;
    return Length(name) > kLongestSetName ? kLongNameText : 0;
}

std::optional<std::string> AskSetName() {
    return AskName(kSaveTitle, kSaveTitle);
}

bool SaveSlots(const std::string& name, const std::vector<Slot>& slots) {
    bool all = true;
    for (const Slot& slot : slots) {
        if (!ActivateSlot(slot.caseNo, slot.shape, "")) continue;
        const std::string file = name + "!" + SlotLabel(slot) + kEnding;
        std::vector<std::string> lines = {std::string(kPropertiesMarker) + "-Saved " +
                                          CurrentClock().Date() + "/" + CurrentClock().Time()};
        AppendFile(lines, PropertyFilePath());
        lines.emplace_back(kResultsMarker);
        AppendFile(lines, JoinPath(session.CaseFolder, kResultFileName));
        all = WriteLines(InProject(file), lines) || TellFile(kNotWrittenText, file, kSaveTitle);
        if (!all) break;
    }
    ReactivateEditedSlot();
    return all;
}

std::optional<std::vector<std::string>> SavedProperties(const std::string& file) {
    const auto lines = ReadLines(InProject(file));
    if (!lines) return std::nullopt;
    std::vector<std::string> properties;
    bool inside = false;
    for (const std::string& line : *lines) {
        if (inside && line.find(kResultsMarker) != std::string::npos) break;
        if (inside) properties.push_back(line);
        inside = inside || line.find(kPropertiesMarker) != std::string::npos;
    }
    return properties;
}

bool LoadSavedCase(const std::string& file, std::optional<Slot> slot) {
    const Slot target = slot.value_or(SavedCaseOf(file).slot);
    if (!IsShape(target.shape)) return TellFile(kNoSlotText, file, kSaveTitle);
    const std::string question =
        Text(kLoadQuestion) + file + " " + Text(kOverWord) + LowerCase(Text(kCaseWord)) + " ?";
    if (!CurrentPrompts().AskYesNo(question, kProgramTitle)) return false;
    const auto lines = SavedProperties(file);
    if (!lines) return TellFile(kNotReadText, file, kSaveTitle);
    return WriteLines(SlotPropertyFile(target), *lines) ||
           TellFile(kNotWrittenText, SlotFolderName(target), kSaveTitle);
}

bool DeleteSavedCase(const std::string& file) {
    const std::string question =
        Text(kConfirmWord) + " " + Text(kDeleteWord) + " " + Text(kCaseWord) + " " + file;
    if (!CurrentPrompts().AskYesNo(question, Text(kDeleteWord))) return false;
    return DeleteFile(InProject(file));
}

bool CopySavedCase(const std::string& file) {
    const auto name = AskName(kNewNameTitle, kCopyTitle);
    if (!name) return false;
    const std::string target = *name + file.substr(SavedCaseOf(file).set.size());
    if (FileExists(InProject(target))) {
        ShowMessage(Text(kRefusedWord) + " " + Text(kNewNameTitle) + " " + Text(kTakenText),
                    Text(kCopyTitle), Icon::Exclamation);
        return false;
    }
    return CopyFile(InProject(file), InProject(target)) ||
           TellFile(kNotWrittenText, target, kCopyTitle);
}

bool RedefineDefault() {
    const std::string question = Text(kRedefineQuestion) + " " + Text(kFromNowOn) + " ?";
    if (!IsShape(session.ActiveShape)) return false;
    if (!CurrentPrompts().AskYesNo(question, kProgramTitle)) return false;
    const std::string family(WordsOf(session.ActiveShape).folder);
    const std::string name = TemplateName(session.ActiveShape, session.ActiveCaseNo);
    const Slot slot{session.ActiveShape, session.ActiveCaseNo};
    return CopyFile(SlotPropertyFile(slot), JoinPath(InProject(family), name)) ||
           TellFile(kNotWrittenText, name, kSaveTitle);
}

}  // namespace verandis
