#pragma once

#include <optional>
#include <string>
#include <vector>

#include "case/shapes.h"

// Cases kept beyond the working slots: files "NAME!U1.CAS" in the project folder, one slot each. A
// set is the files of one name. A file holds the slot's properties and its results, each behind a
// line with a marker.

namespace verandis {

inline constexpr std::size_t kLongestSetName = 20;  // characters

/// A saved case by its file name.
struct SavedCase {
    std::string file;  // "NAME!U1.CAS"
    std::string set;   // "NAME", which may be empty
    Slot slot;         // where it belongs; shape 0 when the name does not tell
};

/// The parts of a file name. The mark of the slot is the two characters behind the last "!", in
/// front of the point.
SavedCase SavedCaseOf(const std::string& file);

/// The saved cases of the open project, by name.
std::vector<SavedCase> SavedCases();

/// A saved case as the lists show it.
struct SavedCaseRow {
    std::string file;
    std::string set;   // in words when it has no name; the file when that tells no slot
    std::string slot;  // "U-shape 1", "-" when the file name does not tell
    std::string note;  // of the saved case, empty when it has none
};

/// The saved cases of the open project as rows, by name.
std::vector<SavedCaseRow> SavedCaseRows();

/// "U-shape 1" in the session's language.
std::string SlotCaption(const Slot& slot);

/// The note of a slot of the open project; empty without one.
std::string NoteOfSlot(const Slot& slot);

/// True when the case list of the open project has the slot.
bool ProjectHasSlot(const Slot& slot);

/// Number of the catalogue text that refuses a trimmed set name, 0 for a good one. An empty name is
/// good.
int RefusalOfSetName(const std::string& name);

/// Asks for a set's name until it is good; trimmed. Nothing after a cancel.
std::optional<std::string> AskSetName();

/// Saves the slots under a name, over earlier files. Ends with the slot open that the window edits.
/// False after the first file that cannot be written, which a message tells. `written` takes the
/// slots that are on disk, also then; one that the project does not have is left out.
bool SaveSlots(const std::string& name, const std::vector<Slot>& slots,
               std::vector<Slot>* written = nullptr);

/// Asks for a name and saves the slots under it. Tells what was saved ("Saved in the set A: U1,
/// U2"); empty when nothing was.
std::string SaveUnderAskedName(const std::vector<Slot>& slots);

/// The property lines of a saved case; empty without their marker, nothing without the file.
std::optional<std::vector<std::string>> SavedProperties(const std::string& file);

/// Asks, then puts the properties of a saved case into a slot's property file; results are left as
/// they are. A file without markers empties the slot. `slot` is that of the name when it is left
/// out. True when loaded.
bool LoadSavedCase(const std::string& file, std::optional<Slot> slot = std::nullopt);

/// Asks, then deletes a saved case. False after a no, and after a message when the file stays.
bool DeleteSavedCase(const std::string& file);

/// Asks for a new set name and copies the saved case under it, never over another. The file name of
/// the copy; nothing after a cancel or a message.
std::optional<std::string> CopySavedCase(const std::string& file);

/// The file name with the mark of another slot in place of its own, or in front of the ending when
/// it has none.
std::string FileInSlot(const std::string& file, const Slot& slot);

/// Copies the saved case to another slot of its set, never over another. The file name of the copy;
/// nothing after a message.
std::optional<std::string> CopySavedCase(const std::string& file, const Slot& slot);

/// Asks, then makes the active slot's properties the template from which every later start makes
/// that slot.
bool RedefineDefault();

/// What `RedefineDefault` means for the active slot, in words; that no case is open without one.
std::string RedefineExplanation();

}  // namespace verandis
