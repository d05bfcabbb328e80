#include "text/characters.h"

#include <gtest/gtest.h>

#include "text/separators.h"

namespace verandis {
namespace {

TEST(Characters, CutsCountCharactersNotBytes) {
    EXPECT_EQ(Length("Mått€"), 5u);
    EXPECT_EQ(Left("Mått", 2), "Må");
    EXPECT_EQ(Left("å", 9), "å");
    EXPECT_EQ(Left("å", 0), "");
    EXPECT_EQ(Mid("Värme, glas: x", 12), ": x");
    EXPECT_EQ(Mid("åäö", 2, 1), "ä");
    EXPECT_EQ(Mid("åäö", 3, 5), "ö");
    EXPECT_EQ(Mid("åäö", 4), "");
    EXPECT_EQ(Mid("åäö", 9, 2), "");
}

TEST(TrimBlanks, KeepsTabsAndNoBreakSpaces) {
    EXPECT_EQ(TrimBlanks("  \tCLIMATE_FILE\t  "), "\tCLIMATE_FILE\t");
    EXPECT_EQ(TrimBlanks(" \u00A0tecken\u00A0 "), "\u00A0tecken\u00A0");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimLeadingBlanks("  a  "), "a  ");
}

TEST(LetterCase, FoldsEveryLetterOfTheCodePageAndNothingElse) {
    EXPECT_EQ(LowerCase("ÅÄÖ-ÉÞ ŠŽŒŸ ×÷ß Ça"), "åäö-éþ šžœÿ ×÷ß ça");
    EXPECT_EQ(UpperCase("åäö-éþ šžœÿ ×÷ß ça"), "ÅÄÖ-ÉÞ ŠŽŒŸ ×÷ß ÇA");
    EXPECT_EQ(LowerCase("ČΩ€"), "ČΩ€");  // no letters of it
    EXPECT_TRUE(EqualNoCase("VÄGG", "vägg"));
    EXPECT_FALSE(EqualNoCase("vägg", "vagg"));
    EXPECT_TRUE(ContainsNoCase("XU204-W_GLAZEDID", "xu204"));
    EXPECT_TRUE(ContainsNoCase("Övervåning", "RVÅ"));
    EXPECT_TRUE(ContainsNoCase("", ""));
    EXPECT_FALSE(ContainsNoCase("ab", "abc"));
    EXPECT_TRUE(StartsWithNoCase("Ärla", "äR"));
    EXPECT_FALSE(StartsWithNoCase("a", "ab"));
}

TEST(Separators, OnlyTheFirstOneParts) {
    EXPECT_EQ(LeftOfSeparator("a, b, c", ","), "a");
    EXPECT_EQ(RightOfSeparator("a, b, c", ","), " b, c");
    EXPECT_EQ(LeftOfSeparator("plain", ","), "plain");
    EXPECT_EQ(RightOfSeparator("plain", ","), "");
    EXPECT_EQ(LeftOfSeparator("name - title - more", " - "), "name");
    EXPECT_EQ(RightOfSeparator("name - title - more", " - "), "title - more");
    std::string_view rest = "1\t\t3";
    EXPECT_EQ(TakeUpTo(rest, '\t'), "1");
    EXPECT_EQ(TakeUpTo(rest, '\t'), "");
    EXPECT_EQ(TakeUpTo(rest, '\t'), "3");
    EXPECT_EQ(rest, "");
}

TEST(FindListRow, FindsTheFirstContainingRowWithoutCase) {
    const std::vector<std::string> rows = {"vshape - Lean-to", "VSHAPE1 - Väst"};
    EXPECT_EQ(FindListRow(rows, "vshape1"), 1);
    EXPECT_EQ(FindListRow(rows, "vshape"), 0);
    EXPECT_EQ(FindListRow(rows, "VÄST"), 1);
    EXPECT_EQ(FindListRow(rows, "ushape"), -1);
    EXPECT_EQ(FindListRow(rows, ""), 0);
    EXPECT_EQ(FindListRow({}, ""), -1);
}

}  // namespace
}  // namespace verandis
