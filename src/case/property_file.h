#pragma once

#include <string>
#include <string_view>
#include <vector>

// The small text file in which a case slot keeps all that the designer has entered: one row a line,
// section, "_", key, TAB, value. Each call opens, reads and closes the file of the open case
// (`session.CaseFolder`); nothing is kept between calls.

namespace verandis {

inline constexpr const char* kPropertyFileName = "SimpPropertiesOfCase.Dat";

/// What a read gives for a row that is not there; also a legal stored value with the same meaning.
inline constexpr std::string_view kNotSet = "-999999";

/// The value of a row of the open case, `kNotSet` when there is none. Staged rows come first: they
/// are compared exactly, and the last one wins. In the file a line matches when it holds both words
/// anywhere, value included, without regard to letter case, and the first line wins; so a short
/// element id finds the row of the long one. A missing file shows "No File exist" and leaves
/// `value` as it was.
void GetCaseProperty(std::string_view section, std::string_view key, std::string& value);

/// Sets a row by the same search in the file; the name of a row that exists stays as it is, and the
/// order of lines is kept. While `session.ElementKindMark` is 1 or more it is written behind the
/// value. True when stored: a missing file is passed over without a word, a file that cannot be
/// written shows a message.
bool SetCaseProperty(const std::string& section, const std::string& key, const std::string& value);

/// The value of a row in these lines of a property file, found as `GetCaseProperty` finds it in the
/// file; `kNotSet` when there is none.
std::string PropertyIn(const std::vector<std::string>& lines, std::string_view section,
                       std::string_view key);

/// Puts a row into the session's table of staged edits, in place of one with the same names.
void StageCaseProperty(const std::string& section, const std::string& key,
                       const std::string& value);

/// Stores all staged rows in order and empties the table. Stops at the first that cannot be
/// written, after its message, and keeps them all; a missing file takes them without a word.
bool FlushStagedProperties();

/// Empties the table of staged edits without storing.
void DiscardStagedProperties();

/// A value such as "Name, 2" in its parts.
struct NameAndKind {
    std::string name;      // in front of the first comma, as it stands
    int kind = 0;          // number behind it, 0 without a comma
    bool hasKind = false;  // whether there is a comma
};
NameAndKind SplitKind(std::string_view value);

/// Path of the open case's property file.
std::string PropertyFilePath();

}  // namespace verandis
