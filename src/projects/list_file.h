#pragma once

#include <functional>
#include <optional>
#include <string>

namespace verandis {

/// What becomes of one line of a list: the text to write in its place, or nothing to leave it out.
using LineChange = std::function<std::optional<std::string>(const std::string& trimmedLine)>;

/// Rewrites an existing list through a temporary file beside it, of the same name with the ending
/// ".XXX": the changed copy is written whole, then the list is deleted and the copy renamed. Does
/// nothing when the list is missing. False when a step failed; before the deletion the list is
/// untouched then. `linesLeft`, when given, receives the number of filled lines written.
bool ReplaceList(const std::string& folder, const std::string& listName, const LineChange& change,
                 std::size_t* linesLeft = nullptr);

}  // namespace verandis
