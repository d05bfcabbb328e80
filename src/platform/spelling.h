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

/// As `FindSpelling`, but remembers what it found. The caller tells by `ForgetSpelling` when the
/// remembered file is not there any more.
const std::string& RememberedSpelling(const std::string& path);

/// Drops what is remembered: of one path, or of all. Every operation that makes, removes or renames
/// calls it, and so does the opening of a case, so that changes by other programs are seen.
void ForgetSpelling(const std::string& path);
void ForgetSpellings();

}  // namespace verandis
