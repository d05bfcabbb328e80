#include "dialogs/construction_groups.h"

#include <algorithm>

#include "app/program_text.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "libraries/simple_libraries.h"
#include "platform/files.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kNotInLibraryText = 849;
constexpr const char* kNothing = "\u2013";

/// A library's cell at a list position times a factor; empty when there is no such row.
std::string ShownCell(const TextTable& table, int row, int column, double factor) {
    if (row < 0 || row >= table.rows()) return "";
    return NumberOnScreen(ToNumber(table.Cell(row + 1, column)) * factor);
}

}  // namespace

std::span<const std::string_view> ElementGroup::Elements() const {
    const auto end = std::find(elements.begin(), elements.end(), std::string_view());
    return {elements.begin(), end};
}

const ElementGroup* FindGroup(std::span<const ElementGroup> groups, std::uint16_t code) {
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&](const ElementGroup& each) { return each.code == code; });
    return found == groups.end() ? nullptr : &*found;
}

std::string WholeId(std::string_view shortId) {
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        for (const Series series : {Series::Envelope, Series::Partition, Series::Glazing}) {
            for (const std::string_view id : ElementsOf(shape, series)) {
                if (id.substr(0, id.find('-')) == shortId) return std::string(id);
            }
        }
    }
    return std::string(shortId);
}

std::string ElementList(const ElementGroup& group) {
    std::string list;
    for (const std::string_view id : group.Elements()) {
        list += (list.empty() ? "" : ", ") + WholeId(id);
    }
    return list;
}

std::string QuietProperty(std::string_view section, std::string_view key) {
    if (!FileExists(PropertyFilePath())) return "";
    std::string value;
    GetCaseProperty(section, key, value);
    return value == kNotSet ? "" : value;
}

std::string PresentTypes(const ElementGroup& group, std::string_view key,
                         const std::vector<std::string>& library) {
    std::vector<std::string> names;
    for (const std::string_view id : group.Elements()) {
        const std::string value = QuietProperty(id, key);
        const std::string name = group.eitherKind ? SplitKind(value).name : value;
        if (name.empty() || std::find(names.begin(), names.end(), name) != names.end()) continue;
        names.push_back(name);
    }
    std::string line;
    for (const std::string& name : names) {
        line += (line.empty() ? "" : " / ") + name;
        const bool known = std::find(library.begin(), library.end(), name) != library.end();
        if (!known) line += " (" + Text(kNotInLibraryText) + ")";
    }
    return line.empty() ? kNothing : line;
}

int FirstRow(const std::vector<std::string>& list) {
    return list.empty() ? -1 : 0;
}

std::optional<std::string> TypeAt(const std::vector<std::string>& list, int row) {
    const auto at = static_cast<std::size_t>(row);
    if (row < 0 || at >= list.size()) return std::nullopt;
    return list[at];
}

std::string ShownWindowU(int row) {
    return ShownCell(simpleLibraries.WindowTable, row, kWindowU, 1);
}

std::string ShownWindowTransmittance(int row) {
    return ShownCell(simpleLibraries.WindowTable, row, kTransmittance, 100);
}

std::string ShownWallUValue(int row) {
    return ShownCell(simpleLibraries.WallTable, row, kWallU, 1);
}

bool StoreOrPass(const std::string& section, const std::string& key, const std::string& value) {
    return SetCaseProperty(section, key, value) || !FileExists(PropertyFilePath());
}

}  // namespace verandis
