#include "libraries/library_entry.h"

#include <gtest/gtest.h>

#include <ostream>

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "libraries/case_usage.h"
#include "libraries/simple_libraries.h"
#include "support/session_test.h"

// The dialogs of the simple libraries without their windows, with the delivered texts.

namespace verandis {
namespace {

using testing_support::PutBytes;
using Texts = std::vector<std::string>;

class Entries : public testing_support::SmallRootTest {
protected:
    Entries() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        ReadWindows();
        ReadWalls();
        ReadRefWindows();
    }

    TextTable& windows = simpleLibraries.WindowTable;
    TextTable& walls = simpleLibraries.WallTable;
};

struct Check {
    const char* fault;
    WindowEntry entry;
    const char* text;
    const char* control = "";
    DecimalMode decimals = DecimalMode::Point;
    int language = 2;
};
std::ostream& operator<<(std::ostream& out, const Check& row) {
    return out << row.fault;
}

class WindowChecks : public Entries, public testing::WithParamInterface<Check> {};

TEST_P(WindowChecks, SayWhatIsWrongAndGoThere) {
    session.Decimals = GetParam().decimals;
    session.Language = GetParam().language;
    const EntryComplaint complaint = CheckWindowEntry(GetParam().entry);
    EXPECT_EQ(complaint.text, GetParam().text);
    EXPECT_EQ(complaint.control, GetParam().control);
}

constexpr const char* kU = "U value must be a number\r";
constexpr const char* kPanesLimit = "Number of panes must be a whole number <= 3\r";
constexpr const char* kSum = "Transmittance+Reflectance+Absorptance must be 100\r";
constexpr DecimalMode kComma = DecimalMode::Comma;

INSTANTIATE_TEST_SUITE_P(
    All, WindowChecks,
    testing::Values(
        Check{"good entry", {"57", "20", "23", "1.1", "3"}, ""},
        Check{"comma where commas are used", {"57", "20", "23", "1,1", "1"}, "", "", kComma},
        Check{"point where commas are used", {"57", "20", "23", "1.1", "1"}, kU, "TU", kComma},
        Check{"comma where points are used", {"57", "20", "23", "1,1", "1"}, kU, "TU"},
        Check{"lone point", {"57", "20", "23", ".", "1"}, kU, "TU"},
        Check{"blanks are no number", {"57", "20", "23", "  ", "1"}, kU, "TU"},
        Check{"sign", {"57", "20", "23", "-1", "1"}, kU, "TU"},
        Check{"two points pass", {"57", "20", "23", "1.1.", "1"}, ""},
        Check{"sum of 99", {"57", "20", "22", "1", "1"}, kSum, "TT"},
        Check{"sum of 101", {"57", "20", "24", "1", "1"}, kSum, "TT"},
        Check{"no panes", {"57", "20", "23", "1", "0"}, kPanesLimit, "TN"},
        Check{"more panes than references", {"57", "20", "23", "1", "4"}, kPanesLimit, "TN"},
        Check{"the sum is not told beside another fault",
              {"1", "1", "1", "1", "4"},
              kPanesLimit,
              "TN"},
        Check{"fraction of a percent",
              {"33.3", "33.3", "33.4", "1", "1"},
              "Transmittance must be a whole number\rReflectance must be a whole number\r"
              "Absorptance must be a whole number\r",
              "TT"},
        Check{"everything empty",
              {"100", "0", "", "", ""},
              "Absorptance must be a whole number\rU value must be a number\r"
              "Number of panes must be a whole number\r\r",
              "TA"},
        Check{"Swedish",
              {"x", "0", "0", "1", "4"},
              "Transmittans ska vara ett heltal\rAntal glas ska vara ett heltal <= 3\r",
              "TT",
              DecimalMode::Point,
              1}));

TEST_F(Entries, WallCheckAndItsBox) {
    EXPECT_TRUE(CheckWallEntry("0.25").empty());
    for (const char* bad : {"", " ", "0,25", "+", "x"}) {
        EXPECT_EQ(CheckWallEntry(bad).text, kU) << bad;
    }
    session.Decimals = kComma;
    EXPECT_TRUE(CheckWallEntry("0,25").empty());
    ShowComplaint(CheckWallEntry("0.25"));
    EXPECT_EQ(prompts.shown.back().title, "Check");
    EXPECT_EQ(prompts.shown.back().icon, Icon::Exclamation);
}

// 0.57 times 100 is 56.99999999999999 in binary, which the check would refuse.
TEST_F(Entries, EveryPercentIsShownAsItWasTyped) {
    session.Decimals = kComma;
    for (int percent = 0; percent <= 100; ++percent) {
        const WindowEntry typed = {std::to_string(percent), std::to_string(100 - percent), "0",
                                   "1,15", "2"};
        StoreWindowEntry(windows, 2, typed);
        const WindowEntry shown = ShownWindow(windows, 2);
        EXPECT_EQ(shown.TT + "/" + shown.TR + "/" + shown.TU, typed.TT + "/" + typed.TR + "/1,15");
        EXPECT_TRUE(CheckWindowEntry(shown).empty()) << percent;
    }
    StoreWindowEntry(windows, 1, {"57", "20", "23", "1,15", "2"});
    const Texts stored = {windows.Cell(1, 2), windows.Cell(1, 5), windows.Cell(1, 6)};
    EXPECT_EQ(stored, (Texts{" 0.57", " 1.15", "2"}));
    EXPECT_EQ(ShownWallU(walls, 3), "0,4");
    StoreWallEntry(walls, 3, "0,35");
    EXPECT_EQ(walls.Cell(3, kWallU), " 0.35");
}

struct Adding {
    const char* fault;
    std::vector<std::optional<std::string>> replies;
    const char* name;  // none when nothing is added
};
std::ostream& operator<<(std::ostream& out, const Adding& row) {
    return out << row.fault;
}

class NamedTypes : public Entries, public testing::WithParamInterface<Adding> {};

TEST_P(NamedTypes, AreAskedForUntilTheLengthIsLegal) {
    const auto& [fault, replies, name] = GetParam();
    prompts.replies.assign(replies.begin(), replies.end());
    const int row = AddNamedType(TypeKind::Wall, walls);
    EXPECT_EQ(row, name ? 4 : 0);
    EXPECT_EQ(walls.rows(), name ? 4 : 3);
    if (name) {
        EXPECT_EQ(walls.Cell(4, kWallName) + walls.Cell(4, kWallU), name);
    }
    EXPECT_EQ(prompts.Texts(), Texts(replies.size(),
                                     "Name of the new type\r\nAt least 6, at most 23"
                                     "\xC2\xA0"
                                     "characters"));
    EXPECT_EQ(prompts.shown[0].title, "New wall type");
}

INSTANTIATE_TEST_SUITE_P(
    All, NamedTypes,
    testing::Values(Adding{"cancel takes the row away", {std::nullopt}, nullptr},
                    Adding{"empty answer", {""}, nullptr},
                    Adding{"five characters", {"12345", std::nullopt}, nullptr},
                    Adding{"six characters", {"123456"}, "123456"},
                    Adding{"five letters of ten bytes",
                           {"\xC3\xA5\xC3\xA5\xC3\xA5\xC3\xA5\xC3\xA5", ""},
                           nullptr},
                    Adding{"23, behind 24",
                           {std::string(24, 'x'), std::string(23, 'y')},
                           "yyyyyyyyyyyyyyyyyyyyyyy"}));

TEST_F(Entries, ThirtyTypesAreTheLimit) {
    while (windows.rows() < 29) windows.AddRow();
    EXPECT_TRUE(RoomForType(TypeKind::Window, windows));
    windows.AddRow();
    EXPECT_FALSE(RoomForType(TypeKind::Window, windows));
    while (walls.rows() < 30) walls.AddRow();
    EXPECT_FALSE(RoomForType(TypeKind::Wall, walls));
    EXPECT_EQ(prompts.Texts(), (Texts{"Number of window types > 30", "Number of wall types > 30"}));
    EXPECT_EQ(prompts.shown[0].icon, Icon::Information);
}

struct Usage {
    const char* fault;
    std::vector<std::pair<std::string, std::string>> files;  // below the project
    const char* name;
    const char* label;
};
std::ostream& operator<<(std::ostream& out, const Usage& row) {
    return out << row.fault;
}

class Usages : public Entries, public testing::WithParamInterface<Usage> {};

const std::string kFile = "/SimpPropertiesOfCase.Dat";

TEST_P(Usages, GiveTheFirstCaseThatHoldsTheName) {
    for (const auto& [file, bytes] : GetParam().files) PutBytes(project + "/" + file, bytes);
    EXPECT_EQ(FindCaseUsing(GetParam().name), GetParam().label);
    EXPECT_TRUE(prompts.shown.empty()) << "a slot without its file is passed over in silence";
}

INSTANTIATE_TEST_SUITE_P(
    All, Usages,
    testing::Values(Usage{"nothing uses it", {}, "Clear1", ""},
                    Usage{"order U, O, V, I",
                          {{"IShape1" + kFile, "a\tClear1"},
                           {"VShape1" + kFile, "a\tClear1"},
                           {"OShape2" + kFile, "x\r\na\tClear1\r\n"}},
                          "Clear1",
                          "Case : O-shape 2"},
                    Usage{"slots before saved cases",
                          {{"A!U1.CAS", "a\tClear1"}, {"IShape4" + kFile, "a\tClear1"}},
                          "Clear1",
                          "Case : I-shape 4"},
                    Usage{"saved cases by name",
                          {{"b!U1.CAS", "a\tClear1"}, {"A!U2.cas", "a\tClear1"}},
                          "Clear1",
                          "saved case : A!U2.cas"},
                    Usage{"part of a longer name",
                          {{"UShape3" + kFile, "a\tMyClear12, 1"}},
                          "Clear1",
                          "Case : U-shape 3"},
                    Usage{"other letters", {{"UShape3" + kFile, "a\tclear1"}}, "Clear1", ""},
                    Usage{"row names do not count",
                          {{"UShape3" + kFile, "Clear1\t2\r\nClear1\r\n"}},
                          "Clear1",
                          ""},
                    Usage{"an item behind a comma needs its own TAB",
                          {{"UShape3" + kFile, "a\tx, Clear1"}},
                          "Clear1",
                          ""},
                    Usage{"an item behind a comma",
                          {{"UShape3" + kFile, "a\tx,b\tClear1"}},
                          "Clear1",
                          "Case : U-shape 3"}));

TEST_F(Entries, TypesInUseAndTheLastOneStay) {
    PutBytes(project + "/UShape1" + kFile,
             "XU201-S_GLAZEDID\tClear2\r\nXU101-W_WALLTYPE\tWallA1\r\n");
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 2), DeleteResult::InUse);
    EXPECT_EQ(DeleteType(TypeKind::Wall, walls, 1), DeleteResult::InUse);
    EXPECT_EQ(prompts.Texts(), (Texts{"Window type is used in Case : U-shape 1",
                                      "Wall type is used in Case : U-shape 1"}));
    EXPECT_EQ(prompts.shown[0].title + "/" + prompts.shown[1].title,
              "Delete window type/Delete Wall type");
    EXPECT_EQ(prompts.shown[0].icon, Icon::Information);
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 1), DeleteResult::Deleted);
    EXPECT_EQ(windows.Column(kWindowName), (Texts{"Clear2", "LowE-3"}));
    EXPECT_EQ(windows.Cell(2, kPanes), "3");
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 2), DeleteResult::Deleted);
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 1), DeleteResult::LastRow);
    EXPECT_EQ(prompts.shown.size(), 2u) << "the last row stays in silence";
}

}  // namespace
}  // namespace verandis
