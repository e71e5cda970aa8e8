// Changes of many cells at once. Each is told as the rows that take the place of others, so that it
// can be undone by putting those back.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "editors/table/cell_text.h"
#include "editors/table/table_rows.h"

namespace quenloft {

/// `rows` instead of the `count` rows from `first` on.
struct RowsEdit {
    std::size_t first = 0;
    std::size_t count = 0;
    std::vector<TableRow> rows;
};

/// Puts the rows of `edit` into `rows`, and those that stood there into `edit`.
void SwapRows(std::vector<TableRow>& rows, RowsEdit& edit);

/// Which columns are selected in the rows that have a selected cell.
using SelectedCells = std::map<std::size_t, std::array<bool, kTableColumns>>;

/// The selected cells, one line a row; columns in which nothing is selected are left out, single
/// cells that are not selected are empty.
std::vector<CellLine> TakeCells(const std::vector<TableRow>& rows, const SelectedCells& selected);

/// `selected` is not empty, here and below.
RowsEdit ClearCells(const std::vector<TableRow>& rows, const SelectedCells& selected);

/// Removes every row that has a selected cell.
RowsEdit RemoveRows(const std::vector<TableRow>& rows, const SelectedCells& selected);

/// Puts `lines` over the cells from `row` and `column` on; what reaches past the last row becomes
/// new rows. Cells past the last column go into it, with their tabs. A cell of several lines
/// becomes several rows: the later ones go on with its entry.
RowsEdit PasteCells(const std::vector<TableRow>& rows, std::size_t row, int column,
                    const std::vector<CellLine>& lines);

}  // namespace quenloft
