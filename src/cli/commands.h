#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace verandis {

/// Exit codes of the command line programs.
inline constexpr int kExitDone = 0;
inline constexpr int kExitUsage = 1;
inline constexpr int kExitStopped = 2;

/// The whole program `verandis-cli` behind its arguments; never throws.
int RunCli(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
           bool errIsTerminal = false);

}  // namespace verandis
