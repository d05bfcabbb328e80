#include "results/case_inputs.h"

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "platform/files.h"
#include "platform/input_check.h"
#include "platform/paths.h"
#include "projects/saved_cases.h"
#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kGlazedSpace = 203;
constexpr int kBuilding = 201;
constexpr const char* kUnsetSign = "-";

/// A row that every shape has; `zone` is the text of the zone that the label ends with, 0 for none.
struct InputRow {
    const char* section;
    const char* key;
    int text;
    int zone;
    const char* suffix;
    const char* unit;
};

constexpr const char* kPlain = ": ";

constexpr InputRow kNote[] = {
    {"CASE", "NOTE", 50, 0, kPlain, ""},
};

constexpr InputRow kSite[] = {
    {"CLIMATE", "FILE", 242, 0, kPlain, ""},
    {"ROTATION", "ANGLE", 917, 0, "(\u00BA):", "\u00BA"},
};

constexpr InputRow kDimensions[] = {
    {"DIMENSION", "WIDTHB", 910, 0, " (m): ", "m"},
    {"DIMENSION", "DEPTHB", 911, 0, " (m): ", "m"},
    {"DIMENSION", "HIGTHB", 912, 0, " (m): ", "m"},
    {"DIMENSION", "WIDTHG", 913, 0, " (m): ", "m"},
    {"DIMENSION", "DEPTHG", 914, 0, " (m): ", "m"},
    {"DIMENSION", "OFFD", 915, 0, " (m): ", "m"},
    {"DIMENSION", "TILT", 916, 0, "(\u00BA): ", "\u00BA"},
};

constexpr InputRow kConditions[] = {
    {"HVACG", "HEATING", 918, kGlazedSpace, " (\u00BAC): ", "\u00BAC"},
    {"HVACG", "COOLING", 919, kGlazedSpace, " (\u00BAC): ", "\u00BAC"},
    {"HVACG", "INF", 324, kGlazedSpace, " (1/h): ", "1/h"},
    {"HVACG", "INTLOAD", 920, kGlazedSpace, " (W/m\u00B2): ", "W/m\u00B2"},
    {"HVACB", "HEATING", 918, kBuilding, " (\u00BAC): ", "\u00BAC"},
    {"HVACB", "COOLING", 919, kBuilding, " (\u00BAC): ", "\u00BAC"},
    {"HVACB", "INF", 324, kBuilding, " (1/h): ", "1/h"},
    {"HVACB", "INTLOAD", 920, kBuilding, " (W/m\u00B2): ", "W/m\u00B2"},
    {"HVAC", "FVI", 922, 0, kPlain, ""},
    {"HVAC", "FVV", 325, 0, " (l/s): ", "l/s"},
    {"AIRCHANGE", "ACHG", 924, kGlazedSpace, " (1/h): ", "1/h"},
    {"AIRCHANGE", "ACHB", 924, kBuilding, " (1/h): ", "1/h"},
    {"TDG", "TDGMIN", 925, 0, " (\u00BAC): ", "\u00BAC"},
    {"TDG", "TDGMEAN", 926, 0, " (\u00BAC): ", "\u00BAC"},
    {"TDG", "POWDEMHEAT", 927, 0, " (W): ", "W"},
    {"TDG", "ENERDEMHEAT", 928, 0, " (kWh): ", "kWh"},
    {"TDG", "ENERDEMCOOL", 929, 0, " (kWh): ", "kWh"},
    {"TB", "SETMINMAX", 930, 0, " (\u00BAC): ", "\u00BAC"},
};

constexpr InputRow kSurfaces[] = {
    {"ABSXS1", "ABSX1", 932, 0, " (%): ", "%"},
};

/// Rows of one element; which of them a series has is told by `series`.
struct ElementRow {
    const char* key;
    int text;
    const char* suffix;
    const char* unit;
    bool envelope, partition, floor, glazing;
};

constexpr ElementRow kElementRows[] = {
    {"WALLTYPE", 173, kPlain, "", true, true, true, false},
    {"PCNTW", 933, " (%):", "%", false, true, false, false},
    {"GLAZEDID", 160, kPlain, "", false, true, false, true},
    {"ABSX1", 934, " (%): ", "%", false, false, true, false},
    {"ORIENTATION", 931, "(\u00BA):", "\u00BA", true, true, false, true},
};

bool Has(const ElementRow& row, Series series, bool floor) {
    if (series == Series::Glazing) return row.glazing;
    if (series == Series::Envelope) return row.envelope;
    return floor ? row.floor : row.partition;
}

/// The label of one identifier stands in reports as it always has.
std::string ElementLabel(std::string_view id) {
    if (id == "XU102-E") return " X U102-E  -  ";
    return "  " + std::string(id) + "  -  ";
}

