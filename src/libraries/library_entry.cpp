#include "libraries/library_entry.h"

#include "app/program_text.h"
#include "app/session.h"
#include "libraries/case_usage.h"
#include "libraries/simple_libraries.h"
#include "platform/prompts.h"
#include "text/characters.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kMustBe = 161;
constexpr int kWholeNumberWord = 165;
constexpr int kNumberWord = 166;
constexpr int kCheckTitle = 167;
constexpr int kUValueWord = 179;

/// Texts of the two libraries, by catalogue number.
struct KindTexts {
    int limit;
    int newTitle;
    int usedName;
};

KindTexts TextsOf(TypeKind kind) {
    return kind == TypeKind::Window ? KindTexts{184, 156, 160} : KindTexts{172, 171, 173};
}

std::string DeleteTitle(TypeKind kind) {
    return kind == TypeKind::Window ? Text(164) : Text(48) + " " + Text(173);
}

/// A field that takes whole numbers only, in the order of checking.
struct WholeField {
    const char* control;
    std::string WindowEntry::*value;
    int word;
};
constexpr WholeField kPercentFields[] = {
    {"TT", &WindowEntry::TT, 77}, {"TR", &WindowEntry::TR, 78}, {"TA", &WindowEntry::TA, 157}};
constexpr int kPanesWord = 180;

std::string MustBe(int word, int what) {
    return Text(word) + " " + Text(kMustBe) + " " + Text(what);
}

void Add(EntryComplaint& complaint, const std::string& line, const char* control) {
    complaint.text += line + "\r";
    if (complaint.control.empty()) complaint.control = control;
}

bool IsDecimal(const std::string& text) {
    return !TrimBlanks(text).empty() && IsNumberText(text, session.Decimals);
}

void CheckPanes(const std::string& TN, EntryComplaint& complaint) {
    const std::string line = MustBe(kPanesWord, kWholeNumberWord);
    if (!IsDigitsOnly(TN)) {
        Add(complaint, line + "\r", "TN");  // this line alone is followed by an empty one
        return;
    }
    const double panes = ToNumber(TN);
    if (panes > simpleLibraries.MaxPanes || panes <= 0) {
        Add(complaint, line + " <= " + std::to_string(simpleLibraries.MaxPanes), "TN");
    }
}

void CheckSum(const WindowEntry& entry, EntryComplaint& complaint) {
    if (ToNumber(entry.TT) + ToNumber(entry.TR) + ToNumber(entry.TA) == 100) return;
    Add(complaint, Text(77) + "+" + Text(78) + "+" + Text(157) + " " + Text(kMustBe) + " 100",
        "TT");
}

std::string OnScreen(double number) {
    return PointToDecimal(TrimmedNumberText(number), session.Decimals);
}

std::string Fraction(const std::string& percent) {
    return NumberText(ToNumber(percent) / 100);
}

}  // namespace

EntryComplaint CheckWindowEntry(const WindowEntry& entry) {
    EntryComplaint complaint;
    for (const WholeField& field : kPercentFields) {
        if (!IsDigitsOnly(entry.*field.value)) {
            Add(complaint, MustBe(field.word, kWholeNumberWord), field.control);
        }
    }
    if (!IsDecimal(entry.TU)) Add(complaint, MustBe(kUValueWord, kNumberWord), "TU");
    CheckPanes(entry.TN, complaint);
    if (complaint.empty()) CheckSum(entry, complaint);
    return complaint;
}

EntryComplaint CheckWallEntry(const std::string& TU) {
    EntryComplaint complaint;
    const std::string trimmed(TrimBlanks(TU));
    if (!IsDecimal(trimmed)) Add(complaint, MustBe(kUValueWord, kNumberWord), "TU");
    return complaint;
}

void ShowComplaint(const EntryComplaint& complaint) {
    ShowMessage(complaint.text, Text(kCheckTitle), Icon::Exclamation);
}

WindowEntry ShownWindow(const TextTable& table, int row) {
    if (row < 1 || row > table.rows()) return {};
    const auto percent = [&](WindowColumn column) {
        return OnScreen(ToNumber(table.Cell(row, column)) * 100);
    };
    return {percent(kTransmittance), percent(kReflectance), percent(kAbsorptance),
            OnScreen(ToNumber(table.Cell(row, kWindowU))), table.Cell(row, kPanes)};
}

void StoreWindowEntry(TextTable& table, int row, const WindowEntry& entry) {
    table.SetCell(row, kTransmittance, Fraction(entry.TT));
    table.SetCell(row, kReflectance, Fraction(entry.TR));
    table.SetCell(row, kAbsorptance, Fraction(entry.TA));
    table.SetCell(row, kWindowU, NumberText(ToNumber(entry.TU)));
    table.SetCell(row, kPanes, entry.TN);
}

std::string ShownWallU(const TextTable& table, int row) {
    if (row < 1 || row > table.rows()) return "";
    return OnScreen(ToNumber(table.Cell(row, kWallU)));
}

void StoreWallEntry(TextTable& table, int row, const std::string& TU) {
    table.SetCell(row, kWallU, NumberText(ToNumber(TU)));
}

bool RoomForType(TypeKind kind, const TextTable& table) {
    if (table.rows() + 1 <= kMostTypes) return true;
    ShowMessage(Text(TextsOf(kind).limit) + " > " + std::to_string(kMostTypes), Text(kCheckTitle),
                Icon::Information);
    return false;
}

int AddNamedType(TypeKind kind, TextTable& table) {
    *table.AddRow() = " ";
    const int row = table.rows();
    const std::string prompt = Text(105) + "\r\n" + Text(106) +
                               NumberText(double(kShortestTypeName)) + ", " + Text(108) +
                               NumberText(double(kLongestTypeName)) + Text(107);
    while (true) {
        const auto name = CurrentPrompts().AskText(prompt, Text(TextsOf(kind).newTitle), "");
        if (!name || name->empty()) {
            table.RemoveRow(row);
            return 0;
        }
        const auto length = Length(*name);
        if (length < kShortestTypeName || length > kLongestTypeName) continue;
        table.SetCell(row, 1, *name);
        return row;
    }
}

DeleteResult DeleteType(TypeKind kind, TextTable& table, int row) {
    if (table.rows() <= 1) return DeleteResult::LastRow;
    const std::string user = FindCaseUsing(table.Cell(row, 1));
    if (user.empty()) {
        table.RemoveRow(row);
        return DeleteResult::Deleted;
    }
    ShowMessage(Text(TextsOf(kind).usedName) + " " + Text(162) + " " + user, DeleteTitle(kind),
                Icon::Information);
    return DeleteResult::InUse;
}

}  // namespace verandis
