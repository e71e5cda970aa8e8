// Saving must never lose what stood there before.
#include "platform/linux/atomic_file.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_system.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

namespace fs = std::filesystem;

mode_t ModeOf(const std::string& path) {
    struct stat data {};
    return stat(path.c_str(), &data) == 0 ? data.st_mode & 07777 : 0;
}

std::size_t CountFiles(const TempFolder& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()));
}

std::string SentenceOf(const std::string& path, std::string_view bytes) {
    try {
        WriteFileAtomically(path, bytes);
    } catch (const FileError& error) {
        return error.what();
    }
    return "saved";
}

/// Lets no file of this process grow past some bytes, as on a disk that becomes full.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit old_{};
    void (*oldHandler_)(int);
};

TEST(AtomicFileTest, LeavesTheOldFileWhereTheDiskTakesOnlyAPart) {
    const TempFolder folder;
    const std::string path = folder.Write("x.tbl", "old");
    const std::string bytes(100'000, 'n');
    for (const rlim_t limit : {0, 1, 4096, 99'999}) {
        std::string sentence;
        {
            const FileSizeLimit full(limit);
            sentence = SentenceOf(path, bytes);
        }
        EXPECT_EQ(sentence, path + " could not be saved: File too large");
        EXPECT_EQ(folder.Read("x.tbl"), "old") << limit;
        EXPECT_EQ(CountFiles(folder), 1U) << "a temporary file was left behind";
    }
    const FileSizeLimit enough(bytes.size());
    EXPECT_EQ(SentenceOf(path, bytes), "saved");
    EXPECT_EQ(folder.Read("x.tbl"), bytes);
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

TEST(AtomicFileTest, KeepsPermissionsAndObeysTheMaskForNewFiles) {
    const TempFolder folder;
    const std::string path = folder.Write("x.tbl", "old");
    for (const mode_t mode : {0600, 0640, 0666, 0755}) {
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        WriteFileAtomically(path, "new");
        EXPECT_EQ(ModeOf(path), mode);
    }
    const mode_t oldMask = umask(027);
    WriteFileAtomically(folder.Path("fresh.tbl"), "");
    umask(oldMask);
    EXPECT_EQ(ModeOf(folder.Path("fresh.tbl")), 0640U);
}

TEST(AtomicFileTest, KeepsTheOwner) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can give a file away";
    }
    const TempFolder folder;
    const std::string path = folder.Write("x.tbl", "old");
    ASSERT_EQ(chown(path.c_str(), 12345, 23456), 0);
    ASSERT_EQ(chmod(path.c_str(), 04750), 0);
    WriteFileAtomically(path, "new");
    struct stat data {};
    ASSERT_EQ(stat(path.c_str(), &data), 0);
    EXPECT_EQ(data.st_uid, 12345U);
    EXPECT_EQ(data.st_gid, 23456U);
    EXPECT_EQ(ModeOf(path), 04750U);
}

TEST(AtomicFileTest, RefusesAFileThatMayNotBeWritten) {
    const TempFolder folder;
    const std::string path = folder.Write("x.tbl", "old");
    fs::permissions(folder.Path(), fs::perms(0777));
    fs::permissions(path, fs::perms(0444));
    const auto writeAsNobody = [&path] {
        constexpr uid_t kNobody = 65534;
        if (geteuid() == 0 && setuid(kNobody) != 0) {
            std::_Exit(1);
        }
        std::cerr << SentenceOf(path, "new");
        std::_Exit(0);
    };
    EXPECT_EXIT(writeAsNobody(), testing::ExitedWithCode(0),
                path + " could not be saved: Permission denied");
    EXPECT_EQ(folder.Read("x.tbl"), "old");
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
