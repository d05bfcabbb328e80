#pragma once

#include <sstream>

#include "climate/climate_command.h"
#include "platform/files.h"
#include "support/session_test.h"

namespace verandis {

using Lines = std::vector<std::string>;

/// Runs the program on a file, with output to a folder that is not there yet.
class ClimateCommandTest : public testing_support::SessionTest {
protected:
    const std::string file = Path("in.txt");
    const std::string folder = Path("å #");
    std::ostringstream out;
    std::ostringstream err;

    int Run(const Lines& args) { return RunClimateCommand(args, out, err); }
    int RunOn(const Lines& lines, const Lines& args) {
        WriteUtf8Lines(file, lines);
        return Run(args);
    }

    /// Lines of the file with this end that a run for the base TEST_1 wrote; none when missing.
    Lines Written(const std::string& end) const {
        return ReadLines(folder + "/TEST_1" + end).value_or(Lines());
    }
};

}  // namespace verandis
