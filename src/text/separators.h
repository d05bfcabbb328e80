#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace verandis {

/// The part in front of the first separator; the whole text when it does not hold one.
std::string_view LeftOfSeparator(std::string_view text, std::string_view separator);

/// The part behind the first separator; empty when the text does not hold one.
std::string_view RightOfSeparator(std::string_view text, std::string_view separator);

/// Cuts the part in front of the first separator off `rest`, which moves on behind it. Without a
/// separator the whole rest is the part and the rest becomes empty.
std::string_view TakeUpTo(std::string_view& rest, char separator);

/// Cuts the next line off `rest`: ended by CR LF, LF or the end of the text, and without its end.
std::string_view TakeLine(std::string_view& rest);

/// Index of the first row that contains the text, without regard to letter case, -1 when none does.
/// An empty text is contained in the first row.
int FindListRow(const std::vector<std::string>& rows, std::string_view text);

}  // namespace verandis
