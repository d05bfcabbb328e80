#include "platform/encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace verandis {
namespace {

/// Code points of the bytes 0x80 to 0x9F; all other bytes stand for themselves.
constexpr std::array<std::uint16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint32_t CodePointOf(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80u] : byte;
}

/// Lower case of a byte above ASCII; all others stay.
char LowerHighByte(char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return static_cast<char>(byte + 0x20);
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 0x10);
    return byte == 0x9F ? static_cast<char>(0xFF) : letter;
}

/// The byte of a code point, "?" when there is none.
char ByteOf(std::uint32_t code) {
    if (code < 0x80 || (code > 0x9F && code <= 0xFF)) return static_cast<char>(code);
    const auto* found = std::find(kUpperControls.begin(), kUpperControls.end(), code);
    if (found == kUpperControls.end()) return '?';
    return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

void AppendUtf8(std::string& text, std::uint32_t code) {
    const auto add = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0u | (code >> 6));
        add(0x80u | (code & 0x3Fu));
    } else {
        add(0xE0u | (code >> 12));
        add(0x80u | ((code >> 6) & 0x3Fu));
        add(0x80u | (code & 0x3Fu));
    }
}

/// Takes one character off the front of a UTF-8 text; a broken sequence gives U+FFFD and takes one
/// byte.
std::uint32_t TakeCodePoint(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    std::uint32_t code = length == 1 ? first : first & (0x7Fu >> length);
    bool sound = first < 0x80 || (first >= 0xC0 && length <= text.size());
    for (std::size_t at = 1; sound && at < length; ++at) {
        const auto next = static_cast<unsigned char>(text[at]);
        sound = (next & 0xC0u) == 0x80u;
        code = (code << 6) | (next & 0x3Fu);
    }
    // A longer form than needed, half of a pair and what lies beyond Unicode are no characters.
    constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    sound = sound && code >= kLeast[length] && code <= 0x10FFFF &&
            (code < 0xD800 || code > 0xDFFF) && first <= 0xF4;
    text.remove_prefix(sound ? length : 1);
    return sound ? code : 0xFFFDu;
}

}  // namespace

bool IsAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

void LowerWindows1252(std::string_view bytes, std::string& lower) {
    lower.resize(bytes.size());
    const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
    auto* out = reinterpret_cast<unsigned char*>(lower.data());
    // Plain comparisons of bytes through local pointers, which the compiler turns into wide
    // instructions: the property file is searched some hundred times in a run.
    unsigned char all = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const unsigned char byte = in[at];
        const bool letter = static_cast<unsigned char>(byte - 'A') < 26;
        all = static_cast<unsigned char>(all | byte);
        out[at] = static_cast<unsigned char>(byte + (letter ? 0x20 : 0));
    }
    if (all < 0x80) return;
    for (char& byte : lower) byte = LowerHighByte(byte);
}

std::string FromWindows1252(std::string_view bytes) {
    if (IsAscii(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) AppendUtf8(text, CodePointOf(static_cast<unsigned char>(byte)));
    return text;
}

std::string ToWindows1252(std::string_view text) {
    if (IsAscii(text)) return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) bytes += ByteOf(TakeCodePoint(text));
    return bytes;
}

bool SurvivesCodePage(std::string_view text) {
    return FromWindows1252(ToWindows1252(text)) == text;
}

}  // namespace verandis
