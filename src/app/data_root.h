#pragma once

#include <functional>
#include <optional>
#include <string>

namespace verandis {

/// Folder of the delivered data: $VERANDIS_DELIVERED, else beside the program ("delivered", or
/// "../share/verandis/data" where it is installed); empty when none is there.
std::string DeliveredFolder();

/// True when the folder holds a list of projects.
bool IsDataRoot(const std::string& folder);

/// Why a data root could not be made.
struct DataRootFault {
    int text = 0;         // catalogue text that tells it; 0 when there is none
    std::string english;  // the same, for the time before a catalogue is there
    std::string path;     // the file or folder that it is about, may be empty
};

/// Called after each copied file with how many are done and how many there are.
using CopyProgress = std::function<void(int done, int all)>;

/// Makes a data root from the delivered data and writes the line of the project of the slots.
/// Nothing when done, else what is wrong. Refuses a folder that holds a data root already, so that
/// nothing of it is lost.
std::optional<DataRootFault> BuildDataRoot(const std::string& named,
                                           const CopyProgress& progress = {});

/// The same; an empty text when done, else what is wrong, as one English sentence.
std::string MakeDataRoot(const std::string& named);

}  // namespace verandis
