#include "platform/linux/file_stamp.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

TEST(FileStampTest, AFileChangedAMomentAgoProvesNothing) {
    const TempFolder folder;
    const std::string path = folder.Write("x.tbl", "one");
    const FileStamp stamp = StampOf(path);
    EXPECT_FALSE(stamp.Proves(stamp));
}

TEST(FileStampTest, EveryDifferenceCounts) {
    FileStamp old;
    old.kind = FileStamp::Kind::File;
    old.isSettled = true;
    EXPECT_TRUE(old.Proves(old));

    const std::function<void(FileStamp&)> changes[] = {
        [](FileStamp& s) { s.kind = FileStamp::Kind::Folder; },
        [](FileStamp& s) { s.device = 1; },
        [](FileStamp& s) { s.inode = 1; },
        [](FileStamp& s) { s.size = 1; },
        [](FileStamp& s) { s.modifiedSeconds = 1; },
        [](FileStamp& s) { s.modifiedNanoseconds = 1; },
        [](FileStamp& s) { s.changedSeconds = 1; },
        [](FileStamp& s) { s.changedNanoseconds = 1; },
    };
    for (const auto& change : changes) {
        FileStamp now = old;
        change(now);
        EXPECT_FALSE(old.Proves(now)) << "change " << &change - changes;
    }
}

TEST(FileStampTest, AFileThatHasRestedIsKnownByItsStamp) {
    // Installed long before this test began.
    const FileStamp stamp = StampOf("/usr");
    EXPECT_EQ(stamp.kind, FileStamp::Kind::Folder);
    EXPECT_TRUE(stamp.Proves(StampOf("/usr")));
}

}  // namespace
}  // namespace quenloft
