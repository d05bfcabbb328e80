#include "case/site_file.h"

#include "app/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr std::size_t kClimateLine = 4;  // the fifth

std::string SitePath(const std::string& caseFolder) {
    return JoinPath(caseFolder, "SITE.inp");
}

/// A path from the root whose folder is there: what is relative would follow the current folder.
bool NamesFolder(const std::string& path) {
    const bool absolute = WithMachineSeparators(WithoutDrive(path)).starts_with('/');
    return absolute && !FolderOf(path).empty() && FolderExists(std::string(FolderOf(path)));
}

}  // namespace

std::optional<std::string> ClimateFolder() {
    constexpr std::string_view kWord = "project";
    const std::string path = LowerCase(WithMachineSeparators(session.ProjectFolder)) + "/";
    std::size_t at = path.rfind("/" + std::string(kWord) + "/");
    at = at == std::string::npos ? path.rfind(kWord) : at + 1;
    if (at == std::string::npos) return std::nullopt;
    return TrueSpelling(session.ProjectFolder.substr(0, at) + "CLIM");
}

std::optional<std::string> SiteClimate(const std::string& caseFolder) {
    const auto lines = ReadLines(SitePath(caseFolder));
    if (!lines || lines->size() <= kClimateLine) return std::nullopt;
    return std::string(TrimBlanks((*lines)[kClimateLine]));
}

std::optional<std::string> ClimateFolderOfCase(const std::string& caseFolder) {
    const auto entry = SiteClimate(caseFolder);
    if (entry && NamesFolder(*entry)) return std::string(FolderOf(*entry));
    return ClimateFolder();
}

bool SiteClimateAllowed(const std::string& path) {
    return Length(path) <= kLongestClimatePath && path.find(' ') == std::string::npos &&
           FileExists(path);
}

bool SetSiteClimate(const std::string& caseFolder, const std::string& path) {
    if (!SiteClimateAllowed(path)) return false;
    auto lines = ReadLines(SitePath(caseFolder));
    if (!lines || lines->size() <= kClimateLine) return false;
    (*lines)[kClimateLine] = path;
    return WriteLines(SitePath(caseFolder), *lines);
}

}  // namespace verandis
