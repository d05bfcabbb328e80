#include "libraries/library_entry.h"

#include <gtest/gtest.h>

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
};
constexpr const char* kU = "U value must be a number\r";
constexpr const char* kPanesLimit = "Number of panes must be a whole number <= 3\r";
constexpr const char* kSum = "Transmittance+Reflectance+Absorptance must be 100\r";

const Check kChecks[] = {
    {"good entry", {"57", "20", "23", "1.1", "3"}, ""},
    {"comma where points are used", {"57", "20", "23", "1,1", "1"}, kU, "TU"},
    {"lone point", {"57", "20", "23", ".", "1"}, kU, "TU"},
    {"blanks are no number", {"57", "20", "23", "  ", "1"}, kU, "TU"},
    {"sign", {"57", "20", "23", "-1", "1"}, kU, "TU"},
    {"two points pass", {"57", "20", "23", "1.1.", "1"}, ""},
    {"sum of 99", {"57", "20", "22", "1", "1"}, kSum, "TT"},
    {"sum of 101", {"57", "20", "24", "1", "1"}, kSum, "TT"},
    {"no panes", {"57", "20", "23", "1", "0"}, kPanesLimit, "TN"},
    {"more panes than references", {"57", "20", "23", "1", "4"}, kPanesLimit, "TN"},
    {"another fault hides the sum", {"1", "1", "1", "1", "4"}, kPanesLimit, "TN"},
    {"fraction of a percent",
     {"33.3", "33.3", "33.4", "1", "1"},
     "Transmittance must be a whole number\rReflectance must be a whole number\r"
     "Absorptance must be a whole number\r",
     "TT"},
    {"empty fields",
     {"100", "0", "", "", ""},
     "Absorptance must be a whole number\rU value must be a number\r"
     "Number of panes must be a whole number\r\r",
     "TA"},
};

TEST_F(Entries, ChecksSayWhatIsWrongAndGoThere) {
    for (const Check& row : kChecks) {
        const EntryComplaint complaint = CheckWindowEntry(row.entry);
        EXPECT_EQ(complaint.text, row.text) << row.fault;
        EXPECT_EQ(complaint.control, row.control) << row.fault;
        const bool goodU = CheckWallEntry(row.entry.TU).empty();
        EXPECT_EQ(goodU, complaint.text.find("U value") == std::string::npos) << row.fault;
    }
    session.Decimals = DecimalMode::Comma;
    session.Language = 1;
    EXPECT_TRUE(CheckWindowEntry({"57", "20", "23", "1,1", "1"}).empty());
    EXPECT_EQ(CheckWallEntry("1.1").text, "U-värde ska vara ett tal\r");
    EXPECT_EQ(CheckWindowEntry({"x", "0", "0", "1", "4"}).text,
              "Transmittans ska vara ett heltal\rAntal glas ska vara ett heltal <= 3\r");
    ShowComplaint(CheckWallEntry(""));
    EXPECT_EQ(prompts.shown.back().title, "Kontroll");
    EXPECT_EQ(prompts.shown.back().icon, Icon::Exclamation);
}

// 0.57 times 100 is 56.99999999999999 in binary, which the check would refuse.
TEST_F(Entries, EveryPercentIsShownAsItWasTyped) {
    session.Decimals = DecimalMode::Comma;
    for (int percent = 0; percent <= 100; ++percent) {
        const std::string TT = std::to_string(percent);
        const std::string TR = std::to_string(100 - percent);
        StoreWindowEntry(windows, 2, {TT, TR, "0", "1,15", "2"});
        const WindowEntry shown = ShownWindow(windows, 2);
        EXPECT_EQ(shown.TT + "/" + shown.TR + "/" + shown.TU, TT + "/" + TR + "/1,15");
        EXPECT_TRUE(CheckWindowEntry(shown).empty()) << percent;
    }
    StoreWindowEntry(windows, 1, {"57", "20", "23", "1,15", "2"});
    EXPECT_EQ(windows.Cell(1, 2) + windows.Cell(1, 5) + windows.Cell(1, 6), " 0.57 1.152");
    EXPECT_EQ(ShownWallU(walls, 3), "0,4");
    StoreWallEntry(walls, 3, "0,35");
    EXPECT_EQ(walls.Cell(3, kWallU), " 0.35");
}

struct Adding {
    const char* fault;
    std::vector<std::optional<std::string>> replies;
    std::size_t length;  // in bytes, of the name that is taken; 0 when nothing is added
};
const Adding kAddings[] = {
    {"cancel takes the row away", {std::nullopt}, 0},
    {"empty answer", {""}, 0},
    {"five letters of ten bytes", {"ååååå", std::nullopt}, 0},
    {"six characters behind five", {"12345", "123456"}, 6},
    {"23 characters behind 24", {std::string(24, 'x'), std::string(23, 'y')}, 23},
};

