// How a library's spelling finds a file on a disk that minds case, bytes and missing folders.
#include <gtest/gtest.h>
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

TEST_F(PathLookupTest, FindsAFileHoweverItIsSpelled) {
    for (const char* name :
         {"Names.tbl", "sub/Deep.tbl", "sub/lower/x.tbl", "\xC3\x84rger.tbl", "byte\xE9.tbl",
          "back\\slash.tbl", "dots./in.tbl", " lead.tbl", "x."}) {
        folder_.Write(name, "");
    }
    std::filesystem::create_symlink(folder_.Path("sub"), folder_.Path("link"));
    const struct {
        const char* how;
        const char* asked;
        const char* found;  ///< Below the folder, as the library path shows it.
    } cases[] = {
        {"exactly", "Names.tbl", "\\Names.tbl"},
        {"with case differing in folders", "SUB\\LOWER\\X.tbl", "\\sub\\lower\\x.tbl"},
        {"with repeated separators", "sub\\\\/lower//x.tbl", "\\sub\\lower\\x.tbl"},
        {"through a missing folder", "nosub\\..\\names.tbl", "\\Names.tbl"},
        {"through the folder itself", ".\\sub\\.\\..\\Names.tbl", "\\Names.tbl"},
        {"through a link whose parent is in the text", "link\\..\\Names.tbl", "\\Names.tbl"},
        {"through a link", "LINK\\deep.tbl", "\\link\\Deep.tbl"},
        {"with trailing dots and blanks", "names.tbl. .", "\\Names.tbl"},
        {"that ends in a dot on disk", "X", "\\x."},
        {"in a folder that ends in a dot", "DOTS.\\in.tbl", "\\dots.\\in.tbl"},
        {"with a leading blank", " LEAD.tbl", "\\ lead.tbl"},
        {"with accents in another case", "\xC3\xA4RGER.TBL", "\\\xC3\x84rger.tbl"},
        {"whose bytes are not utf8 in another case", "BYTE\xC3\x89.TBL", "\\byte\xC3\xA9.tbl"},
        {"with a backslash on disk", "BACK\xEF\x81\x9CSLASH.tbl", "\\back\xEF\x81\x9Cslash.tbl"}};
    for (const auto& [how, asked, found] : cases) {
        SCOPED_TRACE(how);
        ASSERT_TRUE(files_.FileExists(asked));
        EXPECT_EQ(files_.AbsolutePath(asked), folder_.LibraryPath() + found);
        // What the port shows must lead back to the same file, in both notations.
        EXPECT_TRUE(files_.FileExists(files_.AbsolutePath(asked)));
        EXPECT_TRUE(files_.FileExists(files_.NativePath(asked)));
        EXPECT_EQ(files_.OpenText(asked)->Path(), folder_.LibraryPath() + found);
    }
}

TEST_F(PathLookupTest, DoesNotFindWhatOnlyLooksLikeIt) {
    folder_.Write("x.tbl", "");
    const std::string withNul("x.tbl\0.txt", 10);
    for (const std::string& asked :
         std::vector<std::string>{" x.tbl", "x", "x.tbl\\y", "C:\\x.tbl", "C:x.tbl", withNul,
                                  std::string(5000, 'x'), "*.tbl"}) {
        EXPECT_FALSE(files_.FileExists(asked)) << asked;
    }
}

TEST_F(PathLookupTest, TakesTheFirstInByteOrderOfSeveralSpellings) {
    for (const char* name : {"name.tbl", "NaMe.tbl", "Name.tbl", "\xE9.tbl", "\xC3\xA9.tbl"}) {
        folder_.Write(name, name);
    }
    EXPECT_EQ(files_.OpenText("NAME.TBL")->Line(0), "NaMe.tbl");
    EXPECT_EQ(files_.OpenText("name.tbl")->Line(0), "name.tbl");
    EXPECT_EQ(files_.OpenText("\xC3\xA9.tbl")->Line(0), "\xC3\xA9.tbl") << "the exact bytes";
}

TEST_F(PathLookupTest, StopsAtTheRoot) {
    EXPECT_EQ(files_.AbsolutePath("..\\..\\..\\..\\..\\..\\..\\..\\"), "Z:\\");
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

}  // namespace
}  // namespace quenloft
