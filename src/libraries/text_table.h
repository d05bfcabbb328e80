#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace verandis {

/// A component library in memory: text cells with rows and columns from 1, parsed at each use.
class TextTable {
public:
    explicit TextTable(int columns) : columns_(columns) {}

    int rows() const { return rows_; }
    int columns() const { return columns_; }

    /// Throws RunError for a row or column that the table does not have.
    const std::string& Cell(int row, int column) const;
    void SetCell(int row, int column, std::string_view text);

    /// Adds a row of empty cells at the end and gives them, in order, until the next change.
    std::string* AddRow();

    /// Removes a row and closes the gap upward.
    void RemoveRow(int row);

    /// Drops all rows; the memory of the cells serves the next reading.
    void Clear() { rows_ = 0; }

    /// The first row whose cell in `column` equals the text exactly, 0 when none does.
    int FindRow(int column, std::string_view text) const;

    /// The cells of one column, in order.
    std::vector<std::string> Column(int column) const;

private:
    std::size_t Index(int row, int column) const;

    int columns_;
    int rows_ = 0;
    std::vector<std::string> cells_;
};

/// Fills the table from the bytes of a library file: two heading lines, then a record a line: an ID
/// that is dropped, then the columns, parted by TABs; the rest of the line is the last column. Too
/// few TABs give empty cells, and a blank line gives an empty row.
void ReadLibraryRecords(std::string_view bytes, TextTable& table);

}  // namespace verandis
