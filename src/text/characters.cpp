#include "text/characters.h"

#include <algorithm>

namespace verandis {
namespace {

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

/// Byte position of character `index` (from 0), or the size of the text.
std::size_t ByteOf(std::string_view text, std::size_t index) {
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        if (IsContinuation(text[at])) continue;
        if (index == 0) return at;
        --index;
    }
    return at;
}

/// Letters of Windows-1252 that are not in its Latin-1 range, as UTF-8.
struct CasePair {
    std::string_view upper;
    std::string_view lower;
};
constexpr CasePair kOddPairs[] = {{"\xC5\xA0", "\xC5\xA1"},
                                  {"\xC5\x92", "\xC5\x93"},
                                  {"\xC5\xBD", "\xC5\xBE"},
                                  {"\xC5\xB8", "\xC3\xBF"}};

bool HasHighBytes(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
}

/// Changes the case of the two-byte letters U+00C0 to U+00FE and of the odd pairs.
std::string FoldWide(std::string text, bool toLower) {
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        const std::string_view letter = std::string_view(text).substr(at, 2);
        const auto* pair = std::find_if(
            std::begin(kOddPairs), std::end(kOddPairs),
            [&](const CasePair& each) { return letter == (toLower ? each.upper : each.lower); });
        if (pair != std::end(kOddPairs)) {
            text.replace(at, 2, toLower ? pair->lower : pair->upper);
            ++at;
        } else if (text[at] == '\xC3') {
            const auto second = static_cast<unsigned char>(text[at + 1]);
            // U+00D7 and U+00F7 are signs, U+00DF and U+00FF have no partner in this row.
            const bool upper = second >= 0x80 && second <= 0x9E && second != 0x97;
            const bool lower = second >= 0xA0 && second <= 0xBE && second != 0xB7;
            if (toLower && upper) text[at + 1] = static_cast<char>(second + 0x20);
            if (!toLower && lower) text[at + 1] = static_cast<char>(second - 0x20);
            ++at;
        }
    }
    return text;
}

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

}  // namespace

std::size_t Length(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

std::string Left(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, ByteOf(text, count)));
}

std::string Mid(std::string_view text, std::size_t first) {
    if (first == 0) first = 1;
    return std::string(text.substr(ByteOf(text, first - 1)));
}

std::string Mid(std::string_view text, std::size_t first, std::size_t count) {
    return Left(Mid(text, first), count);
}

std::string_view TrimLeadingBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::string_view TrimBlanks(std::string_view text) {
    text = TrimLeadingBlanks(text);
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), LowerAscii);
    return HasHighBytes(lower) ? FoldWide(std::move(lower), true) : lower;
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), UpperAscii);
    return HasHighBytes(upper) ? FoldWide(std::move(upper), false) : upper;
}

bool EqualNoCase(std::string_view left, std::string_view right) {
    return LowerCase(left) == LowerCase(right);
}

bool ContainsNoCase(std::string_view text, std::string_view word) {
    return LowerCase(text).find(LowerCase(word)) != std::string::npos;
}

bool StartsWithNoCase(std::string_view text, std::string_view start) {
    return LowerCase(text).starts_with(LowerCase(start));
}

}  // namespace verandis
