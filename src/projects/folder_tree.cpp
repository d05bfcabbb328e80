#include "projects/folder_tree.h"

#include "app/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"

namespace verandis {
namespace {

/// Folders whose loss would take more than a case or a project.
bool MayBeRemoved(const std::string& folder) {
    if (folder.empty()) return false;
    const std::string path = CanonicalPath(folder);
    const auto holds = [&](const std::string& kept) {
        return !kept.empty() && LiesIn(CanonicalPath(kept), path);
    };
    return path != "/" && !holds(HomeFolder()) && !holds(session.ProjectRoot);
}

/// So that a link is seen as one: with a separator behind it the system would follow it.
std::string WithoutTrailingSeparators(std::string path) {
    while (path.size() > 1 && (path.ends_with('/') || path.ends_with('\\'))) path.pop_back();
    return path;
}

bool EmptyUnchecked(const std::string& folder);

bool RemoveEntry(const std::string& path) {
    if (DeleteFile(path)) return true;  // a file or a link
    return FolderExists(path) && EmptyUnchecked(path) && RemoveFolder(path);
}

bool EmptyUnchecked(const std::string& folder) {
    bool all = true;
    for (const std::string& name : ListFolder(folder)) {
        all = RemoveEntry(JoinPath(folder, name)) && all;
    }
    return all;
}

}  // namespace

bool CopyTree(const std::string& source, const std::string& target) {
    const std::string from = TrueSpelling(source);
    const std::string to = TrueSpelling(target);
    if (!FolderExists(from) || LiesIn(to, from)) return false;
    if (!FolderExists(to) && !MakeFolders(to)) return false;
    for (const std::string& name : ListFolder(from)) {
        const std::string entry = JoinPath(from, name);
        if (IsLink(entry)) continue;
        const bool copied = FolderExists(entry) ? CopyTree(entry, JoinPath(to, name))
                                                : CopyFile(entry, JoinPath(to, name));
        if (!copied) return false;
    }
    return true;
}

bool RemoveTree(const std::string& folder) {
    const std::string path = WithoutTrailingSeparators(folder);
    if (IsLink(path)) return DeleteFile(path);
    return MayBeRemoved(path) && FolderExists(path) && EmptyUnchecked(path) && RemoveFolder(path);
}

bool EmptyFolder(const std::string& folder) {
    const std::string path = WithoutTrailingSeparators(folder);
    return !IsLink(path) && MayBeRemoved(path) && EmptyUnchecked(path);
}

}  // namespace verandis
