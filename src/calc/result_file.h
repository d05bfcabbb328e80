#pragma once

namespace verandis {

inline constexpr const char* kResultFileName = "SimpResults.Dat";

/// Leaves the results of every marked slot beside its property file, 90 lines each: five figures of
/// the case, twelve groups of seven lines, and the letter "U" as the mark of the end. Throws
/// RunError for a slot that is not in the case list or a file that cannot be written.
void WriteSteadyResults();

}  // namespace verandis
