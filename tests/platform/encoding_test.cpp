#include "platform/encoding.h"

#include <gtest/gtest.h>

#include "text/characters.h"

namespace verandis {
namespace {

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

TEST(Windows1252, EveryByteSurvivesReadingAndWriting) {
    const std::string text = FromWindows1252(AllBytes());
    EXPECT_EQ(Length(text), 256u);
    EXPECT_EQ(ToWindows1252(text), AllBytes());
    EXPECT_EQ(FromWindows1252("\x80\x85\x8A\x8E\x96\x99\x9F\xA0\xE5"), "€…ŠŽ–™Ÿ\u00A0å");
}

// No place in the code page, the long minus, four bytes, a control character whose byte means
// something else, a byte of another encoding, cut off at the end, broken inside.
TEST(Windows1252, WritesAQuestionMarkForWhatItCannotHold) {
    const std::pair<const char*, const char*> rows[] = {
        {"aČb", "a?b"},           {"−5", "?5"},        {"🏠.", "?."},
        {"\xC2\x85", "?"},        {"a\xE5 b", "a? b"}, {"å\xC3", "\xE5?"},
        {"\xE2\x82x\x80", "??x?"}};
    for (const auto& [text, bytes] : rows) EXPECT_EQ(ToWindows1252(text), bytes) << text;
}

// Reads search the file's bytes, writes its text: both have to find the same line.
TEST(Windows1252, LowerCaseOfBytesIsThatOfTheText) {
    std::string lower = "left over from another read";
    LowerWindows1252(AllBytes(), lower);
    EXPECT_EQ(FromWindows1252(lower), LowerCase(FromWindows1252(AllBytes())));
}

}  // namespace
}  // namespace verandis