/// Which surface it is: "Glazing, south (XU201-S)".
std::string ElementWords(std::string_view id, Series series) {
    enum : int { OuterWall = 1001, Roof, Floor, InnerWall, SpaceFloor, Glazing, North, East };
    constexpr int kSouth = 1009;
    constexpr int kWest = 1010;
    const bool partition = series == Series::Partition;
    int kind = partition ? InnerWall : series == Series::Glazing ? Glazing : OuterWall;
    int facing = 0;
    switch (id.back()) {
        case 'F': kind = partition ? SpaceFloor : Floor; break;
        case 'R': kind = Roof; break;
        case 'N': facing = North; break;
        case 'E': facing = East; break;
        case 'S': facing = kSouth; break;
        case 'W': facing = kWest; break;
        default: break;
    }
    const std::string side = facing ? ", " + Text(facing) : "";
    return Text(kind) + side + " (" + std::string(id) + ")";
}

/// And another is looked up under a section that no file holds, so that it reads as not set.
std::string ReportSection(std::string_view id) {
    return id == "XO008-R" ? "XUO008-R" : "";
}

template <std::size_t count>
void Append(std::vector<CaseInput>& inputs, const InputRow (&rows)[count]) {
    for (const InputRow& row : rows) {
        std::string label = Text(row.text);
        if (row.zone) label += ", " + LowerCase(Text(row.zone));
        inputs.push_back({row.section, row.key, "", label, label, row.suffix, row.unit, false});
    }
}

void AppendDimensions(std::vector<CaseInput>& inputs, int shape) {
    std::vector<CaseInput> all;
    Append(all, kDimensions);
    for (const CaseInput& input : all) {
        for (const std::string_view key : DimensionKeysOf(shape)) {
            if (key == input.key) inputs.push_back(input);
        }
    }
}

void AppendElements(std::vector<CaseInput>& inputs, int shape, Series series) {
    for (const std::string_view id : ElementsOf(shape, series)) {
        for (const ElementRow& row : kElementRows) {
            if (!Has(row, series, id.ends_with('F'))) continue;
            inputs.push_back(
                {std::string(id), row.key, ReportSection(id), ElementLabel(id) + Text(row.text),
                 ElementWords(id, series) + ": " + Text(row.text), row.suffix, row.unit, true});
        }
    }
}

std::string ForcedVentilation(double mode) {
    constexpr int kNone = 363;
    constexpr int kFlowFrom = 114;
    constexpr int kMechanical = 7;
    constexpr int kSwedish = 1;
    const std::string glazed = Text(kGlazedSpace);
    const std::string building = Text(kBuilding);
    const std::string front = session.Language == kSwedish ? Left(Text(kMechanical), 3) : "";
    if (mode == 1) return front + Text(kFlowFrom) + glazed + " -> " + building;
    if (mode == 2) return front + Text(kFlowFrom) + building + " -> " + glazed;
    return Text(kNone);
}

}  // namespace

std::vector<CaseInput> InputsOf(int shape) {
    std::vector<CaseInput> inputs;
    Append(inputs, kNote);
    AppendDimensions(inputs, shape);
    Append(inputs, kSite);
    Append(inputs, kConditions);
    for (const Series series : {Series::Envelope, Series::Partition, Series::Glazing}) {
        AppendElements(inputs, shape, series);
    }
    Append(inputs, kSurfaces);
    return inputs;
}

ReportCase WorkingCase(const Slot& slot) {
    const std::string folder = JoinPath(session.ProjectFolder, SlotFolderName(slot));
    const auto lines = ReadLines(JoinPath(folder, kPropertyFileName));
    return {SlotLabel(slot), slot, lines.value_or(std::vector<std::string>())};
}

std::optional<ReportCase> SavedReportCase(const std::string& file) {
    const SavedCase saved = SavedCaseOf(file);
    auto lines = SavedProperties(file);
    if (!lines || !IsShape(saved.slot.shape)) return std::nullopt;
    return ReportCase{file, saved.slot, std::move(*lines)};
}

std::string ShownValue(const ReportCase& each, const CaseInput& input) {
    const std::string value(TrimBlanks(PropertyIn(each.lines, input.section, input.key)));
    if (value == kNotSet || value.empty()) return kUnsetSign;
    if (input.key == "FVI") return ForcedVentilation(ToNumber(value));
    if (input.key == "WALLTYPE" || input.key == "GLAZEDID") return SplitKind(value).name;
    // What is no number is told as it stands, not as the 0 that it reads as.
    const bool number = NumericReplyComplaint(value, 0, 0).empty();
    return number && !input.unit.empty() ? NumberOnScreen(ToNumber(value)) : value;
}

}  // namespace verandis
