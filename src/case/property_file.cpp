#include "case/property_file.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "app/session.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

constexpr const char* kMissingFile = "No File exist";

const StagedProperty* FindStaged(std::string_view section, std::string_view key) {
    const auto& table = session.CasePropertyTable;
    const auto row = std::find_if(table.rbegin(), table.rend(), [&](const StagedProperty& each) {
        return each.section == section && each.key == key;
    });
    return row == table.rend() ? nullptr : &*row;
}

/// Words to look for, in lower case, as bytes of the file's encoding.
struct Words {
    std::string section;
    std::string key;
};

Words SearchWords(std::string_view section, std::string_view key) {
    Words words;
    LowerWindows1252(ToWindows1252(section), words.section);
    LowerWindows1252(ToWindows1252(key), words.key);
    return words;
}

/// The line that byte `at` lies in, without its end.
std::string_view LineAround(std::string_view text, std::size_t at) {
    const std::size_t before = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
    const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
    return text.substr(start, text.find('\n', at) - start);
}

/// The first line of `lower` that holds both words, whatever their order.
std::optional<std::string_view> FirstLineWith(std::string_view lower, const Words& words) {
    const std::boyer_moore_horspool_searcher section(words.section.begin(), words.section.end());
    auto from = lower.begin();
    while (true) {
        const auto hit = std::search(from, lower.end(), section);
        if (hit == lower.end() && !words.section.empty()) return std::nullopt;
        const std::string_view line =
            LineAround(lower, static_cast<std::size_t>(hit - lower.begin()));
        if (line.find(words.key) != std::string_view::npos) return line;
        from = lower.begin() + (line.data() + line.size() - lower.data());
        if (from == lower.end()) return std::nullopt;
        ++from;
    }
}

std::string_view WithoutLineEnd(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    return TrimBlanks(line);
}

std::string StoredForm(const std::string& value) {
    if (session.ElementKindMark < 1) return value;
    return value + "," + NumberText(double(session.ElementKindMark));
}

}  // namespace

std::string PropertyFilePath() {
    return JoinPath(session.CaseFolder, kPropertyFileName);
}

void GetCaseProperty(std::string_view section, std::string_view key, std::string& value) {
    if (const StagedProperty* staged = FindStaged(section, key)) {
        value = staged->value;
        return;
    }
    static std::string bytes;  // their memory serves every read
    static std::string lower;
    if (!ReadBytesInto(PropertyFilePath(), bytes)) {
        ShowMessage(kMissingFile);
        return;
    }
    LowerWindows1252(bytes, lower);
    const auto found = FirstLineWith(lower, SearchWords(section, key));
    if (!found) {
        value = kNotSet;
        return;
    }
    const auto start = static_cast<std::size_t>(found->data() - lower.data());
    const std::string_view line(bytes.data() + start, found->size());
    value = FromWindows1252(RightOfSeparator(WithoutLineEnd(line), "\t"));
}

bool SetCaseProperty(const std::string& section, const std::string& key, const std::string& value) {
    const std::string path = PropertyFilePath();
    auto lines = ReadLines(path);
    if (!lines) return false;
    for (std::string& line : *lines) line = TrimBlanks(line);
    const auto row = std::find_if(lines->begin(), lines->end(), [&](const std::string& line) {
        return ContainsNoCase(line, section) && ContainsNoCase(line, key);
    });
    const std::string stored = "\t" + StoredForm(value);
    if (row != lines->end()) {
        *row = std::string(LeftOfSeparator(*row, "\t")) + stored;
    } else {
        lines->push_back(section + "_" + key + stored);
    }
    for (std::string& line : *lines) line = TrimBlanks(line);
    if (WriteLines(path, *lines)) return true;
    ShowMessage("The file " + path + " cannot be written", kProgramTitle, Icon::Exclamation);
    return false;
}

void StageCaseProperty(const std::string& section, const std::string& key,
                       const std::string& value) {
    for (StagedProperty& row : session.CasePropertyTable) {
        if (row.section == section && row.key == key) {
            row.value = value;
            return;
        }
    }
    session.CasePropertyTable.push_back({section, key, value});
}

void FlushStagedProperties() {
    const std::vector<StagedProperty> rows = session.CasePropertyTable;
    for (const StagedProperty& row : rows) SetCaseProperty(row.section, row.key, row.value);
    DiscardStagedProperties();
}

void DiscardStagedProperties() {
    session.CasePropertyTable.clear();
}

NameAndKind SplitKind(std::string_view value) {
    NameAndKind parts;
    parts.name = LeftOfSeparator(value, ",");
    parts.hasKind = value.find(',') != std::string_view::npos;
    parts.kind = WholeNumber(ToNumber(RightOfSeparator(value, ",")));
    return parts;
}

}  // namespace verandis
