#pragma once

#include <array>
#include <string>
#include <string_view>

namespace verandis {

inline constexpr int kGlassKinds = 4;    // 0 no glass, else number of reference panes
inline constexpr int kDirections = 29;   // index 0 horizontal, else direction / 10 + 1
inline constexpr int kTilts = 10;        // tilt / 10
inline constexpr int kMonthPlaces = 13;  // months 1 to 12, and a place 0

/// The climate of the case that was read last; one copy. The reader does not clear it: what a file
/// does not hold keeps the value of the file before.
struct ClimateTables {
    /// By month 1 to 12 (a file may also fill 0), places 1 to 3: mean outdoor temperature in C, and
    /// two figures that are kept and not used. Place 0 stays empty.
    std::array<std::array<float, 4>, kMonthPlaces> ClimateMonths{};

    /// Radiation in kWh/m2 by glass kind, month 1 to 12, direction index and tilt index.
    std::array<std::array<std::array<std::array<float, kTilts>, kDirections>, kMonthPlaces>,
               kGlassKinds>
        SolarTable{};
};

extern ClimateTables climateTables;

/// Index of a tilt (degrees) or of a direction (degrees, anti-clockwise from south; -10 stands for
/// the horizontal) in the radiation table. They may lie outside of it.
int TiltIndex(double tilt);
int DirectionIndex(double direction);

/// Radiation of a surface, kWh/m2. Throws RunError, with the element, for an index that the table
/// does not have.
float SolarRadiation(int kind, int month, int directionIndex, int tiltIndex,
                     std::string_view element);

/// Reads the climate file of the open case into the tables. A missing file leaves them as they are,
/// without a word; so does a file for the part that it lacks. A month or block outside the tables
/// throws RunError with the file's name and line.
void ReadClimateFile();

/// Path of that file: the folder that the case's site file names, or the system's climate folder
/// when it names none that is there; then the case's climate with "S.dat" behind it. Throws
/// RunError when no climate folder can be told.
std::string ClimateFilePath();

/// Reads a climate file's bytes into the tables; `file` names it in error sentences.
void ReadClimateBytes(std::string_view bytes, const std::string& file);

}  // namespace verandis
