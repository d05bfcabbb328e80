#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <system_error>

#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The unsigned decimal number in front of a text: digits with at most one point, then an exponent
/// when digits follow its sign.
struct Scan {
    std::size_t length = 0;      // characters read
    std::uint64_t mantissa = 0;  // the digits as a whole number, while they fit
    int digits = 0;              // count of significant digits
    int decimals = 0;            // digits behind the point
    int exponent = 0;            // of "E", within -9999 to 9999
    bool any = false;            // at least one digit
};

std::size_t ScanMantissa(std::string_view text, Scan& scan) {
    std::size_t at = 0;
    bool pointSeen = false;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (IsDigit(c)) {
            scan.any = true;
            if (scan.digits > 0 || c != '0') ++scan.digits;
            if (scan.digits <= 18) scan.mantissa = scan.mantissa * 10 + std::uint64_t(c - '0');
            if (pointSeen) ++scan.decimals;
        } else if (c == '.' && !pointSeen) {
            pointSeen = true;
        } else {
            break;
        }
    }
    return at;
}

std::size_t ScanExponent(std::string_view text, std::size_t at, Scan& scan) {
    if (at >= text.size() || (text[at] != 'E' && text[at] != 'e')) return at;
    std::size_t next = at + 1;
    const bool negative = next < text.size() && text[next] == '-';
    if (next < text.size() && (text[next] == '+' || text[next] == '-')) ++next;
    if (next >= text.size() || !IsDigit(text[next])) return at;
    for (; next < text.size() && IsDigit(text[next]); ++next) {
        scan.exponent = std::min(scan.exponent * 10 + (text[next] - '0'), 9999);
    }
    if (negative) scan.exponent = -scan.exponent;
    return next;
}

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kLargestExactWhole = std::uint64_t(1) << 53;

/// Exact for the short numbers of data files: both operands are whole numbers that a double holds,
/// so the one division or product rounds once. All others go through the library.
double ValueOf(const Scan& scan, std::string_view text) {
    const int power = scan.exponent - scan.decimals;
    if (scan.digits <= 18 && scan.mantissa <= kLargestExactWhole && power >= -22 && power <= 22) {
        const auto whole = static_cast<double>(scan.mantissa);
        return power < 0 ? whole / kPowersOfTen[-power] : whole * kPowersOfTen[power];
    }
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + scan.length, value);
    if (result.ec == std::errc::result_out_of_range) {
        return power + scan.digits > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return value;
}

/// Adds the digits at the front to `whole` and gives the place behind them.
inline const char* TakeDigits(const char* at, const char* end, std::uint32_t& whole) {
    for (; at != end; ++at) {
        const std::uint32_t digit = static_cast<unsigned char>(*at) - std::uint32_t('0');
        if (digit > 9) break;
        whole = whole * 10 + digit;
    }
    return at;
}

/// The plain numbers that fill data files: at most nine digits, no sign, no exponent. The place
/// behind the number; nullptr for all others.
inline const char* ShortNumber(const char* begin, const char* end, double& value) {
    constexpr std::ptrdiff_t kMostDigits = 9;
    std::uint32_t whole = 0;
    const char* at = TakeDigits(begin, end, whole);
    std::ptrdiff_t digits = at - begin;
    std::ptrdiff_t decimals = 0;
    if (at != end && *at == '.') {
        const char* const first = ++at;
        at = TakeDigits(first, end, whole);
        decimals = at - first;
        digits += decimals;
    }
    // Too many digits have run over; they are read again, by the way for all numbers.
    if (digits == 0 || digits > kMostDigits) return nullptr;
    if (at != end && (*at == 'e' || *at == 'E')) return nullptr;
    value = double(whole) / kPowersOfTen[decimals];
    return at;
}

/// Mantissa digits and decimal exponent of a value that is not zero, at a given precision.
struct Decimal {
    std::string digits;  // no trailing zeros
    int exponent = 0;    // of the first digit
};

template <class Number>
Decimal DecimalOf(Number magnitude, int precision) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, magnitude,
                                   std::chars_format::scientific, precision - 1)
                         .ptr;
    const std::string_view whole(text, static_cast<std::size_t>(end - text));
    const std::size_t mark = whole.find('e');
    Decimal decimal;
    for (const char c : whole.substr(0, mark)) {
        if (IsDigit(c)) decimal.digits += c;
    }
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    std::size_t sign = mark + 1;
    if (whole[sign] == '+') ++sign;
    std::from_chars(text + sign, end, decimal.exponent);
    return decimal;
}

std::string PlainForm(const Decimal& decimal) {
    const auto count = static_cast<int>(decimal.digits.size());
    if (decimal.exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') +
               decimal.digits;
    }
    if (decimal.exponent >= count - 1) {
        return decimal.digits +
               std::string(static_cast<std::size_t>(decimal.exponent - count + 1), '0');
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent + 1);
    return decimal.digits.substr(0, whole) + "." + decimal.digits.substr(whole);
}

