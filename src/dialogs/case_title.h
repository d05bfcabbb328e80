#pragma once

#include <string>
#include <string_view>

// Words that the dialogs of a case share.

namespace verandis {

/// Caption of a dialog of the active case: the text, then shape and case in parentheses:
/// "Dimensions(U-shape/case index 1)". An unknown shape has no word.
std::string CaseDialogTitle(int text, int shape);

/// The other caption of a dialog of the active slot: "Set points (U-shape/Case index 1)". The I
/// shape counts by "number".
std::string CountedCaseTitle(int text);

/// Catalogue text of the shape's word in the session's language; empty for an unknown shape.
std::string ShapeWord(int shape);

/// `text` with `value` in the place of `mark` ("%1"); unchanged when the mark is not there.
std::string WithValue(std::string text, std::string_view mark, std::string_view value);

}  // namespace verandis
