#include "platform/linux/file_stamp.h"

#include <cerrno>
#include <sys/stat.h>
#include <time.h>
#include <tuple>

namespace quenloft {

namespace {

constexpr std::int64_t kNanosecondsASecond = 1'000'000'000;
/// Several ticks of the slowest kernel clock (100 a second).
constexpr std::int64_t kFineTick = 50'000'000;
/// File systems that keep whole seconds keep two of them at worst.
constexpr std::int64_t kCoarseTick = 2 * kNanosecondsASecond + kFineTick;

/// True when `time` lies more than a tick before now. A time to come is never settled: the clock
/// that gave it may be another machine's.
bool LiesBack(const timespec& time, const timespec& now) {
    const std::int64_t tick = time.tv_nsec == 0 ? kCoarseTick : kFineTick;
    const std::int64_t seconds = now.tv_sec - time.tv_sec;
    if (seconds > 3) {
        return true;
    }
    return seconds >= 0 && seconds * kNanosecondsASecond + now.tv_nsec - time.tv_nsec > tick;
}

FileStamp::Kind KindOf(mode_t mode) {
    if (S_ISREG(mode)) {
        return FileStamp::Kind::File;
    }
    return S_ISDIR(mode) ? FileStamp::Kind::Folder : FileStamp::Kind::Special;
}

FileStamp FromStat(int result, const struct stat& data, const timespec& now) {
    FileStamp stamp;
    if (result != 0) {
        stamp.error = errno;
        return stamp;
    }
    stamp.kind = KindOf(data.st_mode);
    stamp.device = data.st_dev;
    stamp.inode = data.st_ino;
    stamp.size = data.st_size;
    stamp.modifiedSeconds = data.st_mtim.tv_sec;
    stamp.modifiedNanoseconds = data.st_mtim.tv_nsec;
    stamp.changedSeconds = data.st_ctim.tv_sec;
    stamp.changedNanoseconds = data.st_ctim.tv_nsec;
    stamp.isSettled = LiesBack(data.st_mtim, now) && LiesBack(data.st_ctim, now);
    return stamp;
}

/// Taken before the file is looked at: whatever happens after this moment must count as recent.
timespec Now() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now;
}

auto Identity(const FileStamp& s) {
    return std::tie(s.kind, s.device, s.inode, s.size, s.modifiedSeconds, s.modifiedNanoseconds,
                    s.changedSeconds, s.changedNanoseconds);
}

}  // namespace

bool FileStamp::Proves(const FileStamp& now) const {
    return isSettled && Identity(*this) == Identity(now);
}

FileStamp StampOf(const std::string& diskPath) {
    const timespec now = Now();
    struct stat data {};
    return FromStat(stat(diskPath.c_str(), &data), data, now);
}

FileStamp StampOf(int fileDescriptor) {
    const timespec now = Now();
    struct stat data {};
    return FromStat(fstat(fileDescriptor, &data), data, now);
}

}  // namespace quenloft