std::string ExponentForm(const Decimal& decimal) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
    const int magnitude = std::abs(decimal.exponent);
    text += decimal.exponent < 0 ? "E-" : "E+";
    if (magnitude < 10) text += "0";
    return text + std::to_string(magnitude);
}

template <class Number>
std::string TrimmedText(Number value, int precision) {
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-Inf" : "Inf";
    if (value == Number(0)) return "0";
    const Decimal decimal = DecimalOf(std::abs(value), precision);
    const bool plain = decimal.exponent >= -4 && decimal.exponent < 15;
    return (value < 0 ? "-" : "") + (plain ? PlainForm(decimal) : ExponentForm(decimal));
}

std::string WithLeadingBlank(std::string text) {
    return text.starts_with("-") ? text : " " + text;
}

constexpr int kDoubleDigits = 15;
constexpr int kFloatDigits = 7;

}  // namespace

double TakeNumber(std::string_view& text) {
    double quick = 0;
    const char* const end = text.data() + text.size();
    if (const char* const rest = ShortNumber(text.data(), end, quick)) {
        text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
        return quick;
    }
    std::string_view rest = TrimLeadingBlanks(text);
    const bool negative = rest.starts_with('-');
    if (negative || rest.starts_with('+')) rest.remove_prefix(1);
    Scan scan;
    scan.length = ScanMantissa(rest, scan);
    if (!scan.any) return 0;
    scan.length = ScanExponent(rest, scan.length, scan);
    const double value = ValueOf(scan, rest);
    text = rest.substr(scan.length);
    return negative ? -value : value;
}

void FieldNumbers(std::string_view line, char separator, std::span<double> values) {
    const char* at = line.data();
    const char* const end = at + line.size();
    for (double& value : values) {
        const char* const behind = ShortNumber(at, end, value);
        if (behind && (behind == end || *behind == separator)) {
            at = behind == end ? end : behind + 1;
            continue;
        }
        std::string_view rest(at, static_cast<std::size_t>(end - at));
        value = PlainNumber(TakeUpTo(rest, separator));
        at = end - rest.size();
    }
}

double PlainNumber(std::string_view text) {
    return TakeNumber(text);
}

double ToNumber(std::string_view text) {
    if (text.find(',') == std::string_view::npos) return PlainNumber(text);
    return PlainNumber(DecimalToPoint(text));
}

int WholeNumber(double value) {
    if (std::isnan(value)) return 0;
    // nearbyint follows the rounding mode of the machine, which is "to even" unless changed.
    const double rounded = std::nearbyint(value);
    if (rounded >= static_cast<double>(std::numeric_limits<int>::max())) {
        return std::numeric_limits<int>::max();
    }
    if (rounded <= static_cast<double>(std::numeric_limits<int>::min())) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(rounded);
}

std::string DecimalToPoint(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), ',', '.');
    return result;
}

std::string PointToDecimal(std::string_view text, DecimalMode mode) {
    std::string result(text);
    if (mode == DecimalMode::Comma) std::replace(result.begin(), result.end(), '.', ',');
    return result;
}

std::string TrimmedNumberText(double value) {
    return TrimmedText(value, kDoubleDigits);
}

std::string TrimmedNumberText(float value) {
    return TrimmedText(value, kFloatDigits);
}

std::string NumberText(double value) {
    return WithLeadingBlank(TrimmedNumberText(value));
}

std::string NumberText(float value) {
    return WithLeadingBlank(TrimmedNumberText(value));
}

std::string FixedText(double value, int decimals) {
    if (!std::isfinite(value)) return TrimmedNumberText(value);
    char text[400];
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals).ptr;
    std::string result(text, end);
    const bool zero = result.find_first_not_of("-0.") == std::string::npos;
    return zero && result.starts_with('-') ? result.substr(1) : result;
}

bool IsNumberKey(std::string_view text) {
    int decimalSigns = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        const bool afterExponent = at > 0 && (text[at - 1] == 'E' || text[at - 1] == 'e');
        if (c == '.' || c == ',') {
            if (++decimalSigns > 1) return false;
        } else if (c == '+' || c == '-') {
            if (at > 0 && !afterExponent) return false;
        } else if (c == 'E' || c == 'e') {
            if (at == 0 || text.substr(0, at).find_first_of("Ee") != std::string_view::npos) {
                return false;
            }
        } else if (!IsDigit(c)) {
            return false;
        }
    }
    return true;
}

bool IsNumberText(std::string_view text, DecimalMode mode) {
    const char separator = mode == DecimalMode::Comma ? ',' : '.';
    if (text.size() == 1 && (text[0] == separator || text[0] == '-' || text[0] == '+'))
        return false;
    return std::all_of(text.begin(), text.end(),
                       [&](char c) { return IsDigit(c) || c == separator; });
}

bool IsDigitsOnly(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

}  // namespace verandis
