#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace verandis {

/// The visible words of the system by number. An entry is a line "number, text"; only the first
/// comma separates, and "Chr13" in the text stands for a line break (CR). The number is that of the
/// language times 10000 plus that of the text. Of several lines with one number the first wins.
class Catalogue {
public:
    Catalogue() = default;
    explicit Catalogue(const std::vector<std::string>& lines);

    /// The text of the full number as the line holds it, without the blanks on its left; empty when
    /// there is none.
    const std::string& Entry(int number) const;

    bool empty() const { return entries_.empty(); }

    /// The full numbers, in no order.
    std::vector<int> Numbers() const;

private:
    std::unordered_map<int, std::string> entries_;
};

/// Part `role` (from 1) of a text that serves two places, its wordings parted by "|". The whole
/// text when it holds no "|", empty when it has no such part.
std::string TextRole(std::string_view text, int role);

}  // namespace verandis
