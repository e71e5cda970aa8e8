// Reading, writing and refusing, as the rest of the program sees it.
#include "platform/file_system.h"

#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "platform/linux/linux_file_system.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

using Kind = FileError::Kind;

class FileSystemTest : public testing::Test {
  protected:
    void SetUp() override { files_.ChangeDirectory(folder_.Path()); }

    static void ExpectRefusal(const std::function<void()>& action, const std::string& words) {
        const Kind kind = words.starts_with("File not found")      ? Kind::FileNotFound
                          : words.starts_with("Path not found")    ? Kind::PathNotFound
                          : words.starts_with("Permission denied") ? Kind::PermissionDenied
                                                                   : Kind::Other;
        try {
            action();
            ADD_FAILURE() << "not refused: " << words;
        } catch (const FileError& error) {
            EXPECT_EQ(error.what(), words);
            EXPECT_EQ(error.GetKind(), kind) << words;
        }
    }

    TempFolder folder_;
    LinuxFileSystem files_;
};

TEST_F(FileSystemTest, NamesTheFileAndTheCauseOfEveryRefusal) {
    folder_.Write("sub/x.tbl", "");
    ASSERT_EQ(mkfifo(folder_.Path("pipe").c_str(), 0600), 0);
    const std::string at = folder_.Path() + "/";
    const std::string noFile = "File not found: " + at;
    const std::string noPath = "Path not found: " + at;
    ExpectRefusal([&] { files_.ReadLines("SUB\\no.tbl"); }, noFile + "sub/no.tbl");
    ExpectRefusal([&] { files_.DeleteFile("no.tbl"); }, noFile + "no.tbl");
    ExpectRefusal([&] { files_.ReadBytes("none\\no.tbl"); }, noPath + "none/no.tbl");
    ExpectRefusal([&] { files_.OpenText("sub\\x.tbl\\y"); }, noPath + "sub/x.tbl/y");
    ExpectRefusal([&] { files_.WriteBytes("none\\x", ""); }, noPath + "none/x");
    ExpectRefusal([&] { files_.ChangeDirectory("sub\\x.tbl"); }, noPath + "sub/x.tbl");
    ExpectRefusal([&] { files_.ListFolder("none"); }, noPath + "none");
    ExpectRefusal([&] { files_.CreateFolder("none\\a"); }, noPath + "none/a");
    ExpectRefusal([&] { files_.OpenText("c:/x"); }, "Path not found: C:\\x");
    ExpectRefusal([&] { files_.WriteBytes("C:\\x", ""); }, "Path not found: C:\\x");
    ExpectRefusal([&] { files_.CreateFolder("SUB"); }, at + "sub: File exists");
    ExpectRefusal([&] { files_.OpenText("SUB"); }, at + "sub is a folder");
    ExpectRefusal([&] { files_.WriteBytes("sub", ""); }, at + "sub is a folder");
    ExpectRefusal([&] { files_.DeleteFile("sub"); }, at + "sub is a folder");
    ExpectRefusal([&] { files_.OpenText("pipe"); }, at + "pipe is not a regular file");
    ExpectRefusal([&] { files_.WriteBytes("pipe", ""); }, at + "pipe is not a regular file");
}

TEST_F(FileSystemTest, ReportsAFileThatMayNotBeRead) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser may read everything";
    }
    std::filesystem::permissions(folder_.Write("x.tbl", ""), std::filesystem::perms::none);
    ExpectRefusal([&] { files_.OpenText("x.tbl"); }, "Permission denied: " + folder_.Path("x.tbl"));
}

TEST_F(FileSystemTest, ListsAFolderInByteOrder) {
    for (const char* name : {"b.tbl", "B.tbl", ".hidden", "\xE9.tbl", "sub/x.tbl", "a\\b"}) {
        folder_.Write(name, "");
    }
    std::filesystem::create_symlink("sub", folder_.Path("link"));
    std::filesystem::create_symlink("nowhere", folder_.Path("loose"));

    std::string listing;
    for (const FolderEntry& entry : files_.ListFolder("")) {
        listing += entry.name + (entry.isFolder ? "/" : "") + (entry.isHidden ? "?" : "") + "\n";
    }
    EXPECT_EQ(listing,
              ".hidden?\nB.tbl\na\xEF\x81\x9C"
              "b\nb.tbl\nlink/\nloose\nsub/\n\xC3\xA9.tbl\n");
}

TEST_F(FileSystemTest, KeepsTheSpellingOfTheFileThatIsWritten) {
    folder_.Write("Sub/Case.tbl", "old");
    files_.WriteBytes("SUB\\CASE.TBL", "new");
    files_.WriteBytes("sub\\Fresh.tbl. ", "fresh");

    EXPECT_EQ(folder_.Read("Sub/Case.tbl"), "new");
    EXPECT_EQ(folder_.Read("Sub/Fresh.tbl"), "fresh");
    EXPECT_EQ(files_.ListFolder("sub").size(), 2U);
}

