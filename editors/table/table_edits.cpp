#include "editors/table/table_edits.h"

#include <algorithm>
#include <iterator>

namespace quenloft {
namespace {

/// The edit that leaves all rows between the first and the last selected one as they are.
RowsEdit EditOver(const std::vector<TableRow>& rows, const SelectedCells& selected) {
    const std::size_t first = selected.begin()->first;
    const std::size_t count = selected.rbegin()->first - first + 1;
    const auto begin = rows.begin() + static_cast<std::ptrdiff_t>(first);
    return {first, count, {begin, begin + static_cast<std::ptrdiff_t>(count)}};
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            i += text.compare(i, 2, "\r\n") == 0 ? 1 : 0;
            lines.emplace_back();
        } else {
            lines.back() += text[i];
        }
    }
    return lines;
}

/// The cells that stand in the grid's columns from `column` on.
CellLine FitColumns(const CellLine& line, int column) {
    const auto room = static_cast<std::size_t>(kTableColumns - column);
    CellLine fitting(line.begin(),
                     line.begin() + static_cast<std::ptrdiff_t>(std::min(room, line.size())));
    for (std::size_t i = room; i < line.size(); ++i) {
        fitting.back() += "\t" + line[i];
    }
    return fitting;
}

/// Only an entry can have several lines.
std::vector<CellLine> OneLineEach(CellLine line, int column) {
    const std::size_t entryCell = static_cast<std::size_t>(kEntryColumn - column);
    std::vector<CellLine> result{line};
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (i != entryCell) {
            result[0][i] = OneLine(line[i]);
            continue;
        }
        const std::vector<std::string> lines = LinesOf(line[i]);
        result[0][i] = lines[0];
        for (std::size_t more = 1; more < lines.size(); ++more) {
            result.emplace_back(line.size());
            result.back()[i] = lines[more];
        }
    }
    return result;
}

}  // namespace

void SwapRows(std::vector<TableRow>& rows, RowsEdit& edit) {
    const std::size_t fresh = edit.rows.size();
    const auto place = rows.begin() + static_cast<std::ptrdiff_t>(edit.first);
    const auto common = static_cast<std::ptrdiff_t>(std::min(fresh, edit.count));
    std::swap_ranges(place, place + common, edit.rows.begin());
    const auto inEdit = edit.rows.begin() + common;
    const auto inTable = place + common;
    if (fresh > edit.count) {
        rows.insert(inTable, std::move_iterator(inEdit), std::move_iterator(edit.rows.end()));
        edit.rows.erase(inEdit, edit.rows.end());
    } else {
        const auto end = place + static_cast<std::ptrdiff_t>(edit.count);
        edit.rows.insert(inEdit, std::move_iterator(inTable), std::move_iterator(end));
        rows.erase(inTable, end);
    }
    edit.count = fresh;
}

std::vector<CellLine> TakeCells(const std::vector<TableRow>& rows, const SelectedCells& selected) {
    std::array<bool, kTableColumns> isUsed{};
    for (const auto& [row, columns] : selected) {
        for (int column = 0; column < kTableColumns; ++column) {
            isUsed[column] = isUsed[column] || columns[column];
        }
    }
    std::vector<CellLine> lines;
    for (const auto& [row, columns] : selected) {
        CellLine& line = lines.emplace_back();
        for (int column = 0; column < kTableColumns; ++column) {
            if (isUsed[column]) {
                line.push_back(columns[column] ? CellText(rows[row], column) : std::string());
            }
        }
    }
    return lines;
}

RowsEdit ClearCells(const std::vector<TableRow>& rows, const SelectedCells& selected) {
    RowsEdit edit = EditOver(rows, selected);
    for (const auto& [row, columns] : selected) {
        for (int column = 0; column < kTableColumns; ++column) {
            if (columns[column]) {
                CellText(edit.rows[row - edit.first], column).clear();
            }
        }
    }
    return edit;
}

RowsEdit RemoveRows(const std::vector<TableRow>& rows, const SelectedCells& selected) {
    RowsEdit edit = EditOver(rows, selected);
    std::size_t row = edit.first;
    std::erase_if(edit.rows, [&](const TableRow&) { return selected.contains(row++); });
    return edit;
}

RowsEdit PasteCells(const std::vector<TableRow>& rows, std::size_t row, int column,
                    const std::vector<CellLine>& lines) {
    RowsEdit edit{row, 0, {}};
    for (const CellLine& line : lines) {
        for (const CellLine& cells : OneLineEach(FitColumns(line, column), column)) {
            const std::size_t place = row + edit.rows.size();
            TableRow& target = edit.rows.emplace_back();
            if (place < rows.size()) {
                target = rows[place];
                ++edit.count;
            }
            for (std::size_t i = 0; i < cells.size(); ++i) {
                CellText(target, column + static_cast<int>(i)) = cells[i];
            }
        }
    }
    return edit;
}

}  // namespace quenloft
