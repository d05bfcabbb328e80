#include "libraries/text_table.h"

#include <algorithm>

#include "app/run_stop.h"
#include "platform/encoding.h"
#include "text/characters.h"
#include "text/separators.h"

namespace verandis {

std::size_t TextTable::Index(int row, int column) const {
    if (row < 1 || row > rows_ || column < 1 || column > columns_) {
        StopRun("a library table has no row " + std::to_string(row) + ", column " +
                std::to_string(column) + ": it holds " + std::to_string(rows_) + " rows");
    }
    return static_cast<std::size_t>((row - 1) * columns_ + column - 1);
}

const std::string& TextTable::Cell(int row, int column) const {
    return cells_[Index(row, column)];
}

void TextTable::SetCell(int row, int column, std::string_view text) {
    cells_[Index(row, column)].assign(text);
}

std::string* TextTable::AddRow() {
    ++rows_;
    const auto needed = static_cast<std::size_t>(rows_ * columns_);
    if (cells_.size() < needed) cells_.resize(needed);
    std::string* const row = cells_.data() + needed - static_cast<std::size_t>(columns_);
    for (int column = 0; column < columns_; ++column) row[column].clear();
    return row;
}

void TextTable::RemoveRow(int row) {
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(Index(row, 1));
    std::rotate(first, first + columns_,
                cells_.begin() + static_cast<std::ptrdiff_t>(rows_ * columns_));
    --rows_;
}

int TextTable::FindRow(int column, std::string_view text) const {
    for (int row = 1; row <= rows_; ++row) {
        if (Cell(row, column) == text) return row;
    }
    return 0;
}

std::vector<std::string> TextTable::Column(int column) const {
    std::vector<std::string> texts;
    for (int row = 1; row <= rows_; ++row) texts.push_back(Cell(row, column));
    return texts;
}

void ReadLibraryRecords(std::string_view bytes, TextTable& table) {
    std::string converted;
    if (!IsAscii(bytes)) {
        converted = FromWindows1252(bytes);
        bytes = converted;
    }
    TakeLine(bytes);
    TakeLine(bytes);
    table.Clear();
    while (!bytes.empty()) {
        std::string_view record = TrimBlanks(TakeLine(bytes));
        TakeUpTo(record, '\t');  // the ID is not kept; a record without a TAB is nothing but an ID
        std::string* cell = table.AddRow();
        for (int column = 1; column < table.columns(); ++column) {
            (cell++)->assign(TakeUpTo(record, '\t'));
        }
        cell->assign(record);
    }
}

}  // namespace verandis
