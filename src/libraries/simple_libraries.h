#pragma once

#include <array>
#include <string>
#include <string_view>

#include "libraries/text_table.h"

// The component libraries of the simple side, read from the project folder. No operation writes
// them: what a dialog changes in the tables lives until the next reading.

namespace verandis {

/// Columns of the window tables.
enum WindowColumn : int {
    kWindowName = 1,
    kTransmittance = 2,  // solar, perpendicular, 0 to 1
    kReflectance = 3,
    kAbsorptance = 4,
    kWindowU = 5,  // W/m2K
    kPanes = 6,
    kWindowColumns = 6
};

/// Columns of the wall table.
enum WallColumn : int { kWallName = 1, kWallU = 2, kWallColumns = 2 };

inline constexpr int kMostPanes = 3;  // that the sun panel table and the climate files hold

/// Coefficients of one pane count; the curve is a times x to the power b.
struct SunPanelCurve {
    double a = 0;
    double b = 0;
};

/// Indexed by set (a shape 1 to 4) and pane count 1 to 3.
using SunPanelCurves = std::array<std::array<SunPanelCurve, kMostPanes + 1>, 5>;

/// The tables as they were read last; one copy. A test starts anew with `simpleLibraries = {}`.
struct SimpleLibraries {
    TextTable WindowTable{kWindowColumns};
    TextTable RefWindowTable{kWindowColumns};
    TextTable WallTable{kWallColumns};
    SunPanelCurves SunPanelTable;
    int MaxPanes = 0;  // the largest pane count of the reference windows
};

extern SimpleLibraries simpleLibraries;

/// Each reads one library into its table. A missing file shows "No File Exist", leaves the table as
/// it was and gives false.
bool ReadWindows();
bool ReadRefWindows();
bool ReadWalls();

/// Reads the reference windows, then the coefficients for their pane counts. Throws RunError for
/// more than three panes.
void ReadSunPanel();

/// List position from 0 of a type's name in its table, compared exactly; an unknown name gives 0,
/// the first row.
int FindWindowRow(std::string_view name);
int FindWallRow(std::string_view name);

/// Lookups of the monthly balance, by the exact name. `kNotSet` gives row 1 (of the pane count: 1)
/// without a message, an unknown name the same after a message. An empty table throws RunError.
double WindowU(std::string_view name);              // W/m2K
double WallU(std::string_view name);                // W/m2K
double WindowTransmittance(std::string_view name);  // 0 to 1
int WindowPanes(std::string_view name);

/// Solar transmittance of the first reference window with this pane count; 0.5 after a message when
/// there is none.
double ReferenceTransmittance(int panes);

/// a times x to the power b, with the coefficients of the set and of the pane count whose reference
/// transmittance is nearest to `transmittance`; the lowest count wins ties. Throws RunError when a
/// or x is not above 0.
double SunPanelValue(int set, double transmittance, double x);

}  // namespace verandis
