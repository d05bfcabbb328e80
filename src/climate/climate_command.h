#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace verandis {

/// The program `verandis-climate` without its process: `args` are the words behind the program's
/// name. Gives the exit code: 0 done, 1 wrong use, 2 an input that cannot be used or a file that
/// cannot be written; in both cases nothing is left on disk.
int RunClimateCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace verandis
