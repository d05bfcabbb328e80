#pragma once

#include <string>
#include <vector>

namespace verandis {

/// Calculates the slots ("U1" to "I4") as they stand and writes each steady-state diagram as a PNG
/// picture into the folder, which is made when it is missing. `system` names the data root; empty
/// for that of the settings. An exit code: 0 done, 1 for a label
/// that names no slot, 2 when the run stopped or a picture cannot be written; told by a message.
int WriteDiagramsOf(const std::vector<std::string>& labels, const std::string& folder,
                    const std::string& system);

}  // namespace verandis
