// Saving must never lose what stood there before.
#include "platform/linux/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_system.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

namespace fs = std::filesystem;

struct stat DataOf(const std::string& path) {
    struct stat data {};
    EXPECT_EQ(stat(path.c_str(), &data), 0);
    return data;
}

std::string SentenceOf(const std::string& path, std::string_view bytes) {
    try {
        WriteFileAtomically(path, bytes);
    } catch (const FileError& error) {
        return error.what();
    }
    return "saved";
}

TEST(AtomicFileTest, NamesTheFileAndTheReason) {
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    fs::create_symlink("loop", folder.Path("loop"));
    const std::pair<std::string, const char*> cases[] = {
        {"none/x.tbl", "No such file or directory"},
        {"sub", "Is a directory"},
        {"loop", "Too many levels of symbolic links"},
        {std::string(300, 'x'), "File name too long"},
    };
    for (const auto& [name, reason] : cases) {
        EXPECT_EQ(SentenceOf(folder.Path(name), ""),
                  folder.Path(name) + " could not be saved: " + reason);
    }
    EXPECT_EQ(SentenceOf("/dev/null", ""), "/dev/null is not a regular file");
}

TEST(AtomicFileTest, KeepsOwnerAndPermissionsAndObeysTheMaskForNewFiles) {
    const TempFolder folder;
    const std::string path = folder.Write("x.tbl", "old");
    const bool mayGive = chown(path.c_str(), 12345, 23456) == 0;  // The superuser may.
    for (const mode_t mode : {0600, 0640, 0666, 04750}) {
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        WriteFileAtomically(path, "new");
        EXPECT_EQ(DataOf(path).st_mode & 07777, mode);
    }
    EXPECT_EQ(DataOf(path).st_uid, mayGive ? 12345U : geteuid());
    EXPECT_EQ(DataOf(path).st_gid, mayGive ? 23456U : getegid());
    const mode_t oldMask = umask(027);
    WriteFileAtomically(folder.Path("fresh.tbl"), "");
    umask(oldMask);
    EXPECT_EQ(DataOf(folder.Path("fresh.tbl")).st_mode & 07777, 0640U);
}

TEST(AtomicFileTest, WritesThroughLinksAndKeepsThem) {
    const TempFolder folder;
    folder.Write("store/target.tbl", "old");
    fs::create_symlink("store/target.tbl", folder.Path("inner.tbl"));
    fs::create_symlink(folder.Path("inner.tbl"), folder.Path("outer.tbl"));
    fs::create_symlink("store/fresh.tbl", folder.Path("loose.tbl"));
    WriteFileAtomically(folder.Path("outer.tbl"), "new");
    WriteFileAtomically(folder.Path("loose.tbl"), "made");
    EXPECT_EQ(folder.Read("store/target.tbl"), "new");
    EXPECT_EQ(folder.Read("store/fresh.tbl"), "made");
    for (const char* link : {"inner.tbl", "outer.tbl", "loose.tbl"}) {
        EXPECT_TRUE(fs::is_symlink(folder.Path(link))) << link;
    }
}

}  // namespace
}  // namespace quenloft
