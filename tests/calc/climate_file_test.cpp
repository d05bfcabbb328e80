#include "calc/climate_file.h"

#include <gtest/gtest.h>

#include <ostream>

#include "app/session.h"
#include "platform/errors.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Dos;
using testing_support::PutBytes;

/// Three headers and twelve months with -1, -2, ... as mean temperature.
std::string Months() {
    std::string text = "Place\n1\t2\t3\nmonth\n";
    for (int month = 1; month <= 12; ++month) {
        text += std::to_string(month) + "\t-" + std::to_string(month) + "\t2.5\t30\n";
    }
    return text;
}

/// A block with this value in every month but the last, which holds one more.
std::string Block(const std::string& header, int value) {
    std::string text = header + "\n";
    for (int month = 1; month < 12; ++month) text += std::to_string(value) + "\t";
    return text + std::to_string(value + 1) + "\n";
}

struct Reading {
    const char* fault;
    std::string text;
    float wanted;  // at this place, month 12
    std::size_t kind = 2;
    std::size_t direction = 10;
    std::size_t tilt = 9;
};
std::ostream& operator<<(std::ostream& out, const Reading& row) { return out << row.fault; }

const std::string kBlock = Block("2\t90\t90", 7);
const Reading kReadings[] = {
    {"block in its place", Months() + kBlock, 8},
    {"last line without an end", Months() + kBlock.substr(0, kBlock.size() - 1), 8},
    {"horizontal block", Months() + Block("2\t0\t-10", 7), 8, 2, 0, 0},
    {"tenths are cut, not rounded", Months() + Block("2\t89.9\t279", 7), 8, 2, 28, 8},
    {"nothing counts behind End", Months() + "End\n" + kBlock, -5},
    {"later block wins", Months() + Block("2\t90\t90", 1) + kBlock, 8},
    {"End is told exactly: end is a header", Months() + "end\n" + kBlock, 90, 0, 1, 0},
    {"header without values", Months() + "2\t90\t90\n", -5},
    {"cut values", Months() + "2\t90\t90\n1\t2", 0},
    {"cut months", Months().substr(0, 60), -5},
    {"comma is no decimal sign", Months() + "2\t90\t90\n0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t3,9\n", 3},
};

class Readings : public testing_support::SmallRootTest, public testing::WithParamInterface<Reading> {};

TEST_P(Readings, FillThePlacesTheyNameAndNoOther) {
    const Reading& row = GetParam();
    session.Decimals = DecimalMode::Comma;
    for (const std::string& text : {row.text, Dos(row.text)}) {
        for (auto& months : climateTables.SolarTable) {
            for (auto& directions : months) {
                for (auto& tilts : directions) tilts.fill(-5);
            }
        }
        ReadClimateBytes(text, "file");
        EXPECT_EQ(climateTables.SolarTable[row.kind][12][row.direction][row.tilt], row.wanted);
        EXPECT_EQ(climateTables.SolarTable[1][12][row.direction][row.tilt], -5);
        EXPECT_EQ(climateTables.ClimateMonths[2][1], -2);
        EXPECT_EQ(climateTables.ClimateMonths[2][2], 2.5);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Readings, testing::ValuesIn(kReadings));

TEST(ClimateFile, PlacesOutsideTheTablesStopTheRunWithFileAndLine) {
    const std::string bad = "1\n2\n3\n13\t1\t2\t3\n";
    for (const auto& [text, line] : {std::pair{bad, "line 4:"}, {Months() + Block("4\t0\t0", 1), "line 16:"},
                                     {Months() + kBlock + Block("1\t100\t0", 1), "line 18:"},
                                     {Months() + Block("1\t0\t280", 1), "line 16:"},
                                     {Months() + Block("1\t0\t-20", 1), "line 16:"},
                                     {Months() + Block("1e99\t0\t0", 1), "line 16:"}}) {
        try {
            ReadClimateBytes(text, "TOWN_1S.dat");
            ADD_FAILURE() << line;
        } catch (const RunError& error) {
            const std::string sentence = error.what();
            EXPECT_NE(sentence.find("TOWN_1S.dat"), std::string::npos) << sentence;
            EXPECT_NE(sentence.find(line), std::string::npos) << sentence;
        }
    }
}

class ClimateFiles : public testing_support::SmallRootTest {};

TEST_F(ClimateFiles, FolderIsThatOfTheSiteFileWhenItIsThere) {
    MakeSlot({1, 1}, "CLIMATE_FILE\t TOWN_1 \n");
    const std::string usual = root + "/CLIM/TOWN_1S.dat";
    const std::string own = Path("own/Clim/TOWN_1s.DAT");
    PutBytes(usual, Months());
    PutBytes(own, Months() + Block("2\t90\t90", 7));
    const std::string site = SlotFile({1, 1}, "SITE.INP");
    for (const auto& [line, kept] : {std::pair{Path("own/clim/x.cli"), 8.0f}, {std::string("x.cli"), 0.0f},
                                     {Path("gone/x.cli"), 0.0f}, {std::string("YYY\\CLIM\\ZZZ"), 0.0f}}) {
        PutBytes(site, "1\r\n2\r\n3\r\n4\r\n" + line + "\r\n");
        climateTables = {};
        ReadClimateFile();
        EXPECT_EQ(climateTables.SolarTable[2][12][10][9], kept) << line;
        EXPECT_EQ(climateTables.ClimateMonths[12][1], -12) << line;
    }
    std::remove(usual.c_str());
    ReadClimateFile();
    EXPECT_EQ(climateTables.ClimateMonths[12][1], -12) << "a missing file must leave the tables";
    EXPECT_TRUE(prompts.shown.empty());
    session.ProjectFolder = Path("elsewhere");
    EXPECT_THROW(ReadClimateFile(), RunError);
}

}  // namespace
}  // namespace verandis
