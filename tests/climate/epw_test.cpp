#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <tuple>

#include "climate/command_fixture.h"
#include "climate/epw_file.h"
#include "climate/epw_year.h"
#include "climate/plane_sums.h"

namespace verandis {
namespace {

/// A row of a clear day at 40 degrees north, seven hours behind Greenwich, built without the code
/// under test: the sun by Cooper's declination and the equation of time of B = 360 (n - 81) / 364,
/// at the middle of each hour.
std::string EpwRowOf(double longitude, int month, int day, int hour, const char* minute) {
    const double rad = 3.14159265358979 / 180;
    const int dayOfYear = HoursOfMonth(month - 1).first / 24 + day;
    const double declination = 23.45 * std::sin(360.0 * (284 + dayOfYear) / 365 * rad) * rad;
    const double b = 360.0 * (dayOfYear - 81) / 364 * rad;
    const double equation = 9.87 * std::sin(2 * b) - 7.53 * std::cos(b) - 1.5 * std::sin(b);
    const double angle = 15 * (hour - 12.5 + equation / 60) + longitude + 105;
    const double up = std::sin(40 * rad) * std::sin(declination) +
                      std::cos(40 * rad) * std::cos(declination) * std::cos(angle * rad);
    const double direct = up > 0.02 ? 1000 * std::exp(-0.14 / up) : 0;
    const double diffuse = up > 0 ? 100 * up + 10 : 0;
    const double global = direct * std::max(0.0, up) + diffuse;
    const double air = 10 - 12 * std::cos(dayOfYear * rad) + 5 * std::cos((hour - 15) * 15 * rad);
    std::ostringstream row;
    row << 1980 + month << ',' << month << ',' << day << ',' << hour << ',' << minute << ",?9?9,"
        << air << ',' << air - 5 << ",70,84000,1200,1300,280," << global << ',' << direct << ','
        << diffuse << ",999999,999999,999999,9999,200,3.5,4,3,20,77777,9,999999999,70,0.1,0,88";
    return row.str();
}

/// Lines of a good file: 8 of the header, then the hours. The place stands ten degrees (40
/// minutes) east of its meridian.
Lines GoodFile(double longitude = -95, bool leapYear = false, const char* minute = "60") {
    Lines lines(8, "COMMENTS 1,none");
    lines[0] = "LOCATION,Test City,CO,USA,TMY,724699,40," + std::to_string(longitude) + ",-7,1650";
    lines[7] = "DATA PERIODS,1,1,Data,Sunday,1/1,12/31";
    for (int month = 1; month <= 12; ++month) {
        const int leapDay = leapYear && month == 2 ? 1 : 0;
        for (int hour = 0; hour < (kMonthDays[std::size_t(month - 1)] + leapDay) * 24; ++hour) {
            lines.push_back(EpwRowOf(longitude, month, hour / 24 + 1, hour % 24 + 1, minute));
        }
    }
    return lines;
}

using Edit = std::tuple<std::size_t, int, const char*>;  // line and field from 1, new text

Lines With(const std::vector<Edit>& edits) {
    Lines lines = GoodFile();
    for (const auto& [line, field, text] : edits) {
        std::string& row = lines[line - 1];
        std::size_t at = 0;
        for (int skip = 1; skip < field; ++skip) at = row.find(',', at) + 1;
        row.replace(at, row.find(',', at) - at, text);
    }
    return lines;
}

Lines Changed(const std::function<void(Lines&)>& change) {
    Lines lines = GoodFile();
    change(lines);
    return lines;
}

constexpr std::size_t kNoon = 8 + 9 * 24 + 12;  // the line of hour 12 of 10 January

EpwYear YearOf(const Lines& lines) {
    const EpwReading reading = ReadEpw(lines);
    EXPECT_FALSE(reading.fault) << FaultText("", *reading.fault);
    return MakeEpwYear(reading, SunOfYear(reading.site));
}

/// Lines and fields of the doubts as "9:7 10:7 ".
std::string DoubtsOf(const EpwYear& year) {
    std::string all;
    for (const auto& [line, field, value, reason] : year.doubts) {
        all += std::to_string(line) + ":" + field.substr(0, field.find(' ')) + " ";
    }
    return all;
}

// The beam was made symmetric about solar noon. An hour off by one, a longitude of the wrong sign
// or swapped sides shift it by 15 degrees or more: east and west would differ by a quarter.
TEST(EpwHours, BeamMeetsTheSunThatMadeIt) {
    for (const double longitude : {-95.0, -105.0, -112.0}) {
        SCOPED_TRACE(longitude);
        const Lines lines = GoodFile(longitude);
        const WeatherYear year = YearOf(lines).year;
        const auto sums = SumPlanes(year, SunOfYear(year.site), SkyModel::Isotropic,
                                    {{90, 90}, {90, 270}, {90, 0}, {0, kHorizontalDirection}});
        const auto of = [&](std::size_t plane) {
            return std::accumulate(sums[plane][0].begin(), sums[plane][0].end(), 0.0);
        };
        double global = 0;
        for (const EpwRow& row : ReadEpw(lines).rows) global += *row.At(EpwField::Global) / 1000;
        EXPECT_NEAR(of(0) / of(1), 1, 0.02) << "east and west";
        EXPECT_GT(of(2), 1.2 * of(1)) << "south and west";
        EXPECT_NEAR(of(3) / global, 1, 0.01);
    }
}

// The ways in which good files differ give the same hours.
TEST(EpwFiles, AllGoodFormsReadAlike) {
    const EpwReading expected = ReadEpw(GoodFile());
    const std::pair<const char*, Lines> forms[] = {
        {"as it is made", GoodFile()},
        {"minute 0", GoodFile(-95, false, "0")},
        {"leap day", GoodFile(-95, true)},
        {"commas", Changed([](auto& l) {
             l.insert(l.end(), {",,,,", "", ",", "\x1A"});
         })},
        {"byte order mark", Changed([](auto& l) { l[0] = "\xEF\xBB\xBF" + l[0]; })},
        {"commas behind the header", Changed([](auto& l) { l[0] += ",,,,"; })},
        {"blanks around the fields", With({{kNoon, 4, " 12 "}})},
    };
    for (const auto& [name, lines] : forms) {
        const EpwReading is = ReadEpw(lines);
        EXPECT_TRUE(!is.fault && is.doubts.empty()) << name;
        ASSERT_EQ(is.rows.size(), std::size_t(kHoursOfYear)) << name;
        for (std::size_t row = 0; row < kHoursOfYear; ++row) {
            ASSERT_EQ(is.rows[row].values, expected.rows[row].values) << name;
        }
    }
}

TEST(EpwFiles, BrokenOnesAreRefusedByLineAndField) {
    const std::string leapHour = EpwRowOf(-95, 2, 29, 1, "60");
    const std::tuple<const char*, Lines, int, const char*> rows[] = {
        {"empty file", {}, 1, "empty"},
        {"no weather file at all", {"Place: Lund"}, 1, "LOCATION"},
        {"place cut off", {"LOCATION,X,Y,Z,,,40"}, 1, "longitude"},
        {"latitude in words", With({{1, 7, "N40"}}), 1, "latitude"},
        {"impossible latitude", With({{1, 7, "400"}}), 1, "latitude 400"},
        {"header line lost", Changed([](auto& l) { l.erase(l.begin() + 3); }), 8, "DATA PERIODS"},
        {"quarter hours", With({{8, 3, "4"}}), 8, "records an hour"},
        {"row lost", Changed([](auto& l) { l.erase(l.begin() + 100); }), 101, "was expected"},
        {"row doubled", Changed([](auto& l) { l[100] = l[99]; }), 101, "was expected"},
        {"hours from 0 to 23", With({{9, 4, "0"}}), 9, "hour 0"},
        {"row of commas inside", Changed([](auto& l) { l[99] = ",,,,,,"; }), 100, "year"},
        {"row cut off", Changed([](auto& l) { l[99].resize(30); }), 100, "the row ends"},
        {"file cut off", Changed([](auto& l) { l.resize(5000); }), 5000, "ends after 4992"},
        {"more than a year", Changed([](auto& l) { l.push_back(l.back()); }), 8769, "more rows"},
        {"letters for a number", With({{77, 7, "1O.5"}}), 77, "dry bulb"},
        {"leap hour", Changed([&](auto& l) { l.insert(l.begin() + 1424, leapHour); }), 1426,
         "whole"},
    };
    for (const auto& [name, lines, line, words] : rows) {
        const EpwReading reading = ReadEpw(lines);
        ASSERT_TRUE(reading.fault) << name;
        const std::string said = FaultText("x", *reading.fault);
        EXPECT_EQ(reading.fault->line, line) << said;
        EXPECT_NE(said.find(words), std::string::npos) << said;
    }
}

// Each gap is filled near to what the file held before it was made, and listed with its line. The
// rows hold the tolerance in W/m2 of diffuse light, half that of direct, and the field of the first
// doubt.
TEST(EpwGaps, LightIsFilledFromWhatIsLeft) {
    const EpwYear whole = YearOf(GoodFile());
    EXPECT_EQ(DoubtsOf(whole), "");
    const std::tuple<const char*, std::vector<Edit>, double, const char*> gaps[] = {
        {"direct missing", {{kNoon, 15, "9999"}}, 5, "direct"},
        {"diffuse missing", {{kNoon, 16, "9999"}}, 5, "diffuse"},
        {"global missing alone does not matter", {{kNoon, 14, "9999"}}, 0.01, ""},
        {"only global left", {{kNoon, 15, "9999"}, {kNoon, 16, "9999"}}, 130, "direct"},
        {"nothing", {{kNoon, 14, "9999"}, {kNoon, 15, "9999"}, {kNoon, 16, ""}}, 130, "global"},
        {"parts empty", {{kNoon, 15, ""}, {kNoon, 16, ""}}, 130, "direct"},
        {"parts zero in daylight", {{kNoon, 15, "0"}, {kNoon, 16, "0"}}, 130, "diffuse"},
        {"code of another field", {{kNoon, 15, "99999"}}, 5, "direct"},
        {"beam stronger than the sun", {{kNoon, 15, "1800"}}, 5, "direct"},
    };
    const double up = SunOfHour(whole.year.site, kNoon - 9).sun.up;
    const WeatherHour& was = whole.year.hours[kNoon - 9];
    const double global = was.directNormal * up + was.diffuse;
    for (const auto& [name, edits, tolerance, doubted] : gaps) {
        SCOPED_TRACE(name);
        const EpwYear year = YearOf(With(edits));
        ASSERT_FALSE(year.fault);
        const WeatherHour& is = year.year.hours[kNoon - 9];
        EXPECT_NEAR(is.directNormal * up + is.diffuse, global, 0.02 * global);
        EXPECT_NEAR(is.directNormal, was.directNormal, 2 * tolerance);
        EXPECT_NEAR(is.diffuse, was.diffuse, tolerance);
        const ClimateDoubt first = year.doubts.empty() ? ClimateDoubt() : year.doubts[0];
        EXPECT_EQ(first.line, *doubted ? int(kNoon) : 0);
        EXPECT_NE(first.field.find(doubted), std::string::npos) << first.field;
    }
}

TEST(EpwGaps, AirIsFilledOnAStraightLine) {
    std::vector<Edit> edits{{600, 22, "999"}, {9, 9, "999"}};  // before it is 31 December
    for (const char* text : {"0", "99.9", "", "99.9", "8"}) {
        edits.push_back({498 + edits.size(), 7, text});
    }
    const EpwYear year = YearOf(With(edits));
    for (const std::size_t hour : {492, 493, 494}) {
        EXPECT_DOUBLE_EQ(year.year.hours[hour].temperature, 2.0 * double(hour - 491));
    }
    EXPECT_DOUBLE_EQ(year.year.hours[0].humidity, 70);
    EXPECT_DOUBLE_EQ(year.year.hours[591].wind, 3.5);
    EXPECT_EQ(DoubtsOf(year), "9:9 501:7 502:7 503:7 600:22 ");
}

// 280 W/m2, as the file gives them, are a black body of -8 C.
TEST(EpwGaps, AColumnThatIsNeverGivenIsOneDoubt) {
    EXPECT_NEAR(YearOf(GoodFile()).year.hours[7].skyTemperature, -8.05, 0.1);
    std::vector<Edit> edits;
    for (std::size_t line = 9; line < 9 + kHoursOfYear; ++line) edits.push_back({line, 13, "9999"});
    const EpwYear year = YearOf(With(edits));
    EXPECT_EQ(DoubtsOf(year), "9:13 ");
    for (const WeatherHour& hour : year.year.hours) {
        ASSERT_NEAR(hour.temperature - hour.skyTemperature, 22.5, 22.5);
    }
}

TEST(EpwGaps, TooMuchMissingIsRefused) {
    for (const auto& fields : {std::vector{7}, std::vector{14, 15, 16}}) {
        std::vector<Edit> edits;
        for (std::size_t line = 1009; line < 3009; ++line) {
            for (const int field : fields) edits.push_back({line, field, "9999"});
        }
        const EpwYear year = YearOf(With(edits));
        ASSERT_TRUE(year.fault) << fields[0];
        EXPECT_EQ(year.fault->line, 1009);
        EXPECT_TRUE(year.fault->field.starts_with(std::to_string(fields[0]))) << fields[0];
    }
}

TEST(EpwDoubts, ContradictionsAreListedAndKept) {
    const EpwYear year = YearOf(With({{9, 15, "400"},       // beam at midnight
                                      {kNoon, 14, "1400"},  // global far from its parts
                                      {900, 7, "45"},       // a jump up and down
                                      {1000, 8, "60"}}));   // dew point above the temperature
    ASSERT_FALSE(year.fault);
    EXPECT_EQ(DoubtsOf(year), "9:15 236:14 900:7 901:7 1000:8 ");
    EXPECT_EQ(year.doubts[0].value, "400");
    EXPECT_DOUBLE_EQ(year.year.hours[891].temperature, 45);
    EXPECT_EQ(ReadEpw(GoodFile(105)).doubts.at(0).field, "8 (longitude)") << "the wrong sign";
}

using EpwCommand = ClimateCommandTest;

// The name of a place must not be taken for a key of the header by those who read it.
TEST_F(EpwCommand, ShowsMonthsAndCapsTheDoubtsOfAKindBeforeItWrites) {
    std::vector<Edit> edits{{400, 7, "45"}, {1, 2, "Latitude: 12\tTown"}};
    for (std::size_t line = 200; line < 300; ++line) edits.push_back({line, 22, "999"});
    ASSERT_EQ(RunOn(With(edits), {"epw", file, "TEST_1", folder}), 0) << err.str();
    std::size_t at = 0;
    for (const char* next :
         {"Town, USA", "Month", "values: 102\n", "line 200, field 22 (wind speed), value \"missing",
          "line 224, ", "line 400, field 7 ", "and 75 more, field 22", "Written"}) {
        at = out.str().find(next, at);
        ASSERT_NE(at, std::string::npos) << next << " in its turn in\n" << out.str();
    }
    EXPECT_EQ(out.str().find("line 225, "), std::string::npos) << "the 26th of its kind";
    const Lines hourly = Written("D.cli");
    EXPECT_EQ(hourly.at(1), "Place: Latitude  12 Town, USA");
    EXPECT_EQ(hourly.at(3) + hourly.at(4), "Longitude: -95.00Time meridian: -105.0");
    out.str("");
    ASSERT_EQ(Run({"epw", file, "TEST_1", folder, "--quiet"}), 0);
    EXPECT_TRUE(out.str().starts_with("Doubtful values: 102\n")) << out.str();
    EXPECT_EQ(out.str().find("Written"), std::string::npos);
}

TEST_F(EpwCommand, ARefusalLeavesNothing) {
    EXPECT_EQ(RunOn(With({{77, 7, "warm"}}), {"epw", file, "TEST_1", folder}), 2);
    EXPECT_NE(err.str().find("in.txt line 77, field 7 (dry bulb temperature)"), std::string::npos);
    EXPECT_FALSE(FolderExists(folder));
}

}  // namespace
}  // namespace verandis
