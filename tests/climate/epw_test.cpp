#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <sstream>

#include "climate/climate_command.h"
#include "climate/epw_file.h"
#include "climate/epw_year.h"
#include "climate/month_summary.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace verandis {
namespace {

/// An EPW file of clear days, built without the code under test: the sun by Cooper's declination
/// and the equation of time of B = 360 (n - 81) / 364, at the middle of each hour.
class EpwBuilder {
public:
    double latitude = 40;
    double longitude = -95;  // ten degrees east of its meridian: 40 minutes
    double timeZone = -7;
    bool leapYear = false;
    const char* minute = "60";

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines{
            "LOCATION,Test City,CO,USA,TMY,724699," + std::to_string(latitude) + "," +
                std::to_string(longitude) + "," + std::to_string(timeZone) + ",1650.0",
            "DESIGN CONDITIONS,0",
            "TYPICAL/EXTREME PERIODS,0",
            "GROUND TEMPERATURES,0",
            "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0",
            "COMMENTS 1,none",
            "COMMENTS 2,none",
            "DATA PERIODS,1,1,Data,Sunday,1/1,12/31"};
        int dayOfYear = 0;
        for (int month = 1; month <= 12; ++month) {
            const bool leapMonth = leapYear && month == 2;
            const int days = kMonthDays[std::size_t(month - 1)] + (leapMonth ? 1 : 0);
            for (int day = 1; day <= days; ++day) {
                if (day < 29 || !leapMonth) ++dayOfYear;
                for (int hour = 1; hour <= 24; ++hour) {
                    lines.push_back(Row(month, day, hour, dayOfYear));
                }
            }
        }
        return lines;
    }

    static constexpr std::size_t kFirstRow = 8;

private:
    std::string Row(int month, int day, int hour, int dayOfYear) const {
        const double rad = 3.14159265358979 / 180;
        const double declination = 23.45 * std::sin(360.0 * (284 + dayOfYear) / 365 * rad) * rad;
        const double b = 360.0 * (dayOfYear - 81) / 364 * rad;
        const double equation = 9.87 * std::sin(2 * b) - 7.53 * std::cos(b) - 1.5 * std::sin(b);
        const double solar = hour - 0.5 + equation / 60 + (longitude - 15 * timeZone) / 15;
        const double up =
            std::sin(latitude * rad) * std::sin(declination) +
            std::cos(latitude * rad) * std::cos(declination) * std::cos(15 * (solar - 12) * rad);
        const double direct = up > 0.02 ? 1000 * std::exp(-0.14 / up) : 0;
        const double diffuse = up > 0 ? 100 * up + 10 : 0;
        const double global = direct * std::max(0.0, up) + diffuse;
        const double temperature = 10 - 12 * std::cos(2 * 3.14159265 * dayOfYear / 365) +
                                   5 * std::cos((hour - 15) * 15 * rad);
        std::ostringstream row;
        row.precision(6);
        row << 1980 + month << ',' << month << ',' << day << ',' << hour << ',' << minute
            << ",?9?9?9," << temperature << ',' << temperature - 5 << ",70,84000,1200,1300,280,"
            << global << ',' << direct << ',' << diffuse
            << ",999999,999999,999999,9999,200,3.5,4,3,20,77777,9,999999999,70,0.1,0,88,0,0,1";
        return row.str();
    }
};

/// Replaces a field (from 1) of a line (from 1).
void SetField(std::vector<std::string>& lines, std::size_t line, int field, const char* text) {
    std::string& row = lines[line - 1];
    std::size_t at = 0;
    for (int skip = 1; skip < field; ++skip) at = row.find(',', at) + 1;
    row.replace(at, row.find(',', at) - at, text);
}

constexpr std::size_t kNoonOfJanuary10 = 8 + 9 * 24 + 12;  // the line of hour 12

struct YearSums {
    double horizontal = 0;
    double north = 0;
    double east = 0;
    double south = 0;
    double west = 0;
};

YearSums SumsOf(const std::vector<std::string>& lines) {
    const EpwReading reading = ReadEpw(lines);
    EXPECT_FALSE(reading.fault) << FaultText("epw", *reading.fault);
    const auto sun = SunOfYear(reading.site);
    EpwYear epw = MakeEpwYear(reading, sun);
    EXPECT_FALSE(epw.fault);
    YearSums sums;
    for (const auto& month : SummarizeYear(epw.year, sun, SkyModel::Isotropic).months) {
        sums.horizontal += month.horizontal;
        sums.north += month.north;
        sums.east += month.east;
        sums.south += month.south;
        sums.west += month.west;
    }
    return sums;
}

