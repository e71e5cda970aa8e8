// What the system tells about a file without reading it: enough to know whether it has changed.
#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>

namespace quenloft {

struct FileStamp {
    enum class Kind { Missing, File, Folder, Special };

    Kind kind = Kind::Missing;
    /// Why nothing is known about it (an errno) where it is missing.
    int error = 0;
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;
    std::int64_t changedSeconds = 0;
    std::int64_t changedNanoseconds = 0;
    /// The last change lies so far back that any further one gives another stamp. The clock of file
    /// systems stands still for some milliseconds between its ticks, so a file that was changed a
    /// moment ago may be changed again without a trace.
    bool isSettled = false;

    /// With this stamp taken before a file was read, and `now` taken today: the file is still the
    /// same.
    bool Proves(const FileStamp& now) const;
};

/// Symbolic links are followed. Never fails: what cannot be looked at is missing.
FileStamp StampOf(const std::string& diskPath);
FileStamp StampOf(int fileDescriptor);

}  // namespace quenloft
