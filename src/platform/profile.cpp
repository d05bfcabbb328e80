#include "platform/profile.h"

#include <cstdlib>
#include <vector>

#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"

namespace verandis {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// The name inside "[ ]"; nothing for another line.
std::optional<std::string_view> SectionName(std::string_view line) {
    line = TrimBlanks(line);
    if (!line.starts_with('[') || !line.ends_with(']')) return std::nullopt;
    return TrimBlanks(line.substr(1, line.size() - 2));
}

std::string_view Unquoted(std::string_view value) {
    value = TrimBlanks(value);
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Where a key stands, or would have to be put.
struct Place {
    bool sectionFound = false;
    bool keyFound = false;
    std::size_t line = 0;  // the key's line, or the one behind the section's last filled line
};

Place FindKey(const std::vector<std::string>& lines, std::string_view section,
              std::string_view key) {
    Place place{false, false, lines.size()};
    bool inside = false;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (const auto name = SectionName(lines[at])) {
            inside = !place.sectionFound && EqualNoCase(*name, section);
            if (inside) place = {true, false, at + 1};
            continue;
        }
        if (!inside || TrimBlanks(lines[at]).empty()) continue;
        place.line = at + 1;
        const std::size_t sign = lines[at].find('=');
        if (sign == std::string::npos) continue;
        if (EqualNoCase(TrimBlanks(std::string_view(lines[at]).substr(0, sign)), key)) {
            return {true, true, at};
        }
    }
    return place;
}

}  // namespace

std::string HomeFolder() {
    return Environment("HOME");
}

std::string ConfigFolder() {
    // The current folder changes with the project; a relative setting means the one at the start.
    static const std::string startFolder = AbsolutePath(".");
    const auto absolute = [&](const std::string& path) {
        return path.starts_with('/') ? path : JoinPath(startFolder, path);
    };
    const std::string own = Environment("VERANDIS_CONFIG_DIR");
    if (!own.empty()) return absolute(own);
    const std::string shared = Environment("XDG_CONFIG_HOME");
    if (!shared.empty()) return JoinPath(absolute(shared), "verandis");
    return JoinPath(JoinPath(HomeFolder(), ".config"), "verandis");
}

std::optional<std::string> ReadProfile(std::string_view file, std::string_view section,
                                       std::string_view key) {
    const auto lines = ReadUtf8Lines(JoinPath(ConfigFolder(), file));
    if (!lines) return std::nullopt;
    const Place place = FindKey(*lines, section, key);
    if (!place.keyFound) return std::nullopt;
    const std::string_view line = (*lines)[place.line];
    return std::string(Unquoted(line.substr(line.find('=') + 1)));
}

bool WriteProfile(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
    const std::string path = JoinPath(ConfigFolder(), file);
    auto lines = ReadUtf8Lines(path).value_or(std::vector<std::string>{});
    const Place place = FindKey(lines, section, key);
    const std::string line = key + "=" + value;
    if (place.keyFound) {
        lines[place.line] = line;
    } else {
        auto where = lines.begin() + static_cast<std::ptrdiff_t>(place.line);
        if (!place.sectionFound) where = lines.insert(where, "[" + section + "]") + 1;
        lines.insert(where, line);
    }
    return MakeFolders(ConfigFolder()) && WriteUtf8Lines(path, lines);
}

}  // namespace verandis
