#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Groups of building elements that a dialog gives one type, and what a case tells about them.

namespace verandis {

/// Most elements that a group has.
inline constexpr std::size_t kMostInGroup = 6;

/// What is entered for a group beside its wall type.
enum class GroupMode {
    Plain,   // "0": nothing more
    Window,  // "1": a share of window, the window type, the absorptance of all inner walls
    Floor    // "0F": the absorptance of the floor
};

/// One group: an option of a dialog.
struct ElementGroup {
    const char* option;  // objectName
    std::uint16_t code;
    GroupMode mode;
    int caption;  // catalogue text
    // Short identifiers in the order of storing; unused places are empty.
    std::array<std::string_view, kMostInGroup> elements;
    std::size_t read = 0;     // place of the element that tells the group's present type
    bool eitherKind = false;  // may be a window or a wall type; its value carries the kind

    std::span<const std::string_view> Elements() const;
    std::string ReadElement() const { return std::string(elements[read]); }
};

/// The group with this code, null when there is none.
const ElementGroup* FindGroup(std::span<const ElementGroup> groups, std::uint16_t code);

/// Whole identifier ("XU204-W") of a short one; the short one itself when no shape has it.
std::string WholeId(std::string_view shortId);

/// Whole identifiers of a group's elements, parted by ", ".
std::string ElementList(const ElementGroup& group);

/// The present value of a row of the open case, staged rows included; empty when it is not set.
/// Unlike a plain read it shows no message when the case has no file.
std::string QuietProperty(std::string_view section, std::string_view key);

/// The present types of a group as one line: its different names parted by " / ". A name that
/// `library` does not hold is marked, a group without any name gives a dash.
std::string PresentTypes(const ElementGroup& group, std::string_view key,
                         const std::vector<std::string>& library);

/// List position of a row that is shown at first: 0, or -1 in an empty list.
int FirstRow(const std::vector<std::string>& list);

/// The type at a list position, which may be blank; nothing when the list has no such row.
std::optional<std::string> TypeAt(const std::vector<std::string>& list, int row);

/// The figures beside a list, in the session's decimal form; empty for a row that is not there.
std::string ShownWindowU(int row);              // W/m2K
std::string ShownWindowTransmittance(int row);  // percent
std::string ShownWallUValue(int row);           // W/m2K

/// Stores a row of the open case at once. A case without a file takes it without a word; false only
/// when the file cannot be written, after its message.
bool StoreOrPass(const std::string& section, const std::string& key, const std::string& value);

}  // namespace verandis
