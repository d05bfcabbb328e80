#include "dialogs/glazing.h"

#include <algorithm>

#include "app/case_changes.h"
#include "app/run_stop.h"
#include "app/session.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "libraries/simple_libraries.h"

namespace verandis {
namespace {

using enum GroupMode;

constexpr const char* kKey = "GLAZEDID";

/// Captions of the groups, by catalogue number.
enum : int {
    kRoof = 830,
    kSouthFront = 831,
    kSouthAndNorthFront = 832,
    kGablesSouthNorth = 833,
    kWestAndEastEnd = 834,
    kGablesWestEast = 835
};

// The last figure of a row is the place of the element that is read.
constexpr ElementGroup kGroupsU[] = {
    {"Option1", 10, Plain, kRoof, {"XU204", "XU205"}, 0},
    {"Option2", 20, Plain, kSouthFront, {"XU201"}, 0},
    {"Option3", 30, Plain, kGablesSouthNorth, {"XU202", "XU203"}, 0},
};
// The first group of the O shape reads its second element.
constexpr ElementGroup kGroupsO[] = {
    {"Option1", 10, Plain, kRoof, {"XO203", "XO204"}, 1},
    {"Option2", 20, Plain, kGablesSouthNorth, {"XO201", "XO202"}, 0},
};
constexpr ElementGroup kGroupsV[] = {
    {"Option1", 10, Plain, kRoof, {"XV206"}, 0, true},
    {"Option2", 20, Plain, kWestAndEastEnd, {"XV201", "XV202"}, 0},
    {"Option3", 30, Plain, kSouthFront, {"XV203"}, 0},
    {"Option4", 40, Plain, kGablesWestEast, {"XV204", "XV205"}, 0},
};
constexpr ElementGroup kGroupsI[] = {
    {"Option1", 10, Plain, kRoof, {"XI205", "XI206"}, 0},
    {"Option2", 20, Plain, kSouthAndNorthFront, {"XI201", "XI202"}, 0},
    {"Option3", 30, Plain, kGablesSouthNorth, {"XI203", "XI204"}, 0},
};

constexpr GlazingDialog kDialogs[] = {
    {kShapeU, 12164, kGroupsU},
    {kShapeO, 12165, kGroupsO},
    {kShapeV, 12166, kGroupsV},
    {kShapeI, 12167, kGroupsI},
};

/// Any kind but 1 is a wall, as the calculation reads it; a value without a kind is a window.
std::int16_t KindOf(const NameAndKind& value) {
    return !value.hasKind || value.kind == kGlazedKind ? kGlazedKind : kOpaqueKind;
}

void ShowEitherKind(GlazingChoice& choice, const std::string& value) {
    session.ElementKindMark = kGlazedKind;
    if (value == kNotSet) return;
    const NameAndKind parts = SplitKind(value);
    session.ElementKindMark = KindOf(parts);
    if (session.ElementKindMark == kGlazedKind) {
        choice.glazingRow = choice.glazings.empty() ? -1 : FindWindowRow(parts.name);
    } else {
        choice.wallRow = choice.walls.empty() ? -1 : FindWallRow(parts.name);
    }
}

/// The type that an Apply stores for the chosen group.
std::optional<std::string> ChosenType(const GlazingChoice& choice) {
    return choice.Mode() == kOpaqueKind ? TypeAt(choice.walls, choice.wallRow)
                                        : TypeAt(choice.glazings, choice.glazingRow);
}

bool StoreForGroup(const ElementGroup& group, const std::string& type) {
    const auto elements = group.Elements();
    return std::all_of(elements.begin(), elements.end(), [&](std::string_view id) {
        return StoreOrPass(std::string(id), kKey, type);
    });
}

}  // namespace

bool GlazingDialog::HasWalls() const {
    return std::any_of(groups.begin(), groups.end(),
                       [](const ElementGroup& each) { return each.eitherKind; });
}

const GlazingDialog& GlazingDialogOf(int shape) {
    if (!IsShape(shape)) StopRun("there is no shape number " + std::to_string(shape));
    return kDialogs[shape - 1];
}

const ElementGroup* GlazingChoice::Group() const {
    return FindGroup(dialog->groups, session.GlazingGroup);
}

bool GlazingChoice::KindShown() const {
    const ElementGroup* group = Group();
    return group && group->eitherKind;
}

int GlazingChoice::Mode() const {
    return KindShown() && session.ElementKindMark != kGlazedKind ? kOpaqueKind : kGlazedKind;
}

GlazingChoice LoadGlazing(int shape) {
    GlazingChoice choice;
    choice.dialog = &GlazingDialogOf(shape);
    session.GlazingGroup = kNoGroup;
    LeaveGlazing();
    if (ReadWindows()) choice.glazings = simpleLibraries.WindowTable.Column(kWindowName);
    if (choice.dialog->HasWalls() && ReadWalls()) {
        choice.walls = simpleLibraries.WallTable.Column(kWallName);
    }
    choice.glazingRow = FirstRow(choice.glazings);
    choice.wallRow = FirstRow(choice.walls);
    return choice;
}

void ChooseGlazingGroup(GlazingChoice& choice, std::uint16_t code) {
    const ElementGroup* group = FindGroup(choice.dialog->groups, code);
    if (!group) return;
    if (session.GlazingGroup != kNoGroup) ApplyGlazing(choice);
    session.GlazingGroup = code;
    std::string value(kNotSet);  // stays when the case has no file
    GetCaseProperty(group->ReadElement(), kKey, value);
    if (group->eitherKind) return ShowEitherKind(choice, value);
    if (value != kNotSet && !choice.glazings.empty()) choice.glazingRow = FindWindowRow(value);
}

void ChooseKind(GlazingChoice& choice, std::int16_t kind) {
    if (choice.KindShown()) session.ElementKindMark = kind;
}

bool ApplyGlazing(GlazingChoice& choice) {
    const ElementGroup* group = choice.Group();
    if (!group) return true;
    const auto type = ChosenType(choice);
    const bool stored = !type || StoreForGroup(*group, *type);
    if (stored && type) TellCaseChanged(false);
    if (group->eitherKind && stored) {
        // The kind is told no longer, so a further Apply would store the wall's name without it.
        session.ElementKindMark = kNoKind;
        session.GlazingGroup = kNoGroup;
    }
    return stored;
}

bool CloseGlazing(GlazingChoice& choice) {
    if (!ApplyGlazing(choice) || !FlushStagedProperties()) return false;
    LeaveGlazing();
    return true;
}

void LeaveGlazing() {
    DiscardStagedProperties();
    session.ElementKindMark = kNoKind;
}

std::string PresentGlazing(const GlazingChoice& choice, const ElementGroup& group) {
    std::vector<std::string> library = choice.glazings;
    if (group.eitherKind) library.insert(library.end(), choice.walls.begin(), choice.walls.end());
    return PresentTypes(group, kKey, library);
}

}  // namespace verandis
