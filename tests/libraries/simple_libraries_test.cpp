#include "libraries/simple_libraries.h"

#include <gtest/gtest.h>

#include "platform/errors.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::PutBytes;
using Texts = std::vector<std::string>;

class Libraries : public testing_support::SmallRootTest {
protected:
    Libraries() {
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
};

TEST_F(Libraries, MissingFileIsToldAndLeavesTheTable) {
    for (const char* name : {"Windows", "RefWindows", "Walls", "SunPanel"}) {
        std::remove((project + "/Simp" + name + ".lib").c_str());
    }
    ReadWindows();
    ReadRefWindows();
    ReadWalls();
    ReadSunPanel();  // reads the reference windows first
    EXPECT_EQ(prompts.Texts(), Texts(5, "No File Exist"));
    EXPECT_EQ(simpleLibraries.WindowTable.rows(), 3);
    EXPECT_EQ(simpleLibraries.WallTable.Cell(3, kWallName), "FloorC");
    EXPECT_EQ(simpleLibraries.MaxPanes, 3);
    EXPECT_EQ(simpleLibraries.SunPanelTable[4][3].b, 0.3);
}

struct Record {
    const char* line;
    Texts cells;
};
const Record kRecords[] = {
    {"  1\tA b\t.8\t0\t0\t5\t1  \r\n", {"A b", ".8", "0", "0", "5", "1"}},
    {"1\tToo few\t.8", {"Too few", ".8", "", "", "", ""}},
    {"No TAB: this is an ID\r\n", Texts(6)},
    {"\r\n", Texts(6)},
    {"1\tRest\t1\t2\t3\t4\t5\tx", {"Rest", "1", "2", "3", "4", "5\tx"}},
    {"1\t\xD6ppet\t,8\t0\t0\t1\t1", {"Öppet", ",8", "0", "0", "1", "1"}},
};

TEST_F(Libraries, RecordsFillTheirCells) {
    for (const Record& row : kRecords) {
        PutBytes(project + "/SimpWindows.lib",
                 std::string("t\r\nh\r\n1\tBefore\t1\t2\t3\t4\t5\r\n") + row.line);
        ReadWindows();
        ASSERT_EQ(simpleLibraries.WindowTable.rows(), 2) << row.line;
        Texts cells;
        for (int column = 1; column <= kWindowColumns; ++column) {
            cells.push_back(simpleLibraries.WindowTable.Cell(2, column));
        }
        EXPECT_EQ(cells, row.cells) << row.line;
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
    EXPECT_EQ(simpleLibraries.RefWindowTable.rows(), 1);
}

using Look = double (*)(std::string_view name);
const Look kPanesOf = [](std::string_view name) -> double { return WindowPanes(name); };
const Look kReference = [](std::string_view panes) {
    return ReferenceTransmittance(panes[0] - '0');
};
const Look kWindowPlace = [](std::string_view name) -> double { return FindWindowRow(name); };
const Look kWallPlace = [](std::string_view name) -> double { return FindWallRow(name); };
constexpr const char* kNoWindow = " Glazing not found,default used clear2";
constexpr const char* kNoWall = " Wall type not found,default used Clear2";

struct Lookup {
    Look look;
    const char* name;
    double value;
    const char* message;  // none when nothing is shown
};
const Lookup kLookups[] = {
    {WindowU, "Clear2", 2.8, nullptr},
    {WindowU, "LowE-3", 1.1, nullptr},
    {WindowU, "clear2", 5.8, kNoWindow},
    {WindowU, "-999999", 5.8, nullptr},
    {WallU, "FloorC", 0.4, nullptr},
    {WallU, "Clear2", 0.5, kNoWall},
    {WallU, "-999999", 0.5, nullptr},
    {WindowTransmittance, "LowE-3", 0.45, nullptr},
    {WindowTransmittance, "clear2", 0.83, kNoWindow},
    {kPanesOf, "LowE-3", 3, nullptr},
    {kPanesOf, "clear2", 1, kNoWindow},
    {kPanesOf, "-999999", 1, nullptr},
    {kReference, "2", 0.7, nullptr},
    {kReference, "0", 0.5, " Glazing not found, default used = 0.5"},
    {kWindowPlace, "LowE-3", 2, nullptr},
    {kWindowPlace, "clear2", 0, nullptr},
    {kWallPlace, "WallB2", 1, nullptr},
};

TEST_F(Libraries, LookupsGiveTheColumnOrTheDefault) {
    for (const Lookup& row : kLookups) {
        prompts.shown.clear();
        EXPECT_DOUBLE_EQ(row.look(row.name), row.value) << row.name;
        EXPECT_EQ(prompts.Texts(), row.message ? Texts{row.message} : Texts{}) << row.name;
    }
    PutBytes(project + "/SimpWindows.lib", "t\r\nh\r\n");
    ReadWindows();
    EXPECT_THROW(WindowU("Clear1"), RunError) << "an empty table has no first row";
}

TEST_F(Libraries, SunPanelCurveIsThatOfTheNearestReferenceWindow) {
    // 0.7 is nearest to two panes: 0.8 times 0.25 to the power 0.4, which is 0.5743492.
    EXPECT_NEAR(SunPanelValue(kShapeU, 0.70, 0.25), 0.45947934, 1e-7);
    PutReferences({"0.875", "0.75", "0.5"});
    EXPECT_NEAR(SunPanelValue(kShapeI, 0.8125, 1), 0.9, 1e-12) << "a tie takes the lower count";
    EXPECT_NEAR(SunPanelValue(kShapeI, 0.625, 1), 0.8, 1e-12) << "a tie takes the lower count";
    EXPECT_THROW(SunPanelValue(kShapeU, 0.7, 0), RunError);
    EXPECT_THROW(SunPanelValue(5, 0.7, 0.5), RunError);
    simpleLibraries.SunPanelTable[1][1].a = 0;
    EXPECT_THROW(SunPanelValue(kShapeU, 0.9, 0.5), RunError);
}

}  // namespace
}  // namespace verandis
