// What the explorer shows of a library, and its rounds.
#include "explorer/library_item.h"

#include <gtest/gtest.h>

#include "explorer/rounds.h"

namespace quenloft {
namespace {

TEST(LibraryItem, ShowsTablesScriptsAndFolders) {
    const struct {
        FolderEntry entry;
        bool shown;
        bool shownWithHidden;
    } cases[] = {
        {{"map.tbl", false, false}, true, true},       {{"MAP.TBL", false, false}, true, true},
        {{"a.b.spt", false, false}, true, true},       {{"notes.txt", false, false}, false, false},
        {{"tbl", false, false}, false, false},         {{"x.tbl.bak", false, false}, false, false},
        {{"x.tbl.txt", false, false}, false, false},   {{"Monsters", true, false}, true, true},
        {{"x.tbl", true, false}, true, true},          {{"~notes.tbl", false, false}, false, false},
        {{" ~notes.tbl", false, false}, false, false}, {{"~old", true, false}, false, false},
        {{"a~.tbl", false, false}, true, true},        {{".secret.tbl", false, true}, false, true},
        {{".git", true, true}, false, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IsShown(c.entry, false), c.shown) << c.entry.name;
        EXPECT_EQ(IsShown(c.entry, true), c.shownWithHidden) << c.entry.name;
    }
}

TEST(LibraryItem, LabelsTablesWithTheirTitleOnOneLine) {
    const std::pair<std::string, std::string> cases[] = {
        {"Dragons ", "Dragons "},
        {"   ", "a"},
        {std::string("tab\there\0nul", 12), "tab here nul"},
        {std::string(300, 'x'), std::string(200, 'x') + "…"},
    };
    for (const auto& [title, label] : cases) {
        EXPECT_EQ(LabelOfTable(title, "a.b.tbl"), label);
    }
}

TEST(LibraryItem, SortsByLabelWithoutRegardToCase) {
    std::vector<LibraryItem> items;
    for (const char* label : {"beta", "Alpha", "\xC3\xA9toile", "alpha", "Gamma", "\xC3\x89tage"}) {
        items.push_back({ItemKind::Table, "Z:\\" + std::to_string(items.size()), label});
    }
    SortItems(items);
    std::vector<std::string> labels;
    for (const LibraryItem& item : items) {
        labels.push_back(item.label);
    }
    EXPECT_EQ(labels, (std::vector<std::string>{"Alpha", "alpha", "beta", "Gamma", "\xC3\x89tage",
                                                "\xC3\xA9toile"}));
}

TEST(Rounds, AreReadLenientlyAndBounded) {
    const std::pair<const char*, int> cases[] = {
        {"", 1},       {" 12 ", 12},        {"abc", 1},          {"0", 1},
        {"-5", 1},     {"2.5", 2},          {"3.5", 4},          {"12 times", 12},
        {"1e3", 1000}, {"100000", 100'000}, {"100001", 100'000}, {"1e999", 100'000},
    };
    for (const auto& [text, rounds] : cases) {
        EXPECT_EQ(RoundsFromText(text), rounds) << text;
    }
}

class RunRoundsTest : public testing::Test {
  protected:
    std::string Run(int rounds) {
        output.clear();
        rolled = 0;
        RunRounds(rounds, {.roll = [this] { return "r" + std::to_string(++rolled); },
                           .isAborted = [this] { return rolled == abortAt; },
                           .yield = [this] { ++yields; },
                           .append =
                               [this](std::string_view text) {
                                   ++pieces;
                                   output += text;
                                   return true;
                               }});
        return output;
    }

    std::string output;
    int rolled = 0;
    int abortAt = -1;
    int yields = 0;
    int pieces = 0;
};

TEST_F(RunRoundsTest, EndsWithTheRoundThatWasAborted) {
    abortAt = 2;
    EXPECT_EQ(Run(1'000), "r1\r\n\r\nr2\r\n\r\nProcess Aborted!");
}

TEST_F(RunRoundsTest, HandsOutManyResultsInFewPieces) {
    Run(100'000);
    EXPECT_TRUE(output.ends_with("\r\n\r\nr100000"));
    EXPECT_LT(pieces, 1'000);
    EXPECT_EQ(yields, 100'000) << "an abort must be seen between any two rounds";
}

}  // namespace
}  // namespace quenloft
