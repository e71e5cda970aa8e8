#include "explorer/library_item.h"

#include <gtest/gtest.h>

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
    const struct {
        std::string title;
        std::string label;
    } cases[] = {
        {"Dragons ", "Dragons "},
        {"   ", "a"},
        {std::string("tab\there\0nul", 12), "tab here nul"},
        {std::string(300, 'x'), std::string(200, 'x') + "…"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(LabelOfTable(c.title, "a.b.tbl"), c.label);
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

}  // namespace
}  // namespace quenloft
