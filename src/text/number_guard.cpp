#include "text/number_guard.h"

#include <algorithm>

#include "text/numbers.h"

namespace verandis {
namespace {

constexpr char kTurnedBack = '*';
constexpr std::string_view kNumberCharacters = "0123456789+-.,Ee";

bool IsDecimalSign(char c) {
    return c == '.' || c == ',';
}

bool CanBeNumber(std::string text) {
    std::erase(text, kTurnedBack);
    return IsNumberKey(text);
}

/// True inside a character of several bytes.
bool Continues(std::string_view text, std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

/// Bytes at the front that both have in common, whole characters only.
std::size_t CommonStart(std::string_view one, std::string_view other) {
    const auto differ = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    auto count = static_cast<std::size_t>(differ.first - one.begin());
    while (count > 0 && (Continues(one, count) || Continues(other, count))) --count;
    return count;
}

/// The same at the end, in what is left behind the common start.
std::size_t CommonEnd(std::string_view one, std::string_view other) {
    const auto differ = std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend());
    auto count = static_cast<std::size_t>(differ.first - one.rbegin());
    while (count > 0 && Continues(one, one.size() - count)) --count;
    return count;
}

}  // namespace

std::string GuardedNumber(std::string_view before, std::string_view after) {
    const std::size_t start = CommonStart(before, after);
    const std::size_t end = CommonEnd(before.substr(start), after.substr(start));
    const std::string_view inserted = after.substr(start, after.size() - start - end);
    const std::string rest(after.substr(after.size() - end));
    std::string text(after.substr(0, start));
    // A field that held no number from the first takes what could mend it.
    const bool strict = CanBeNumber(text + rest);
    for (const char c : inserted) {
        if (kNumberCharacters.find(c) == std::string_view::npos) continue;
        const std::string others = text + rest;
        if (IsDecimalSign(c) && std::any_of(others.begin(), others.end(), IsDecimalSign)) {
            text += kTurnedBack;
        } else if (!strict || CanBeNumber(text + c + rest)) {
            text += c;
        }
    }
    return text + rest;
}

}  // namespace verandis
