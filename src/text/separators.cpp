#include "text/separators.h"

#include "text/characters.h"

namespace verandis {

std::string_view LeftOfSeparator(std::string_view text, std::string_view separator) {
    return text.substr(0, text.find(separator));
}

std::string_view RightOfSeparator(std::string_view text, std::string_view separator) {
    const std::size_t at = text.find(separator);
    return at == std::string_view::npos ? std::string_view{} : text.substr(at + separator.size());
}

std::string_view TakeUpTo(std::string_view& rest, char separator) {
    const std::size_t at = rest.find(separator);
    const std::string_view part = rest.substr(0, at);
    rest = at == std::string_view::npos ? std::string_view{} : rest.substr(at + 1);
    return part;
}

std::string_view TakeLine(std::string_view& rest) {
    std::string_view line = TakeUpTo(rest, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

int FindListRow(const std::vector<std::string>& rows, std::string_view text) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (ContainsNoCase(rows[row], text)) return static_cast<int>(row);
    }
    return -1;
}

}  // namespace verandis
