#include "dialogs/opaque.h"

#include <algorithm>
#include <array>

#include "app/case_changes.h"
#include "app/program_text.h"
#include "app/run_stop.h"
#include "app/session.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "libraries/simple_libraries.h"
#include "platform/prompts.h"
#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

using enum GroupMode;

constexpr const char* kWallKey = "WALLTYPE";
constexpr const char* kShareKey = "PCNTW";
constexpr const char* kWindowKey = "GLAZEDID";
constexpr const char* kInnerSection = "ABSXS1";
constexpr const char* kAbsorptanceKey = "ABSX1";

/// Captions of the groups, by catalogue number.
enum : int {
    kOuterWalls = 840,
    kRoofs = 841,
    kFloors = 842,
    kNorthWall = 843,
    kWestWall = 844,
    kSouthWall = 845,
    kEastWall = 846,
    kWallToSpace = 847,
    kFloorOfSpace = 848
};

constexpr ElementGroup kGroupsU[] = {
    {"Option1_0", 10, Plain, kOuterWalls, {"XU001", "XU002", "XU003", "XU004", "XU005"}},
    {"Option1_1", 11, Window, kNorthWall, {"XU103"}},
    {"Option1_2", 12, Window, kWestWall, {"XU101"}},
    {"Option1_3", 13, Window, kEastWall, {"XU102"}},
    {"Option1_5", 15, Plain, kRoofs, {"XU009", "XU010", "XU011"}},
    {"Option2", 20, Plain, kFloors, {"XU006", "XU007", "XU008"}},
    {"Option3", 30, Floor, kFloorOfSpace, {"XU104"}},
};
constexpr ElementGroup kGroupsO[] = {
    {"Option1", 10, Plain, kOuterWalls, {"XO001", "XO002", "XO003", "XO004"}},
    {"Option2", 20, Window, kNorthWall, {"XO103"}},
    {"Option3", 30, Plain, kRoofs, {"XO006", "XO008", "XO010", "XO012"}},
    {"Option4", 40, Window, kWestWall, {"XO102"}},
    {"Option5", 50, Window, kSouthWall, {"XO101"}},
    {"Option6", 60, Window, kEastWall, {"XO104"}},
    {"Option7", 70, Plain, kFloors, {"XO005", "XO007", "XO009", "XO011"}},
    {"Option8", 80, Floor, kFloorOfSpace, {"XO105"}},
};
constexpr ElementGroup kGroupsV[] = {
    {"Option1", 10, Plain, kRoofs, {"XV004"}},
    {"Option2", 20, Plain, kOuterWalls, {"XV001", "XV002", "XV003"}},
    {"Option3", 30, Window, kWallToSpace, {"XV101"}},
    {"Option4", 40, Plain, kFloors, {"XV005"}},
    {"Option5", 50, Floor, kFloorOfSpace, {"XV102"}},
};
constexpr ElementGroup kGroupsI[] = {
    {"Option1", 10, Plain, kOuterWalls, {"XI001", "XI002", "XI003", "XI006", "XI007", "XI008"}},
    {"Option2_0", 20, Window, kWestWall, {"XI101"}},
    {"Option2_1", 21, Window, kEastWall, {"XI102"}},
    {"Option3", 30, Plain, kRoofs, {"XI005", "XI010"}},
    {"Option4", 40, Plain, kFloors, {"XI004", "XI009"}},
    {"Option5", 50, Floor, kFloorOfSpace, {"XI103"}},
};

constexpr CopyTargets kCopiesU[] = {
    {11, {"XU101", "XU102"}}, {12, {"XU102", "XU103"}}, {13, {"XU101", "XU103"}}};
constexpr CopyTargets kCopiesO[] = {{20, {"XO102", "XO101", "XO104"}},
                                    {40, {"XO103", "XO101", "XO104"}},
                                    {50, {"XO103", "XO102", "XO104"}},
                                    {60, {"XO103", "XO102", "XO101"}}};
constexpr CopyTargets kCopiesI[] = {{20, {"XI102"}}, {21, {"XI101"}}};

constexpr ConstructionDialog kDialogs[] = {
    {kShapeU, 12169, "Text3", kGroupsU, kCopiesU, "XU104-F"},
    {kShapeO, 12170, "Text4", kGroupsO, kCopiesO, ""},
    {kShapeV, 12171, "Text4", kGroupsV, {}, ""},
    {kShapeI, 12172, "Text3", kGroupsI, kCopiesI, ""},
};

/// The stored number of a row as its field shows it; "0" when it is not set.
std::string FieldText(const std::string& section, const char* key) {
    std::string value(kNotSet);  // stays when the case has no file
    GetCaseProperty(section, key, value);
    return value == kNotSet ? "0" : NumberOnScreen(ToNumber(value));
}

/// Moves a list to the type that a row holds, if it holds one.
void ShowType(const std::string& section, const char* key, int (*find)(std::string_view),
              int& row) {
    std::string value(kNotSet);
    GetCaseProperty(section, key, value);
    if (value != kNotSet && row >= 0) row = find(value);
}

void StageType(const std::string& element, const char* key,
               const std::optional<std::string>& type) {
    if (type) StageCaseProperty(element, key, *type);
}

void StageNumber(const std::string& section, const char* key, const std::string& typed) {
    StageCaseProperty(section, key, NumberText(ToNumber(typed)));
}

void StageWall(const ConstructionChoice& choice, const std::string& element) {
    StageType(element, kWallKey, TypeAt(choice.walls, choice.wallRow));
}

void StageWindow(const ConstructionChoice& choice, const std::string& element) {
    StageNumber(element, kShareKey, choice.share);
    StageType(element, kWindowKey, TypeAt(choice.glazings, choice.glazingRow));
    StageNumber(kInnerSection, kAbsorptanceKey, choice.MTB1);
}

