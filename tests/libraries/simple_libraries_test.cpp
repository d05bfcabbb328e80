#include "libraries/simple_libraries.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

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
        for (std::size_t at = 0; at < transmittances.size(); ++at) {
            file +=
                "0\tName\t" + transmittances[at] + "\t0\t0\t1\t" + std::to_string(at + 1) + "\r\n";
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
    const char* fault;
    const char* line;
    Texts cells;
};
std::ostream& operator<<(std::ostream& out, const Record& row) {
    return out << row.fault;
}

class Records : public Libraries, public testing::WithParamInterface<Record> {};

TEST_P(Records, FillTheirCells) {
    PutBytes(project + "/SimpWindows.lib",
             std::string("t\r\nh\r\n1\tBefore\t1\t2\t3\t4\t5\r\n") + GetParam().line);
    ReadWindows();
    ASSERT_EQ(simpleLibraries.WindowTable.rows(), 2);
    for (int column = 1; column <= kWindowColumns; ++column) {
        EXPECT_EQ(simpleLibraries.WindowTable.Cell(2, column),
                  GetParam().cells[static_cast<std::size_t>(column) - 1]);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, Records,
    testing::Values(
        Record{"outer blanks go",
               "  1\tA b\t.8\t.1\t.1\t5\t1  \r\n",
               {"A b", ".8", ".1", ".1", "5", "1"}},
        Record{"last line without an end", "1\tA\t,8\t0\t0\t5\t1", {"A", ",8", "0", "0", "5", "1"}},
        Record{"too few TABs keep the row before", "1\tA\t.8", {"A", ".8", "", "", "", ""}},
        Record{"no TAB: the ID is no name", "A\r\n", Texts(6)},
        Record{"blank line is a row", "\r\n", Texts(6)},
        Record{"the rest is the last column",
               "1\tA\t1\t2\t3\t4\t5\tx",
               {"A", "1", "2", "3", "4", "5\tx"}},
        Record{"letters of the code page",
               "1\t\xD6ppet\t1\t0\t0\t1\t1\n",
               {"\xC3\x96ppet", "1", "0", "0", "1", "1"}}));

TEST_F(Libraries, MorePanesThanTheSunPanelTableHoldsStop) {
    EXPECT_EQ(simpleLibraries.MaxPanes, 3);
    PutReferences({".8", ".7", ".6", ".5"});
    EXPECT_THROW(ReadSunPanel(), RunError);
    PutReferences({".8"});
    ReadRefWindows();
    EXPECT_EQ(simpleLibraries.MaxPanes, 1) << "the count of the file before stayed";
    EXPECT_EQ(simpleLibraries.RefWindowTable.rows(), 1);
}

TEST_F(Libraries, SunPanelLinesGoToTheirSetAndPane) {
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
    EXPECT_EQ(simpleLibraries.SunPanelTable[3][2].b, -3.2);
    EXPECT_EQ(simpleLibraries.SunPanelTable[4][3].b, -4.3);
}

struct Lookup {
    const char* fault;
    double (*look)(std::string_view name);
    const char* name;
    double value;
    const char* message;  // none when nothing is shown
};
std::ostream& operator<<(std::ostream& out, const Lookup& row) {
    return out << row.fault;
}

double Panes(std::string_view name) {
    return WindowPanes(name);
}
double Reference(std::string_view panes) {
    return ReferenceTransmittance(panes[0] - '0');
}
double WindowPosition(std::string_view name) {
    return FindWindowRow(name);
}
double WallPosition(std::string_view name) {
    return FindWallRow(name);
}
constexpr const char* kWindow = " Glazing not found,default used clear2";
constexpr const char* kWall = " Wall type not found,default used Clear2";

class Lookups : public Libraries, public testing::WithParamInterface<Lookup> {};

TEST_P(Lookups, GiveTheColumnOrTheDefault) {
    const Lookup& row = GetParam();
    EXPECT_DOUBLE_EQ(row.look(row.name), row.value);
    EXPECT_EQ(prompts.Texts(), row.message ? Texts{row.message} : Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    All, Lookups,
    testing::Values(Lookup{"window U", WindowU, "Clear2", 2.8, nullptr},
                    Lookup{"decimal comma", WindowU, "LowE-3", 1.1, nullptr},
                    Lookup{"window in other letters", WindowU, "clear2", 5.8, kWindow},
                    Lookup{"window not set", WindowU, "-999999", 5.8, nullptr},
                    Lookup{"wall U", WallU, "FloorC", 0.4, nullptr},
                    Lookup{"a window is no wall", WallU, "Clear2", 0.5, kWall},
                    Lookup{"wall not set", WallU, "-999999", 0.5, nullptr},
                    Lookup{"transmittance", WindowTransmittance, "LowE-3", 0.45, nullptr},
                    Lookup{"transmittance unknown", WindowTransmittance, "clear2", 0.83, kWindow},
                    Lookup{"panes", Panes, "LowE-3", 3, nullptr},
                    Lookup{"panes unknown", Panes, "clear2", 1, kWindow},
                    Lookup{"panes not set", Panes, "-999999", 1, nullptr},
                    Lookup{"reference", Reference, "2", 0.7, nullptr},
                    Lookup{"reference of no glass", Reference, "0", 0.5,
                           " Glazing not found, default used = 0.5"},
                    Lookup{"list position from 0", WindowPosition, "LowE-3", 2, nullptr},
                    Lookup{"position unknown", WindowPosition, "clear2", 0, nullptr},
                    Lookup{"wall position", WallPosition, "WallB2", 1, nullptr}));

TEST_F(Libraries, LookupInAnEmptyTableStopsTheRun) {
    PutBytes(project + "/SimpWindows.lib", "t\r\nh\r\n");
    ReadWindows();
    EXPECT_THROW(WindowU("Clear1"), RunError);
    EXPECT_THROW(WindowTransmittance("-999999"), RunError);
}

TEST_F(Libraries, SunPanelCurveIsThatOfTheNearestReferenceWindow) {
    // 0.7 is nearest to two panes: 0.8 * 0.25^0.4 = 0.8 * sqrt(0.5) ^ 1.6 = 0.8 * 0.5743492.
    EXPECT_NEAR(SunPanelValue(kShapeU, 0.70, 0.25), 0.45947934, 1e-7);
    PutReferences({"0.875", "0.75", "0.5"});
    EXPECT_NEAR(SunPanelValue(kShapeI, 0.8125, 1), 0.9, 1e-12) << "a tie takes the lower count";
    EXPECT_NEAR(SunPanelValue(kShapeI, 0.625, 1), 0.8, 1e-12) << "a tie takes the lower count";
    EXPECT_NEAR(SunPanelValue(kShapeI, -40, 1), 0.7, 1e-12);
    EXPECT_THROW(SunPanelValue(kShapeU, 0.7, 0), RunError);
    EXPECT_THROW(SunPanelValue(5, 0.7, 0.5), RunError);
    simpleLibraries.SunPanelTable[1][1].a = 0;
    EXPECT_THROW(SunPanelValue(kShapeU, 0.9, 0.5), RunError);
}

}  // namespace
}  // namespace verandis
