#pragma once

#include <string>
#include <vector>

namespace verandis {

/// A line of what a supplier needs to know about an installation.
struct SystemDetail {
    std::string label;  // in the session's language
    std::string value;
};

/// What only the window system can tell.
struct Surroundings {
    std::string version;          // of the program
    std::string operatingSystem;  // name and version
    std::string windowSystem;
};

/// Versions, language, folders and the open project and case, in the order of the contact window.
std::vector<SystemDetail> SystemDetails(const Surroundings& surroundings);

/// The same as lines "label: value", for the clipboard.
std::string SystemDetailsText(const std::vector<SystemDetail>& details);

}  // namespace verandis
