#include "climate/climate_input.h"

#include <algorithm>
#include <cmath>

#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr std::size_t kLongestBase = 11;
constexpr std::size_t kLongestQuote = 40;

bool IsControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

bool IsBaseCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

}  // namespace

std::string FaultText(const std::string& file, const ClimateFault& fault) {
    std::string text = file;
    if (fault.line > 0) text += " line " + std::to_string(fault.line);
    if (!fault.field.empty()) text += ", field " + fault.field;
    return text + ": " + fault.reason;
}

std::optional<double> WholeTextNumber(std::string_view text) {
    const std::string plain = DecimalToPoint(TrimBlanks(text));
    if (plain.empty()) return std::nullopt;
    std::string_view rest = plain;
    const double value = TakeNumber(rest);
    if (!rest.empty() || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::string Quoted(std::string_view text) {
    std::string shown = Left(text, kLongestQuote);
    std::replace_if(shown.begin(), shown.end(), IsControl, '?');
    if (shown.size() < text.size()) shown += "...";
    return "\"" + shown + "\"";
}

std::string HeaderText(std::string_view text) {
    std::string line(text);
    const auto unfit = [](char c) { return IsControl(c) || c == ':'; };
    std::replace_if(line.begin(), line.end(), unfit, ' ');
    return std::string(TrimBlanks(line));
}

bool IsUtf8(std::string_view text) {
    std::size_t following = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (following > 0) {
            if ((byte & 0xC0u) != 0x80u) return false;
            --following;
        } else if (byte >= 0xF0u && byte < 0xF5u) {
            following = 3;
        } else if (byte >= 0xE0u) {
            if (byte >= 0xF0u) return false;
            following = 2;
        } else if (byte >= 0xC2u) {
            following = 1;
        } else if (byte >= 0x80u) {
            return false;
        }
    }
    return following == 0;
}

std::string CheckBaseName(std::string_view base) {
    const std::string start = "the base name " + Quoted(base);
    if (base.empty()) return "the base name is empty";
    if (base.size() > kLongestBase) return start + " is longer than 11 characters";
    if (base.find(' ') != std::string_view::npos) return start + " holds a blank";
    if (ContainsNoCase(base, "S.")) return start + " holds \"S.\"";
    if (base.find('_') == std::string_view::npos) return start + " lacks a \"_\"";
    if (!std::all_of(base.begin(), base.end(), IsBaseCharacter)) {
        return start + " may hold upper case letters A to Z, digits, \"_\" and \"-\" only";
    }
    return "";
}

std::string CheckCoordinates(double latitude, double longitude, double timeMeridian) {
    struct Bound {
        const char* name;
        double value;
        double limit;
    };
    for (const Bound& bound : {Bound{"latitude", latitude, 90}, Bound{"longitude", longitude, 180},
                               Bound{"time meridian", timeMeridian, 180}}) {
        if (std::abs(bound.value) <= bound.limit) continue;
        return "the " + std::string(bound.name) + " " + TrimmedNumberText(bound.value) +
               " is not within -" + TrimmedNumberText(bound.limit) + " to " +
               TrimmedNumberText(bound.limit);
    }
    return "";
}

}  // namespace verandis