// The beam was made symmetric about solar noon. An hour off by one, a longitude of the wrong sign
// or swapped sides shift it by 15 degrees or more: east and west would differ by a quarter.
TEST(EpwHours, BeamMeetsTheSunThatMadeIt) {
    for (const double longitude : {-95.0, -105.0, -112.0}) {
        EpwBuilder builder;
        builder.longitude = longitude;
        const auto lines = builder.Lines();
        const YearSums sums = SumsOf(lines);
        EXPECT_NEAR(sums.east / sums.west, 1, 0.02) << longitude;
        EXPECT_GT(sums.south, 1.2 * sums.west);
        double global = 0;
        for (const EpwRow& row : ReadEpw(lines).rows) global += *row.At(EpwField::Global) / 1000;
        EXPECT_NEAR(sums.horizontal / global, 1, 0.01);
    }
}

struct Form {
    const char* name;
    std::function<void(EpwBuilder&)> build;
    std::function<void(std::vector<std::string>&)> change;
};

// The ways in which good files differ give the same hours.
TEST(EpwFiles, AllGoodFormsReadAlike) {
    const auto none = [](EpwBuilder&) {};
    const std::vector<std::string> plain = EpwBuilder().Lines();
    const EpwReading expected = ReadEpw(plain);
    ASSERT_EQ(expected.rows.size(), std::size_t(kHoursOfYear));
    const Form forms[] = {
        {"minute 0", [](EpwBuilder& b) { b.minute = "0"; }, {}},
        {"leap day", [](EpwBuilder& b) { b.leapYear = true; }, {}},
        {"rows of commas at the end", none,
         [](auto& lines) {
             lines.insert(lines.end(), {",,,,,,,,", "", ",", "\x1A"});
         }},
        {"byte order mark", none, [](auto& lines) { lines[0] = "\xEF\xBB\xBF" + lines[0]; }},
        {"commas behind the header", none, [](auto& lines) { lines[0] += ",,,,"; }},
        {"blanks around the fields", none,
         [](auto& lines) { SetField(lines, kNoonOfJanuary10, 4, " 12 "); }},
    };
    for (const Form& form : forms) {
        EpwBuilder builder;
        form.build(builder);
        auto lines = builder.Lines();
        if (form.change) form.change(lines);
        const EpwReading reading = ReadEpw(lines);
        ASSERT_FALSE(reading.fault) << form.name << FaultText("", *reading.fault);
        EXPECT_TRUE(reading.doubts.empty()) << form.name;
        ASSERT_EQ(reading.rows.size(), expected.rows.size()) << form.name;
        for (std::size_t hour = 0; hour < reading.rows.size(); ++hour) {
            ASSERT_EQ(reading.rows[hour].values, expected.rows[hour].values) << form.name;
        }
    }
}

struct BrokenEpw {
    const char* fault;
    std::function<void(std::vector<std::string>&)> breakIt;
    int line;
    const char* said;
};

