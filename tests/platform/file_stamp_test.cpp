#include "platform/linux/file_stamp.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

TEST(FileStampTest, ProvesOnlyWhatHasRested) {
    const TempFolder folder;
    const FileStamp fresh = StampOf(folder.Write("x.tbl", "one"));
    EXPECT_FALSE(fresh.Proves(fresh)) << "changed a moment ago";
    // Installed long before this test began.
    EXPECT_TRUE(StampOf("/usr").Proves(StampOf("/usr")));
}

TEST(FileStampTest, EveryDifferenceCounts) {
    FileStamp old;
    old.kind = FileStamp::Kind::File;
    old.isSettled = true;
    EXPECT_TRUE(old.Proves(old));
    void (*changes[])(FileStamp&) = {
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

}  // namespace
}  // namespace quenloft
