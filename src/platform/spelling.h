#pragma once

#include <string>
#include <string_view>

// How a path of the system's data finds its file on a disk that tells letter cases apart.

namespace verandis {

/// Names the data root in its real spelling. A path that begins with it, without regard to letter
/// case, takes this spelling first, so that no folder above the root must be listed.
void SetRootSpelling(std::string_view root);

/// The path with every component in its real spelling: the exact name first, else the first name in
/// byte order that is equal without regard to letter case, else the name as given.
std::string FindSpelling(std::string_view path);

/// As `FindSpelling`, with what is remembered of the folder: for a path that is to be written.
std::string SpellingToWrite(std::string_view path);

/// The remembered real folder and the name as given: for a path that is to be read. When nothing is
/// there the caller asks `FindSpellingAnew`.
std::string RememberedSpelling(std::string_view path);

/// Searches a path whose remembered spelling is not there, and remembers what it finds.
std::string FindSpellingAnew(const std::string& path);

/// Forgets what is remembered of a folder when another program has made the exact name since. Only
/// this kind of change is not seen by itself: a folder that is gone is searched anew.
void RecheckSpelling(const std::string& folder);

/// Drops all that is remembered; every operation that makes, removes or renames a folder calls it.
void ForgetSpellings();

}  // namespace verandis
