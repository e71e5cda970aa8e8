#include "platform/linux/atomic_file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <limits.h>
#include <optional>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/file_descriptor.h"
#include "platform/linux/file_failure.h"
#include "platform/linux/path_translation.h"

namespace quenloft {

namespace {

/// As many links as the kernel itself follows.
constexpr int kMostLinks = 40;
constexpr int kMostNames = 100;
constexpr mode_t kPermissionBits = 07777;

/// Throws the failure of the system call that was made last.
[[noreturn]] void Fail(const std::string& path, int error = errno) {
    throw CouldNotBeSaved(error, ShownNativePath(path));
}

/// The folder of a path, which may be relative.
std::string FolderOf(const std::string& path) {
    return path.find('/') == std::string::npos ? "." : ParentPath(path);
}

std::string ReadLink(const std::string& link) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(link.c_str(), target.data(), target.size());
    if (length < 0) {
        Fail(link);
    }
    return {target.data(), static_cast<std::size_t>(length)};
}

/// Where the file really lies: the end of the chain of links, which need not exist yet.
std::string FollowLinks(const std::string& path) {
    std::string place = path;
    for (int links = 0; links <= kMostLinks; ++links) {
        struct stat data {};
        if (lstat(place.c_str(), &data) != 0) {
            if (errno == ENOENT) {
                return place;
            }
            Fail(path);
        }
        if (!S_ISLNK(data.st_mode)) {
            return place;
        }
        const std::string target = ReadLink(place);
        place = target.starts_with('/') ? target : JoinPath(FolderOf(place), target);
    }
    Fail(path, ELOOP);
}

/// What is known of the file to be replaced; nothing where there is none yet.
std::optional<struct stat> LookAtOldFile(const std::string& place, const std::string& path) {
    struct stat data {};
    if (stat(place.c_str(), &data) != 0) {
        if (errno == ENOENT) {
            return std::nullopt;
        }
        Fail(path);
    }
    if (S_ISDIR(data.st_mode)) {
        Fail(path, EISDIR);
    }
    if (!S_ISREG(data.st_mode)) {
        throw IsNoRegularFile(ShownNativePath(path));
    }
    // A rename asks for the folder's permission only: the file's own must be honoured here.
    if (faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0) {
        Fail(path);
    }
    return data;
}

/// The temporary file: gone at the end of the scope unless it took the old one's place.
class TemporaryFile {
  public:
    TemporaryFile(const std::string& folder, mode_t mode) : file_(Create(folder, mode)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (isThere_) {
            unlink(name_.c_str());
        }
    }

    bool IsOpen() const { return file_.IsOpen(); }
    bool Write(std::string_view bytes);
    void TakeOverOwnerAndMode(const struct stat& old);
    bool Flush() { return fsync(file_.Number()) == 0 || errno == EINVAL; }
    bool Close() { return file_.Close() == 0; }
    bool Replace(const std::string& place) {
        isThere_ = rename(name_.c_str(), place.c_str()) != 0;
        return !isThere_;
    }

  private:
    FileDescriptor Create(const std::string& folder, mode_t mode);

    std::string name_;
    bool isThere_ = false;
    FileDescriptor file_;
};

FileDescriptor TemporaryFile::Create(const std::string& folder, mode_t mode) {
    std::random_device random;
    for (int attempt = 0; attempt < kMostNames; ++attempt) {
        name_ = JoinPath(folder, ".quenloft-" + std::to_string(random()));
        const int number = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        isThere_ = number >= 0;
        if (isThere_ || errno != EEXIST) {
            return FileDescriptor(number);
        }
    }
    return FileDescriptor(-1);
}

bool TemporaryFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file_.Number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return false;
        }
        if (count == 0) {
            errno = EIO;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// Only the superuser may give files away, and a group may be one that the user has left: then the
// file is the user's own. Another group must not get the rights that the old one had.
void TemporaryFile::TakeOverOwnerAndMode(const struct stat& old) {
    mode_t mode = old.st_mode & kPermissionBits;
    const int file = file_.Number();
    if (fchown(file, old.st_uid, old.st_gid) != 0) {
        mode &= ~mode_t{S_ISUID};
        if (fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
            mode &= ~mode_t{S_ISGID | S_IRWXG};
            mode |= (mode & S_IRWXO) << 3;
        }
    }
    static_cast<void>(fchmod(file, mode));
}

/// Makes the rename itself last through a power failure.
void FlushFolder(const std::string& folder, const std::string& path) {
    FileDescriptor file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder may be open for writing but not for reading; then there is no way to flush it.
    if (file.IsOpen() && fsync(file.Number()) != 0 && errno != EINVAL) {
        throw MayNotLast(errno, ShownNativePath(path));
    }
}

}  // namespace

void WriteFileAtomically(const std::string& nativePath, std::string_view bytes, mode_t newMode) {
    const std::string place = FollowLinks(nativePath);
    const std::string folder = FolderOf(place);
    const std::optional<struct stat> old = LookAtOldFile(place, nativePath);
    TemporaryFile file(folder, old ? S_IRUSR | S_IWUSR : newMode);
    if (!file.IsOpen() || !file.Write(bytes)) {
        Fail(nativePath);
    }
    if (old) {
        file.TakeOverOwnerAndMode(*old);
    }
    if (!file.Flush() || !file.Close() || !file.Replace(place)) {
        Fail(nativePath);
    }
    FlushFolder(folder, nativePath);
}

}  // namespace quenloft
