#include "text/catalogue.h"

#include <gtest/gtest.h>

namespace verandis {
namespace {

TEST(Catalogue, ReadsALineUpToItsFirstCommaOnly) {
    const Catalogue catalogue({"20001, one, two, three ", "20001, a later line of the number",
                               "20002,   Chr13first\tChr13\u00A0last", "20003", "", "20004,",
                               " 20005 ,with blanks"});
    EXPECT_EQ(catalogue.Entry(20001), "one, two, three ");
    EXPECT_EQ(catalogue.Entry(20002), "\rfirst\t\r\u00A0last");
    EXPECT_EQ(catalogue.Entry(20003), "");
    EXPECT_EQ(catalogue.Entry(20004), "");
    EXPECT_EQ(catalogue.Entry(20005), "with blanks");
    EXPECT_EQ(catalogue.Entry(10001), "");
    EXPECT_EQ(catalogue.Numbers().size(), 4u);
    EXPECT_TRUE(Catalogue().empty());
}

TEST(TextRole, GivesTheWholeTextUnlessItServesTwoPlaces) {
    EXPECT_EQ(TextRole("Case|Transmittance", 1), "Case");
    EXPECT_EQ(TextRole("Case | \u00A0floor\u00A0 ", 2), "\u00A0floor\u00A0");
    EXPECT_EQ(TextRole("Case|Transmittance", 3), "");
    EXPECT_EQ(TextRole("Fenster", 1), "Fenster");
    EXPECT_EQ(TextRole("Fenster", 2), "Fenster");
}

}  // namespace
}  // namespace verandis
