#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "fuzzing.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis::fuzzing {
namespace {

/// The library's own reader, in the "C" locale of this process, must see the same number in the
/// part that was taken.
void CheckReading(std::string_view text) {
    std::string_view rest = text;
    const double value = TakeNumber(rest);
    Require(text.ends_with(rest), "what is left is the end of the text");
    const std::string taken(text.substr(0, text.size() - rest.size()));
    Require(value == std::strtod(taken.c_str(), nullptr), "a number is read exactly");
    Require(value == PlainNumber(text), "both ways of reading give the same");
    Require(!std::isnan(ToNumber(text)), "a text is never read as no number");
    Require(!IsDigitsOnly(text) || rest.empty(), "digits are read to their end");
    IsNumberKey(text);
    IsNumberText(text, DecimalMode::Comma);
    PointToDecimal(text, DecimalMode::Comma);
}

/// The fields of a line at once must be the same as one by one.
void CheckFields(std::string_view line) {
    std::array<double, 5> together{};
    FieldNumbers(line, '\t', together);
    for (const double value : together) {
        Require(value == PlainNumber(TakeUpTo(line, '\t')),
                "fields are read as they are one by one");
    }
}

/// Beyond these bounds the digits shown cannot hold a double.
bool IsOrdinary(double value) {
    return std::isfinite(value) && std::abs(value) < 1e307 && std::abs(value) > 1e-300;
}

void CheckWriting(double value) {
    WholeNumber(value);
    FixedText(value, 3);
    const std::string text = NumberText(value);
    if (!IsOrdinary(value)) return;
    const double again = PlainNumber(text);
    Require(std::abs(again - value) <= 5.2e-15 * std::abs(value), "15 digits are kept");
    Require(NumberText(again) == text, "a number that was read is written the same");
    const auto single = static_cast<float>(value);
    if (!std::isnormal(single) || std::abs(single) > 1e38f) return;
    const double shown = PlainNumber(NumberText(single));
    Require(std::abs(shown - double(single)) <= 5.1e-7 * std::abs(double(single)),
            "7 digits are kept");
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    CheckReading(TextOf(data, size));
    CheckFields(TextOf(data, size));
    double value = 0;
    std::memcpy(&value, data, std::min(size, sizeof value));
    CheckWriting(value);
    CheckWriting(verandis::PlainNumber(TextOf(data, size)));
    return 0;
}
