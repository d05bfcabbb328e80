#include "platform/spelling.h"

#include <unistd.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <unordered_map>
#include <vector>

#include "platform/paths.h"
#include "text/characters.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;

struct Spellings {
    std::string root;
    std::unordered_map<std::string, std::string> known;
};

Spellings& State() {
    static Spellings state;
    return state;
}

/// More paths than one run touches; reaching it only costs a new search.
constexpr std::size_t kMostRemembered = 512;

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
    std::string found = wanted.starts_with('/') ? "/" : "";
    std::size_t at = 0;
    while (at < wanted.size()) {
        std::size_t end = wanted.find('/', at);
        if (end == std::string::npos) end = wanted.size();
        const std::string name = wanted.substr(at, end - at);
        at = end + 1;
        if (name.empty()) continue;
        const std::string folder = found;
        if (!found.empty() && !found.ends_with('/')) found += '/';
        found += Exists(found + name) ? name : NameInFolder(folder, name);
    }
    return found;
}

const std::string& RememberedSpelling(const std::string& path) {
    auto& known = State().known;
    const auto place = known.find(path);
    if (place != known.end()) return place->second;
    if (known.size() >= kMostRemembered) known.clear();
    return known.emplace(path, FindSpelling(path)).first->second;
}

void ForgetSpelling(const std::string& path) {
    State().known.erase(path);
}

void ForgetSpellings() {
    State().known.clear();
}

}  // namespace verandis
