#include "calc/climate_file.h"

#include <gtest/gtest.h>

#include "app/session.h"
#include "platform/errors.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Dos;
using testing_support::PutBytes;

class ClimateFile : public testing_support::SmallRootTest {
protected:
    /// Three headers and twelve months with -1, -2, ... as mean temperature.
    static std::string Months() {
        std::string text = "Place\n1\t2\t3\nmonth\n";
        for (int month = 1; month <= 12; ++month) {
            text += std::to_string(month) + "\t-" + std::to_string(month) + "\t2.5\t30\n";
        }
        return text;
    }

    /// A block whose value of December is 7.
    static std::string Block(const std::string& header) {
        return header + "\n1\t1\t1\t1\t1\t1\t1\t1\t1\t1\t1\t7\n";
    }
};

struct Reading {
    const char* fault;
    std::string blocks;  // behind the months
    float wanted;        // of December at this place, which holds -5 before
    std::size_t kind = 2;
    std::size_t direction = 10;
    std::size_t tilt = 9;
};

TEST_F(ClimateFile, BlocksFillThePlaceTheyName) {
    const std::string block = Block("2\t90\t90");
    const Reading readings[] = {
        {"a block", block, 7},
        {"last line without an end", block.substr(0, block.size() - 1), 7},
        {"horizontal block", Block("2\t0\t-10"), 7, 2, 0, 0},
        {"tenths are rounded down", Block("2\t0\t-5"), 7, 2, 0, 0},
        {"tenths are cut, not rounded", Block("2\t89.9\t279"), 7, 2, 28, 8},
        {"nothing counts behind End", "End\n" + block, -5},
        {"End is told exactly: end heads a block", Block("end") + block, 7, 0, 1, 0},
        {"header without values", "2\t90\t90", -5},
        {"comma is no decimal sign", "2\t90\t90\n0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t3,9\n", 3},
    };
    session.Decimals = DecimalMode::Comma;
    for (const Reading& row : readings) {
        for (const std::string& text : {Months() + row.blocks, Dos(Months() + row.blocks)}) {
            float& december = climateTables.SolarTable[row.kind][12][row.direction][row.tilt];
            december = -5;
            ReadClimateBytes(text, "file");
            EXPECT_EQ(december, row.wanted) << row.fault;
            EXPECT_EQ(climateTables.ClimateMonths[12][1], -12) << row.fault;
            EXPECT_EQ(climateTables.ClimateMonths[12][2], 2.5) << row.fault;
        }
    }
    EXPECT_EQ(climateTables.SolarTable[1][12][10][9], 0) << "a block went to another kind";
}

TEST_F(ClimateFile, PlacesOutsideTheTablesStopTheRunWithFileAndLine) {
    const std::pair<std::string, std::string> files[] = {
        {"1\n2\n3\n13\t1\t2\t3\n", "line 4:"},
        {Months() + Block("4\t0\t0"), "line 16:"},
        {Months() + Block("2\t90\t90") + Block("1\t100\t0"), "line 18:"},
        {Months() + Block("1\t0\t280"), "line 16:"},
        {Months() + Block("1\t0\t-20"), "line 16:"},
        {Months() + Block("1\t1e99\t0"), "line 16:"}};
    for (const auto& [text, line] : files) {
        std::string sentence;
        try {
            ReadClimateBytes(text, "TOWN_1S.dat");
        } catch (const RunError& error) {
            sentence = error.what();
        }
        EXPECT_NE(sentence.find("TOWN_1S.dat, " + line), std::string::npos) << text << sentence;
    }
}

TEST_F(ClimateFile, FolderIsThatOfTheSiteFileWhenItIsThere) {
    MakeSlot({1, 1}, "CLIMATE_FILE\t TOWN_1 \n");
    const std::string usual = root + "/CLIM/TOWN_1S.dat";
    PutBytes(usual, Months());
    PutBytes(Path("own/Clim/TOWN_1s.DAT"), Months() + Block("2\t90\t90"));
    for (const std::string& line : {Path("own/clim/x.cli"), std::string("x.cli"),
                                    Path("gone/x.cli"), std::string("YYY\\CLIM\\Z")}) {
        PutBytes(SlotFile({1, 1}, "SITE.INP"), "1\r\n2\r\n3\r\n4\r\n" + line + "\r\n");
        climateTables = {};
        ReadClimateFile();
        const float december = line.starts_with(Path("own")) ? 7.0f : 0.0f;
        EXPECT_EQ(climateTables.SolarTable[2][12][10][9], december) << line;
        EXPECT_EQ(climateTables.ClimateMonths[12][1], -12) << line;
    }
    PutBytes(usual, Months().substr(0, 30) + "3\t9");  // ends within a month
    ReadClimateFile();
    std::remove(usual.c_str());
    ReadClimateFile();
    EXPECT_EQ(climateTables.ClimateMonths[12][1], -12) << "a short or missing file cleared it";
    EXPECT_TRUE(prompts.shown.empty());
    session.ProjectFolder = Path("elsewhere");
    EXPECT_THROW(ReadClimateFile(), RunError);
}

}  // namespace
}  // namespace verandis
