#include "text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace verandis {
namespace {

struct Written {
    double value;
    const char* text;
};

TEST(NumberText, NeitherRoundTripDigitsNorLateExponentsReachAFile) {
    const Written rows[] = {
        {0.57 * 100, " 57"},  // 56.99999999999999 in full
        {0.1 + 0.2, " 0.3"},
        {1.0 / 3, " 0.333333333333333"},
        {-2.0 / 3, "-0.666666666666667"},
        {0, " 0"},
        {-0.0, " 0"},
        {20, " 20"},
        {-1.5, "-1.5"},
        {1200300, " 1200300"},
        {999999999999999, " 999999999999999"},
        {999999999999999.9, " 1E+15"},  // the fifteenth digit rounds over the boundary
        {1e15, " 1E+15"},
        {-1.25e20, "-1.25E+20"},
        {1e100, " 1E+100"},
        {0.0001, " 0.0001"},
        {0.00009999, " 9.999E-05"},
        {9.999999999999999e-5, " 0.0001"},  // rounds up to the boundary
        {1.25e-107, " 1.25E-107"}};
    for (const Written& row : rows) EXPECT_EQ(NumberText(row.value), row.text) << row.value;
    EXPECT_EQ(TrimmedNumberText(2.5), "2.5");
    EXPECT_EQ(TrimmedNumberText(-2.5), "-2.5");
}

TEST(NumberText, AFloatShowsSevenDigitsNotTheTailOfItsDouble) {
    const std::pair<float, const char*> rows[] = {
        {0.1f, " 0.1"},           {0.33f, " 0.33"},
        {1.0f / 3, " 0.3333333"}, {16777216.0f, " 16777220"},
        {1234567.8f, " 1234568"}, {-0.0f, " 0"},
        {1e15f, " 1E+15"},        {-0.00005f, "-5E-05"}};
    for (const auto& [value, text] : rows) EXPECT_EQ(NumberText(value), text) << value;
}

struct Read {
    const char* text;
    double value;
    const char* rest;  // what a reader of several numbers goes on with
};

TEST(TakeNumber, StopsAtTheFirstCharacterThatIsNoNumber) {
    const Read rows[] = {{"20", 20, ""},
                         {"  2", 2, ""},
                         {".5", .5, ""},
                         {"5.", 5, ""},
                         {"+3", 3, ""},
                         {"-3.25 m", -3.25, " m"},
                         {"1.234.5", 1.234, ".5"},
                         {"1,5", 1, ",5"},
                         {"12abc", 12, "abc"},
                         {"1e5", 1e5, ""},
                         {"1E-2x", .01, "x"},
                         {"1E", 1, "E"},
                         {"1E+", 1, "E+"},
                         {"-", 0, "-"},
                         {".", 0, "."},
                         {"E5", 0, "E5"},
                         {"--2", 0, "--2"},
                         {"- 2", 0, "- 2"},
                         {"\t2", 0, "\t2"},
                         {"\u00A02", 0, "\u00A02"},
                         {"0x10", 0, "x10"},
                         {"inf", 0, "inf"},
                         {"", 0, ""},
                         {" 1 2", 1, " 2"}};
    for (const Read& row : rows) {
        SCOPED_TRACE(row.text);
        std::string_view text = row.text;
        EXPECT_EQ(TakeNumber(text), row.value);
        EXPECT_EQ(text, row.rest);
        EXPECT_EQ(PlainNumber(row.text), row.value);
    }
}

// The compiler's own conversion is the second way.
TEST(PlainNumber, IsTheNearestDoubleAlsoOffTheShortPath) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<const char*, double> rows[] = {
        {"0.57", 0.57},
        {"8760.0000000001", 8760.0000000001},
        {"9007199254740993", 9007199254740992.0},                       // halfway, to even
        {"9007199254740993.00000000000000000001", 9007199254740994.0},  // just above halfway
        {"1E23", 1e23},                                                 // 10^23 is no double
        {"123456789012345678", 123456789012345678.0},
        {"3E-24", 3e-24},
        {"0.1000000000000000055511151231257827021181583404541015625", 0.1},
        {"1.50000000000000000000000000000000", 1.5},
        {"00000000000000000000000000000001.5", 1.5},
        {"99999999999999999999999999999999", 1e32},
        {"2.2250738585072011E-308", 2.2250738585072011e-308},
        {"1E400", infinity},
        {"-1E99999999999999999999", -infinity},
        {"1E-400", 0},
        {"0E999", 0}};
    for (const auto& [text, value] : rows) EXPECT_EQ(PlainNumber(text), value) << text;
}

