#include <cmath>

#include "app/session.h"
#include "fuzzing.h"
#include "libraries/library_entry.h"
#include "libraries/simple_libraries.h"
#include "text/separators.h"

// An input is the four libraries one behind the other, parted by lines "%%".

namespace verandis::fuzzing {
namespace {

constexpr const char* kLibraries[] = {"SimpWindows.lib", "SimpRefWindows.lib", "SimpWalls.lib",
                                      "SimpSunPanel.lib"};

void WriteLibraries(std::string_view text) {
    for (const char* library : kLibraries) {
        WriteScratch(library, LeftOfSeparator(text, "\n%%\n"));
        text = RightOfSeparator(text, "\n%%\n");
    }
}

void CheckTable(const TextTable& table) {
    for (int row = 1; row <= table.rows(); ++row) {
        for (int column = 1; column <= table.columns(); ++column) {
            const bool last = column == table.columns();
            const auto parts = table.Cell(row, column).find_first_of(last ? "\n" : "\t\n");
            Require(parts == std::string::npos, "a cell holds no end of a cell");
        }
    }
}

void UseTables() {
    SimpleLibraries& libraries = simpleLibraries;
    for (int row = 1; row <= libraries.WindowTable.rows(); ++row) {
        const std::string name = libraries.WindowTable.Cell(row, kWindowName);
        WindowPanes(name);
        Require(!std::isnan(WindowU(name)) && !std::isnan(WindowTransmittance(name)),
                "a window has figures");
        const WindowEntry entry = ShownWindow(libraries.WindowTable, row);
        if (CheckWindowEntry(entry).empty()) StoreWindowEntry(libraries.WindowTable, row, entry);
    }
    for (int row = 1; row <= libraries.WallTable.rows(); ++row) {
        const std::string U = ShownWallU(libraries.WallTable, row);
        if (CheckWallEntry(U).empty()) StoreWallEntry(libraries.WallTable, row, U);
    }
    WallU("none of this name");
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis;
    using namespace verandis::fuzzing;
    session = {};
    session.ProjectFolder = Scratch();
    simpleLibraries = {};
    WriteLibraries(TextOf(data, size));
    ReadWindows();
    ReadWalls();
    CheckTable(simpleLibraries.WindowTable);
    CheckTable(simpleLibraries.WallTable);
    Try([] {
        ReadSunPanel();
        for (int shape = 1; shape <= kShapeCount; ++shape) SunPanelValue(shape, 0.5, 0.6);
    });
    Try(UseTables);
    return 0;
}
