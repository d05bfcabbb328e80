#include "dialogs/dimensions.h"

#include "app/case_changes.h"
#include "app/session.h"
#include "support/session_test.h"
#include "text/separators.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Dos;

class Dimensions : public testing_support::SmallRootTest {
protected:
    Dimensions() {
        session.ProgramText =
            Catalogue({"20161, must be", "20222, Not a number", "20223, Out of bounds"});
    }
};

DimensionTexts Fields(std::string_view joined) {
    DimensionTexts texts;
    for (bool more = true; more;) {
        more = joined.find('|') != std::string_view::npos;
        texts.emplace_back(TakeUpTo(joined, '|'));
    }
    return texts;
}

struct Check {
    const char* fault;
    int shape;
    const char* texts;  // a, c, b, d, e, f
    const char* message;
    char focus = 0;
    const char* selected = "";
};

TEST_F(Dimensions, ComplaintsNameLetterBoundAndFocus) {
    const Check checks[] = {
        {"two bad fields are two lines, focus in the later", kShapeU, "0|x|21|10|9|30",
         "a - out of bounds : (>0)\rc - not a number\r", 'c', "ac"},
        {"a sign is never part of a number", kShapeU, "20|10|21|10|-3|30", "e - not a number\r",
         'e', "e"},
        {"U needs a court deeper than 1 m", kShapeU, "20|10|21|1|9|30", "d - out of bounds : (>1\r",
         'd', "d"},
        {"O takes a court of 1 m", kShapeO, "20|10|21|1|9|30", ""},
        {"O needs a court", kShapeO, "20|10|21||9|30", "d - out of bounds : (>0)\r", 'd', "d"},
        {"I needs more than 2 m of depth", kShapeI, "20|10|2|10|30", "b - out of bounds : (>2\r",
         'b', "b"},
        {"V needs more than 2 m of width", kShapeV, "2|1.5|21|10|30", "a - out of bounds : (>02\r",
         'a', "a"},
        {"an offset out of bounds sends the focus to a", kShapeV, "20|1|21|10|30",
         "c - out of bounds : (>1\r", 'a', "c"},
        {"tilts from 0", kShapeU, "20|10|21|10|9|", ""},
        {"tilts to 60", kShapeI, "20|10|21|10|60", ""},
        {"no tilt above 60", kShapeO, "20|10|21|10|9|60.1", "f - out of bounds\r", 'f', "f"},
        {"several signs pass, read up to the second", kShapeI, "11.2.3|11.2|21|9|9",
         "a must be > c\r", 'a'},
        {"all comparisons are told, the last focus holds", kShapeU, "9|9|8|9|9|0",
         "a must be > c\rb must be > d\r", 'b'},
        {"O compares the depths too", kShapeO, "20|10|9|9|9|0", "b must be > d\r", 'b'},
        {"no depth passes alone and fails beside the offset", kShapeV, "20|5||10|30",
         "b must be > c\r", 'a'},
        {"the limit itself passes", kShapeV, "20|4|21|5|45", ""},
        {"above the limit no focus moves", kShapeV, "20|4|21|5|45.1", "e - not a number\r"},
        {"a low wall allows a flat roof only", kShapeV, "20|4|21|1|0.1", "e - not a number\r"},
        {"a low wall allows a flat roof", kShapeV, "20|4|21|1|0", ""},
        {"a tilt too steep beside a depth too small", kShapeV, "20|4|4|5|50",
         "b must be > c\re - not a number\r", 'a'},
    };
    for (const Check& check : checks) {
        const auto found = CheckDimensions(DimensionDialogOf(check.shape), Fields(check.texts));
        EXPECT_EQ(found.text, check.message) << check.fault;
        EXPECT_EQ(found.focus, check.focus) << check.fault;
        EXPECT_EQ(found.selected, check.selected) << check.fault;
    }
}

