#include "text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace verandis {
namespace {

using NumberOf = std::pair<const char*, double>;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(NumberText, NeitherRoundTripDigitsNorLateExponentsReachAFile) {
    const NumberOf rows[] = {{" 57", 0.57 * 100},     {" 0", -0.0},
                             {" 1200300", 1200300},   {" 1E+15", 1e15},
                             {"-1.25E+20", -1.25e20}, {" 1E-107", 1e-107},
                             {" 0.0001", 0.0001},     {" 9.999E-05", 0.00009999}};
    for (const auto& [text, value] : rows) EXPECT_EQ(NumberText(value), text);
    EXPECT_EQ(TrimmedNumberText(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(TrimmedNumberText(999999999999999.0), "999999999999999");
    EXPECT_EQ(TrimmedNumberText(999999999999999.9), "1E+15");
    EXPECT_EQ(TrimmedNumberText(9.999999999999999e-5), "0.0001");
    for (const auto& [text, value] : {std::pair("0.1", 0.1f), std::pair("16777220", 16777216.0f)}) {
        EXPECT_EQ(TrimmedNumberText(value), text) << "seven digits of a float";
    }
    EXPECT_EQ(FixedText(-0.04, 1), "0.0");
    EXPECT_EQ(FixedText(-0.06, 1), "-0.1");
}

TEST(PlainNumber, StopsAtTheFirstCharacterThatIsNoNumber) {
    const NumberOf rows[] = {{"  2", 2},         {".5", .5},         {"5.", 5},  {"+3", 3},
                             {"-3.25 m", -3.25}, {"1.234.5", 1.234}, {"1,5", 1}, {"12abc", 12},
                             {"1e5", 1e5},       {"1E-2x", .01},     {"1E", 1},  {"1E+", 1},
                             {"0x10", 0}};
    for (const auto& [text, value] : rows) EXPECT_EQ(PlainNumber(text), value) << text;
    for (std::string_view none : {"", "-", ".", "E5", "--2", "- 2", "\t2", "\u00A02", "inf"}) {
        const std::string_view before = none;
        EXPECT_EQ(TakeNumber(none), 0) << none;
        EXPECT_EQ(none, before) << "nothing was read";
    }
    std::string_view several = " 1.5-2E1 3E-x";
    for (const double value : {1.5, -20.0, 3.0}) EXPECT_EQ(TakeNumber(several), value);
    EXPECT_EQ(several, "E-x");
    EXPECT_EQ(ToNumber("1,5"), 1.5);
    EXPECT_EQ(ToNumber("1,234.5"), 1.234);
}

// The compiler's own conversion is the second way. 2^53 + 1 lies halfway between two doubles.
TEST(PlainNumber, IsTheNearestDoubleAlsoOffTheShortPath) {
    const NumberOf rows[] = {
        {"8760.01", 8760.01}, {"1E23", 1e23}, {"3E-24", 3e-24},         {"0E999", 0},
        {"1E400", kInfinity}, {"1E-400", 0},  {"-1E999999", -kInfinity}};
    for (const auto& [text, value] : rows) EXPECT_EQ(PlainNumber(text), value) << text;
    EXPECT_EQ(PlainNumber("000000000000000000000000001.50000000000000000000000000"), 1.5);
    EXPECT_EQ(PlainNumber("7319426012139375.2"), 7319426012139375.2);
    EXPECT_EQ(PlainNumber("9007199254740993.00000000000000000001"), 9007199254740994.0);
    EXPECT_EQ(PlainNumber("99999999999999999999999999999999"), 1e32);
}

TEST(WholeNumber, HalvesGoToTheEvenNeighbourAndNothingOverflows) {
    const std::pair<double, int> rows[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-1.5, -2}, {2.501, 3}};
    for (const auto& [value, whole] : rows) EXPECT_EQ(WholeNumber(value), whole) << value;
    EXPECT_EQ(WholeNumber(1e10), std::numeric_limits<int>::max());
    EXPECT_EQ(WholeNumber(-kInfinity), std::numeric_limits<int>::min());
    EXPECT_EQ(WholeNumber(std::nan("")), 0);
}

TEST(IsNumberKey, LetsANumberBeTypedSignBySign) {
    for (const char* typed : {"", "-", "+", ".", ",", "-,5", "12", "1.", "1E", "1e-", "1,5E+03"}) {
        EXPECT_TRUE(IsNumberKey(typed)) << typed;
    }
    for (const char* typed : {"1.2.", "1,2.", "--", "1-", "1E5E", "E", "x", " 1", "1 ", "1E--"}) {
        EXPECT_FALSE(IsNumberKey(typed)) << typed;
    }
}

// A signed number is refused on purpose; an empty text and a second decimal sign pass. Each text
// with the modes that take it.
TEST(IsNumberText, KnowsDigitsAndTheSignOfTheModeOnly) {
    const std::pair<const char*, std::string> rows[] = {
        {"", ".,"}, {"120", ".,"}, {"1.5", "."}, {"1,5", ","}, {"1.2.3", "."}, {",,", ","},
        {".", ""},  {",", ""},     {"-", ""},    {"-5", ""},   {"1E5", ""},    {"1 ", ""}};
    for (const auto& [text, modes] : rows) {
        std::string accepted = IsNumberText(text, DecimalMode::Point) ? "." : "";
        if (IsNumberText(text, DecimalMode::Comma)) accepted += ",";
        EXPECT_EQ(accepted, modes) << text;
    }
}

}  // namespace
}  // namespace verandis
