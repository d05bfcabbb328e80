#pragma once

#include <functional>
#include <string>

namespace verandis {

/// Copies every file and folder below `source` into `target`, which is made when missing. Links are
/// passed over. Stops at the first failure and tells so.
bool CopyTree(const std::string& source, const std::string& target);

/// Makes `target` hold what `source` holds and nothing else. A file that is equal already is not
/// written again. The files directly in `source` that `leaveOut` tells are treated as not there.
/// The refusals of `RemoveTree` hold for the target.
bool MirrorTree(const std::string& source, const std::string& target,
                const std::function<bool(const std::string& name)>& leaveOut);

/// Removes a folder with all that it holds; a link is removed, never followed. Refuses the root,
/// the user's home and every folder that holds the folder of projects.
bool RemoveTree(const std::string& folder);

}  // namespace verandis
