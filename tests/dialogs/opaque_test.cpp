#include "dialogs/opaque.h"

#include <sstream>

#include "case/property_file.h"
#include "dialogs/construction_slot.h"

namespace verandis {
namespace {

using enum ConstructionField;

struct GroupRow {
    int shape;
    std::uint16_t code;
    const char* elements;  // in the order of the file
};

class Opaque : public testing_support::ConstructionSlot {
protected:
    Opaque() {
        session.ProgramText =
            Catalogue({"20111, Title", "20157, Absorptance", "20229, Inner walls\u00a0",
                       "20256, Accepted|floor\u00a0", "20291, Share\u00a0", "20335, Cool - bad"});
    }

    /// Opens the dialog with a group chosen and other figures than the file's.
    ConstructionChoice Edit(int shape, std::uint16_t code) {
        ConstructionChoice choice = LoadConstructions(shape);
        ChooseConstructionGroup(choice, code);
        choice.wallRow = 1;
        choice.glazingRow = 2;
        choice.share = "30.5";
        choice.MTB1 = "70";
        choice.MTB2 = "80";
        return choice;
    }

    /// Stages a group's rows by `stage`; they reach the file with the rest of the table only.
    void ExpectStored(const GroupRow& row,
                      ConstructionComplaint (*stage)(const ConstructionChoice&)) {
        SCOPED_TRACE(WordsOf(row.shape).letter + std::string(row.elements));
        Open(row.shape);
        const ConstructionChoice choice = Edit(row.shape, row.code);
        EXPECT_TRUE(stage(choice).empty());
        EXPECT_EQ(Changed(), "");
        session.GlazingGroup = kNoGroup;
        EXPECT_TRUE(CloseConstructions(choice));
        EXPECT_EQ(Changed(), RowsOf(WordsOf(row.shape).letter, row.elements));
        EXPECT_TRUE(session.CasePropertyTable.empty());
        EXPECT_TRUE(prompts.shown.empty());
    }

