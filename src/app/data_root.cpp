#include "app/data_root.h"

#include <cstdlib>
#include <vector>

#include "app/session.h"
#include "app/settings.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "projects/project_list.h"
#include "text/characters.h"

namespace verandis {
namespace {

/// Catalogue texts of what can go wrong.
enum : int { kCannotMake = 449, kCannotWrite = 451, kNoDelivered = 452, kCannotCopy = 672 };

constexpr const char* kFolders[] = {"PROJECT", "CLIM", "MWTHARM", "WTHARM"};

/// Folders and files below a folder, as paths relative to it, each folder before what it holds.
struct Tree {
    std::vector<std::string> folders;
    std::vector<std::string> files;
};

void Collect(const std::string& root, const std::string& relative, Tree& tree) {
    for (const std::string& name : ListFolder(JoinPath(root, relative))) {
        const std::string entry = JoinPath(relative, name);
        const std::string path = JoinPath(root, entry);
        if (IsLink(path)) continue;
        if (!FolderExists(path)) {
            tree.files.push_back(entry);
            continue;
        }
        tree.folders.push_back(entry);
        Collect(root, entry, tree);
    }
}

std::optional<DataRootFault> CopyDelivered(const std::string& delivered, const std::string& folder,
                                           const CopyProgress& progress) {
    Tree tree;
    for (const char* each : kFolders) {
        tree.folders.emplace_back(each);
        Collect(delivered, each, tree);
    }
    for (const std::string& each : tree.folders) {
        const std::string target = JoinPath(folder, each);
        if (!MakeFolders(target))
            return DataRootFault{kCannotMake, "The folder cannot be made", target};
    }
    int done = 0;
    for (const std::string& each : tree.files) {
        const std::string target = JoinPath(folder, each);
        if (!CopyFile(JoinPath(delivered, each), target))
            return DataRootFault{kCannotCopy, "The data cannot be copied", target};
        if (progress) progress(++done, static_cast<int>(tree.files.size()));
    }
    return std::nullopt;
}

}  // namespace

std::string DeliveredFolder() {
    if (const char* named = std::getenv("VERANDIS_DELIVERED")) return named;
    const std::string program(FolderOf(ProgramPath()));
    for (const std::string& folder :
         {JoinPath(program, "delivered"), JoinPath(program, "../share/verandis/data")}) {
        if (FolderExists(JoinPath(folder, "PROJECT"))) return folder;
    }
    return "";
}

bool IsDataRoot(const std::string& folder) {
    return FileExists(JoinPath(JoinPath(folder, "PROJECT"), kProjectListName));
}

std::optional<DataRootFault> BuildDataRoot(const std::string& named, const CopyProgress& progress) {
    const std::string folder = named.empty() ? named : AbsolutePath(named);
    if (const int refusal = RefusalOfSystemPath(folder)) {
        return DataRootFault{refusal, SystemPathComplaint(folder), folder};
    }
    if (IsDataRoot(folder)) return DataRootFault{0, "The folder holds the data already", folder};
    const std::string delivered = DeliveredFolder();
    if (!FolderExists(JoinPath(delivered, "PROJECT")))
        return DataRootFault{kNoDelivered, "The delivered data are missing beside the program", ""};
    if (const auto fault = CopyDelivered(delivered, folder, progress)) return fault;
    const std::string projects = JoinPath(folder, "PROJECT");
    const std::string home = JoinPath(projects, kHomeProject);
    // Written last: a root that was made by half has no list and can be made again.
    if (!WriteLines(JoinPath(projects, kProjectListName),
                    {LowerCase(std::string(kHomeProject) + "\t" + home)})) {
        return DataRootFault{kCannotWrite, "The list of projects cannot be written", projects};
    }
    return std::nullopt;
}

std::string MakeDataRoot(const std::string& named) {
    const auto fault = BuildDataRoot(named);
    if (!fault) return "";
    return fault->path.empty() ? fault->english : fault->english + ": " + fault->path;
}

}  // namespace verandis
