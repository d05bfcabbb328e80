#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verandis {

/// Why an input file cannot be used.
struct ClimateFault {
    int line = 0;        // from 1; 0 when no single line is to blame
    std::string field;   // empty when the whole line is meant
    std::string reason;  // what was found and what was expected
};

/// A value that can be doubted; the reason tells what was done about it.
struct ClimateDoubt {
    int line = 0;
    std::string field;
    std::string value;
    std::string reason;
};

/// "FILE line 12, field 7 (dry bulb temperature): reason", without what is not known.
std::string FaultText(const std::string& file, const ClimateFault& fault);

/// The number that the whole text is, blanks around it aside; a decimal comma is taken too. Nothing
/// for any other text and for numbers too large to hold.
std::optional<double> WholeTextNumber(std::string_view text);

/// A piece of a file for a message: in quotes, cut when long, control characters shown as "?".
std::string Quoted(std::string_view text);

/// A text of one line for a header: TABs, colons and control characters become blanks, so that it
/// can never be taken for a header key; blanks at the ends are off.
std::string HeaderText(std::string_view text);

/// True when the bytes of the text are well formed UTF-8.
bool IsUtf8(std::string_view text);

/// Empty when `base` can name a pair of climate files, otherwise a sentence that tells why not.
std::string CheckBaseName(std::string_view base);

/// Empty when the site can stand, otherwise a sentence that names the value out of its bounds.
std::string CheckCoordinates(double latitude, double longitude, double timeMeridian);

}  // namespace verandis