TEST(EpwFiles, BrokenOnesAreRefusedByLineAndField) {
    const BrokenEpw rows[] = {
        {"empty file", [](auto& l) { l.clear(); }, 1, "empty"},
        {"no weather file at all", [](auto& l) { l[0] = "Place: Lund"; }, 1, "LOCATION"},
        {"place cut off", [](auto& l) { l[0] = "LOCATION,X,Y,Z,,,40"; }, 1, "longitude"},
        {"latitude in words", [](auto& l) { SetField(l, 1, 7, "N40"); }, 1, "latitude"},
        {"impossible latitude", [](auto& l) { SetField(l, 1, 7, "400"); }, 1, "latitude 400"},
        {"header line lost", [](auto& l) { l.erase(l.begin() + 3); }, 8, "DATA PERIODS"},
        {"quarter hours", [](auto& l) { SetField(l, 8, 3, "4"); }, 8, "records an hour"},
        {"row lost", [](auto& l) { l.erase(l.begin() + 100); }, 101, "was expected"},
        {"row doubled", [](auto& l) { l.insert(l.begin() + 100, l[99]); }, 101, "was expected"},
        {"hours from 0 to 23", [](auto& l) { SetField(l, 9, 4, "0"); }, 9, "hour 0"},
        {"row of commas inside", [](auto& l) { l[99] = ",,,,,,"; }, 100, "year"},
        {"row cut off", [](auto& l) { l[99].resize(30); }, 100, "the row ends"},
        {"file cut off", [](auto& l) { l.resize(5000); }, 5000, "ends after 4992"},
        {"more than a year", [](auto& l) { l.push_back(l.back()); }, 8769, "more rows"},
        {"letters for a number", [](auto& l) { SetField(l, 77, 7, "1O.5"); }, 77, "dry bulb"},
        {"two points", [](auto& l) { SetField(l, 77, 15, "1.2.3"); }, 77, "direct normal"},
        {"half a leap day",
         [](auto& l) {
             EpwBuilder leap;
             leap.leapYear = true;
             l = leap.Lines();
             l.erase(l.begin() + 8 + 59 * 24 + 5, l.begin() + 8 + 60 * 24);
         },
         8 + 59 * 24 + 6, "29 February"},
    };
    const auto good = EpwBuilder().Lines();
    for (const BrokenEpw& row : rows) {
        auto lines = good;
        row.breakIt(lines);
        const EpwReading reading = ReadEpw(lines);
        ASSERT_TRUE(reading.fault) << row.fault;
        const std::string said = FaultText("x", *reading.fault);
        EXPECT_EQ(reading.fault->line, row.line) << said;
        EXPECT_NE(said.find(row.said), std::string::npos) << said;
    }
}

EpwYear YearOf(const std::vector<std::string>& lines) {
    const EpwReading reading = ReadEpw(lines);
    EXPECT_FALSE(reading.fault);
    return MakeEpwYear(reading, SunOfYear(reading.site));
}

struct Gap {
    const char* fault;
    std::vector<std::pair<int, const char*>> fields;  // of the noon row
    double tolerance;                                 // W/m2 of direct and diffuse light
    const char* doubted;
};

// Each gap is filled near to what the file held before it was made, and listed with its line.
TEST(EpwGaps, LightIsFilledFromWhatIsLeft) {
    const auto good = EpwBuilder().Lines();
    const EpwYear whole = YearOf(good);
    EXPECT_TRUE(whole.doubts.empty()) << whole.doubts[0].line << whole.doubts[0].field;
    const std::size_t hour = kNoonOfJanuary10 - 9;
    const Gap gaps[] = {
        {"direct missing", {{15, "9999"}}, 5, "direct normal"},
        {"diffuse missing", {{16, "9999"}}, 5, "diffuse"},
        {"global missing alone does not matter", {{14, "9999"}}, 0.01, ""},
        {"only global left", {{15, "9999"}, {16, "9999"}}, 130, "direct normal"},
        {"no light left", {{14, "9999"}, {15, "9999"}, {16, "9999"}}, 130, "global"},
        {"parts empty", {{15, ""}, {16, ""}}, 130, "direct normal"},
        {"parts zero in daylight", {{15, "0"}, {16, "0"}}, 130, "diffuse"},
        {"code of another field", {{15, "99999"}}, 5, "direct normal"},
        {"beam stronger than the sun", {{15, "1800"}}, 5, "direct normal"},
    };
    for (const Gap& gap : gaps) {
        auto lines = good;
        for (const auto& [field, text] : gap.fields) {
            SetField(lines, kNoonOfJanuary10, field, text);
        }
        const EpwYear year = YearOf(lines);
        ASSERT_FALSE(year.fault) << gap.fault;
        const double up = SunOfHour(year.year.site, int(hour)).sun.up;
        const auto global = [&](const EpwYear& of) {
            return of.year.hours[hour].directNormal * up + of.year.hours[hour].diffuse;
        };
        EXPECT_NEAR(global(year), global(whole), 0.02 * global(whole)) << gap.fault;
        EXPECT_NEAR(year.year.hours[hour].directNormal, whole.year.hours[hour].directNormal,
                    2 * gap.tolerance)
            << gap.fault;
        EXPECT_NEAR(year.year.hours[hour].diffuse, whole.year.hours[hour].diffuse, gap.tolerance)
            << gap.fault;
        if (*gap.doubted == '\0') {
            EXPECT_TRUE(year.doubts.empty()) << gap.fault;
            continue;
        }
        ASSERT_FALSE(year.doubts.empty()) << gap.fault;
        EXPECT_EQ(year.doubts[0].line, int(kNoonOfJanuary10)) << gap.fault;
        EXPECT_NE(year.doubts[0].field.find(gap.doubted), std::string::npos)
            << gap.fault << year.doubts[0].field;
    }
}

