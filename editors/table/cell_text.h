// Cells as spreadsheets exchange them: lines of cells with a tab between. A cell that holds a tab,
// a line end or begins with a quotation mark stands in quotation marks, those inside doubled.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

using CellLine = std::vector<std::string>;

/// CR LF, LF and CR end a line; the last line needs no end. A quotation mark that no other closes
/// before a tab or a line end is text.
std::vector<CellLine> ParseCells(std::string_view text);

/// CR LF between lines and behind the last, so that empty lines at the end are read back too; one
/// line alone gets none, unless it is a single empty cell.
std::string FormatCells(const std::vector<CellLine>& lines);

}  // namespace quenloft
