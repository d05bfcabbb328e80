#include "fuzzing.h"
#include "platform/encoding.h"
#include "text/characters.h"

namespace verandis::fuzzing {
namespace {

/// Any bytes may be a file in Windows-1252.
void CheckBytes(std::string_view bytes) {
    const std::string text = FromWindows1252(bytes);
    Require(ToWindows1252(text) == bytes, "a file survives reading and writing");
    Require(Length(text) == bytes.size(), "each byte is one character");
    std::string lower;
    LowerWindows1252(bytes, lower);
    Require(FromWindows1252(lower) == LowerCase(text), "both ways of lower case are the same");
    Require(EqualNoCase(UpperCase(text), text), "upper case is equal but for the case");
    Require(ContainsNoCase(text, UpperCase(Mid(text, 2, 5))), "a text contains its parts");
}

/// Text from settings files and from the keyboard need not be sound UTF-8.
void CheckText(std::string_view text) {
    const std::string bytes = ToWindows1252(text);
    Require(ToWindows1252(FromWindows1252(bytes)) == bytes, "what was written is written again");
    const std::size_t half = Length(text) / 2;
    Require(Left(text, half) + Mid(text, half + 1) == text, "two parts make the whole");
    Require(Length(Left(text, half)) == half, "a part has the length asked for");
    Require(text.find(TrimBlanks(text)) != std::string_view::npos, "trimming takes, never adds");
    LowerCase(text);
    UpperCase(text);
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    CheckBytes(TextOf(data, size));
    CheckText(TextOf(data, size));
    return 0;
}