TEST(EpwGaps, AirIsFilledOnAStraightLine) {
    auto lines = EpwBuilder().Lines();
    for (const char* text : {"0", "99.9", "", "99.9", "8"}) {
        static std::size_t line = 500;
        SetField(lines, line++, 7, text);
    }
    SetField(lines, 9, 9, "999");  // at the very start: between 31 December and 1 January
    SetField(lines, 600, 22, "999");
    const EpwYear year = YearOf(lines);
    ASSERT_FALSE(year.fault);
    EXPECT_DOUBLE_EQ(year.year.hours[492].temperature, 2);
    EXPECT_DOUBLE_EQ(year.year.hours[493].temperature, 4);
    EXPECT_DOUBLE_EQ(year.year.hours[494].temperature, 6);
    EXPECT_DOUBLE_EQ(year.year.hours[0].humidity, 70);
    EXPECT_DOUBLE_EQ(year.year.hours[591].wind, 3.5);
    const auto listed = [&](int line, const char* field) {
        return std::any_of(year.doubts.begin(), year.doubts.end(), [&](const ClimateDoubt& doubt) {
            return doubt.line == line && doubt.field.find(field) != std::string::npos;
        });
    };
    EXPECT_TRUE(listed(501, "dry bulb") && listed(502, "dry bulb") && listed(503, "dry bulb"));
    EXPECT_FALSE(listed(504, "dry bulb"));
    EXPECT_TRUE(listed(9, "humidity"));
    EXPECT_TRUE(listed(600, "wind"));
}

TEST(EpwGaps, AColumnThatIsNeverGivenIsOneDoubt) {
    auto lines = EpwBuilder().Lines();
    for (std::size_t line = 9; line <= lines.size(); ++line) SetField(lines, line, 13, "9999");
    const EpwYear year = YearOf(lines);
    ASSERT_EQ(year.doubts.size(), 1u);
    EXPECT_NE(year.doubts[0].field.find("13"), std::string::npos);
    for (const WeatherHour& hour : year.year.hours) {
        ASSERT_LT(hour.skyTemperature, hour.temperature);
        ASSERT_GT(hour.skyTemperature, hour.temperature - 45);
    }
    EXPECT_NEAR(YearOf(EpwBuilder().Lines()).year.hours[7].skyTemperature, -8.05, 0.1)
        << "280 W/m2 is a black body of -8 C";
}

TEST(EpwGaps, TooMuchMissingIsRefused) {
    const struct {
        int field;
        const char* code;
    } rows[] = {{7, "99.9"}, {14, "9999"}};
    for (const auto& row : rows) {
        auto lines = EpwBuilder().Lines();
        for (std::size_t line = 1009; line < 3009; ++line) {
            SetField(lines, line, row.field, row.code);
            if (row.field != 14) continue;
            SetField(lines, line, 15, row.code);
            SetField(lines, line, 16, row.code);
        }
        const EpwYear year = YearOf(lines);
        ASSERT_TRUE(year.fault) << row.field;
        EXPECT_GE(year.fault->line, 1009);
        EXPECT_NE(year.fault->field.find(std::to_string(row.field)), std::string::npos);
    }
}

TEST(EpwDoubts, ContradictionsAreListedAndKept) {
    auto lines = EpwBuilder().Lines();
    SetField(lines, 9, 15, "400");                  // beam at midnight
    SetField(lines, kNoonOfJanuary10, 14, "1400");  // global far from its parts
    SetField(lines, 900, 7, "45");                  // a jump up and down
    SetField(lines, 1000, 8, "60");                 // dew point above the temperature
    const EpwYear year = YearOf(lines);
    ASSERT_FALSE(year.fault);
    std::vector<int> at;
    for (const ClimateDoubt& doubt : year.doubts) at.push_back(doubt.line);
    EXPECT_EQ(at, (std::vector<int>{9, int(kNoonOfJanuary10), 900, 901, 1000}));
    EXPECT_EQ(year.doubts[0].value, "400");
    EXPECT_DOUBLE_EQ(year.year.hours[891].temperature, 45);
}

