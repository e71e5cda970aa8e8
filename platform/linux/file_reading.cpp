#include "platform/linux/file_reading.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/linux/file_failure.h"
#include "platform/linux/path_translation.h"

namespace quenloft {

namespace {

/// Nobody's table or script comes near it; a disk image chosen by mistake must not fill the memory.
constexpr std::size_t kLargestFile = std::size_t{1} << 30;
constexpr std::size_t kBlock = std::size_t{1} << 16;

void RefuseUnlessRegular(const struct stat& data, const std::string& diskPath) {
    if (S_ISDIR(data.st_mode)) {
        throw IsAFolder(ShownNativePath(diskPath));
    }
    if (!S_ISREG(data.st_mode)) {
        throw IsNoRegularFile(ShownNativePath(diskPath));
    }
}

void RefuseTooLarge(std::size_t size, const std::string& diskPath) {
    if (size > kLargestFile) {
        throw SystemRefused(EFBIG, ShownNativePath(diskPath));
    }
}

}  // namespace

FileDescriptor OpenForReading(const std::string& diskPath) {
    struct stat data {};
    // Looked at before as well as after: opening some devices does something already.
    if (stat(diskPath.c_str(), &data) != 0) {
        throw SystemRefused(errno, ShownNativePath(diskPath));
    }
    RefuseUnlessRegular(data, diskPath);
    FileDescriptor file(open(diskPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.IsOpen() || fstat(file.Number(), &data) != 0) {
        throw SystemRefused(errno, ShownNativePath(diskPath));
    }
    RefuseUnlessRegular(data, diskPath);
    return file;
}

std::size_t ReadSome(int file, char* buffer, std::size_t size, const std::string& diskPath) {
    while (true) {
        const ssize_t count = read(file, buffer, size);
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR) {
            throw SystemRefused(errno, ShownNativePath(diskPath));
        }
    }
}

std::string ReadToEnd(int file, const std::string& diskPath) {
    struct stat data {};
    std::string bytes;
    if (fstat(file, &data) == 0 && data.st_size > 0) {
        const auto expected = static_cast<std::size_t>(data.st_size);
        RefuseTooLarge(expected, diskPath);
        // One byte more than expected, so that the end is seen without growing.
        bytes.resize(expected + 1);
    }
    std::size_t length = 0;
    while (true) {
        RefuseTooLarge(length, diskPath);
        if (length == bytes.size()) {
            bytes.resize(length + std::max(kBlock, length / 2));
        }
        const std::size_t count =
            ReadSome(file, bytes.data() + length, bytes.size() - length, diskPath);
        if (count == 0) {
            break;
        }
        length += count;
    }
    bytes.resize(length);
    return bytes;
}

}  // namespace quenloft
