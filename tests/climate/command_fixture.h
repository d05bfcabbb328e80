#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "climate/climate_command.h"
#include "support/session_test.h"

namespace verandis {

/// Runs the program in a folder of its own; `out` and `err` hold what all runs of a test said.
class ClimateCommandTest : public testing_support::SessionTest {
protected:
    const std::string folder = Path("å #");  // made by the runs
    std::ostringstream out;
    std::ostringstream err;

    int Run(const std::vector<std::string>& args) { return RunClimateCommand(args, out, err); }
    bool Said(const std::string& text) const {
        return (out.str() + err.str()).find(text) != std::string::npos;
    }
};

}  // namespace verandis