/// A field of the check in its order, with the words in front of the complaint.
struct CheckedField {
    ConstructionField field;
    const std::string& typed;
    bool checked;
    std::string words;
};

}  // namespace

const ConstructionDialog& ConstructionDialogOf(int shape) {
    if (!IsShape(shape)) StopRun("there is no shape number " + std::to_string(shape));
    return kDialogs[shape - 1];
}

const ElementGroup* ConstructionChoice::Group() const {
    return FindGroup(dialog->groups, session.GlazingGroup);
}

GroupMode ConstructionChoice::Mode() const {
    const ElementGroup* group = Group();
    return group ? group->mode : Plain;
}

bool ConstructionChoice::HasWindow() const {
    return ToNumber(TrimBlanks(share)) != 0;
}

ConstructionChoice LoadConstructions(int shape) {
    ConstructionChoice choice;
    choice.dialog = &ConstructionDialogOf(shape);
    session.GlazingGroup = kNoGroup;
    session.ElementKindMark = 0;  // names are stored plain here
    DiscardStagedProperties();
    if (ReadWalls()) choice.walls = simpleLibraries.WallTable.Column(kWallName);
    if (ReadWindows()) choice.glazings = simpleLibraries.WindowTable.Column(kWindowName);
    choice.wallRow = FirstRow(choice.walls);
    choice.glazingRow = FirstRow(choice.glazings);
    choice.MTB1 = FieldText(kInnerSection, kAbsorptanceKey);
    const std::string floor = choice.dialog->floorAtLoad;
    if (!floor.empty()) choice.MTB2 = FieldText(floor, kAbsorptanceKey);
    return choice;
}

ConstructionComplaint ValidateConstruction(const ConstructionChoice& choice, GroupMode mode) {
    const std::string refused = Text(335).substr(std::min(Text(335).find('-'), Text(335).size()));
    const CheckedField fields[] = {
        {ConstructionField::InnerAbsorptance, choice.MTB1, mode == Window,
         Text(157) + " " + LowerCase(Text(229))},
        {ConstructionField::Share, choice.share, true, Text(291)},
        {ConstructionField::FloorAbsorptance, choice.MTB2, mode == Floor,
         Text(157) + " " + TextFor(256, 2)},
    };
    ConstructionComplaint complaint;
    for (const CheckedField& each : fields) {
        if (!each.checked || IsNumberText(each.typed, session.Decimals)) continue;
        complaint.text += each.words + refused + "\r";
        complaint.selected.push_back(each.field);
        complaint.focus = each.field;  // the last one gets it
    }
    if (complaint.empty()) return complaint;
    session.Reply = "InputError";
    ShowMessage(complaint.text, Text(111), Icon::Exclamation);
    return complaint;
}

ConstructionComplaint ChooseConstructionGroup(ConstructionChoice& choice, std::uint16_t code) {
    const ElementGroup* group = FindGroup(choice.dialog->groups, code);
    if (!group) return {};
    const ConstructionComplaint complaint = ApplyConstruction(choice);
    session.GlazingGroup = code;
    const std::string element = group->ReadElement();
    ShowType(element, kWallKey, FindWallRow, choice.wallRow);
    if (group->mode == Window) {
        choice.share = FieldText(element, kShareKey);
        ShowType(element, kWindowKey, FindWindowRow, choice.glazingRow);
    }
    if (group->mode == Floor) choice.MTB2 = FieldText(element, kAbsorptanceKey);
    return complaint;
}

ConstructionComplaint ApplyConstruction(const ConstructionChoice& choice) {
    const ElementGroup* group = choice.Group();
    if (!group) return {};
    if (group->mode != Plain) {
        ConstructionComplaint complaint = ValidateConstruction(choice, group->mode);
        if (!complaint.empty()) return complaint;
    }
    for (const std::string_view id : group->Elements()) StageWall(choice, std::string(id));
    const std::string element = group->ReadElement();
    if (group->mode == Window) StageWindow(choice, element);
    if (group->mode == Floor) StageNumber(element, kAbsorptanceKey, choice.MTB2);
    return {};
}

std::vector<std::string> CopyTargetsOf(const ConstructionChoice& choice) {
    std::vector<std::string> targets;
    for (const CopyTargets& row : choice.dialog->copies) {
        if (row.code != session.GlazingGroup) continue;
        for (const std::string_view id : row.elements) {
            if (!id.empty()) targets.emplace_back(id);
        }
    }
    return targets;
}

ConstructionComplaint CopyToOtherWalls(const ConstructionChoice& choice) {
    const std::vector<std::string> targets = CopyTargetsOf(choice);
    if (targets.empty()) return {};
    ConstructionComplaint complaint = ValidateConstruction(choice, Window);
    if (!complaint.empty()) return complaint;
    for (const std::string& element : targets) {
        StageWall(choice, element);
        StageWindow(choice, element);
    }
    return {};
}

bool CloseConstructions(const ConstructionChoice& choice) {
    ApplyConstruction(choice);
    const bool changed = !session.CasePropertyTable.empty();
    if (!FlushStagedProperties()) return false;
    if (changed) TellCaseChanged(false);
    return true;
}

void LeaveConstructions() {
    DiscardStagedProperties();
}

std::string PresentConstruction(const ConstructionChoice& choice, const ElementGroup& group) {
    std::string line = PresentTypes(group, kWallKey, choice.walls);
    if (group.mode != Window) return line;
    const double share = ToNumber(QuietProperty(group.ReadElement(), kShareKey));
    if (share == 0) return line;
    return line + ", " + NumberOnScreen(share) + " % " +
           PresentTypes(group, kWindowKey, choice.glazings);
}

}  // namespace verandis
