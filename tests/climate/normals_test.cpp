#include <algorithm>
#include <iterator>
#include <map>
#include <numeric>
#include <tuple>

#include "climate/command_fixture.h"
#include "climate/month_summary.h"
#include "climate/normals_table.h"
#include "climate/radiation_split.h"
#include "climate/synthetic_year.h"

namespace verandis {
namespace {

using Edits = std::map<std::size_t, const char*>;  // new texts of lines, from 1

Lines TableWith(const Edits& edits) {
    Lines lines{"# a comment",           "Place: Testköping",     "Base: TEST_1",
                "Latitude: 59.34",       "Longitude: 18.06",      "Time meridian: 15",
                "Source: made up",       "Sun: kWh/m2",           "1\t-1.0\t-3.1\t1.1\t10",
                "2  -1,0 -3,4  1,4  26", "3   1.6 -1.2  5.0  70", "4   6.3  2.6 10.7 118",
                "5  11.6  7.2 16.3 168", "6  16.0 11.7 20.5 175", "7  18.7 14.6 23.2 171",
                "8  17.6 13.9 21.8 133", "9  13.1  9.9 16.8  83", "10  7.9  5.3 10.6  37",
                "11  3.8  1.8  5.7  13", "12  0.7 -1.3  2.6   7"};
    for (const auto& [line, text] : edits) lines[line - 1] = text;
    return lines;
}

SyntheticYear YearOf(const Lines& lines) {
    const NormalsReading reading = ReadNormals(lines);
    if (reading.fault) return {{}, reading.fault};
    return MakeSyntheticYear(reading.table, SunOfYear(reading.table.site));
}

TEST(Normals, BrokenTablesAreRefusedByLineAndField) {
    const std::tuple<const char*, Edits, int, const char*> rows[] = {
        {"no place", {{2, ""}}, 0, "Place:"},
        {"no base", {{3, "#"}}, 0, "Base:"},
        {"lower case base", {{3, "Base: test_1"}}, 3, "upper case"},
        {"latitude in words", {{4, "Latitude: north"}}, 4, "field Latitude"},
        {"latitude out of bounds", {{4, "Latitude: 95"}}, 4, "-90 to 90"},
        {"latitude left out", {{4, ""}}, 0, "Latitude:"},
        {"misspelt key", {{6, "Time meridan: 15"}}, 6, "Time meridan"},
        {"unknown unit of the sun", {{8, "Sun: MJ"}}, 8, "neither"},
        {"month twice", {{10, "1 -1 -3 1 10"}}, 10, "earlier row"},
        {"month 13", {{20, "13 0 -2 2 5"}}, 20, "1 to 12"},
        {"month left out", {{20, ""}}, 0, "month 12"},
        {"column missing", {{12, "4 6.3 2.6 10.7"}}, 12, "field sun"},
        {"column too many", {{12, "4 6.3 2.6 10.7 118 5"}}, 12, "more than five"},
        {"not a number", {{12, "4 6.3 2.6 1O.7 118"}}, 12, "mean daily maximum"},
        {"minimum above maximum", {{12, "4 6.3 10.7 2.6 118"}}, 12, "minimum"},
        {"mean outside of its range", {{12, "4 16.3 2.6 10.7 118"}}, 12, "mean temperature"},
        {"number without end", {{12, "4 6.3 2.6 1e999 118"}}, 12, "not a number"},
        {"negative radiation", {{12, "4 6.3 2.6 10.7 -1"}}, 12, "below zero"},
        {"more sun than there is", {{9, "1 -1.0 -3.1 1.1 100"}}, 9, ""},
        {"300 hours of sun", {{8, "Sun: hours"}, {9, "1 -1.0 -3.1 1.1 300"}}, 9, ""},
    };
    for (const auto& [name, edits, line, words] : rows) {
        const auto fault = YearOf(TableWith(edits)).fault;
        ASSERT_TRUE(fault) << name;
        EXPECT_EQ(fault->line, line) << name;
        EXPECT_NE(FaultText("t", *fault).find(words), std::string::npos) << FaultText("t", *fault);
    }
}

/// kWh/m2 of a month (0 to 11), with the sun in the middle of each hour.
double GlobalOf(const WeatherYear& year, int month) {
    double sum = 0;
    for (int hour = HoursOfMonth(month).first; hour < HoursOfMonth(month).end; ++hour) {
        const WeatherHour& weather = year.hours[std::size_t(hour)];
        const double up = SunAt(year.site, hour / 24, hour % 24 + 0.5).up;
        sum += (weather.directNormal * std::max(0.0, up) + weather.diffuse) / 1000;
    }
    return sum;
}

/// The delivered table of a place.
Lines Delivered(const std::string& name) {
    const std::string tests = __FILE__;
    return ReadLines(tests.substr(0, tests.rfind("tests")) + "data/normals/" + name + ".txt")
        .value_or(Lines());
}

TEST(SyntheticYears, MonthsOfDeliveredPlacesEqualTheTable) {
    for (const char* place :
         {"stockholm", "goteborg", "malmo", "ostersund", "lulea", "kiruna", "oslo", "kobenhavn",
          "helsinki", "tallinn", "riga", "vilnius", "berlin", "wien"}) {
        const SyntheticYear made = YearOf(Delivered(place));
        ASSERT_FALSE(made.fault) << FaultText(place, *made.fault);
        const auto year = SummarizeYear(made.year, SunOfYear(made.year.site), SkyModel::Isotropic);
        for (std::size_t month = 0; month < 12; ++month) {
            SCOPED_TRACE(place + (" in month " + std::to_string(month + 1)));
            const MonthNormals normals = ReadNormals(Delivered(place)).table.months[month];
            EXPECT_NEAR(year.months[month].mean, normals.mean, 0.005);
            EXPECT_NEAR(year.months[month].meanDailyMinimum, normals.dailyMinimum, 0.005);
            EXPECT_NEAR(year.months[month].meanDailyMaximum, normals.dailyMaximum, 0.005);
            EXPECT_NEAR(year.months[month].horizontal, normals.sun, 0.005);
            EXPECT_NEAR(GlobalOf(made.year, int(month)), normals.sun, 0.005);
        }
    }
}

TEST(SyntheticYears, HaveTheCourseOfRealDays) {
    const WeatherYear year = YearOf(Delivered("stockholm")).year;
    double coldest[24] = {};
    std::vector<double> clearness;  // of noons in summer, about its usual value
    double before = year.hours.at(0).temperature;
    for (int hour = 0; hour < kHoursOfYear; ++hour) {
        const WeatherHour& weather = year.hours[std::size_t(hour)];
        ASSERT_TRUE(weather.directNormal >= 0 && weather.directNormal < 1000);
        ASSERT_TRUE(weather.humidity > 5 && weather.humidity <= 100);
        ASSERT_TRUE(weather.wind > 0 && weather.wind < 25);
        ASSERT_LE(weather.skyTemperature, weather.temperature);
        ASSERT_LT(std::abs(weather.temperature - before), 5);
        before = weather.temperature;
        if (hour / 24 < 150 || hour / 24 >= 240) continue;
        coldest[hour % 24] += weather.temperature;
        if (hour % 24 != 12) continue;
        const SunHour sun = SunOfHour(year.site, hour);
        const double global = weather.directNormal * sun.sun.up + weather.diffuse;
        clearness.push_back(global / ExtraterrestrialHorizontal(sun) - 0.5);
    }
    const auto lowest = std::min_element(coldest, coldest + 24) - coldest;
    const auto highest = std::max_element(coldest, coldest + 24) - coldest;
    EXPECT_TRUE(lowest >= 2 && lowest <= 5) << lowest;
    EXPECT_TRUE(highest >= 13 && highest <= 16) << highest;
    const auto first = clearness.begin();
    const double square = std::inner_product(first, clearness.end(), first, 0.0);
    const double together = std::inner_product(first + 1, clearness.end(), first, 0.0);
    EXPECT_GT(together / square, 0.05) << "clear days come in spells";
    EXPECT_GT(square / 90, 0.01) << "days differ";
}

// Without sunshine a quarter arrives of what stands outside; tables give that as 41.1 MJ/m2 and day
// at 60 degrees in June.
TEST(SyntheticYears, SunshineHoursGiveAngstromsRadiation) {
    const auto made = YearOf(TableWith({{8, "Sun: hours"}, {14, "6 16.0 11.7 20.5 0"}}));
    ASSERT_FALSE(made.fault);
    EXPECT_NEAR(GlobalOf(made.year, 5), 0.25 * 41.1 / 3.6 * 30, 0.75);
}

TEST(SyntheticYears, PolarNightMayHoldSomeTwilight) {
    const int sums[] = {0, 4, 40, 118, 168, 175, 171, 133, 83, 8, 1, 0};
    Lines table = TableWith({{4, "Latitude: 72"}});
    for (std::size_t month = 1; month <= 12; ++month) {
        table[7 + month] = std::to_string(month) + " 0 -2 2 " + std::to_string(sums[month - 1]);
    }
    table[8] += ".4";
    const auto made = YearOf(table);
    ASSERT_FALSE(made.fault);
    EXPECT_NEAR(GlobalOf(made.year, 0), 0.4, 0.001);
    EXPECT_EQ(GlobalOf(made.year, 11), 0);
}

using NormalsCommand = ClimateCommandTest;

TEST_F(NormalsCommand, WritesFilesAsTheyAreRead) {
    ASSERT_EQ(RunOn(TableWith({}), {"normals", file, folder, "--quiet"}), 0) << err.str();
    EXPECT_EQ(out.str(), "");
    const Lines monthly = Written("S.dat");
    ASSERT_EQ(monthly.size(), 3u + 12 + 4 * 281 * 2 + 1);
    EXPECT_EQ(monthly[3], "1\t-1.00\t-3.10\t10.000");
    Lines heads;
    for (const std::size_t line : {15, 17, 71, 73, 577, 2261}) heads.push_back(monthly[line]);
    EXPECT_EQ(heads,
              (Lines{"0\t0\t-10", "0\t0\t0", "0\t0\t270", "0\t10\t0", "1\t0\t-10", "3\t90\t270"}));
    EXPECT_EQ(monthly[16].substr(0, 6), "10.00\t");
    EXPECT_EQ(std::count(monthly[16].begin(), monthly[16].end(), '\t'), 11);
    EXPECT_EQ(monthly.back(), "End");

    const Lines hourly = Written("D.cli");
    ASSERT_EQ(hourly.size(), 9u + kHoursOfYear);
    EXPECT_EQ(hourly[0].find(':'), std::string::npos) << "a title must never look like a key";
    EXPECT_EQ(Lines(hourly.begin() + 1, hourly.begin() + 7),
              (Lines{"Place: Testköping", "Latitude: 59.34", "Longitude: 18.06",
                     "Time meridian: 15.0", "1:st day: 2001.1.1", "Last day: 2001.12.31"}));
    EXPECT_EQ(hourly[7].substr(0, 8) + hourly[8], "Columns:Data:");
    EXPECT_TRUE(hourly[9].starts_with("2001\t1\t1\t1\t"));
    EXPECT_TRUE(hourly[9 + 31 * 24].starts_with("2001\t2\t1\t1\t"));
    EXPECT_TRUE(hourly.back().starts_with("2001\t12\t31\t24\t"));
    for (std::size_t row = 9; row < hourly.size(); ++row) {
        ASSERT_EQ(std::count(hourly[row].begin(), hourly[row].end(), '\t'), 9) << row;
    }
}

TEST_F(NormalsCommand, SameTableSameBytes) {
    ASSERT_EQ(RunOn(TableWith({}), {"normals", file, folder}), 0);
    const auto first = testing_support::TreeOf(folder);
    EXPECT_NE(first.at(0).second.find("Testk\xF6ping\r\n"), std::string::npos) << "Windows-1252";
    ASSERT_EQ(Run({"normals", file, folder, "--sky", "perez"}), 0);
    EXPECT_EQ(first, testing_support::TreeOf(folder));
    ASSERT_EQ(Run({"--sky=isotropic", "normals", file, folder}), 0);
    EXPECT_NE(first, testing_support::TreeOf(folder)) << "the option is heard";
}

TEST_F(NormalsCommand, RefusalsLeaveNothing) {
    const Lines broken = TableWith({{13, "5 11.6 7.2 x 168"}});
    EXPECT_EQ(RunOn(broken, {"normals", file, folder}), 2);
    EXPECT_NE(err.str().find("line 13"), std::string::npos) << err.str();
    EXPECT_EQ(Run({"normals", Path("no such file"), folder}), 2);
    EXPECT_FALSE(FolderExists(folder));
    EXPECT_EQ(RunOn(TableWith({}), {"normals", file, file + "/below a file"}), 2);
    EXPECT_NE(err.str().find("cannot be written"), std::string::npos);
}

TEST_F(NormalsCommand, WrongUseIsOne) {
    for (const char* words :
         {"", "normals", "normals a", "normals a b c", "epw a B_1", "make a b", "normals a b --sky",
          "normals a b --sky blue", "normals a b --fast", "epw a lower_1 b"}) {
        std::istringstream text(words);
        const Lines args{std::istream_iterator<std::string>(text), {}};
        EXPECT_EQ(Run(args), 1) << words;
    }
    EXPECT_EQ(Run({"normals", "--help"}), 0);
    EXPECT_NE(out.str().find("Usage"), std::string::npos);
}

TEST(BaseNames, AreCheckedBySign) {
    for (const char* good : {"STOCKHOLM_1", "A_", "X-Y_2"}) EXPECT_EQ(CheckBaseName(good), "");
    for (const char* bad : {"", "STOCKHOLM", "STOCKHOLMS_1", "MALM\xC3\x96_1", "A B_1", "AS._1",
                            "a_1", "../A_1", "A_1.X", "A_1\n", "A\\_1"}) {
        EXPECT_NE(CheckBaseName(bad), "") << bad;
    }
}

}  // namespace
}  // namespace verandis
