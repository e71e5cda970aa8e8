#include "platform/qt/qt_file_filter.h"

#include <gtest/gtest.h>

namespace quenloft {
namespace {

TEST(FileFilter, IsSplitIntoPairs) {
    const struct {
        const char* filter;
        QStringList nameFilters;
    } cases[] = {
        {"Table (*.tbl)|*.tbl|All files (*.*)|*.*", {"Table (*.tbl)", "All files (*)"}},
        {"Text(*.txt)|*.txt|All files(*.*)|*.*", {"Text (*.txt)", "All files (*)"}},
        {"Table,Scripts (*.tbl,*.spt)|*.tbl;*.spt", {"Table,Scripts (*.tbl *.spt)"}},
        {"Notes|*.rtf; *.txt", {"Notes (*.rtf *.txt)"}},
        {"", {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ToNameFilters(c.filter), c.nameFilters) << c.filter;
    }
}

TEST(FileFilter, GivesTheSuffixOfItsFirstPattern) {
    EXPECT_EQ(SuffixOf("Table (*.tbl)"), "tbl");
    EXPECT_EQ(SuffixOf("Table,Scripts (*.tbl *.spt)"), "tbl");
    EXPECT_EQ(SuffixOf("All files (*)"), "");
    EXPECT_EQ(SuffixOf(""), "");
}

}  // namespace
}  // namespace quenloft
