#include "projects/folder_tree.h"

#include <algorithm>
#include <vector>

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

/// One entry of a mirrored folder, under the same name.
bool MirrorEntry(const std::string& source, const std::string& target) {
    const auto nothing = [](const std::string&) { return false; };
    if (FolderExists(source)) {
        const bool fits = FolderExists(target) && !IsLink(target);
        if (!fits) DeleteFile(target);
        return MirrorTree(source, target, nothing);
    }
    const auto wanted = ReadBytes(source);
    if (!wanted) return false;
    if (FolderExists(target) || IsLink(target)) RemoveEntry(target);
    return ReadView(target) == *wanted || WriteBytes(target, *wanted);
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

bool MirrorTree(const std::string& source, const std::string& target,
                const std::function<bool(const std::string& name)>& leaveOut) {
    const std::string from = TrueSpelling(source);
    const std::string to = TrueSpelling(target);
    if (!FolderExists(from) || LiesIn(to, from) || IsLink(to) || !MayBeRemoved(to)) return false;
    if (!FolderExists(to) && !MakeFolders(to)) return false;
    std::vector<std::string> wanted;
    for (const std::string& name : ListFolder(from)) {
        if (!leaveOut(name) && !IsLink(JoinPath(from, name))) wanted.push_back(name);
    }
    bool all = true;
    for (const std::string& name : ListFolder(to)) {
        const bool keep = std::binary_search(wanted.begin(), wanted.end(), name);
        if (!keep) all = RemoveEntry(JoinPath(to, name)) && all;
    }
    for (const std::string& name : wanted) {
        all = MirrorEntry(JoinPath(from, name), JoinPath(to, name)) && all;
    }
    return all;
}

}  // namespace verandis