TEST_F(Entries, NamesAreAskedForUntilTheirLengthIsLegal) {
    for (const auto& [fault, replies, length] : kAddings) {
        SCOPED_TRACE(fault);
        ReadWalls();
        prompts.shown.clear();
        prompts.replies.assign(replies.begin(), replies.end());
        EXPECT_EQ(AddNamedType(TypeKind::Wall, walls), length == 0 ? 0 : 4);
        ASSERT_EQ(walls.rows(), length == 0 ? 3 : 4);
        if (length != 0) {
            EXPECT_EQ((walls.Cell(4, kWallName) + walls.Cell(4, kWallU)).size(), length);
        }
        EXPECT_EQ(prompts.Texts(), Texts(replies.size(),
                                         "Name of the new type\r\nAt least 6, at "
                                         "most 23\u00A0characters"));
        EXPECT_EQ(prompts.shown[0].title, "New wall type");
    }
}

TEST_F(Entries, ThirtyTypesAreTheLimit) {
    while (windows.rows() < 29) windows.AddRow();
    EXPECT_TRUE(RoomForType(TypeKind::Window, windows));
    windows.AddRow();
    EXPECT_FALSE(RoomForType(TypeKind::Window, windows) || RoomForType(TypeKind::Wall, windows));
    EXPECT_EQ(prompts.Texts(), (Texts{"Number of window types > 30", "Number of wall types > 30"}));
}

const std::string kFile = "/SimpPropertiesOfCase.Dat";

struct Usage {
    const char* fault;
    std::string file;  // below the project
    const char* bytes;
    const char* label;  // of the case that uses Clear1
};
// Each row's file comes before those of the rows above it, unless its label tells otherwise.
const Usage kUsages[] = {
    {"other letters", "UShape1" + kFile, "a\tclear1", ""},
    {"row names do not count", "UShape1" + kFile, "Clear1\t2\r\nClear1\r\n", ""},
    {"an item behind a comma needs its TAB", "UShape1" + kFile, "a\tx, Clear1", ""},
    {"saved case", "b!U1.CAS", "a\tClear1", "saved case : b!U1.CAS"},
    {"saved cases go by name", "A!U2.cas", "a\tClear1", "saved case : A!U2.cas"},
    {"slots come before saved cases", "IShape4" + kFile, "a\tClear1", "Case : I-shape 4"},
    {"V comes before I", "VShape4" + kFile, "a\tClear1", "Case : V-shape 4"},
    {"O comes before V", "OShape2" + kFile, "x\r\na\tClear1\r\n", "Case : O-shape 2"},
    {"part of a longer name", "OShape1" + kFile, "a\tMyClear12, 1", "Case : O-shape 1"},
    {"item behind a comma", "UShape3" + kFile, "a\tx,b\tClear1", "Case : U-shape 3"},
};

TEST_F(Entries, FirstCaseThatHoldsTheNameIsFound) {
    EXPECT_EQ(FindCaseUsing("Clear1"), "");
    for (const Usage& row : kUsages) {
        PutBytes(project + "/" + row.file, row.bytes);
        EXPECT_EQ(FindCaseUsing("Clear1"), row.label) << row.fault;
    }
    EXPECT_TRUE(prompts.shown.empty()) << "a slot without its file is passed over in silence";
}

TEST_F(Entries, TypesInUseAndTheLastOneStay) {
    PutBytes(project + "/UShape1" + kFile,
             "XU201-S_GLAZEDID\tClear2\r\nXU101-W_WALLTYPE\tWallA1\r\n");
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 2), DeleteResult::InUse);
    EXPECT_EQ(DeleteType(TypeKind::Wall, walls, 1), DeleteResult::InUse);
    EXPECT_EQ(prompts.Texts(), (Texts{"Window type is used in Case : U-shape 1",
                                      "Wall type is used in Case : U-shape 1"}));
    EXPECT_EQ(prompts.shown[0].title + "/" + prompts.shown[1].title,
              "Delete window type/Delete Wall type");
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 1), DeleteResult::Deleted);
    EXPECT_EQ(windows.Column(kWindowName), (Texts{"Clear2", "LowE-3"}));
    EXPECT_EQ(windows.Cell(2, kPanes), "3");
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 2), DeleteResult::Deleted);
    EXPECT_EQ(DeleteType(TypeKind::Window, windows, 1), DeleteResult::LastRow);
    EXPECT_EQ(prompts.shown.size(), 2u) << "the last row stays in silence";
}

}  // namespace
}  // namespace verandis
