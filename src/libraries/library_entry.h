#pragma once

#include <optional>
#include <string>

#include "libraries/text_table.h"

// What the dialogs of the simple window and wall libraries check, store, add and delete. The tables
// live in memory only.

namespace verandis {

/// Names of a type have at least 6 and at most 23 characters; a table holds at most 30 types.
inline constexpr int kShortestTypeName = 6;
inline constexpr int kLongestTypeName = 23;
inline constexpr int kMostTypes = 30;

/// The entry fields of a window type as they are typed.
struct WindowEntry {
    std::string TT;  // transmittance, whole percent
    std::string TR;  // reflectance, whole percent
    std::string TA;  // absorptance, whole percent
    std::string TU;  // U value, W/m2K, with the session's decimal sign
    std::string TN;  // number of panes
};

/// What is wrong with an entry: the message, empty when nothing is, and the field to go to.
struct EntryComplaint {
    std::string text;     // lines ended by CR
    std::string control;  // name of the field's control
    bool empty() const { return text.empty(); }
};

/// Checks the fields of a window type against each other and against `MaxPanes`.
EntryComplaint CheckWindowEntry(const WindowEntry& entry);

/// Checks the U value of a wall type.
EntryComplaint CheckWallEntry(const std::string& TU);

/// Shows a complaint as the dialogs do.
void ShowComplaint(const EntryComplaint& complaint);

/// A row of a window table as the fields show it; empty fields for a row that is not there.
WindowEntry ShownWindow(const TextTable& table, int row);

/// Stores a checked entry into a row: percentages as fractions, numbers as number text.
void StoreWindowEntry(TextTable& table, int row, const WindowEntry& entry);

/// The U value of a wall as the field shows it, and its storing.
std::string ShownWallU(const TextTable& table, int row);
void StoreWallEntry(TextTable& table, int row, const std::string& TU);

/// Which of the two libraries an operation works on; carries their texts.
enum class TypeKind { Window, Wall };

/// True when one more type fits; otherwise shows the limit.
bool RoomForType(TypeKind kind, const TextTable& table);

/// Adds a row and asks for its name until the answer has a legal length. The new row's number;
/// 0 after a cancel or an empty answer, when the row is gone again.
int AddNamedType(TypeKind kind, TextTable& table);

enum class DeleteResult { Deleted, LastRow, InUse };

/// Deletes a type that no case uses; the last row is kept in silence, a used one with a message.
DeleteResult DeleteType(TypeKind kind, TextTable& table, int row);

}  // namespace verandis
