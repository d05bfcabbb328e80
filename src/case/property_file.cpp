#include "case/property_file.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "app/program_text.h"
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
constexpr int kNotWritten = 475;

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
    std::size_t from = 0;
    while (true) {
        const std::size_t hit = lower.find(words.section, from);
        if (hit == std::string_view::npos) return std::nullopt;
        const std::string_view line = LineAround(lower, hit);
        if (line.find(words.key) != std::string_view::npos) return line;
        from = static_cast<std::size_t>(line.data() + line.size() - lower.data()) + 1;
        if (from > lower.size()) return std::nullopt;
    }
}

/// The same line as it stands in the file. The file is taken in blocks of whole lines, since most
/// reads find their row in the first of them.
std::optional<std::string_view> FindLine(std::string_view bytes, const Words& words) {
    constexpr std::size_t kBlock = 640;
    static std::string lower;  // its memory serves every read
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n', std::min(kBlock, bytes.size()));
        const std::string_view block = bytes.substr(0, end);
        LowerWindows1252(block, lower);
        if (const auto found = FirstLineWith(lower, words)) {
            const auto start = static_cast<std::size_t>(found->data() - lower.data());
            return block.substr(start, found->size());
        }
        if (end == std::string_view::npos) return std::nullopt;
        bytes.remove_prefix(end + 1);
    }
    return std::nullopt;
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

std::string PropertyIn(const std::vector<std::string>& lines, std::string_view section,
                       std::string_view key) {
    const auto row = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
        return ContainsNoCase(line, section) && ContainsNoCase(line, key);
    });
    if (row == lines.end()) return std::string(kNotSet);
    return std::string(RightOfSeparator(TrimBlanks(*row), "\t"));
}

std::string PropertyFilePath() {
    return JoinPath(session.CaseFolder, kPropertyFileName);
}

void GetCaseProperty(std::string_view section, std::string_view key, std::string& value) {
    if (const StagedProperty* staged = FindStaged(section, key)) {
        value = staged->value;
        return;
    }
    const auto bytes = ReadView(PropertyFilePath());
    if (!bytes) {
        ShowMessage(kMissingFile);
        return;
    }
    const auto line = FindLine(*bytes, SearchWords(section, key));
    if (line) {
        value = FromWindows1252(RightOfSeparator(WithoutLineEnd(*line), "\t"));
    } else {
        value = kNotSet;
    }
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
    ShowMessage(Text(kNotWritten) + " " + path, kProgramTitle, Icon::Exclamation);
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

bool FlushStagedProperties() {
    for (const StagedProperty& row : session.CasePropertyTable) {
        const bool stored = SetCaseProperty(row.section, row.key, row.value);
        if (!stored && FileExists(PropertyFilePath())) return false;
    }
    DiscardStagedProperties();
    return true;
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
