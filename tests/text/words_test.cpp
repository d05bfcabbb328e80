#include <gtest/gtest.h>

#include "text/catalogue.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {
namespace {

TEST(Characters, AreCountedNotBytesAndATabIsNoBlank) {
    EXPECT_EQ(Length("Mått€"), 5u);
    EXPECT_EQ(Left("Mått", 2), "Må");
    EXPECT_EQ(Left("å", 9), "å");
    EXPECT_EQ(Mid("Värme, glas: x", 12), ": x");
    EXPECT_EQ(Mid("åäö", 2, 1), "ä");
    EXPECT_EQ(Mid("åäö", 4), "");

    EXPECT_EQ(TrimBlanks("  \tCLIMATE_FILE\t  "), "\tCLIMATE_FILE\t");
    EXPECT_EQ(TrimBlanks(" \u00A0tecken\u00A0 "), "\u00A0tecken\u00A0");
}

TEST(Characters, FoldTheLettersOfTheCodePageAndNothingElse) {
    EXPECT_EQ(LowerCase("ÅÄÖ-ÉÞ ŠŽŒŸ ×÷ß Ça ČΩ€"), "åäö-éþ šžœÿ ×÷ß ça ČΩ€");
    EXPECT_EQ(UpperCase("åäö-éþ šžœÿ ×÷ß ça"), "ÅÄÖ-ÉÞ ŠŽŒŸ ×÷ß ÇA");
    EXPECT_TRUE(EqualNoCase("VÄGG", "vägg") && !EqualNoCase("vägg", "vagg"));
    EXPECT_TRUE(ContainsNoCase("Övervåning", "RVÅ") && !ContainsNoCase("ab", "abc"));
    EXPECT_TRUE(StartsWithNoCase("Ärla", "äR") && !StartsWithNoCase("a", "ab"));
}

TEST(Separators, PartOnceOrNotAtAll) {
    EXPECT_EQ(RightOfSeparator("name - title - more", " - "), "title - more");
    EXPECT_EQ(LeftOfSeparator("plain", ","), "plain");
    EXPECT_EQ(RightOfSeparator("plain", ","), "");
    EXPECT_EQ(FindListRow({"vshape - a", "VSHAPE1 - Väst"}, "väst"), 1);
    EXPECT_EQ(FindListRow({"vshape - a", "VSHAPE1 - b"}, "ushape"), -1);
}

TEST(Catalogue, ReadsALineUpToItsFirstCommaOnly) {
    const Catalogue catalogue({"20001, one, two ", "20002,   Chr13x\tChr13\u00A0y", "20003", ""});
    EXPECT_EQ(catalogue.Entry(20001), "one, two ");
    EXPECT_EQ(catalogue.Entry(20002), "\rx\t\r\u00A0y");
    EXPECT_EQ(catalogue.Numbers().size(), 2u);
    EXPECT_EQ(TextRole("Case | \u00A0floor\u00A0 ", 1), "Case");
    EXPECT_EQ(TextRole("Case | \u00A0floor\u00A0 ", 2), "\u00A0floor\u00A0");
    EXPECT_EQ(TextRole("Case|floor", 3), "");
    EXPECT_EQ(TextRole("serves one place", 2), "serves one place");
}

}  // namespace
}  // namespace verandis
