#pragma once

#include <string>

namespace verandis {

/// Folder of the delivered data: $VERANDIS_DELIVERED, else beside the program ("delivered", or
/// "../share/verandis/data" where it is installed); empty when none is there.
std::string DeliveredFolder();

/// True when the folder holds a list of projects.
bool IsDataRoot(const std::string& folder);

/// Makes a data root from the delivered data and writes the line of the project of the slots. An
/// empty text when done, else what is wrong, as one sentence. Refuses a folder that holds a data
/// root already, so that nothing of it is lost.
std::string MakeDataRoot(const std::string& named);

}  // namespace verandis
