#include "platform/paths.h"

#include <algorithm>
#include <cctype>

#include "text/characters.h"

namespace verandis {
namespace {

/// Place behind the last separator of either sign, 0 when there is none.
std::size_t NamePlace(std::string_view path) {
    std::size_t at = path.size();
    while (at > 0 && path[at - 1] != '/' && path[at - 1] != '\\') --at;
    return at;
}

std::string Comparable(std::string_view path) {
    std::string text = LowerCase(WithMachineSeparators(WithoutDrive(path)));
    const auto repeated =
        std::unique(text.begin(), text.end(), [](char a, char b) { return a == '/' && b == '/'; });
    text.erase(repeated, text.end());
    if (text.size() > 1 && text.ends_with('/')) text.pop_back();
    return text;
}

}  // namespace

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    path.append(folder).append("/").append(name);
    return path;
}

std::string WithMachineSeparators(std::string_view path) {
    std::string text(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

std::string_view WithoutDrive(std::string_view path) {
    const bool drive = path.size() >= 2 && path[1] == ':' &&
                       std::isalpha(static_cast<unsigned char>(path[0])) != 0;
    return drive ? path.substr(2) : path;
}

std::string_view FolderOf(std::string_view path) {
    const std::size_t name = NamePlace(path);
    return name == 0 ? std::string_view{} : path.substr(0, name - 1);
}

std::string_view NameOf(std::string_view path) {
    return path.substr(NamePlace(path));
}

bool LiesIn(std::string_view path, std::string_view folder) {
    const std::string inner = Comparable(path);
    const std::string outer = Comparable(folder);
    if (!inner.starts_with(outer)) return false;
    return inner.size() == outer.size() || outer == "/" || inner[outer.size()] == '/';
}

}  // namespace verandis
