#include "platform/spelling.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <system_error>
#include <unordered_map>
#include <vector>

#include "platform/paths.h"
#include "text/characters.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>()(text);
    }
};
using SpellingMap = std::unordered_map<std::string, std::string, TextHash, std::equal_to<>>;

struct Spellings {
    std::string root;
    SpellingMap folders;  // real folder by the folder as asked for
    SpellingMap files;    // real path of those files alone whose name has another spelling
    SpellingMap parts;    // real path of a part of the way, by its real folder and the asked name
};

Spellings& State() {
    static Spellings state;
    return state;
}

/// More paths than one run touches; reaching it only costs a new search.
constexpr std::size_t kMostRemembered = 512;

void Remember(SpellingMap& map, std::string_view asked, const std::string& found) {
    if (map.size() >= kMostRemembered) map.clear();
    map.insert_or_assign(std::string(asked), found);
}

bool Exists(const std::string& path) {
    return ::access(path.c_str(), F_OK) == 0;
}

/// The name in `folder` that equals `name` without regard to letter case, `name` when none does.
std::string NameInFolder(const std::string& folder, const std::string& name) {
    const std::string wanted = LowerCase(name);
    std::string best;
    std::error_code error;
    fs::directory_iterator entries(folder.empty() ? "." : folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::string found = entries->path().filename().string();
        if (LowerCase(found) == wanted && (best.empty() || found < best)) best = found;
    }
    return best.empty() ? name : best;
}

/// Path of the entry of a real folder that a name means. An exact name counts before what is
/// remembered, so that it is seen when another program makes it.
std::string PathInFolder(const std::string& folder, const std::string& name) {
    const std::string exact =
        folder.empty() || folder.ends_with('/') ? folder + name : folder + "/" + name;
    if (Exists(exact)) return exact;
    auto& parts = State().parts;
    const auto known = parts.find(exact);
    if (known != parts.end() && Exists(known->second)) return known->second;
    const std::string found =
        exact.substr(0, exact.size() - name.size()) + NameInFolder(folder, name);
    if (found != exact) Remember(parts, exact, found);
    return found;
}

std::string WithRootSpelling(std::string path) {
    const std::string& root = State().root;
    const bool below = !root.empty() && path.size() >= root.size() &&
                       (path.size() == root.size() || path[root.size()] == '/') &&
                       EqualNoCase(std::string_view(path).substr(0, root.size()), root);
    return below ? root + path.substr(root.size()) : path;
}

}  // namespace

void SetRootSpelling(std::string_view root) {
    std::string text = WithMachineSeparators(WithoutDrive(root));
    while (text.size() > 1 && text.ends_with('/')) text.pop_back();
    State().root = std::move(text);
    ForgetSpellings();
}

std::string FindSpelling(std::string_view path) {
    const std::string wanted = WithRootSpelling(WithMachineSeparators(WithoutDrive(path)));
    if (Exists(wanted)) return wanted;
    const std::string& root = State().root;
    const bool below = !root.empty() && wanted.starts_with(root + "/") && Exists(root);
    std::string found = below ? root : wanted.starts_with('/') ? "/" : "";
    std::size_t at = below ? root.size() + 1 : 0;
    while (at < wanted.size()) {
        const std::size_t end = std::min(wanted.find('/', at), wanted.size());
        if (end > at) found = PathInFolder(found, wanted.substr(at, end - at));
        at = end + 1;
    }
    return found;
}

std::string RememberedSpelling(std::string_view path) {
    const std::string_view folder = FolderOf(path);
    if (folder.empty()) return FindSpelling(path);
    auto& folders = State().folders;
    auto place = folders.find(folder);
    if (place == folders.end()) {
        Remember(folders, folder, FindSpelling(folder));
        place = folders.find(folder);
    }
    return JoinPath(place->second, NameOf(path));
}

std::string FindSpellingAnew(const std::string& path) {
    auto& files = State().files;
    const auto known = files.find(path);
    if (known != files.end() && Exists(known->second)) return known->second;
    State().folders.erase(std::string(FolderOf(path)));
    const std::string found = FindSpelling(path);
    Remember(files, path, found);
    return found;
}

std::string SpellingToWrite(std::string_view path) {
    const std::string remembered = RememberedSpelling(path);
    if (Exists(remembered)) return remembered;
    const std::string folder(FolderOf(remembered));
    if (folder.empty() || !Exists(folder)) return FindSpelling(path);
    return JoinPath(folder, NameInFolder(folder, std::string(NameOf(path))));
}

void RecheckSpelling(const std::string& folder) {
    auto& folders = State().folders;
    const auto place = folders.find(folder);
    if (place == folders.end()) return;
    const std::string asked = WithRootSpelling(WithMachineSeparators(WithoutDrive(folder)));
    if (asked != place->second && Exists(asked)) ForgetSpellings();
}

void ForgetSpellings() {
    State().folders.clear();
    State().files.clear();
    State().parts.clear();
}

}  // namespace verandis
