#include "libraries/type_editor.h"

#include "libraries/simple_libraries.h"

namespace verandis {

TypeEditor::TypeEditor(TypeKind kind) : kind_(kind), editable_(kind == TypeKind::Wall) {
    kind == TypeKind::Window ? ReadWindows() : ReadWalls();
    Show(0);
    if (kind == TypeKind::Window) ReadRefWindows();
}

TextTable& TypeEditor::Table() const {
    if (kind_ == TypeKind::Wall) return simpleLibraries.WallTable;
    return references_ ? simpleLibraries.RefWindowTable : simpleLibraries.WindowTable;
}

std::vector<std::string> TypeEditor::Names() const {
    return Table().Column(1);
}

void TypeEditor::Show(int row) {
    selected_ = row < Table().rows() ? row : -1;
    if (kind_ == TypeKind::Window) {
        entry = ShownWindow(Table(), selected_ + 1);
    } else {
        entry.TU = ShownWallU(Table(), selected_ + 1);
    }
}

std::string TypeEditor::CheckAndStore() {
    const EntryComplaint complaint =
        kind_ == TypeKind::Window ? CheckWindowEntry(entry) : CheckWallEntry(entry.TU);
    if (!complaint.empty()) {
        ShowComplaint(complaint);
        return complaint.control;
    }
    if (selected_ < 0) return "";
    if (kind_ == TypeKind::Window) {
        StoreWindowEntry(Table(), selected_ + 1, entry);
    } else {
        StoreWallEntry(Table(), selected_ + 1, entry.TU);
    }
    return "";
}

std::string TypeEditor::ChooseTypes() {
    if (!references_) return "";
    references_ = false;
    editable_ = true;
    skipCheck_ = true;  // the fields still hold a reference window
    return ChooseRow(lastType_);
}

std::string TypeEditor::ChooseReferences() {
    if (references_) return "";
    const std::string focus = CheckAndStore();
    if (!focus.empty()) return focus;
    lastType_ = selected_;
    ReadRefWindows();
    references_ = true;
    editable_ = false;
    Show(0);
    return "";
}

std::string TypeEditor::ChooseRow(int row) {
    if (!references_) {
        const std::string focus = skipCheck_ ? "" : CheckAndStore();
        skipCheck_ = false;
        if (!focus.empty()) return focus;
    }
    Show(row);
    return "";
}

std::string TypeEditor::Add() {
    if (!RoomForType(kind_, Table())) return "";
    const std::string focus = CheckAndStore();
    if (!focus.empty()) return focus;
    const int row = AddNamedType(kind_, Table());
    if (row == 0) return "";
    selected_ = row - 1;
    entry = {};
    return kind_ == TypeKind::Window ? "TT" : "TU";
}

std::string TypeEditor::Delete() {
    if (Table().rows() <= 1) return "";
    skipCheck_ = true;  // a refused delete leaves it so
    if (DeleteType(kind_, Table(), selected_ + 1) != DeleteResult::Deleted) return "";
    return ChooseRow(Table().rows() - 1);
}

}  // namespace verandis