TEST(EpwDoubts, ALongitudeOfTheWrongSignIsSeen) {
    EpwBuilder builder;
    builder.longitude = 105;
    const EpwReading reading = ReadEpw(builder.Lines());
    ASSERT_FALSE(reading.doubts.empty());
    EXPECT_NE(reading.doubts[0].field.find("longitude"), std::string::npos);
}

// Broken text of any kind must end in a fault or a year, never in anything else.
TEST(EpwFiles, NoNoiseStopsTheReader) {
    const auto good = EpwBuilder().Lines();
    std::uint32_t state = 7;
    const auto next = [&] { return state = state * 1664525u + 1013904223u, state >> 8; };
    for (int round = 0; round < 60; ++round) {
        std::vector<std::string> lines(good.begin(), good.begin() + 40);
        for (int change = 0; change < 4; ++change) {
            std::string& line = lines[round % 3 == 0 ? next() % 8 : next() % lines.size()];
            if (line.empty()) continue;
            line[next() % line.size()] = static_cast<char>(next() % 256);
            if (next() % 5 == 0) line.resize(next() % line.size());
        }
        EXPECT_TRUE(ReadEpw(lines).fault);
    }
}

class EpwCommand : public testing::Test {
protected:
    const std::string folder_ =
        testing::TempDir() + "vc_" + testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string file_ = JoinPath(folder_, "w.epw");
    std::ostringstream out_;
    std::ostringstream err_;

    void SetUp() override {
        TearDown();
        MakeFolders(folder_);
    }
    void TearDown() override {
        DeleteFiles(folder_, "*.*");
        RemoveFolder(folder_);
    }
    int Run(const std::vector<std::string>& lines) {
        WriteUtf8Lines(file_, lines);
        return RunClimateCommand({"epw", file_, "TEST_1", folder_}, out_, err_);
    }
};

TEST_F(EpwCommand, ShowsMonthsAndCapsTheDoubtsBeforeItWrites) {
    auto lines = EpwBuilder().Lines();
    for (std::size_t line = 200; line < 300; ++line) SetField(lines, line, 22, "999");
    ASSERT_EQ(Run(lines), 0) << err_.str();
    const std::string shown = out_.str();
    EXPECT_NE(shown.find("Test City, USA"), std::string::npos);
    EXPECT_NE(shown.find("line 200, field 22 (wind speed), value \"missing\""), std::string::npos);
    EXPECT_NE(shown.find("Doubtful values: 100\n"), std::string::npos) << shown;
    EXPECT_NE(shown.find("and 75 more"), std::string::npos);
    EXPECT_LT(shown.find("Month"), shown.find("Doubtful"));
    EXPECT_LT(shown.find("Doubtful"), shown.find("Written"));
    EXPECT_TRUE(FileExists(JoinPath(folder_, "TEST_1S.dat")));
    const auto hourly = ReadLines(JoinPath(folder_, "TEST_1D.cli"));
    ASSERT_TRUE(hourly);
    EXPECT_EQ((*hourly)[3], "Longitude: -95.00");
    EXPECT_EQ((*hourly)[4], "Time meridian: -105.0");
}

TEST_F(EpwCommand, ARefusalLeavesNothing) {
    auto lines = EpwBuilder().Lines();
    SetField(lines, 77, 7, "warm");
    EXPECT_EQ(Run(lines), 2);
    EXPECT_NE(err_.str().find("w.epw line 77, field 7 (dry bulb temperature)"), std::string::npos)
        << err_.str();
    EXPECT_EQ(ListFolder(folder_), std::vector<std::string>{"w.epw"});
}

// The name of a place must not be taken for a key of the header by those who read it.
TEST_F(EpwCommand, PlaceNamesCannotForgeTheHeader) {
    auto lines = EpwBuilder().Lines();
    SetField(lines, 1, 2, "Latitude: 12\tTown");
    ASSERT_EQ(Run(lines), 0) << err_.str();
    const auto hourly = ReadLines(JoinPath(folder_, "TEST_1D.cli"));
    ASSERT_TRUE(hourly);
    EXPECT_EQ((*hourly)[1], "Place: Latitude  12 Town, USA");
}

}  // namespace
}  // namespace verandis
