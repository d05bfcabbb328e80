#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "climate/climate_command.h"
#include "climate/normals_table.h"
#include "climate/radiation_split.h"
#include "climate/synthetic_year.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace verandis {
namespace {

std::vector<std::string> GoodTable() {
    return {"# a comment",           "Place: Testköping",     "Base: TEST_1",
            "Latitude: 59.34",       "Longitude: 18.06",      "Time meridian: 15",
            "Source: made up",       "Sun: kWh/m2",           "1\t-1.0\t-3.1\t1.1\t10",
            "2  -1,0 -3,4  1,4  26", "3   1.6 -1.2  5.0  70", "4   6.3  2.6 10.7 118",
            "5  11.6  7.2 16.3 168", "6  16.0 11.7 20.5 175", "7  18.7 14.6 23.2 171",
            "8  17.6 13.9 21.8 133", "9  13.1  9.9 16.8  83", "10  7.9  5.3 10.6  37",
            "11  3.8  1.8  5.7  13", "12  0.7 -1.3  2.6   7"};
}

struct Broken {
    const char* fault;
    std::size_t line;  // from 1; its text is replaced
    const char* text;
    int saidLine;
    const char* said;
};

class BrokenTables : public testing::TestWithParam<Broken> {};

TEST_P(BrokenTables, AreRefusedByLineAndField) {
    std::vector<std::string> lines = GoodTable();
    lines[GetParam().line - 1] = GetParam().text;
    const NormalsReading reading = ReadNormals(lines);
    ASSERT_TRUE(reading.fault) << GetParam().fault;
    EXPECT_EQ(reading.fault->line, GetParam().saidLine) << GetParam().fault;
    EXPECT_NE(FaultText("t", *reading.fault).find(GetParam().said), std::string::npos)
        << FaultText("t", *reading.fault);
}

INSTANTIATE_TEST_SUITE_P(
    Normals, BrokenTables,
    testing::Values(Broken{"no place", 2, "", 0, "Place:"}, Broken{"no base", 3, "#", 0, "Base:"},
                    Broken{"lower case base", 3, "Base: test_1", 3, "upper case"},
                    Broken{"latitude in words", 4, "Latitude: north", 4, "field Latitude"},
                    Broken{"latitude out of bounds", 4, "Latitude: 95", 4, "-90 to 90"},
                    Broken{"latitude left out", 4, "", 0, "Latitude:"},
                    Broken{"misspelt key", 6, "Time meridan: 15", 6, "Time meridan"},
                    Broken{"unknown unit of the sun", 8, "Sun: MJ", 8, "neither"},
                    Broken{"month twice", 10, "1 -1 -3 1 10", 10, "earlier row"},
                    Broken{"month 13", 20, "13 0 -2 2 5", 20, "1 to 12"},
                    Broken{"month left out", 20, "", 0, "month 12"},
                    Broken{"column missing", 12, "4 6.3 2.6 10.7", 12, "field sun"},
                    Broken{"column too many", 12, "4 6.3 2.6 10.7 118 5", 12, "more than five"},
                    Broken{"not a number", 12, "4 6.3 2.6 1O.7 118", 12, "mean daily maximum"},
                    Broken{"minimum above maximum", 12, "4 6.3 10.7 2.6 118", 12, "minimum"},
                    Broken{"mean outside of its range", 12, "4 16.3 2.6 10.7 118", 12,
                           "mean temperature"},
                    Broken{"number without end", 12, "4 6.3 2.6 1e999 118", 12, "not a number"},
                    Broken{"negative radiation", 12, "4 6.3 2.6 10.7 -1", 12, "below zero"}));

TEST(Normals, MoreSunThanThereIsIsRefused) {
    std::vector<std::string> lines = GoodTable();
    lines[8] = "1 -1.0 -3.1 1.1 100";
    NormalsTable table = ReadNormals(lines).table;
    const auto sun = SunOfYear(table.site);
    const SyntheticYear year = MakeSyntheticYear(table, sun);
    ASSERT_TRUE(year.fault);
    EXPECT_EQ(year.fault->line, 9);
    lines = GoodTable();
    lines[7] = "Sun: hours";
    lines[8] = "1 -1.0 -3.1 1.1 300";
    table = ReadNormals(lines).table;
    ASSERT_TRUE(MakeSyntheticYear(table, sun).fault) << "300 hours of sunshine in January";
}

struct MonthCheck {
    double mean = 0;
    double low = 0;
    double high = 0;
    double global = 0;  // kWh/m2, with the sun in the middle of each hour
};

MonthCheck CheckOf(const WeatherYear& year, int month) {
    MonthCheck check;
    const MonthSpan span = HoursOfMonth(month);
    const double days = (span.end - span.first) / 24;
    for (int day = span.first; day < span.end; day += 24) {
        double low = 1e9;
        double high = -1e9;
        for (int hour = day; hour < day + 24; ++hour) {
            const WeatherHour& weather = year.hours[std::size_t(hour)];
            low = std::min(low, weather.temperature);
            high = std::max(high, weather.temperature);
            check.mean += weather.temperature / 24 / days;
            const double up = SunAt(year.site, hour / 24, hour % 24 + 0.5).up;
            check.global += (weather.directNormal * std::max(0.0, up) + weather.diffuse) / 1000;
        }
        check.low += low / days;
        check.high += high / days;
    }
    return check;
}

/// The delivered table of a place.
NormalsTable Delivered(const std::string& name) {
    std::string root = __FILE__;
    root = root.substr(0, root.rfind("tests"));
    const auto lines = ReadLines(root + "data/normals/" + name + ".txt");
    EXPECT_TRUE(lines) << name;
    const NormalsReading reading = ReadNormals(lines.value_or(std::vector<std::string>()));
    EXPECT_FALSE(reading.fault) << name;
    return reading.table;
}

class DeliveredPlaces : public testing::TestWithParam<const char*> {};

TEST_P(DeliveredPlaces, MonthsEqualTheTable) {
    const NormalsTable table = Delivered(GetParam());
    const SyntheticYear made = MakeSyntheticYear(table, SunOfYear(table.site));
    ASSERT_FALSE(made.fault);
    ASSERT_EQ(made.year.hours.size(), std::size_t(kHoursOfYear));
    for (int month = 0; month < 12; ++month) {
        const MonthNormals& normals = table.months[std::size_t(month)];
        const MonthCheck check = CheckOf(made.year, month);
        EXPECT_NEAR(check.mean, normals.mean, 0.005) << month;
        EXPECT_NEAR(check.low, normals.dailyMinimum, 0.005) << month;
        EXPECT_NEAR(check.high, normals.dailyMaximum, 0.005) << month;
        EXPECT_NEAR(check.global, normals.sun, 0.005) << month;
    }
}

INSTANTIATE_TEST_SUITE_P(Normals, DeliveredPlaces,
                         testing::Values("stockholm", "goteborg", "malmo", "ostersund", "lulea",
                                         "kiruna", "oslo", "kobenhavn", "helsinki", "tallinn",
                                         "riga", "vilnius", "berlin", "wien"));

TEST(SyntheticYears, HaveTheCourseOfRealDays) {
    const NormalsTable table = Delivered("stockholm");
    const auto sun = SunOfYear(table.site);
    const WeatherYear year = MakeSyntheticYear(table, sun).year;
    double coldest[24] = {};
    double previous = 0;
    double together = 0;
    double square = 0;
    for (std::size_t hour = 0; hour < year.hours.size(); ++hour) {
        const WeatherHour& weather = year.hours[hour];
        if (hour / 24 >= 120 && hour / 24 < 240) coldest[hour % 24] += weather.temperature / 120;
        ASSERT_TRUE(weather.directNormal >= 0 && weather.directNormal < 1000);
        ASSERT_TRUE(weather.humidity > 5 && weather.humidity <= 100);
        ASSERT_TRUE(weather.wind > 0 && weather.wind < 25);
        ASSERT_LE(weather.skyTemperature, weather.temperature);
        ASSERT_TRUE(hour == 0 ||
                    std::abs(weather.temperature - year.hours[hour - 1].temperature) < 5);
        if (hour % 24 != 12 || hour / 24 < 150 || hour / 24 > 240) continue;
        const double outside = sun[hour].extraterrestrial * sun[hour].sun.up;
        const double clearness =
            (weather.directNormal * sun[hour].sun.up + weather.diffuse) / outside - 0.5;
        together += clearness * previous;
        square += clearness * clearness;
        previous = clearness;
    }
    const auto lowest = std::min_element(coldest, coldest + 24) - coldest;
    const auto highest = std::max_element(coldest, coldest + 24) - coldest;
    EXPECT_TRUE(lowest >= 2 && lowest <= 5) << lowest;
    EXPECT_TRUE(highest >= 13 && highest <= 16) << highest;
    EXPECT_GT(together / square, 0.05) << "clear days come in spells";
    EXPECT_GT(square / 90, 0.01) << "days differ";
}

TEST(SyntheticYears, SunshineHoursGiveAngstromsRadiation) {
    std::vector<std::string> lines = GoodTable();
    lines[7] = "Sun: hours";
    lines[13] = "6 16.0 11.7 20.5 0";  // no sunshine: a quarter of what stands outside
    const NormalsTable table = ReadNormals(lines).table;
    const auto sun = SunOfYear(table.site);
    double outside = 0;
    for (int hour = HoursOfMonth(5).first; hour < HoursOfMonth(5).end; ++hour) {
        outside += ExtraterrestrialHorizontal(sun[std::size_t(hour)]) / 1000;
    }
    EXPECT_NEAR(outside, 41.1 / 3.6 * 30, 3);  // tables: 41.1 MJ/m2 and day at 60 degrees in June
    const SyntheticYear year = MakeSyntheticYear(table, sun);
    ASSERT_FALSE(year.fault);
    EXPECT_NEAR(CheckOf(year.year, 5).global, 0.25 * outside, 0.01);
}

TEST(SyntheticYears, PolarNightMayHoldSomeTwilight) {
    std::vector<std::string> lines = GoodTable();
    lines[3] = "Latitude: 72";
    lines[8] = "1 -1.0 -3.1 1.1 0.4";
    lines[9] = "2 -1.0 -3.4 1.4 4";
    lines[10] = "3 1.6 -1.2 5.0 40";
    lines[17] = "10 7.9 5.3 10.6 8";
    lines[19] = "12 0.7 -1.3 2.6 0";
    lines[18] = "11 3.8 1.8 5.7 1";
    const NormalsTable table = ReadNormals(lines).table;
    const SyntheticYear year = MakeSyntheticYear(table, SunOfYear(table.site));
    ASSERT_FALSE(year.fault);
    EXPECT_NEAR(CheckOf(year.year, 0).global, 0.4, 0.001);
    EXPECT_EQ(CheckOf(year.year, 11).global, 0);
}

class NormalsCommand : public testing::Test {
protected:
    const std::string folder_ = testing::TempDir() + "vc å #" +
                                testing::UnitTest::GetInstance()->current_test_info()->name();
    std::ostringstream out_;
    std::ostringstream err_;

