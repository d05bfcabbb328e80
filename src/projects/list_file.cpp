#include "projects/list_file.h"

#include <algorithm>
#include <vector>

#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {

bool ReplaceList(const std::string& folder, const std::string& listName, const LineChange& change,
                 std::size_t* linesLeft) {
    const std::string list = JoinPath(folder, listName);
    const std::string temporary =
        JoinPath(folder, std::string(LeftOfSeparator(listName, ".")) + ".XXX");
    const auto lines = ReadLines(list);
    if (!lines) return true;
    std::vector<std::string> kept;
    for (const std::string& line : *lines) {
        if (auto changed = change(std::string(TrimBlanks(line)))) kept.push_back(*changed);
    }
    if (linesLeft) {
        *linesLeft = static_cast<std::size_t>(std::count_if(
            kept.begin(), kept.end(), [](const std::string& line) { return !line.empty(); }));
    }
    return WriteLines(temporary, kept) && DeleteFile(list) && Rename(temporary, listName);
}

}  // namespace verandis
