#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/construction_groups.h"

// What the four dialogs of opaque constructions decide: the wall type of each group of elements,
// the windows in the walls towards the glazed space, the absorptances inside it. Choices are staged
// when they are applied or their group is left, and stored when the dialog is closed. The chosen
// group is `session.GlazingGroup`.

namespace verandis {

/// Whom a group's construction is copied to.
struct CopyTargets {
    std::uint16_t code;
    std::array<std::string_view, 3> elements;  // short identifiers; unused places are empty
};

/// One of the four dialogs.
struct ConstructionDialog {
    int shape;
    int helpTopic;
    const char* share;  // control of the window share
    std::span<const ElementGroup> groups;
    std::span<const CopyTargets> copies;
    const char* floorAtLoad;  // floor whose absorptance is shown at once; empty: none
};

/// The dialog of shape 1 to 4; another number is a fault of the caller.
const ConstructionDialog& ConstructionDialogOf(int shape);

/// The fields that are typed.
enum class ConstructionField { None, InnerAbsorptance, Share, FloorAbsorptance };

/// An open dialog: its lists and where they stand, its fields as they are typed.
struct ConstructionChoice {
    const ConstructionDialog* dialog = nullptr;
    std::vector<std::string> walls;     // names in the list Walls
    std::vector<std::string> glazings;  // names in the list Glazes
    int wallRow = -1;                   // from 0; -1: none
    int glazingRow = -1;
    std::string share;  // window in the wall, percent
    std::string MTB1;   // absorptance of all inner walls, percent
    std::string MTB2;   // absorptance of the floor, percent

    /// The chosen group, null when there is none.
    const ElementGroup* Group() const;

    /// What is shown beside the walls: that of the chosen group, else nothing.
    GroupMode Mode() const;

    /// False when the typed share is exactly 0, so that no window is to be chosen.
    bool HasWindow() const;
};

/// What a check found, already shown to the user.
struct ConstructionComplaint {
    std::string text;  // lines ended by CR; empty when all is well
    std::vector<ConstructionField> selected;
    ConstructionField focus = ConstructionField::None;

    bool empty() const { return text.empty(); }
};

/// Opens a dialog: no group, no staged rows, the libraries read anew, the absorptances of the case.
/// A missing library or file shows its message.
ConstructionChoice LoadConstructions(int shape);

/// Checks that the fields are numbers and shows what is not. There is no bound on them, and the
/// share is checked in every mode, though only one mode shows it.
ConstructionComplaint ValidateConstruction(const ConstructionChoice& choice, GroupMode mode);

/// Stages the group left behind, then chooses the one with this code, whatever the check said, and
/// shows what the case holds for it. A wall or window that is not set leaves its list as it stands;
/// a name that the library does not hold takes the first row.
ConstructionComplaint ChooseConstructionGroup(ConstructionChoice& choice, std::uint16_t code);

/// Stages the chosen group's rows; a list without a row stages none. After a complaint nothing is
/// staged.
ConstructionComplaint ApplyConstruction(const ConstructionChoice& choice);

/// Elements that the chosen group can be copied to; empty when it is none that can.
std::vector<std::string> CopyTargetsOf(const ConstructionChoice& choice);

/// Stages the fields as they stand for the other walls with windows, not for the group's own.
ConstructionComplaint CopyToOtherWalls(const ConstructionChoice& choice);

/// Applies, stores the staged rows and leaves the dialog. A group that fails its check is lost and
/// the rest is stored all the same. False when the file cannot be written: then the dialog is to
/// stay.
bool CloseConstructions(const ConstructionChoice& choice);

/// What every way out of a dialog does: no staged rows.
void LeaveConstructions();

/// The present construction of a group, for the eye: wall, then share and type of its window.
std::string PresentConstruction(const ConstructionChoice& choice, const ElementGroup& group);

}  // namespace verandis