TEST(ToNumber, TakesEitherDecimalSignWhateverTheSession) {
    EXPECT_EQ(ToNumber("1,5"), 1.5);
    EXPECT_EQ(ToNumber("1.5"), 1.5);
    EXPECT_EQ(ToNumber("1,234.5"), 1.234);
    EXPECT_EQ(ToNumber(" -,5"), -0.5);
    EXPECT_EQ(PointToDecimal(" 1.5", DecimalMode::Comma), " 1,5");
    EXPECT_EQ(PointToDecimal(" 1.5", DecimalMode::Point), " 1.5");
}

TEST(WholeNumber, HalvesGoToTheEvenNeighbourAndNothingOverflows) {
    const std::pair<double, int> rows[] = {{0.5, 0},
                                           {1.5, 2},
                                           {2.5, 2},
                                           {-0.5, 0},
                                           {-1.5, -2},
                                           {2.4999, 2},
                                           {2.5001, 3},
                                           {1e10, std::numeric_limits<int>::max()},
                                           {-1e300, std::numeric_limits<int>::min()},
                                           {std::nan(""), 0}};
    for (const auto& [value, whole] : rows) EXPECT_EQ(WholeNumber(value), whole) << value;
}

TEST(FixedText, NeverShowsAMinusInFrontOfZero) {
    EXPECT_EQ(FixedText(-0.04, 1), "0.0");
    EXPECT_EQ(FixedText(-0.4, 0), "0");
    EXPECT_EQ(FixedText(-0.06, 1), "-0.1");
    EXPECT_EQ(FixedText(10, 2), "10.00");
    EXPECT_EQ(FixedText(1e21, 1), "1000000000000000000000.0");
    EXPECT_EQ(FixedText(std::nan(""), 1), "NaN");
}

TEST(IsNumberKey, LetsANumberBeTypedSignBySign) {
    for (const char* typed : {"", "-", "+", ".", ",", "-,5", "12", "1.", "1E", "1e-", "1,5E+03"}) {
        EXPECT_TRUE(IsNumberKey(typed)) << typed;
    }
    for (const char* typed : {"1.2.", "1,2.", "--", "1-", "1E5E", "E", "x", " 1", "1 ", "1E--"}) {
        EXPECT_FALSE(IsNumberKey(typed)) << typed;
    }
}

// A signed number is refused on purpose; an empty text and a second decimal sign pass.
TEST(IsNumberText, KnowsDigitsAndTheSignOfTheModeOnly) {
    const auto accepted = [](const char* text) {
        return std::pair(IsNumberText(text, DecimalMode::Point),
                         IsNumberText(text, DecimalMode::Comma));
    };
    for (const char* both : {"", "7", "120"}) EXPECT_EQ(accepted(both), std::pair(true, true));
    for (const char* point : {"1.5", ".5", "1.2.3"}) {
        EXPECT_EQ(accepted(point), std::pair(true, false)) << point;
    }
    for (const char* comma : {"1,5", "5,", ",,"}) {
        EXPECT_EQ(accepted(comma), std::pair(false, true)) << comma;
    }
    for (const char* none : {".", ",", "-", "+", "-5", "+5", "1E5", "1 ", "1.2,3", "å"}) {
        EXPECT_EQ(accepted(none), std::pair(false, false)) << none;
    }
    EXPECT_TRUE(IsDigitsOnly("07"));
    for (const char* other : {"", "7.", "-7", "7 "}) EXPECT_FALSE(IsDigitsOnly(other)) << other;
}

}  // namespace
}  // namespace verandis
