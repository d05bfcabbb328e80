#include "app/data_root.h"

#include <cstdlib>

#include "app/session.h"
#include "app/settings.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "projects/folder_tree.h"
#include "projects/project_list.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr const char* kFolders[] = {"PROJECT", "CLIM", "MWTHARM", "WTHARM"};

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

std::string MakeDataRoot(const std::string& named) {
    const std::string folder = named.empty() ? named : AbsolutePath(named);
    const std::string complaint = SystemPathComplaint(folder);
    if (!complaint.empty()) return complaint + ": " + folder;
    if (IsDataRoot(folder)) return "The folder holds the data already: " + folder;
    const std::string delivered = DeliveredFolder();
    if (!FolderExists(JoinPath(delivered, "PROJECT")))
        return "The delivered data are missing beside the program";
    for (const char* each : kFolders) {
        const std::string target = JoinPath(folder, each);
        if (!MakeFolders(target)) return "The folder cannot be made: " + target;
        const std::string source = JoinPath(delivered, each);
        if (FolderExists(source) && !CopyTree(source, target)) {
            return "The data cannot be copied to " + target;
        }
    }
    const std::string projects = JoinPath(folder, "PROJECT");
    const std::string home = JoinPath(projects, kHomeProject);
    if (!WriteLines(JoinPath(projects, kProjectListName),
                    {LowerCase(std::string(kHomeProject) + "\t" + home)})) {
        return "The list of projects cannot be written in " + projects;
    }
    return "";
}

}  // namespace verandis
