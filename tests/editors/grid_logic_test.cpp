// Moving between cells, exchanging cells with spreadsheets, and changing many at once.
#include <gtest/gtest.h>

#include "editors/table/cell_movement.h"
#include "editors/table/cell_text.h"
#include "editors/table/table_edits.h"

namespace quenloft {

void PrintTo(const GridCell& cell, std::ostream* out) { *out << cell.row << "," << cell.column; }
void PrintTo(const TableRow& row, std::ostream* out) { *out << row.frequency << "|" << row.entry; }

namespace {

TEST(CellMovement, GoesRoundAtTheEndsOfRowsColumnsAndGrid) {
    constexpr GridShape kPlain{3, 2};
    constexpr GridShape kFixed{4, 3, 1, 1};
    struct {
        GridShape shape;
        std::int16_t code;
        GridCell from;
        GridCell to;
    } cases[] = {
        {kPlain, 0, {1, 1}, {1, 1}},       {kPlain, 1, {0, 0}, {0, 1}}, {kPlain, 1, {0, 1}, {1, 0}},
        {kPlain, 1, {2, 1}, {0, 0}},       {kPlain, 2, {1, 0}, {2, 0}}, {kPlain, 2, {2, 0}, {0, 1}},
        {kPlain, 2, {2, 1}, {0, 0}},       {kPlain, 3, {1, 1}, {0, 1}}, {kPlain, 3, {0, 1}, {2, 0}},
        {kPlain, 3, {0, 0}, {2, 1}},       {kPlain, 4, {1, 1}, {1, 1}}, {kFixed, 1, {1, 2}, {2, 1}},
        {kFixed, 1, {3, 2}, {1, 1}},       {kFixed, 2, {3, 1}, {1, 2}}, {kFixed, 3, {1, 1}, {3, 2}},
        {{1, 2, 1, 0}, 1, {0, 0}, {0, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(NextCell(c.from, c.shape, c.code), c.to) << "code " << c.code;
    }
    EXPECT_EQ(CellToTheLeft({0, 0}, kPlain), (GridCell{2, 1}));
}

TEST(CellText, IsReadAsSpreadsheetsWriteIt) {
    struct {
        const char* text;
        std::vector<CellLine> cells;
    } cases[] = {
        {"", {}},
        {"a\tb\r\nc\td\r\n", {{"a", "b"}, {"c", "d"}}},
        {"a\n\nb", {{"a"}, {""}, {"b"}}},
        {"a\rb", {{"a"}, {"b"}}},
        {"\t", {{"", ""}}},
        {"5\t\"two\r\nlines\"\t\"a \"\"b\"\"\"\n6", {{"5", "two\r\nlines", "a \"b\""}, {"6"}}},
        {"\"Halt!\" he says\n\"open", {{"\"Halt!\" he says"}, {"\"open"}}},
        {"\"\"", {{""}}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ParseCells(c.text), c.cells) << c.text;
    }
    const std::vector<CellLine> lines{{"a\tb", "\"c\""}, {"d\r\ne", "f \"g\""}, {"", ""}};
    EXPECT_EQ(FormatCells(lines), "\"a\tb\"\t\"\"\"c\"\"\"\r\n\"d\r\ne\"\tf \"g\"\r\n\t\r\n");
    for (const auto& copied : {lines, {{""}}, {{"a"}}, {{"a"}, {""}}, {{""}, {""}}}) {
        EXPECT_EQ(ParseCells(FormatCells(copied)), copied);
    }
}

TEST(TableEdits, PasteOverRowsAndBehindThem) {
    const std::vector<TableRow> rows{{"1", "A"}, {"2", "B"}};
    struct {
        const char* what;
        std::size_t row;
        int column;
        const char* text;
        std::vector<TableRow> after;
    } cases[] = {
        {"one column", 1, kEntryColumn, "x\ny", {{"1", "A"}, {"2", "x"}, {"", "y"}}},
        {"both columns", 0, kFrequencyColumn, "7\tx", {{"7", "x"}, {"2", "B"}}},
        {"more columns than there are", 0, kEntryColumn, "x\ty", {{"1", "x\ty"}, {"2", "B"}}},
        {"an entry of two lines",
         1,
         kFrequencyColumn,
         "7\t\"x\r\ny\"\n8\tz",
         {{"1", "A"}, {"7", "x"}, {"", "y"}, {"8", "z"}}},
        {"a frequency of two lines", 0, kFrequencyColumn, "\"7\n8\"", {{"7 8", "A"}, {"2", "B"}}},
    };
    for (const auto& c : cases) {
        std::vector<TableRow> changed = rows;
        RowsEdit edit = PasteCells(rows, c.row, c.column, ParseCells(c.text));
        SwapRows(changed, edit);
        EXPECT_EQ(changed, c.after) << c.what;
        SwapRows(changed, edit);
        EXPECT_EQ(changed, rows) << c.what << ", undone";
    }
}

TEST(TableEdits, CopyClearAndRemoveWhatIsSelected) {
    const std::vector<TableRow> rows{{"1", "A"}, {"2", "B"}, {"3", "C"}, {"4", "D"}};
    const SelectedCells selected{{1, {false, true}}, {3, {true, true}}};
    EXPECT_EQ(TakeCells(rows, selected), (std::vector<CellLine>{{"", "B"}, {"4", "D"}}));
    EXPECT_EQ(TakeCells(rows, {{0, {false, true}}}), (std::vector<CellLine>{{"A"}}));
    const auto after = [&](RowsEdit edit) {
        std::vector<TableRow> changed = rows;
        SwapRows(changed, edit);
        return changed;
    };
    EXPECT_EQ(after(ClearCells(rows, selected)),
              (std::vector<TableRow>{{"1", "A"}, {"2", ""}, {"3", "C"}, {"", ""}}));
    EXPECT_EQ(after(RemoveRows(rows, selected)), (std::vector<TableRow>{{"1", "A"}, {"3", "C"}}));
}

}  // namespace
}  // namespace quenloft
