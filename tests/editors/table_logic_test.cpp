// The table editor without its window: what it makes of a file and the file of it, and the grid.
#include <gtest/gtest.h>

#include "editors/table/cell_movement.h"
#include "editors/table/cell_text.h"
#include "editors/table/table_edits.h"
#include "editors/table/table_reading.h"
#include "editors/table/table_writing.h"

namespace quenloft {

void PrintTo(const GridCell& cell, std::ostream* out) { *out << cell.row << "," << cell.column; }
void PrintTo(const TableRow& row, std::ostream* out) { *out << row.frequency << "|" << row.entry; }

namespace {

std::string Shown(const TableContent& content) {
    std::string text = content.title + "|" + content.modifier;
    for (const TableRow& row : content.rows) {
        text += "\n" + row.frequency + "|" + row.entry;
    }
    return text;
}

WeightSums SumsOf(const TableContent& content) {
    WeightSums sums;
    sums.Replace(0, 0, content.rows);
    return sums;
}

std::string FaultOf(const TableContent& content) {
    const auto fault = FirstFault(content, SumsOf(content));
    return fault ? fault->sentence : "";
}

TEST(TableReading, MakesRowsOfLines) {
    const struct {
        const char* what;
        const char* lines;
        const char* shown;  ///< Then the faults behind "!", what is left out behind "-".
    } cases[] = {
        {"bounds become weights", "T¤20\n\n5§A\n15§B\n20§C\n", "T|\n5|A\n10|B\n5|C"},
        {"lines of all kinds", " T ¤3??X+1??\n\n1§A\n more\n;note\n3§B§C",
         " T |??X+1??\n1|A\n| more\n;|note\n2|B§C"},
        {"what saving leaves out", ";c\n\nT¤9 x\n\n1x§A\n\nmore\n",
         "T|\n1|A\n|more\n-comments above the header\n-empty lines\n"
         "-text behind the number of a bound\n-the header's total \"9 x\""},
        {"bounds that do not rise", "T¤8\n\n5§A\n3§B\n8§C\n", "T|\n5|A\n-2|B\n5|C"},
        {"a bad bound costs no line and counts for nothing",
         "T¤7\n\n5§A\n$6§B\n§C\n9999999999§D\n7§E\n",
         "T|\n5|A\n$6|B\n§|C\n9999999999|D\n2|E\n"
         "!There are no whole numbers before the § in lines 4 and 5. The number before the § in "
         "line 6 is past 32 bits: 2147483647 is the largest."},
        {"a header without a total", "Orcs\n\n1§A",
         "Orcs|\n1|A\n!The header in line 1 holds no ¤."},
        {"a modifier before the total", "T??X??¤5\n\n5§A", "T??X??|??X??¤5\n5|A"},
        {"no header", ";only\n;comments\n",
         "|\n!There is no header line.\n-comments above the header"},
        {"an empty file", "", "|"},
    };
    for (const auto& [what, lines, shown] : cases) {
        const TableReading reading = ReadTable(lines);
        std::string text = Shown(reading.content);
        text += reading.faults.empty() ? "" : "\n!" + reading.faults;
        for (const std::string& leftOut : reading.leftOut) {
            text += "\n-" + leftOut;
        }
        EXPECT_EQ(text, shown) << what;
    }
    EXPECT_TRUE(ReadTable("T¤3\n\n3§A\n3§B\n").hasEntryWithoutWeight);
}

TEST(TableWriting, WritesTheFormOfTableFiles) {
    const std::pair<TableContent, const char*> cases[] = {
        {{"T", "", {{"5", "A"}, {"10", "B"}, {"5", "C"}}}, "T¤20\r\n\r\n5§A\r\n15§B\r\n20§C\r\n"},
        // Each total is rounded to even before the next weight comes.
        {{"T", "??X??", {{"2.5", "A"}, {"2.5", "B"}}}, "T¤4??X??\r\n\r\n2§A\r\n4§B\r\n"},
        {{"T", "", {{"1", "A"}, {"0", "more"}, {"", ""}, {";", "note"}, {" 2 orcs", "B"}}},
         "T¤3\r\n\r\n1§A\r\nmore\r\n\r\n;note\r\n3§B\r\n"},
        {{}, "¤0\r\n\r\n"},
    };
    for (const auto& [content, text] : cases) {
        EXPECT_EQ(FaultOf(content), "");
        EXPECT_EQ(TableFileText(content, SumsOf(content)), text);
    }
}

TEST(TableWriting, RefusesWhatWouldBeReadOtherwise) {
    const std::pair<TableContent, const char*> cases[] = {
        {{"a¤b", "", {}},
         "The title holds ¤, so only the part before it would be read as the title."},
        {{" ;a", "", {}}, "The title begins with ; so it would be read as a comment."},
        {{"", "5", {}},
         "The modifier does not begin with ??, so it would be read as part of the total."},
        {{"", "", {{"1", "A"}, {"abc", "B"}}}, "Row 2 (\"B\") has a frequency that is no number."},
        {{"", "", {{" ;", "B"}}}, "Row 1 (\"B\") has a frequency that is no number."},
        {{"", "", {{"0,5", "B"}}}, "Row 1 (\"B\") has a frequency that is no number."},
        {{"", "", {{"(5)", "B"}}}, "Row 1 (\"B\") has a frequency that is no number."},
        {{"", "", {{"5", "A"}, {"-6", "B"}, {"2", "C"}}},
         "Row 2 (\"B\") makes the sum of the weights negative."},
        {{"", "", {{"2147483647", "A"}, {"1", "B"}}},
         "Row 2 (\"B\") makes the sum of the weights larger than 2147483647."},
        {{"", "", {{"1e400", "A"}, {"-1e400", "B"}}},
         "Row 1 (\"A\") makes the sum of the weights larger than 2147483647."},
        {{"", "", {{"1", "A"}, {"", "5§B"}}},
         "Row 2 (\"5§B\") has no weight but holds §, so it would be read as an entry of its own."},
        {{"", "", {{"0", ";B"}}},
         "Row 1 (\";B\") begins with ; so it would be read as a comment. Put the ; into Frequency "
         "to make it one."},
        {{"", "", {{"5", "A"}, {"-2", "B"}, {"2147483644", ";C§"}}}, ""},
    };
    for (const auto& [content, sentence] : cases) {
        EXPECT_EQ(FaultOf(content), sentence);
    }
}

TEST(WeightSums, LabelRowsWithTheirRollsAndShares) {
    const TableContent content{
        "",
        "",
        {{"5", ""}, {"", ""}, {"10", ""}, {"-3", ""}, {"3", ""}, {"x", ""}, {"1", ""}, {"14", ""}}};
    WeightSums sums = SumsOf(content);
    std::vector<std::string> labels;
    for (std::size_t row = 0; row < sums.Count(); ++row) {
        labels.push_back(sums.Label(row));
    }
    EXPECT_EQ(labels, (std::vector<std::string>{"1-5  16.7 %", "", "6-15  33.3 %", "0 %",
                                                "13-15  10 %", "", "16  3.33 %", "17-30  46.7 %"}));
    sums.SetFrequency(2, "2e9");
    EXPECT_EQ(sums.Label(0), "1-5  <0.001 %");
    sums.SetFrequency(2, "1e12");
    EXPECT_EQ(sums.Label(0), "1-5") << "there is no total to share";
    EXPECT_EQ(sums.Mark(2, ""), RowMark::SumTooLarge);
    sums.Replace(0, 7, {});
    EXPECT_EQ(sums.Label(0), "1-14  100 %");
}

TEST(TablePrintText, HoldsTheRowsBetweenHeadAndFooter) {
    EXPECT_EQ(TablePrintText({"T", "??X??", {{"5", "A"}, {"", "more"}}}, "/t.tbl", "Program 1"),
              "Title :T\r\nModifier :??X??\r\nFilename :/t.tbl\r\n\r\n5\tA\r\n\tmore\r\n\r\n"
              "Printed by Program 1");
}

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
    const std::pair<const char*, std::vector<CellLine>> cases[] = {
        {"", {}},
        {"a\tb\r\nc\td\r\n", {{"a", "b"}, {"c", "d"}}},
        {"a\n\nb", {{"a"}, {""}, {"b"}}},
        {"a\rb", {{"a"}, {"b"}}},
        {"\t", {{"", ""}}},
        {"5\t\"two\r\nlines\"\t\"a \"\"b\"\"\"\n6", {{"5", "two\r\nlines", "a \"b\""}, {"6"}}},
        {"\"Halt!\" he says\n\"open", {{"\"Halt!\" he says"}, {"\"open"}}},
        {"\"\"", {{""}}},
    };
    for (const auto& [text, cells] : cases) {
        EXPECT_EQ(ParseCells(text), cells) << text;
    }
    const std::vector<CellLine> lines{{"a\tb", "\"c\""}, {"d\r\ne", "f \"g\""}, {"", ""}};
    EXPECT_EQ(FormatCells(lines), "\"a\tb\"\t\"\"\"c\"\"\"\r\n\"d\r\ne\"\tf \"g\"\r\n\t\r\n");
    for (const auto& copied : {lines, {{""}}, {{"a"}}, {{"a"}, {""}}, {{""}, {""}}}) {
        EXPECT_EQ(ParseCells(FormatCells(copied)), copied);
    }
}

TEST(TableEdits, PasteOverRowsAndBehindThem) {
    const std::vector<TableRow> rows{{"1", "A"}, {"2", "B"}};
    const struct {
        std::size_t row;
        int column;
        const char* text;
        std::vector<TableRow> after;
    } cases[] = {
        {1, kEntryColumn, "x\ny", {{"1", "A"}, {"2", "x"}, {"", "y"}}},
        {0, kFrequencyColumn, "7\tx", {{"7", "x"}, {"2", "B"}}},
        {0, kEntryColumn, "x\ty", {{"1", "x\ty"}, {"2", "B"}}},
        {1, kFrequencyColumn, "7\t\"x\r\ny\"", {{"1", "A"}, {"7", "x"}, {"", "y"}}},
        {0, kFrequencyColumn, "\"7\n8\"", {{"7 8", "A"}, {"2", "B"}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        std::vector<TableRow> changed = rows;
        RowsEdit edit = PasteCells(rows, c.row, c.column, ParseCells(c.text));
        SwapRows(changed, edit);
        EXPECT_EQ(changed, c.after);
        SwapRows(changed, edit);
        EXPECT_EQ(changed, rows) << "undone";
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