    void SetUp() override {
        TearDown();
        MakeFolders(folder_);
        WriteUtf8Lines(JoinPath(folder_, "table.txt"), GoodTable());
    }
    void TearDown() override {
        DeleteFiles(folder_, "*.*");
        RemoveFolder(folder_);
    }
    int Run(std::vector<std::string> args) { return RunClimateCommand(args, out_, err_); }
    std::vector<std::string> Lines(const std::string& name) {
        return ReadLines(JoinPath(folder_, name)).value_or(std::vector<std::string>());
    }
};

TEST_F(NormalsCommand, WritesTheMonthlyFileAsItIsRead) {
    ASSERT_EQ(Run({"normals", JoinPath(folder_, "table.txt"), folder_}), 0) << err_.str();
    const auto lines = Lines("TEST_1S.dat");
    ASSERT_EQ(lines.size(), 3u + 12 + 4 * 281 * 2 + 1);
    EXPECT_EQ(lines[3], "1\t-1.00\t-3.10\t10.000");
    EXPECT_EQ(lines[15], "0\t0\t-10");
    EXPECT_EQ(lines[16].substr(0, 7), "10.000\t");
    EXPECT_EQ(std::count(lines[16].begin(), lines[16].end(), '\t'), 11);
    EXPECT_EQ(lines[17], "0\t0\t0");
    EXPECT_EQ(lines[16], lines[18]);
    EXPECT_EQ(lines[15 + 281 * 2], "1\t0\t-10");
    EXPECT_EQ(lines[15 + 281 * 8 - 2], "3\t90\t270");
    EXPECT_EQ(lines.back(), "End");
    for (const std::string& line : lines) EXPECT_EQ(line.find("nan"), std::string::npos);
}

TEST_F(NormalsCommand, WritesTheHourlyFileWithItsHeader) {
    ASSERT_EQ(Run({"normals", JoinPath(folder_, "table.txt"), folder_}), 0) << err_.str();
    const auto lines = Lines("TEST_1D.cli");
    ASSERT_EQ(lines.size(), 9u + kHoursOfYear);
    const std::vector<std::string> header{"Place: Testköping",  "Latitude: 59.34",
                                          "Longitude: 18.06",   "Time meridian: 15.0",
                                          "1:st day: 2001.1.1", "Last day: 2001.12.31"};
    EXPECT_TRUE(std::equal(header.begin(), header.end(), lines.begin() + 1));
    EXPECT_EQ(lines[0].find(':'), std::string::npos) << "a title must never look like a key";
    EXPECT_EQ(lines[7].substr(0, 8), "Columns:");
    EXPECT_EQ(lines[8], "Data:");
    EXPECT_EQ(lines[9].substr(0, 11), "2001\t1\t1\t1\t");
    EXPECT_EQ(lines[9 + 31 * 24].substr(0, 11), "2001\t2\t1\t1\t");
    EXPECT_EQ(lines.back().substr(0, 14), "2001\t12\t31\t24\t");
    for (std::size_t row = 9; row < lines.size(); ++row) {
        ASSERT_EQ(std::count(lines[row].begin(), lines[row].end(), '\t'), 9) << row;
    }
}

TEST_F(NormalsCommand, SameTableSameBytes) {
    const std::string table = JoinPath(folder_, "table.txt");
    ASSERT_EQ(Run({"normals", table, folder_}), 0);
    const auto monthly = ReadBytes(JoinPath(folder_, "TEST_1S.dat"));
    const auto hourly = ReadBytes(JoinPath(folder_, "TEST_1D.cli"));
    ASSERT_EQ(Run({"normals", table, folder_, "--sky", "perez"}), 0);
    EXPECT_EQ(monthly, ReadBytes(JoinPath(folder_, "TEST_1S.dat")));
    EXPECT_EQ(hourly, ReadBytes(JoinPath(folder_, "TEST_1D.cli")));
    ASSERT_EQ(Run({"--sky=isotropic", "normals", table, folder_}), 0);
    EXPECT_NE(monthly, ReadBytes(JoinPath(folder_, "TEST_1S.dat"))) << "the option is heard";
    EXPECT_NE(hourly->find("K\xF6ping"), 0u);
    EXPECT_NE(hourly->find("Testk\xF6ping\r\n"), std::string::npos) << "Windows-1252, CR LF";
}

TEST_F(NormalsCommand, RefusalsLeaveNothing) {
    std::vector<std::string> lines = GoodTable();
    lines[12] = "5 11.6 7.2 x 168";
    WriteUtf8Lines(JoinPath(folder_, "table.txt"), lines);
    EXPECT_EQ(Run({"normals", JoinPath(folder_, "table.txt"), folder_}), 2);
    EXPECT_NE(err_.str().find("line 13"), std::string::npos) << err_.str();
    EXPECT_EQ(Run({"normals", JoinPath(folder_, "no such file"), folder_}), 2);
    EXPECT_EQ(ListFolder(folder_).size(), 1u);
}

TEST_F(NormalsCommand, AFolderThatCannotBeMadeIsTold) {
    const std::string table = JoinPath(folder_, "table.txt");
    EXPECT_EQ(Run({"normals", table, JoinPath(table, "below a file")}), 2);
    EXPECT_NE(err_.str().find("cannot be written"), std::string::npos);
}

TEST_F(NormalsCommand, WrongUseIsOne) {
    const std::vector<std::vector<std::string>> wrong = {{},
                                                         {"normals"},
                                                         {"normals", "a"},
                                                         {"normals", "a", "b", "c"},
                                                         {"epw", "a", "B_1"},
                                                         {"make", "a", "b"},
                                                         {"normals", "a", "b", "--sky"},
                                                         {"normals", "a", "b", "--sky", "blue"},
                                                         {"normals", "a", "b", "--fast"},
                                                         {"epw", "a", "lower_1", "b"}};
    for (const auto& args : wrong) EXPECT_EQ(Run(args), 1) << args.size();
    EXPECT_EQ(Run({"normals", "--help"}), 0);
    EXPECT_NE(out_.str().find("Usage"), std::string::npos);
}

TEST(BaseNames, AreCheckedBySign) {
    for (const char* good : {"STOCKHOLM_1", "A_", "_1", "X-Y_2"}) {
        EXPECT_EQ(CheckBaseName(good), "") << good;
    }
    for (const char* bad : {"", "STOCKHOLM", "STOCKHOLMS_1", "MALM\xC3\x96_1", "A B_1", "AS._1",
                            "a_1", "../A_1", "A_1.X", "A_1\n", "A\\_1"}) {
        EXPECT_NE(CheckBaseName(bad), "") << bad;
    }
}

}  // namespace
}  // namespace verandis
