#include "projects/saved_cases.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "case/slot_files.h"
#include "platform/clock.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "projects/case_list.h"
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
    kNotReadText = 902,
    kNotDeletedText = 905,
    kSavedInSet = 906,
    kNamelessText = 907,
    kNoCaseOpen = 963,
    kRedefineText = 998
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

std::string NoteIn(const std::vector<std::string>& properties) {
    const std::string note = PropertyIn(properties, "CASE", "NOTE");
    return note == kNotSet ? "" : std::string(TrimBlanks(note));
}

/// The text with `word` in place of its "%1".
std::string WithWord(std::string text, const std::string& word) {
    constexpr std::string_view kPlace = "%1";
    const std::size_t at = text.find(kPlace);
    return at == std::string::npos ? text : text.replace(at, kPlace.size(), word);
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

std::optional<std::string> CopyInProject(const std::string& file, const std::string& target) {
    if (FileExists(InProject(target))) {
        ShowMessage(Text(kRefusedWord) + " " + Text(kNewNameTitle) + " " + Text(kTakenText),
                    Text(kCopyTitle), Icon::Exclamation);
        return std::nullopt;
    }
    if (CopyFile(InProject(file), InProject(target))) return target;
    TellFile(kNotWrittenText, target, kCopyTitle);
    return std::nullopt;
}

}  // namespace

SavedCase SavedCaseOf(const std::string& file) {
    SavedCase saved{file, "", {}};
    const std::size_t mark = file.rfind('!');
    if (mark == std::string::npos) return saved;
    saved.set = file.substr(0, mark);
    const std::string behind = file.substr(mark + 1);
    saved.slot = SlotOfLabel(Left(LeftOfSeparator(behind, "."), 2));
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

std::vector<SavedCaseRow> SavedCaseRows() {
    std::vector<SavedCaseRow> rows;
    for (const SavedCase& saved : SavedCases()) {
        SavedCaseRow row{saved.file, saved.file, "-",
                         NoteIn(SavedProperties(saved.file).value_or(std::vector<std::string>{}))};
        if (IsShape(saved.slot.shape)) {
            row.set = saved.set.empty() ? Text(kNamelessText) : saved.set;
            row.slot = SlotCaption(saved.slot);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string SlotCaption(const Slot& slot) {
    return Text(WordsOf(slot.shape).textNumber) + " " + std::to_string(slot.caseNo);
}

std::string NoteOfSlot(const Slot& slot) {
    return NoteIn(ReadLines(SlotPropertyFile(slot)).value_or(std::vector<std::string>{}));
}

bool ProjectHasSlot(const Slot& slot) {
    return FindCase(SlotCaseName(slot)).has_value();
}

int RefusalOfSetName(const std::string& name) {
    if (name.find_first_of(" *?") != std::string::npos || NameClimbs(name) ||
        !SurvivesCodePage(name))
        return kBadNameText;
    return Length(name) > kLongestSetName ? kLongNameText : 0;
}

std::optional<std::string> AskSetName() {
    return AskName(kSaveTitle, kSaveTitle);
}

bool SaveSlots(const std::string& name, const std::vector<Slot>& slots,
               std::vector<Slot>* written) {
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
        if (written) written->push_back(slot);
    }
    ReactivateEditedSlot();
    return all;
}

std::string SaveUnderAskedName(const std::vector<Slot>& slots) {
    const auto name = AskSetName();
    if (!name) return "";
    std::vector<Slot> written;
    SaveSlots(*name, slots, &written);
    if (written.empty()) return "";
    std::string told = WithWord(Text(kSavedInSet), name->empty() ? Text(kNamelessText) : *name);
    for (const Slot& slot : written) {
        told += (slot == written.front() ? " " : ", ") + SlotLabel(slot);
    }
    return told;
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
    return DeleteFile(InProject(file)) || TellFile(kNotDeletedText, file, kDeleteWord);
}

std::optional<std::string> CopySavedCase(const std::string& file) {
    const auto name = AskName(kNewNameTitle, kCopyTitle);
    if (!name) return std::nullopt;
    const std::size_t mark = file.rfind('!');
    return CopyInProject(file, *name + (mark == std::string::npos ? kEnding : file.substr(mark)));
}

std::string FileInSlot(const std::string& file, const Slot& slot) {
    const std::size_t mark = file.rfind('!');
    const std::size_t point = file.find('.', mark == std::string::npos ? file.rfind('.') : mark);
    const std::string ending = point == std::string::npos ? kEnding : file.substr(point);
    return file.substr(0, std::min(mark, point)) + "!" + SlotLabel(slot) + ending;
}

std::optional<std::string> CopySavedCase(const std::string& file, const Slot& slot) {
    return CopyInProject(file, FileInSlot(file, slot));
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

std::string RedefineExplanation() {
    if (!IsShape(session.ActiveShape)) return Text(kNoCaseOpen);
    return WithWord(Text(kRedefineText), SlotCaption({session.ActiveShape, session.ActiveCaseNo}));
}

}  // namespace verandis
