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

/// The parts of a file name; the mark of the slot stands behind the last "!".
SavedCase SavedCaseOf(const std::string& file);

/// The saved cases of the open project, by name.
std::vector<SavedCase> SavedCases();

/// Number of the catalogue text that refuses a trimmed set name, 0 for a good one. An empty name is
/// good.
int RefusalOfSetName(const std::string& name);

/// Asks for a set's name until it is good; trimmed. Nothing after a cancel.
std::optional<std::string> AskSetName();

/// Saves the slots under a name, over earlier files. Ends with the slot open that the window edits.
/// False after the first file that cannot be written, which a message tells.
bool SaveSlots(const std::string& name, const std::vector<Slot>& slots);

/// The property lines of a saved case; empty without their marker, nothing without the file.
std::optional<std::vector<std::string>> SavedProperties(const std::string& file);

/// Asks, then puts the properties of a saved case into a slot's property file; results are left as
/// they are. A file without markers empties the slot. `slot` is that of the name when it is left
/// out. True when loaded.
bool LoadSavedCase(const std::string& file, std::optional<Slot> slot = std::nullopt);

/// Asks, then deletes a saved case.
bool DeleteSavedCase(const std::string& file);

/// Asks for a new set name and copies the saved case under it, never over another.
bool CopySavedCase(const std::string& file);

/// Asks, then makes the active slot's properties the template from which every later start makes
/// that slot.
bool RedefineDefault();

}  // namespace verandis
