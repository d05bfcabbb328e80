#include "calc/climate_file.h"

#include <cmath>
#include <limits>

#include "app/run_stop.h"
#include "app/session.h"
#include "calc/properties.h"
#include "case/site_file.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {

ClimateTables climateTables;

namespace {

constexpr int kHeaderLines = 3;
constexpr std::string_view kLastLine = "End";

/// Rounds down; far outside any table when the value does not fit.
int WholePart(double value) {
    const double floor = std::floor(value);
    if (!(std::abs(floor) < 1e9)) return std::numeric_limits<int>::max();
    return static_cast<int>(floor);
}

bool Within(int index, int count) {
    return index >= 0 && index < count;
}

bool InSolarTable(int kind, int direction, int tilt) {
    return Within(kind, kGlassKinds) && Within(direction, kDirections) && Within(tilt, kTilts);
}

/// Lines of a climate file with their numbers, for error sentences.
class ClimateLines {
public:
    ClimateLines(std::string_view text, const std::string& file) : rest_(text), file_(file) {}

    bool AtEnd() const { return rest_.empty(); }

    std::string_view Next() {
        ++number_;
        return TakeLine(rest_);
    }

    [[noreturn]] void Refuse(const std::string& what) const {
        StopRun("climate file " + file_ + ", line " + std::to_string(number_) + ": " + what);
    }

private:
    std::string_view rest_;
    const std::string& file_;
    int number_ = 0;
};

/// The numbers of a line, parted by TABs; a point is the decimal sign, whatever the session's is.
template <std::size_t count>
std::array<double, count> NumbersOf(std::string_view line) {
    std::array<double, count> numbers;
    FieldNumbers(line, '\t', numbers);
    return numbers;
}

void ReadMonth(ClimateLines& lines) {
    const auto [number, first, second, third] = NumbersOf<4>(lines.Next());
    const int month = WholeNumber(number);
    if (!Within(month, kMonthPlaces)) {
        lines.Refuse("there is no month " + std::to_string(month));
    }
    climateTables.ClimateMonths[static_cast<std::size_t>(month)] = {
        0, static_cast<float>(first), static_cast<float>(second), static_cast<float>(third)};
}

/// The place of a block in the radiation table.
struct BlockPlace {
    std::size_t kind;
    std::size_t direction;
    std::size_t tilt;
};

BlockPlace PlaceOf(std::string_view header, const ClimateLines& lines) {
    const auto [kindNumber, tiltNumber, directionNumber] = NumbersOf<3>(header);
    const int kind = WholeNumber(kindNumber);
    const int tilt = TiltIndex(tiltNumber);
    const int direction = DirectionIndex(WholeNumber(directionNumber));
    if (!InSolarTable(kind, direction, tilt)) {
        lines.Refuse("glass kind, tilt or direction lies outside the radiation table");
    }
    return {static_cast<std::size_t>(kind), static_cast<std::size_t>(direction),
            static_cast<std::size_t>(tilt)};
}

/// One block: false at the end of the blocks.
bool ReadBlock(ClimateLines& lines) {
    if (lines.AtEnd()) return false;
    const std::string_view header = lines.Next();
    if (header == kLastLine || lines.AtEnd()) return false;
    const BlockPlace place = PlaceOf(header, lines);
    const auto values = NumbersOf<kMonthPlaces - 1>(lines.Next());
    auto& months = climateTables.SolarTable[place.kind];
    for (std::size_t month = 1; month < kMonthPlaces; ++month) {
        months[month][place.direction][place.tilt] = static_cast<float>(values[month - 1]);
    }
    return true;
}

std::string FolderOfClimates() {
    const auto folder = ClimateFolderOfCase(session.CaseFolder);
    if (!folder) {
        StopRun("the path of the project, " + session.ProjectFolder +
                ", does not hold the word Project, so that its climate folder is not known");
    }
    return *folder;
}

}  // namespace

int TiltIndex(double tilt) {
    return WholePart(tilt / 10);
}

int DirectionIndex(double direction) {
    const int tenth = WholePart(direction / 10);
    return tenth == std::numeric_limits<int>::max() ? tenth : tenth + 1;
}

float SolarRadiation(int kind, int month, int directionIndex, int tiltIndex,
                     std::string_view element) {
    if (!InSolarTable(kind, directionIndex, tiltIndex) || !Within(month, kMonthPlaces)) {
        StopRun("glass kind " + std::to_string(kind) + ", direction index " +
                    std::to_string(directionIndex) + " or tilt index " + std::to_string(tiltIndex) +
                    " lies outside the radiation table",
                element);
    }
    return climateTables.SolarTable[static_cast<std::size_t>(kind)][static_cast<std::size_t>(
        month)][static_cast<std::size_t>(directionIndex)][static_cast<std::size_t>(tiltIndex)];
}

void ReadClimateBytes(std::string_view bytes, const std::string& file) {
    ClimateLines lines(bytes, file);
    for (int line = 0; line < kHeaderLines; ++line) {
        if (lines.AtEnd()) return;
        lines.Next();
    }
    for (int line = 0; line < 12; ++line) {
        if (lines.AtEnd()) return;
        ReadMonth(lines);
    }
    while (ReadBlock(lines)) {
    }
}

std::string ClimateFilePath() {
    const std::string climate = PropertyText("CLIMATE", "FILE");
    return JoinPath(FolderOfClimates(), std::string(TrimBlanks(climate)) + "S.dat");
}

void ReadClimateFile() {
    const std::string path = ClimateFilePath();
    if (const auto bytes = ReadView(path)) ReadClimateBytes(*bytes, path);
}

}  // namespace verandis
