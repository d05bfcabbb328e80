#pragma once

#include <optional>
#include <string>

// Where a case finds its climate: the climate folder of the system, and the one line of a case's
// `SITE.INP` that the start-up and the steady-state calculation need, the path of its climate file.

namespace verandis {

inline constexpr std::size_t kLongestClimatePath = 70;  // characters

/// The climate folder, a sibling of the folder of projects: what stands in front of the last
/// component "project" of the open project's path (else of the last place of that word), with
/// "Clim" behind it. Nothing when the path does not hold the word.
std::optional<std::string> ClimateFolder();

/// Line 5 of the case's site file, trimmed; nothing when the file or the line is missing.
std::optional<std::string> SiteClimate(const std::string& caseFolder);

/// The folder of a case's climate files: that of the path in its site file when it is there, else
/// `ClimateFolder`.
std::optional<std::string> ClimateFolderOfCase(const std::string& caseFolder);

/// True when the path may stand in a site file: a file that exists, at most 70 characters, without
/// a blank.
bool SiteClimateAllowed(const std::string& path);

/// Replaces line 5 of the case's site file. False when the path is not allowed or the file has no
/// such line or cannot be written; the file then stays as it was.
bool SetSiteClimate(const std::string& caseFolder, const std::string& path);

}  // namespace verandis