TEST_F(FileSystemTest, SeesItsOwnChangesAtOnce) {
    EXPECT_FALSE(files_.FileExists("new\\x.tbl"));
    files_.CreateFolder("new");
    EXPECT_TRUE(files_.FolderExists("NEW"));
    files_.WriteBytes("new\\x.tbl", "one");
    EXPECT_EQ(files_.OpenText("new\\x.tbl")->Line(0), "one");
    files_.WriteBytes("new\\x.tbl", "two");
    EXPECT_EQ(files_.OpenText("new\\x.tbl")->Line(0), "two");
    files_.DeleteFile("NEW\\X.tbl");
    EXPECT_FALSE(files_.FileExists("new\\x.tbl"));
}

TEST_F(FileSystemTest, DeletesALinkAndNotWhatItLeadsTo) {
    folder_.Write("target.tbl", "kept");
    std::filesystem::create_symlink("target.tbl", folder_.Path("link.tbl"));
    std::filesystem::create_symlink("nowhere", folder_.Path("loose.tbl"));
    files_.DeleteFile("link.tbl");
    files_.DeleteFile("loose.tbl");
    EXPECT_EQ(files_.ListFolder(".").size(), 1U);
    EXPECT_EQ(folder_.Read("target.tbl"), "kept");
}

TEST_F(FileSystemTest, BelievesWhatItSawUntilItLooksAgain) {
    folder_.Write("x.tbl", "one");
    const auto first = files_.OpenText("X.TBL");
    EXPECT_FALSE(files_.FileExists("later.tbl"));
    folder_.Write("x.tbl", "other");
    folder_.Write("later.tbl", "");
    EXPECT_EQ(files_.OpenText("x.tbl").get(), first.get());
    EXPECT_FALSE(files_.FileExists("later.tbl"));

    files_.LookAgain();
    EXPECT_EQ(files_.OpenText("X.TBL")->Line(0), "other");
    EXPECT_TRUE(files_.FileExists("LATER.tbl"));
    EXPECT_EQ(first->Line(0), "one");
    const auto second = files_.OpenText("x.tbl");
    files_.LookAgain();
    EXPECT_EQ(files_.OpenText("X.tbl"), second) << "unchanged";
}

TEST_F(FileSystemTest, SeesEveryChangeWithinOneTickOfTheClock) {
    for (int i = 0; i < 500; ++i) {
        SCOPED_TRACE(i);
        const std::string content = i % 2 == 0 ? "even" : "odd!";
        folder_.Write("x.tbl", content);
        const std::string name = "name" + std::to_string(i);
        folder_.Write(name + ".tbl", "");
        files_.LookAgain();
        ASSERT_EQ(files_.OpenText("X.tbl")->Line(0), content);
        ASSERT_TRUE(files_.FileExists(name + ".TBL"));
        std::filesystem::remove(folder_.Path(name + ".tbl"));
        files_.LookAgain();
        ASSERT_FALSE(files_.FileExists(name + ".TBL"));
    }
}

TEST_F(FileSystemTest, PrefersAnExactNameThatAppearsLater) {
    folder_.Write("x.tbl", "folded");
    EXPECT_EQ(files_.OpenText("X.TBL")->Line(0), "folded");
    folder_.Write("X.TBL", "exact");
    files_.LookAgain();
    EXPECT_EQ(files_.OpenText("X.TBL")->Line(0), "exact");
}

TEST_F(FileSystemTest, SeesTheTargetOfALinkAppearInAnotherFolder) {
    folder_.Write("sub/other.tbl", "");
    std::filesystem::create_symlink(folder_.Path("sub/x.tbl"), folder_.Path("link.tbl"));
    EXPECT_FALSE(files_.FileExists("LINK.tbl"));
    folder_.Write("sub/x.tbl", "");
    files_.LookAgain();
    EXPECT_TRUE(files_.FileExists("LINK.tbl"));
}

TEST_F(FileSystemTest, SeesAFolderReplacedByAnother) {
    folder_.Write("Sub/x.tbl", "old");
    EXPECT_EQ(files_.OpenText("SUB\\X.tbl")->Line(0), "old");
    folder_.Write("fresh/x.tbl", "new");
    std::filesystem::remove_all(folder_.Path("Sub"));
    std::filesystem::rename(folder_.Path("fresh"), folder_.Path("Sub"));
    files_.LookAgain();
    EXPECT_EQ(files_.OpenText("SUB\\X.tbl")->Line(0), "new");
}

}  // namespace
}  // namespace quenloft
