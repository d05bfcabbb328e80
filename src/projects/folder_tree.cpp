#include "projects/folder_tree.h"

#include "app/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"

namespace verandis {
namespace {

/// Folders whose loss would take more than a case or a project.
bool MayBeRemoved(const std::string& folder) {
    const std::string path = TrueSpelling(folder);
    if (path.empty() || LiesIn("/", path)) return false;
    if (!HomeFolder().empty() && LiesIn(HomeFolder(), path)) return false;
    return session.ProjectRoot.empty() || !LiesIn(TrueSpelling(session.ProjectRoot), path);
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
    if (!MayBeRemoved(folder)) return false;
    if (IsLink(folder)) return DeleteFile(folder);
    return FolderExists(folder) && EmptyUnchecked(folder) && RemoveFolder(folder);
}

bool EmptyFolder(const std::string& folder) {
    return MayBeRemoved(folder) && !IsLink(folder) && EmptyUnchecked(folder);
}

}  // namespace verandis
