#include "libraries/simple_libraries.h"

#include <cmath>
#include <cstdlib>
#include <optional>

#include "app/run_stop.h"
#include "app/session.h"
#include "case/property_file.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {

SimpleLibraries simpleLibraries;

namespace {

constexpr const char* kMissingLibrary = "No File Exist";
constexpr const char* kUnknownWindow = " Glazing not found,default used ";
constexpr const char* kUnknownWall = " Wall type not found,default used ";
constexpr const char* kUnknownPanes = " Glazing not found, default used = 0.5";
constexpr double kDefaultReference = 0.5;
constexpr int kSunPanelHeadings = 3;

/// The file's bytes until the next reading; nothing after the message.
std::optional<std::string_view> ReadLibrary(const char* name) {
    const auto bytes = ReadView(JoinPath(session.ProjectFolder, name));
    if (!bytes) ShowMessage(kMissingLibrary);
    return bytes;
}

bool ReadTable(const char* name, TextTable& table) {
    const auto bytes = ReadLibrary(name);
    if (bytes) ReadLibraryRecords(*bytes, table);
    return bytes.has_value();
}

/// The cell of the named type; row 1 when the name is not set or, after the message, unknown.
const std::string& LookUp(const TextTable& table, int column, std::string_view name,
                          const char* unknown) {
    int row = table.FindRow(1, name);
    if (row == 0) {
        if (name != kNotSet) ShowMessage(unknown + std::string(name));
        row = 1;
    }
    return table.Cell(row, column);
}

}  // namespace

bool ReadWindows() {
    return ReadTable("SimpWindows.lib", simpleLibraries.WindowTable);
}

bool ReadRefWindows() {
    if (!ReadTable("SimpRefWindows.lib", simpleLibraries.RefWindowTable)) return false;
    simpleLibraries.MaxPanes = 0;
    for (int row = 1; row <= simpleLibraries.RefWindowTable.rows(); ++row) {
        const double panes = ToNumber(simpleLibraries.RefWindowTable.Cell(row, kPanes));
        if (panes > simpleLibraries.MaxPanes) simpleLibraries.MaxPanes = WholeNumber(panes);
    }
    return true;
}

bool ReadWalls() {
    return ReadTable("SimpWalls.lib", simpleLibraries.WallTable);
}

void ReadSunPanel() {
    ReadRefWindows();
    const auto bytes = ReadLibrary("SimpSunPanel.lib");
    if (!bytes) return;
    if (simpleLibraries.MaxPanes > kMostPanes) {
        StopRun("the reference windows have " + std::to_string(simpleLibraries.MaxPanes) +
                " panes; the sun panel table holds " + std::to_string(kMostPanes));
    }
    std::string_view rest = *bytes;
    for (int line = 0; line < kSunPanelHeadings; ++line) TakeLine(rest);
    simpleLibraries.SunPanelTable = {};
    for (std::size_t set = 1; set <= kShapeCount; ++set) {
        TakeLine(rest);
        for (int panes = 1; panes <= simpleLibraries.MaxPanes; ++panes) {
            auto& curve = simpleLibraries.SunPanelTable[set][static_cast<std::size_t>(panes)];
            curve.a = ToNumber(TakeLine(rest));
            curve.b = ToNumber(TakeLine(rest));
        }
    }
}

int FindWindowRow(std::string_view name) {
    const int row = simpleLibraries.WindowTable.FindRow(kWindowName, name);
    return row == 0 ? 0 : row - 1;
}

int FindWallRow(std::string_view name) {
    const int row = simpleLibraries.WallTable.FindRow(kWallName, name);
    return row == 0 ? 0 : row - 1;
}

double WindowU(std::string_view name) {
    return ToNumber(LookUp(simpleLibraries.WindowTable, kWindowU, name, kUnknownWindow));
}

double WallU(std::string_view name) {
    return ToNumber(LookUp(simpleLibraries.WallTable, kWallU, name, kUnknownWall));
}

double WindowTransmittance(std::string_view name) {
    return ToNumber(LookUp(simpleLibraries.WindowTable, kTransmittance, name, kUnknownWindow));
}

int WindowPanes(std::string_view name) {
    const int row = simpleLibraries.WindowTable.FindRow(kWindowName, name);
    if (row != 0) return WholeNumber(ToNumber(simpleLibraries.WindowTable.Cell(row, kPanes)));
    if (name != kNotSet) ShowMessage(kUnknownWindow + std::string(name));
    return 1;
}

double ReferenceTransmittance(int panes) {
    const TextTable& table = simpleLibraries.RefWindowTable;
    for (int row = 1; row <= table.rows(); ++row) {
        if (ToNumber(table.Cell(row, kPanes)) == panes) {
            return ToNumber(table.Cell(row, kTransmittance));
        }
    }
    ShowMessage(kUnknownPanes);
    return kDefaultReference;
}

double SunPanelValue(int set, double transmittance, double x) {
    ReadRefWindows();
    double nearest = 100;
    std::size_t panes = 0;
    for (int each = 1; each <= simpleLibraries.MaxPanes; ++each) {
        const double distance = std::abs(ReferenceTransmittance(each) - transmittance);
        if (distance >= nearest) continue;
        nearest = distance;
        panes = static_cast<std::size_t>(each);
    }
    if (panes > kMostPanes || set < 1 || set > kShapeCount) {
        StopRun("the sun panel table has no set " + std::to_string(set) + " with " +
                std::to_string(panes) + " panes");
    }
    const auto [a, b] = simpleLibraries.SunPanelTable[static_cast<std::size_t>(set)][panes];
    if (a <= 0 || x <= 0) {
        StopRun("the logarithm of a sun panel coefficient a of " + TrimmedNumberText(a) +
                " and an absorptance of " + TrimmedNumberText(x) + " cannot be taken");
    }
    return std::exp(std::log(a) + b * std::log(x));
}

}  // namespace verandis
