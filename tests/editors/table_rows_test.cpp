// What the table editor makes of a file, and the file of it: bounds and weights, what a file cannot
// say, and what must not get lost.
#include <gtest/gtest.h>

#include "editors/table/table_reading.h"
#include "editors/table/table_writing.h"

namespace quenloft {
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
    struct {
        const char* what;
        const char* lines;
        const char* shown;
        const char* faults;
        std::vector<std::string> leftOut;
    } cases[] = {
        {"bounds become weights", "T¤20\n\n5§A\n15§B\n20§C\n", "T|\n5|A\n10|B\n5|C", "", {}},
        {"lines of all kinds",
         " T ¤3??X+1??\n\n1§A\n more\n;note\n3§B§C",
         " T |??X+1??\n1|A\n| more\n;|note\n2|B§C",
         "",
         {}},
        {"what saving leaves out",
         ";c\n\nT¤9 x\n\n1x§A\n\nmore\n",
         "T|\n1|A\n|more",
         "",
         {"comments above the header", "empty lines", "text behind the number of a bound",
          "the header's total \"9 x\""}},
        {"bounds that do not rise", "T¤8\n\n5§A\n3§B\n8§C\n", "T|\n5|A\n-2|B\n5|C", "", {}},
        {"a bad bound costs no line and counts for nothing",
         "T¤7\n\n5§A\n$6§B\n§C\n9999999999§D\n7§E\n",
         "T|\n5|A\n$6|B\n§|C\n9999999999|D\n2|E",
         "There are no whole numbers before the § in lines 4 and 5. The number before the § in "
         "line 6 is past 32 bits: 2147483647 is the largest.",
         {}},
        {"a header without a total",
         "Orcs\n\n1§A",
         "Orcs|\n1|A",
         "The header in line 1 holds no ¤.",
         {}},
        {"a modifier before the total", "T??X??¤5\n\n5§A", "T??X??|??X??¤5\n5|A", "", {}},
        {"no header",
         ";only\n;comments\n",
         "|",
         "There is no header line.",
         {"comments above the header"}},
        {"an empty file", "", "|", "", {}},
    };
    for (const auto& c : cases) {
        const TableReading reading = ReadTable(c.lines);
        EXPECT_EQ(Shown(reading.content), c.shown) << c.what;
        EXPECT_EQ(reading.faults, c.faults) << c.what;
        EXPECT_EQ(reading.leftOut, c.leftOut) << c.what;
    }
    EXPECT_TRUE(ReadTable("T¤3\n\n3§A\n3§B\n").hasEntryWithoutWeight);
}

TEST(TableReading, NamesAFewOfManyBadLines) {
    std::string lines = "T¤0\n\n";
    for (int i = 0; i < 1000; ++i) {
        lines += "bad§x\n";
    }
    EXPECT_EQ(ReadTable(lines).faults,
              "There are no whole numbers before the § in lines 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 "
              "and 990 more.");
}

TEST(TableWriting, WritesTheFormOfTableFiles) {
    struct {
        TableContent content;
        const char* text;
    } cases[] = {
        {{"T", "", {{"5", "A"}, {"10", "B"}, {"5", "C"}}}, "T¤20\r\n\r\n5§A\r\n15§B\r\n20§C\r\n"},
        // Each total is rounded to even before the next weight comes.
        {{"T", "??X??", {{"2.5", "A"}, {"2.5", "B"}}}, "T¤4??X??\r\n\r\n2§A\r\n4§B\r\n"},
        {{"T", "", {{"1", "A"}, {"0", "more"}, {"", ""}, {";", "note"}, {" 2 orcs", "B"}}},
         "T¤3\r\n\r\n1§A\r\nmore\r\n\r\n;note\r\n3§B\r\n"},
        {{}, "¤0\r\n\r\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FaultOf(c.content), "");
        EXPECT_EQ(TableFileText(c.content, SumsOf(c.content)), c.text);
    }
}

TEST(TableWriting, RefusesWhatWouldBeReadOtherwise) {
    struct {
        TableContent content;
        const char* sentence;
    } cases[] = {
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
    for (const auto& c : cases) {
        EXPECT_EQ(FaultOf(c.content), c.sentence);
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

}  // namespace
}  // namespace quenloft
