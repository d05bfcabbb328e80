#pragma once

#include <string>

namespace verandis {

/// Copies every file and folder below `source` into `target`, which is made when missing. Links are
/// passed over. Stops at the first failure and tells so.
bool CopyTree(const std::string& source, const std::string& target);

/// Removes a folder with all that it holds; a link is removed, never followed. Refuses the root,
/// the user's home and every folder that holds the folder of projects.
bool RemoveTree(const std::string& folder);

/// Removes what a folder holds and leaves the folder. The same refusals.
bool EmptyFolder(const std::string& folder);

}  // namespace verandis
