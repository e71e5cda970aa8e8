#include "platform/linux/change_watch.h"

#include <array>
#include <cerrno>
#include <sys/inotify.h>
#include <sys/vfs.h>
#include <time.h>
#include <unistd.h>

namespace quenloft {

namespace {

/// Shorter than the time between two clicks of a hand, so each click looks at the disk itself.
constexpr std::int64_t kTrustedNanoseconds = 30'000'000;
/// The kernel's usual bound for one user is 8,192 and more; other programs need theirs too.
constexpr std::size_t kMostFolders = 1024;

/// Kinds of file systems whose files other machines change without the kernel's knowledge
/// (statfs(2)): NFS, SMB, SMB2, CIFS, 9P, FUSE, Ceph, AFS, Coda.
constexpr std::array<std::uint32_t, 9> kShared = {0x6969,     0x517B,     0xFE534D42,
                                                  0xFF534D42, 0x01021997, 0x65735546,
                                                  0x00C36400, 0x5346414F, 0x73757245};

bool IsShared(const std::string& path) {
    struct statfs data {};
    if (statfs(path.c_str(), &data) != 0) {
        return true;
    }
    const auto type = static_cast<std::uint32_t>(data.f_type);
    for (const std::uint32_t shared : kShared) {
        if (type == shared) {
            return true;
        }
    }
    return false;
}

std::int64_t Now() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return now.tv_sec * std::int64_t{1'000'000'000} + now.tv_nsec;
}

}  // namespace

ChangeWatch::ChangeWatch() : inotify_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    isBlind_ = inotify_ < 0;
}

ChangeWatch::~ChangeWatch() {
    if (inotify_ >= 0) {
        close(inotify_);
    }
}

void ChangeWatch::Watch(const std::string& folderDiskPath) {
    if (isBlind_ || !watched_.insert(folderDiskPath).second) {
        return;
    }
    constexpr std::uint32_t kChanges = IN_MODIFY | IN_ATTRIB | IN_CREATE | IN_DELETE |
                                       IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF |
                                       IN_ONLYDIR;
    if (inotify_add_watch(inotify_, folderDiskPath.c_str(), kChanges) < 0) {
        // A folder that is not there yet may be watched when it is.
        isBlind_ = errno != ENOENT && errno != ENOTDIR;
        watched_.erase(folderDiskPath);
        return;
    }
    isBlind_ = watched_.size() > kMostFolders || IsShared(folderDiskPath);
    trustedUntil_ = 0;  // What happened between the look at the file and this call is not known.
}

bool ChangeWatch::MayHaveChanged() {
    const std::int64_t now = Now();
    if (!HasEvents() && !isBlind_ && now < trustedUntil_) {
        return false;
    }
    trustedUntil_ = now + kTrustedNanoseconds;
    return true;
}

/// Takes all events that are waiting; which they are does not matter, unless a watch is lost by
/// one.
bool ChangeWatch::HasEvents() {
    constexpr std::uint32_t kWatchLost = IN_IGNORED | IN_MOVE_SELF | IN_UNMOUNT;
    alignas(inotify_event) std::array<char, 4096> events;
    bool any = false;
    ssize_t length = 0;
    while (inotify_ >= 0 && (length = read(inotify_, events.data(), events.size())) > 0) {
        any = true;
        for (ssize_t i = 0; i < length;) {
            const auto* event = reinterpret_cast<const inotify_event*>(events.data() + i);
            isBlind_ = isBlind_ || (event->mask & kWatchLost) != 0;
            i += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
    }
    return any;
}

}  // namespace quenloft
