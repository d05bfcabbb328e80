#include "app/session.h"
#include "case/property_file.h"
#include "fuzzing.h"
#include "platform/encoding.h"
#include "text/characters.h"
#include "text/separators.h"

// An input is a line "section TAB key TAB value", then the property file.

namespace verandis::fuzzing {
namespace {

struct Row {
    std::string section;
    std::string key;
    std::string value;
};

Row TakeRow(std::string_view& rest) {
    const std::string line = TakeDecodedLine(rest);
    std::string_view parts = line;
    Row row;
    row.section = TakeUpTo(parts, '\t');
    row.key = TakeUpTo(parts, '\t');
    row.value = parts;
    return row;
}

bool IsWord(const std::string& text) {
    return !text.empty() && TrimBlanks(text) == text && text.find('\r') == std::string::npos;
}

/// The plain way to find a value: line by line.
std::string PlainSearch(std::string_view file, const Row& wanted) {
    for (const std::string& bytes : LinesOf(file)) {
        const std::string line = FromWindows1252(bytes);
        if (!ContainsNoCase(line, wanted.section) || !ContainsNoCase(line, wanted.key)) continue;
        return std::string(RightOfSeparator(TrimBlanks(line), "\t"));
    }
    return std::string(kNotSet);
}

void CheckFile(std::string_view file, const Row& row) {
    session = {};
    session.CaseFolder = Scratch();
    WriteScratch(kPropertyFileName, file);
    std::string before;
    GetCaseProperty(row.section, row.key, before);
    if (!IsWord(row.section) || !IsWord(row.key)) return;
    Require(before == PlainSearch(file, row), "the first line with both words gives the value");
    Require(SetCaseProperty(row.section, row.key, row.value), "a value is stored");
    std::string after;
    GetCaseProperty(row.section, row.key, after);
    if (PlainSearch(file, row) != kNotSet) return;  // the words may have stood in the old value
    const std::string line = row.section + "_" + row.key + "\t" + row.value;
    Require(after == RightOfSeparator(TrimBlanks(line), "\t"), "a new row reads as it was stored");
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    std::string_view rest = TextOf(data, size);
    const Row row = TakeRow(rest);
    const auto parts = verandis::SplitKind(row.value);
    Require(row.value.starts_with(parts.name), "the name is the front of the value");
    CheckFile(rest, row);
    return 0;
}