TEST_F(Dimensions, TheSessionsDecimalSignAloneIsTaken) {
    const DimensionTexts commas = {"20,5", "10", "21", "10", "9", "30"};
    const DimensionTexts points = {"20.5", "10", "21", "10", "9", "30"};
    const DimensionDialog& dialog = DimensionDialogOf(kShapeU);
    for (const DecimalMode mode : {DecimalMode::Comma, DecimalMode::Point}) {
        session.Decimals = mode;
        EXPECT_EQ(CheckDimensions(dialog, commas).empty(), mode == DecimalMode::Comma);
        EXPECT_EQ(CheckDimensions(dialog, points).empty(), mode == DecimalMode::Point);
    }
}

TEST_F(Dimensions, EveryKeyIsStoredFromItsFieldInTheOrderOfTheShape) {
    struct Row {
        int shape;
        DimensionTexts texts;
        const char* stored;
    };
    const Row rows[] = {
        {kShapeU,
         {"1", "3", "2,5", "4", "5", ""},
         "WIDTHB\t 1\nDEPTHB\t 2.5\nHIGTHB\t 5\nWIDTHG\t 3\nDEPTHG\t 4\nTILT\t 0\n"},
        {kShapeO,
         {"1", "3", "2", "4", "5", "6"},
         "WIDTHB\t 1\nDEPTHB\t 2\nHIGTHB\t 5\nWIDTHG\t 3\nDEPTHG\t 4\nTILT\t 6\n"},
        {kShapeV,
         {"1", "3", "2", "4", "5"},
         "WIDTHB\t 1\nDEPTHB\t 2\nHIGTHB\t 4\nOFFD\t 3\nTILT\t 5\n"},
        {kShapeI,
         {"1", "3", "2", "4", "5"},
         "WIDTHB\t 1\nDEPTHB\t 2\nHIGTHB\t 4\nDEPTHG\t 2\nWIDTHG\t 3\nTILT\t 5\n"},
    };
    int outdated = 0;
    OnCaseChanged([&](bool results) { outdated += results ? 1 : 100; });
    for (const Row& row : rows) {
        const Slot slot{row.shape, 1};
        MakeSlot(slot, "CASE_NOTE\tx\n");
        EXPECT_TRUE(StoreDimensions(DimensionDialogOf(row.shape), row.texts));
        std::string expected = "CASE_NOTE\tx\n";
        std::string_view rest = row.stored;
        while (!rest.empty()) {
            expected += "DIMENSION_" + std::string(rest.substr(0, rest.find('\n') + 1));
            rest.remove_prefix(rest.find('\n') + 1);
        }
        EXPECT_EQ(Bytes(SlotFile(slot, "SimpPropertiesOfCase.Dat")), Dos(expected));
    }
    OnCaseChanged({});
    EXPECT_EQ(outdated, 4);
}

TEST_F(Dimensions, FieldsShowTheCaseAndDefaultsWhereItIsSilent) {
    session.Decimals = DecimalMode::Comma;
    MakeSlot({kShapeU, 1},
             "DIMENSION_WIDTHB\t 22.5\nDIMENSION_HIGTHB\t7,25\n"
             "DIMENSION_TILT\t-999999\n");
    EXPECT_EQ(LoadDimensions(DimensionDialogOf(kShapeU)),
              (DimensionTexts{"22,5", "10", "21", "10", "7,25", "30"}));
    MakeSlot({kShapeV, 2}, "");
    EXPECT_EQ(LoadDimensions(DimensionDialogOf(kShapeV)),
              (DimensionTexts{"20", "5", "21", "10", "30"}));
    // The depth of the street is that of the building, whatever its own row says.
    MakeSlot({kShapeI, 1}, "DIMENSION_DEPTHG\t 5\nDIMENSION_DEPTHB\t 33\n");
    EXPECT_EQ(LoadDimensions(DimensionDialogOf(kShapeI)),
              (DimensionTexts{"20", "10", "33", "10", "30"}));
}

}  // namespace
}  // namespace verandis
