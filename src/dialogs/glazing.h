#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "dialogs/construction_groups.h"

// What the four glazing dialogs decide: which window type stands in each group of glazed elements.
// The chosen group is `session.GlazingGroup`. Leaving a group stores its choice at once, and a
// cancel takes nothing of that back.

namespace verandis {

/// One of the four dialogs.
struct GlazingDialog {
    int shape;
    int helpTopic;
    std::span<const ElementGroup> groups;

    /// Whether a group may also be a wall, so that the wall library is shown too.
    bool HasWalls() const;
};

/// The dialog of shape 1 to 4; another number is a fault of the caller.
const GlazingDialog& GlazingDialogOf(int shape);

/// The kinds of a group that may be either, as `session.ElementKindMark` holds them.
inline constexpr std::int16_t kNoKind = 0;
inline constexpr std::int16_t kGlazedKind = 1;
inline constexpr std::int16_t kOpaqueKind = 2;

/// An open dialog: its lists and where they stand.
struct GlazingChoice {
    const GlazingDialog* dialog = nullptr;
    std::vector<std::string> glazings;  // names in the list Glazes
    std::vector<std::string> walls;     // names in the list Walls, empty without HasWalls
    int glazingRow = -1;                // from 0; -1: none
    int wallRow = -1;

    /// The chosen group, null when there is none.
    const ElementGroup* Group() const;

    /// True while a group is chosen for which glazed or opaque is to be told.
    bool KindShown() const;

    /// 1 or 2: which of the lists is in use, as `SetGlazedOrWallMode` takes it.
    int Mode() const;
};

/// Opens a dialog: no group, no staged rows, no kind, the libraries read anew. A missing library
/// shows its message.
GlazingChoice LoadGlazing(int shape);

/// Stores the group left behind, then chooses the one with this code and sets the lists to its
/// present type. A row that is not set leaves the list as it stands; a name that the library does
/// not hold takes the first row.
void ChooseGlazingGroup(GlazingChoice& choice, std::uint16_t code);

/// Glazed (1) or opaque (2), for a group that may be either.
void ChooseKind(GlazingChoice& choice, std::int16_t kind);

/// Stores the chosen type for every element of the chosen group. Without a group or without a row
/// in the list nothing is stored. A group that may be either is left by this. False when the file
/// cannot be written, after its message.
bool ApplyGlazing(GlazingChoice& choice);

/// Applies, stores staged rows and leaves the dialog. False when the file cannot be written: then
/// the dialog is to stay.
bool CloseGlazing(GlazingChoice& choice);

/// What every way out of a dialog does: no staged rows, no kind.
void LeaveGlazing();

/// The present type of a group, for the eye; see `PresentTypes`.
std::string PresentGlazing(const GlazingChoice& choice, const ElementGroup& group);

}  // namespace verandis
