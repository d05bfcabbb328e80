#pragma once

#include <map>
#include <string>
#include <vector>

// What the two dialogs on the running conditions of a case share: boxes that stand for rows of its
// property file, and what a check of them finds.

namespace verandis {

/// A box and the row of the open case that it stands for.
struct ConditionField {
    const char* control;  // objectName of the box
    const char* section;
    const char* key;
    const char* fallback = "";  // shown when the row is not set
};

/// Texts of boxes by the names of their controls.
using ConditionTexts = std::map<std::string, std::string, std::less<>>;

/// What a check found.
struct ConditionComplaints {
    std::string text;                   // lines ended by CR
    std::string focus;                  // control that gets the focus
    std::vector<std::string> selected;  // controls whose text is to be selected

    bool empty() const { return text.empty(); }
};

/// The row's number in the session's decimal form, or the field's fallback.
std::string ShownCondition(const ConditionField& field);

/// Stores the number of a text, `kNotSet` for an empty one. False when the file cannot be written,
/// after its message; a case without a file takes the value without a word.
bool StoreCondition(const ConditionField& field, const std::string& text);

}  // namespace verandis
