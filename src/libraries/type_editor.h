#pragma once

#include <string>
#include <vector>

#include "libraries/library_entry.h"
#include "libraries/text_table.h"

namespace verandis {

/// What the dialogs of the simple libraries do on each event, without their windows. A window keeps
/// `entry` at what is typed and shows what stands here after each event.
///
/// Leaving a type, by a click on another, by Add or by the change to the reference windows, checks
/// the fields and stores them in its row; a failed check leaves everything as it was. All changes
/// are in memory and last until the library is read again. Each event gives the name of the control
/// that gets the focus, empty when none does.
class TypeEditor {
public:
    /// Reads the library and chooses its first type. The window library opens for reading only,
    /// although it shows the types that can be edited.
    explicit TypeEditor(TypeKind kind);

    /// Option1: the types that cases choose from, which can be edited from now on. Nothing when
    /// they are shown already.
    std::string ChooseTypes();

    /// Option2: the reference windows, which cannot be edited.
    std::string ChooseReferences();

    /// A click on a row, from 0.
    std::string ChooseRow(int row);

    /// Adds a type by name, to be filled in.
    std::string Add();

    /// Deletes the chosen type, unless it is the last one or in use.
    std::string Delete();

    WindowEntry entry;  // a wall type has its U value alone

    TypeKind kind() const { return kind_; }
    bool references() const { return references_; }
    bool editable() const { return editable_; }
    int selected() const { return selected_; }  // row from 0, -1 without rows
    std::vector<std::string> Names() const;

private:
    TextTable& Table() const;
    std::string CheckAndStore();
    void Show(int row);

    TypeKind kind_;
    bool references_ = false;
    bool editable_;
    int selected_ = -1;
    int lastType_ = -1;       // the chosen type while the reference windows are shown
    bool skipCheck_ = false;  // the next choice of a row neither checks nor stores
};

}  // namespace verandis
