#include "text/catalogue.h"

#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

constexpr std::string_view kBreakMark = "Chr13";

std::string WithBreaks(std::string_view text) {
    std::string result;
    while (true) {
        const std::size_t at = text.find(kBreakMark);
        result += text.substr(0, at);
        if (at == std::string_view::npos) return result;
        result += '\r';
        text.remove_prefix(at + kBreakMark.size());
    }
}

}  // namespace

Catalogue::Catalogue(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        if (line.find(',') == std::string::npos) continue;
        const int number = WholeNumber(PlainNumber(LeftOfSeparator(line, ",")));
        entries_.emplace(number, WithBreaks(TrimLeadingBlanks(RightOfSeparator(line, ","))));
    }
}

const std::string& Catalogue::Entry(int number) const {
    static const std::string nothing;
    const auto entry = entries_.find(number);
    return entry == entries_.end() ? nothing : entry->second;
}

std::vector<int> Catalogue::Numbers() const {
    std::vector<int> numbers;
    for (const auto& [number, text] : entries_) numbers.push_back(number);
    return numbers;
}

std::string TextRole(std::string_view text, int role) {
    if (text.find('|') == std::string_view::npos) return std::string(text);
    std::string_view part;
    for (int each = 0; each < role; ++each) part = TakeUpTo(text, '|');
    return std::string(TrimBlanks(part));
}

}  // namespace verandis