    /// Rows that a stored wall ("001-W"), wall with a window ("101-W1") or floor ("104-FF") leaves.
    static std::string RowsOf(char shape, const std::string& elements) {
        std::istringstream words(elements);
        std::string rows;
        for (std::string word; words >> word;) {
            const std::string id = std::string("X") + shape + word.substr(0, 5);
            rows += (rows.empty() ? "" : " ") + id + "_WALLTYPE=WallB2";
            if (word.ends_with('1')) rows += " " + id + "_GLAZEDID=LowE-3 " + id + "_PCNTW= 30.5";
            if (word.ends_with("FF")) rows += " " + id + "_ABSX1= 80";
        }
        return elements.ends_with('1') ? rows + " ABSXS1_ABSX1= 70" : rows;
    }
};

TEST_F(Opaque, EachGroupStoresItsRowsAtTheCloseOnly) {
    const GroupRow rows[] = {{kShapeI, 10, "001-S 002-N 003-W 006-S 007-E 008-N"},
                             {kShapeI, 20, "101-W1"},
                             {kShapeI, 21, "102-E1"},
                             {kShapeI, 30, "005-R 010-R"},
                             {kShapeI, 40, "004-F 009-F"},
                             {kShapeI, 50, "103-FF"},
                             {kShapeO, 10, "001-S 002-E 003-N 004-W"},
                             {kShapeO, 20, "103-N1"},
                             {kShapeO, 30, "006-R 008-R 010-R 012-R"},
                             {kShapeO, 40, "102-W1"},
                             {kShapeO, 50, "101-S1"},
                             {kShapeO, 60, "104-E1"},
                             {kShapeO, 70, "005-F 007-F 009-F 011-F"},
                             {kShapeO, 80, "105-FF"},
                             {kShapeU, 10, "001-W 002-S 003-S 004-E 005-N"},
                             {kShapeU, 11, "103-N1"},
                             {kShapeU, 12, "101-W1"},
                             {kShapeU, 13, "102-E1"},
                             {kShapeU, 15, "009-R 010-R 011-R"},
                             {kShapeU, 20, "006-F 007-F 008-F"},
                             {kShapeU, 30, "104-FF"},
                             {kShapeV, 10, "004-R"},
                             {kShapeV, 20, "001-E 002-N 003-W"},
                             {kShapeV, 30, "101-S1"},
                             {kShapeV, 40, "005-F"},
                             {kShapeV, 50, "102-FF"}};
    for (const auto& row : rows) ExpectStored(row, ApplyConstruction);
}

TEST_F(Opaque, ACopyGoesToTheOthersOnly) {
    const GroupRow rows[] = {{kShapeI, 20, "102-E1"},
                             {kShapeI, 21, "101-W1"},
                             {kShapeO, 20, "101-S1 102-W1 104-E1"},
                             {kShapeO, 40, "101-S1 103-N1 104-E1"},
                             {kShapeO, 50, "102-W1 103-N1 104-E1"},
                             {kShapeO, 60, "101-S1 102-W1 103-N1"},
                             {kShapeU, 11, "101-W1 102-E1"},
                             {kShapeU, 12, "102-E1 103-N1"},
                             {kShapeU, 13, "101-W1 103-N1"},
                             {kShapeV, 30, ""},
                             {kShapeI, 10, ""},
                             {kShapeI, kNoGroup, ""}};
    for (const auto& row : rows) ExpectStored(row, CopyToOtherWalls);
    Open(kShapeI);
    ConstructionChoice bad = Edit(kShapeI, 20);
    bad.share = "x";
    EXPECT_EQ(CopyToOtherWalls(bad).focus, Share);
    EXPECT_TRUE(session.CasePropertyTable.empty());
}

TEST_F(Opaque, OnlyNumbersAreTakenAndTheLastBadFieldGetsTheFocus) {
    const struct {
        GroupMode mode;
        const char* MTB1;
        const char* share;
        const char* MTB2;
        DecimalMode decimals;
        std::string text;
        ConstructionField focus;
    } rows[] = {
        {GroupMode::Window, "1.2.3", "", "x", DecimalMode::Point, "", None},
        {GroupMode::Window, "-3", "300", "", DecimalMode::Point,
         "Absorptance inner walls\u00a0- bad\r", InnerAbsorptance},
        {GroupMode::Window, ".", "a", "", DecimalMode::Point,
         "Absorptance inner walls\u00a0- bad\rShare\u00a0- bad\r", Share},
        {GroupMode::Window, "0,5", "0.5", "", DecimalMode::Comma, "Share\u00a0- bad\r", Share},
        {GroupMode::Floor, "x", "a", "b", DecimalMode::Point,
         "Share\u00a0- bad\rAbsorptance floor\u00a0- bad\r", FloorAbsorptance},
        {GroupMode::Plain, "x", "a", "b", DecimalMode::Point, "Share\u00a0- bad\r", Share},
    };
    ConstructionChoice choice;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        prompts.shown.clear();
        session.Decimals = row.decimals;
        choice.MTB1 = row.MTB1;
        choice.share = row.share;
        choice.MTB2 = row.MTB2;
        const auto complaint = ValidateConstruction(choice, row.mode);
        EXPECT_EQ(complaint.text, row.text);
        EXPECT_EQ(complaint.focus, row.focus);
        ASSERT_EQ(prompts.shown.size(), row.text.empty() ? 0U : 1U);
        if (row.text.empty()) continue;
        EXPECT_EQ(prompts.shown[0].title, "Title");
        EXPECT_EQ(prompts.shown[0].icon, Icon::Exclamation);
    }
}

TEST_F(Opaque, AHiddenShareBlocksTheFloorAndAFailedCloseLosesItsGroupAlone) {
    Open(kShapeI);
    ConstructionChoice choice = Edit(kShapeI, 30);
    ChooseConstructionGroup(choice, 20);
    choice.share = "abc";
    EXPECT_EQ(ChooseConstructionGroup(choice, 50).focus, Share);
    EXPECT_EQ(session.GlazingGroup, 50);
    EXPECT_EQ(ApplyConstruction(choice).focus, Share);
    EXPECT_EQ(session.GlazingGroup, 50);
    EXPECT_TRUE(CloseConstructions(choice));
    EXPECT_EQ(prompts.shown.size(), 3U);
    EXPECT_EQ(Changed(), RowsOf('I', "005-R 010-R"));
}

TEST_F(Opaque, AGroupShowsWhatIsStagedElseWhatIsStored) {
    Open(kShapeU,
         "XU103_PCNTW\t-999999\nXU102_PCNTW\t 12.5\nXU102_GLAZEDID\tClear2\n"
         "XU101_GLAZEDID\t-999999\nXU101_WALLTYPE\tGone\n");
    session.Decimals = DecimalMode::Comma;
    ConstructionChoice choice = LoadConstructions(kShapeU);
    EXPECT_EQ(choice.MTB1 + " " + choice.MTB2, "60 60");
    EXPECT_EQ(PresentConstruction(choice, *FindGroup(choice.dialog->groups, 13)),
              "WallA1, 12,5 % Clear2");
    ChooseConstructionGroup(choice, 13);
    EXPECT_EQ(choice.share, "12,5");
    EXPECT_EQ(choice.glazingRow, 1);
    choice.wallRow = 2;
    choice.share = "40";
    choice.MTB1 = "";
    ChooseConstructionGroup(choice, 12);
    EXPECT_EQ(choice.wallRow, 0) << "an unknown name takes the first row";
    EXPECT_EQ(choice.glazingRow, 1) << "a row that is not set keeps the row shown";
    EXPECT_EQ(choice.MTB1, "") << "the inner walls' absorptance belongs to the whole case";
    ChooseConstructionGroup(choice, 11);
    EXPECT_EQ(choice.share, "0");
    EXPECT_FALSE(choice.HasWindow());
    ChooseConstructionGroup(choice, 13);
    EXPECT_EQ(choice.share, "40");
    EXPECT_EQ(choice.wallRow, 2);
    std::string staged;
    GetCaseProperty("ABSXS1", "ABSX1", staged);
    EXPECT_EQ(staged, " 0");
    LeaveConstructions();
    EXPECT_EQ(Changed(), "");
    EXPECT_TRUE(session.CasePropertyTable.empty());
}

TEST_F(Opaque, ANewCaseAndMissingLibrariesTakeTheDefaults) {
    MakeSlot({kShapeI, 1}, "XI103-F_WALLTYPE\tWallA1\n");
    ::remove((project + "/SimpWalls.lib").c_str());
    ConstructionChoice choice = LoadConstructions(kShapeI);
    EXPECT_EQ(prompts.Texts(), std::vector<std::string>{"No File Exist"});
    EXPECT_EQ(choice.MTB1, "0");
    ChooseConstructionGroup(choice, 50);
    EXPECT_EQ(choice.MTB2, "0");
    EXPECT_TRUE(CloseConstructions(choice));
    EXPECT_EQ(testing_support::Bytes(SlotFile({kShapeI, 1}, "SimpPropertiesOfCase.Dat")),
              testing_support::Dos("XI103-F_WALLTYPE\tWallA1\nXI103_ABSX1\t 0\n"));
}

}  // namespace
}  // namespace verandis
