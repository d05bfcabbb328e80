#include <gtest/gtest.h>

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "libraries/case_usage.h"
#include "libraries/library_entry.h"
#include "libraries/simple_libraries.h"
#include "platform/errors.h"
#include "support/session_test.h"

// The libraries of the simple side and what their dialogs check, store, add and delete, with the
// delivered texts.

namespace verandis {
namespace {

using testing_support::PutBytes;
using Texts = std::vector<std::string>;

class Libraries : public testing_support::SmallRootTest {
protected:
    Libraries() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        ReadWindows();
        ReadWalls();
        ReadSunPanel();
    }

    /// Reference windows of 1, 2, ... panes with these transmittances.
    void PutReferences(const Texts& transmittances) {
        std::string file = "title\r\nheads\r\n";
        int panes = 0;
        for (const std::string& each : transmittances) {
            file += "0\tName\t" + each + "\t0\t0\t1\t" + std::to_string(++panes) + "\r\n";
        }
        PutBytes(project + "/SimpRefWindows.lib", file);
    }

    TextTable& windows = simpleLibraries.WindowTable;
    TextTable& walls = simpleLibraries.WallTable;
};

TEST_F(Libraries, MissingFileIsToldAndLeavesTheTable) {
    for (const char* name : {"Windows", "RefWindows", "Walls", "SunPanel"}) {
        std::remove((project + "/Simp" + name + ".lib").c_str());
    }
    ReadWindows();
    ReadWalls();
    ReadSunPanel();  // reads the reference windows first
    EXPECT_EQ(prompts.Texts(), Texts(4, "No File Exist"));
    EXPECT_EQ(windows.Cell(2, kWindowName) + walls.Cell(3, kWallName), "Clear2FloorC");
    EXPECT_EQ(simpleLibraries.MaxPanes, 3);
    EXPECT_EQ(simpleLibraries.SunPanelTable[4][3].b, 0.3);
}

TEST_F(Libraries, RecordsFillTheirCells) {
    const std::pair<std::string, Texts> records[] = {
        {"  1\tA b\t.8\t0\t0\t5\t1  \r\n", {"A b", ".8", "0", "0", "5", "1"}},
        {"1\tToo few\t.8", {"Too few", ".8", "", "", "", ""}},
        {"No TAB: this is an ID\r\n", Texts(6)},
        {"\r\n", Texts(6)},
        {"1\tRest\t1\t2\t3\t4\t5\tx", {"Rest", "1", "2", "3", "4", "5\tx"}},
        {"1\t\xD6ppet\t,8\t0\t0\t1\t1", {"Öppet", ",8", "0", "0", "1", "1"}}};
    for (const auto& [line, wanted] : records) {
        PutBytes(project + "/SimpWindows.lib", "t\r\nh\r\n1\tBefore\t1\t2\t3\t4\t5\r\n" + line);
        ReadWindows();
        ASSERT_EQ(windows.rows(), 2) << line;
        Texts cells;
        for (int column = 1; column <= 6; ++column) cells.push_back(windows.Cell(2, column));
        EXPECT_EQ(cells, wanted);
    }
}

TEST_F(Libraries, SunPanelHasItsLinesByPaneAndStopsAboveThree) {
    std::string file = "1\r\n2\r\n3\r\n";
    for (const char* set : {"1", "2", "3", "4"}) {
        file += "heading 9\r\n";
        for (const char* pane : {"1", "2", "3"}) {
            file += std::string(set) + "," + pane + "\r\n-" + set + "." + pane + "\r\n";
        }
    }
    PutBytes(project + "/SimpSunPanel.lib", file);
    ReadSunPanel();
    EXPECT_EQ(simpleLibraries.SunPanelTable[1][1].a, 1.1);
    EXPECT_EQ(simpleLibraries.SunPanelTable[3][2].a, 3.2);
    EXPECT_EQ(simpleLibraries.SunPanelTable[4][3].b, -4.3);
    PutReferences({".8", ".7", ".6", ".5"});
    EXPECT_THROW(ReadSunPanel(), RunError);
    PutReferences({".8"});
    ReadRefWindows();
    EXPECT_EQ(simpleLibraries.MaxPanes, 1) << "the count of the file before stayed";
}

TEST_F(Libraries, LookupsGiveTheColumnOrTheDefault) {
    const std::string unknown = " Glazing not found,default used clear2";
    const std::tuple<const char*, double, double, int, int, Texts> rows[] = {
        {"Clear2", 2.8, 0.7, 2, 1, {}},
        {"LowE-3", 1.1, 0.45, 3, 2, {}},
        {"-999999", 5.8, 0.83, 1, 0, {}},
        {"clear2", 5.8, 0.83, 1, 0, {unknown, unknown, unknown}}};
    for (const auto& [name, u, transmittance, panes, position, messages] : rows) {
        EXPECT_DOUBLE_EQ(WindowU(name), u);
        EXPECT_DOUBLE_EQ(WindowTransmittance(name), transmittance);
        EXPECT_EQ(WindowPanes(name), panes);
        EXPECT_EQ(FindWindowRow(name), position);
        EXPECT_EQ(prompts.Texts(), messages) << name;
    }
    prompts.shown.clear();
    EXPECT_DOUBLE_EQ(WallU("FloorC") + WallU("-999999") + WallU("Clear2"), 0.4 + 0.5 + 0.5);
    EXPECT_EQ(FindWallRow("WallB2") + FindWallRow("wallb2"), 1);
    EXPECT_DOUBLE_EQ(ReferenceTransmittance(2) + ReferenceTransmittance(0), 0.7 + 0.5);
    EXPECT_EQ(prompts.Texts(), (Texts{" Wall type not found,default used Clear2",
                                      " Glazing not found, default used = 0.5"}));
    windows.Clear();
    EXPECT_THROW(WindowU("Clear1"), RunError) << "an empty table has no first row";
}

TEST_F(Libraries, SunPanelCurveIsThatOfTheNearestReferenceWindow) {
    // 0.7 is nearest to two panes: 0.8 times 0.25 to the power 0.4, which is 0.5743492.
    EXPECT_NEAR(SunPanelValue(kShapeU, 0.70, 0.25), 0.45947934, 1e-7);
    PutReferences({"0.875", "0.75", "0.5"});
    EXPECT_NEAR(SunPanelValue(kShapeI, 0.8125, 1), 0.9, 1e-12) << "a tie takes the lower count";
    EXPECT_NEAR(SunPanelValue(kShapeI, 0.625, 1), 0.8, 1e-12) << "a tie takes the lower count";
    EXPECT_THROW(SunPanelValue(kShapeU, 0.7, 0), RunError);
    simpleLibraries.SunPanelTable[1][1].a = 0;
    EXPECT_THROW(SunPanelValue(kShapeU, 0.9, 0.5), RunError);
}

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

TEST_F(Libraries, ChecksSayWhatIsWrongAndGoThere) {
    for (const Check& row : kChecks) {
        const EntryComplaint complaint = CheckWindowEntry(row.entry);
        EXPECT_EQ(complaint.text, row.text) << row.fault;
        EXPECT_EQ(complaint.control, row.control) << row.fault;
        const bool goodU = complaint.text.find("U value") == std::string::npos;
        EXPECT_EQ(CheckWallEntry(row.entry.TU).text, goodU ? "" : kU) << row.fault;
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
TEST_F(Libraries, EveryPercentIsShownAsItWasTyped) {
    session.Decimals = DecimalMode::Comma;
    for (int percent = 0; percent <= 100; ++percent) {
        const std::string TT = std::to_string(percent);
        const std::string TR = std::to_string(100 - percent);
        StoreWindowEntry(windows, 2, {TT, TR, "0", "1,15", "2"});
        const WindowEntry shown = ShownWindow(windows, 2);
        EXPECT_EQ(shown.TT + "/" + shown.TR + "/" + shown.TU, TT + "/" + TR + "/1,15");
    }
    StoreWindowEntry(windows, 1, {"57", "20", "23", "1,15", "2"});
    EXPECT_EQ(windows.Cell(1, 2) + windows.Cell(1, 5) + windows.Cell(1, 6), " 0.57 1.152");
    EXPECT_EQ(ShownWallU(walls, 3), "0,4");
    StoreWallEntry(walls, 3, "0,35");
    EXPECT_EQ(walls.Cell(3, kWallU), " 0.35");
}

TEST_F(Libraries, NamesAreAskedForUntilTheirLengthIsLegal) {
    using Replies = std::vector<std::optional<std::string>>;
    const std::pair<Replies, std::string> rows[] = {
        {{std::nullopt}, ""},
        {{""}, ""},
        {{"ååååå", std::nullopt}, ""},  // five letters, though ten bytes
        {{"12345", "123456"}, "123456"},
        {{std::string(24, 'x'), std::string(23, 'y')}, std::string(23, 'y')}};
    for (const auto& [replies, name] : rows) {
        ReadWalls();
        prompts.shown.clear();
        prompts.replies.assign(replies.begin(), replies.end());
        EXPECT_EQ(AddNamedType(TypeKind::Wall, walls), name.empty() ? 0 : 4) << name;
        EXPECT_EQ(walls.rows() == 4 ? walls.Cell(4, 1) + walls.Cell(4, 2) : "", name);
        EXPECT_EQ(prompts.Texts(), Texts(replies.size(),
                                         "Name of the new type\r\nAt least 6, at "
                                         "most 23\u00A0characters"));
        EXPECT_EQ(prompts.shown[0].title, "New wall type");
    }
}

TEST_F(Libraries, ThirtyTypesAreTheLimit) {
    while (windows.rows() < 29) windows.AddRow();
    EXPECT_TRUE(RoomForType(TypeKind::Window, windows));
    windows.AddRow();
    EXPECT_FALSE(RoomForType(TypeKind::Window, windows) || RoomForType(TypeKind::Wall, windows));
    EXPECT_EQ(prompts.Texts(), (Texts{"Number of window types > 30", "Number of wall types > 30"}));
}

TEST_F(Libraries, FirstCaseThatHoldsTheNameIsFound) {
    // Each file stands before those of the rows above it; the label is that of the case found then.
    const std::tuple<std::string, const char*, const char*> rows[] = {
        {"UShape1", "a\tclear1", ""},
        {"UShape1", "Clear1\t2\r\nClear1\r\n", ""},
        {"UShape1", "a\tx, Clear1", ""},  // an item behind a comma needs a TAB of its own
        {"b!U1.CAS", "a\tClear1", "saved case : b!U1.CAS"},
        {"A!U2.cas", "a\tClear1", "saved case : A!U2.cas"},
        {"IShape4", "a\tClear1", "Case : I-shape 4"},
        {"VShape4", "a\tClear1", "Case : V-shape 4"},
        {"OShape2", "x\r\na\tClear1\r\n", "Case : O-shape 2"},
        {"OShape1", "a\tMyClear12, 1", "Case : O-shape 1"},
        {"UShape3", "a\tx,b\tClear1", "Case : U-shape 3"}};
    for (const auto& [place, bytes, label] : rows) {
        const bool slot = place.find('.') == std::string::npos;
        PutBytes(project + "/" + place + (slot ? "/SimpPropertiesOfCase.Dat" : ""), bytes);
        EXPECT_EQ(FindCaseUsing("Clear1"), label) << place << " " << bytes;
    }
    EXPECT_TRUE(prompts.shown.empty()) << "a slot without its file is passed over in silence";
}

TEST_F(Libraries, TypesInUseAndTheLastOneStay) {
    PutBytes(project + "/UShape1/SimpPropertiesOfCase.Dat",
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
