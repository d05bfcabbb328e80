#include "libraries/case_usage.h"

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/separators.h"

namespace verandis {
namespace {

/// Items end at a comma or at the line's end; what counts is the text behind an item's first TAB.
bool LineUses(std::string_view line, std::string_view name) {
    while (!line.empty()) {
        const std::string_view value = RightOfSeparator(TakeUpTo(line, ','), "\t");
        if (!value.empty() && value.find(name) != std::string_view::npos) return true;
    }
    return false;
}

bool FileUses(const std::string& path, std::string_view name) {
    const auto lines = ReadLines(path);
    if (!lines) return false;
    for (const std::string& line : *lines) {
        if (LineUses(line, name)) return true;
    }
    return false;
}

std::string LabelOf(const Slot& slot) {
    constexpr int kCaseWord = 57;
    return TextFor(kCaseWord, 1) + " : " + Text(WordsOf(slot.shape).textNumber) + " " +
           std::to_string(slot.caseNo);
}

}  // namespace

std::string FindCaseUsing(std::string_view name) {
    for (const Slot& slot : AllSlots()) {
        const std::string folder = JoinPath(session.ProjectFolder, SlotFolderName(slot));
        if (FileUses(JoinPath(folder, kPropertyFileName), name)) return LabelOf(slot);
    }
    for (const std::string& file : ListFiles(session.ProjectFolder, "*.Cas")) {
        if (FileUses(JoinPath(session.ProjectFolder, file), name)) return "saved case : " + file;
    }
    return "";
}

}  // namespace verandis
