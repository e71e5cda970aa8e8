// How a library's spelling finds a file on a disk that minds case, bytes and missing folders.
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

#include "platform/linux/linux_file_system.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

class PathLookupTest : public testing::Test {
  protected:
    void SetUp() override { files_.ChangeDirectory(folder_.Path()); }

    TempFolder folder_;
    LinuxFileSystem files_;
};

struct Spelling {
    const char* name;
    const char* asked;
    const char* found;  ///< Below the folder, as the library path shows it.
};

std::string NameOfCase(const testing::TestParamInfo<Spelling>& info) { return info.param.name; }

class SpellingTest : public PathLookupTest, public testing::WithParamInterface<Spelling> {};

TEST_P(SpellingTest, FindsTheFile) {
    for (const char* name :
         {"Names.tbl", "sub/Deep.tbl", "sub/lower/x.tbl", "\xC3\x84rger.tbl", "byte\xE9.tbl",
          "back\\slash.tbl", "dots./in.tbl", " lead.tbl", "x."}) {
        folder_.Write(name, "");
    }
    std::filesystem::create_symlink(folder_.Path("sub"), folder_.Path("link"));

    EXPECT_TRUE(files_.FileExists(GetParam().asked));
    EXPECT_EQ(files_.AbsolutePath(GetParam().asked), folder_.LibraryPath() + GetParam().found);
    // What the port shows must lead back to the same file, in both notations.
    EXPECT_TRUE(files_.FileExists(files_.AbsolutePath(GetParam().asked)));
    EXPECT_TRUE(files_.FileExists(files_.NativePath(GetParam().asked)));
    EXPECT_EQ(files_.OpenText(GetParam().asked)->Path(), folder_.LibraryPath() + GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(
    Names, SpellingTest,
    testing::Values(
        Spelling{"exactly", "Names.tbl", "\\Names.tbl"},
        Spelling{"in_upper_case", "NAMES.TBL", "\\Names.tbl"},
        Spelling{"with_case_differing_in_folders", "SUB\\LOWER\\X.tbl", "\\sub\\lower\\x.tbl"},
        Spelling{"with_native_separators", "sub/deep.TBL", "\\sub\\Deep.tbl"},
        Spelling{"with_repeated_separators", "sub\\\\/lower//x.tbl", "\\sub\\lower\\x.tbl"},
        Spelling{"through_a_missing_folder", "nosub\\..\\names.tbl", "\\Names.tbl"},
        Spelling{"through_the_folder_itself", ".\\sub\\.\\..\\Names.tbl", "\\Names.tbl"},
        Spelling{"through_a_link_whose_parent_is_in_the_text", "link\\..\\Names.tbl",
                 "\\Names.tbl"},
        Spelling{"through_a_link", "LINK\\deep.tbl", "\\link\\Deep.tbl"},
        Spelling{"with_trailing_dots_and_blanks", "names.tbl. .", "\\Names.tbl"},
        Spelling{"that_ends_in_a_dot_on_disk", "X", "\\x."},
        Spelling{"in_a_folder_that_ends_in_a_dot", "DOTS.\\in.tbl", "\\dots.\\in.tbl"},
        Spelling{"with_a_leading_blank", " LEAD.tbl", "\\ lead.tbl"},
        Spelling{"with_accents_in_another_case", "\xC3\xA4RGER.TBL", "\\\xC3\x84rger.tbl"},
        Spelling{"whose_bytes_are_not_utf8", "byte\xC3\xA9.tbl", "\\byte\xC3\xA9.tbl"},
        Spelling{"whose_bytes_are_not_utf8_in_another_case", "BYTE\xC3\x89.TBL",
                 "\\byte\xC3\xA9.tbl"},
        Spelling{"with_a_backslash_on_disk", "BACK\xEF\x81\x9CSLASH.tbl",
                 "\\back\xEF\x81\x9Cslash.tbl"}),
    NameOfCase);

TEST_F(PathLookupTest, DoesNotFindWhatOnlyLooksLikeIt) {
    folder_.Write("x.tbl", "");
    const std::string withNul("x.tbl\0.txt", 10);
    for (const std::string& asked :
         {std::string(" x.tbl"), std::string("x"), std::string("x.tbl\\y"),
          std::string("C:\\x.tbl"), std::string("C:x.tbl"), withNul, std::string(5000, 'x'),
          std::string("*.tbl")}) {
        EXPECT_FALSE(files_.FileExists(asked)) << asked;
    }
}

TEST_F(PathLookupTest, TakesTheFirstInByteOrderOfSeveralSpellings) {
    for (const char* name : {"name.tbl", "NaMe.tbl", "Name.tbl"}) {
        folder_.Write(name, name);
    }
    EXPECT_EQ(files_.OpenText("NAME.TBL")->Line(0), "NaMe.tbl");
    EXPECT_EQ(files_.OpenText("name.tbl")->Line(0), "name.tbl");
}

TEST_F(PathLookupTest, PrefersTheExactBytesOfTwoNamesThatLookTheSame) {
    folder_.Write("\xE9.tbl", "bytes");
    folder_.Write("\xC3\xA9.tbl", "text");
    EXPECT_EQ(files_.OpenText("\xC3\xA9.tbl")->Line(0), "text");
}

TEST_F(PathLookupTest, StopsAtTheRoot) {
    std::string path;
    for (int i = 0; i < 40; ++i) {
        path += "..\\";
    }
    EXPECT_EQ(files_.AbsolutePath(path), "Z:\\");
    EXPECT_EQ(files_.AbsolutePath("\\..\\..\\no-such-folder"), "Z:\\no-such-folder");
    EXPECT_EQ(files_.NativePath("z:/../"), "/");
}

TEST_F(PathLookupTest, SpellsTheFoldersThatExistAsOnDiskWhereTheNameIsNew) {
    folder_.Write("Sub/x.tbl", "");
    EXPECT_EQ(files_.AbsolutePath("SUB\\New\\File.tbl"), folder_.LibraryPath("Sub/New/File.tbl"));
    EXPECT_EQ(files_.NativePath("SUB\\New.tbl "), folder_.Path("Sub/New.tbl"));
    EXPECT_EQ(files_.AbsolutePath("c:lib/x.tbl"), "C:\\lib\\x.tbl");
}

TEST_F(PathLookupTest, FollowsTheCurrentDirectory) {
    folder_.Write("a/x.tbl", "from a");
    folder_.Write("b/x.tbl", "from b");
    files_.ChangeDirectory("A");
    const FolderId a = files_.CurrentFolder();
    EXPECT_EQ(files_.CurrentDirectory(), folder_.LibraryPath("a"));
    EXPECT_EQ(files_.OpenText("x.tbl")->Line(0), "from a");
    files_.ChangeDirectory("..\\B");
    EXPECT_EQ(files_.OpenText("x.tbl")->Line(0), "from b");
    files_.SetCurrentFolder(a);
    EXPECT_EQ(files_.OpenText("x.tbl")->Line(0), "from a");
    EXPECT_THROW(files_.ChangeDirectory("..\\c"), FileError);
    EXPECT_EQ(files_.CurrentDirectory(), folder_.LibraryPath("a"));
}

TEST_F(PathLookupTest, MovesTheProcessOnlyWhenAsked) {
    const std::filesystem::path before = std::filesystem::current_path();
    folder_.Write("sub/x.tbl", "");
    files_.ChangeDirectory("sub");
    EXPECT_EQ(std::filesystem::current_path(), before);
    files_.SyncProcessDirectory();
    EXPECT_EQ(std::filesystem::current_path(), folder_.Path("sub"));
    EXPECT_EQ(LinuxFileSystem().CurrentDirectory(), folder_.LibraryPath("sub"));
    std::filesystem::current_path(before);
}

TEST_F(PathLookupTest, ResolvesEveryNameOfABigFolder) {
    constexpr int kNames = 10'000;
    for (int i = 0; i < kNames; ++i) {
        folder_.Write("big/table" + std::to_string(i) + ".tbl", "");
    }
    files_.ChangeDirectory("big");
    int found = 0;
    for (int i = 0; i < kNames; ++i) {
        found += files_.FileExists("TABLE" + std::to_string(i) + ".TBL") ? 1 : 0;
    }
    EXPECT_EQ(found, kNames);
}

}  // namespace
}  // namespace quenloft
