#include "shell/recovery/recovery_folder.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/linux/atomic_file.h"
#include "platform/linux/file_descriptor.h"
#include "platform/linux/file_failure.h"

namespace quenloft {
namespace {

constexpr mode_t kUserOnlyFolder = 0700;
constexpr mode_t kUserOnlyFile = 0600;

[[noreturn]] void Fail(const std::string& path) { throw CouldNotBeSaved(errno, path); }

void MakeFolders(const std::string& path) {
    for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string part = path.substr(0, slash);
        if (mkdir(part.c_str(), kUserOnlyFolder) != 0 && errno != EEXIST) {
            Fail(part);
        }
        if (slash == path.npos) {
            return;
        }
    }
}

}  // namespace

RecoveryFolder::RecoveryFolder(std::string parent) : parent_(std::move(parent)) {}

RecoveryFolder::~RecoveryFolder() {
    if (!folder_.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
}

void RecoveryFolder::Keep(int number, const KeptText& kept) {
    if (folder_.empty()) {
        Make();
    }
    WriteFileAtomically(FileOf(number), BytesOfKept(kept), kUserOnlyFile);
}

void RecoveryFolder::Remove(int number) {
    if (!folder_.empty()) {
        std::error_code ignored;
        std::filesystem::remove(FileOf(number), ignored);
    }
}

// Under a hidden name until it is locked: nobody finds it without an owner.
void RecoveryFolder::Make() {
    if (parent_.empty()) {
        throw FileError(FileError::Kind::PathNotFound, "There is no home folder");
    }
    MakeFolders(parent_);
    constexpr std::string_view kHidden = ".new-";
    std::string hidden = parent_ + "/" + std::string(kHidden) + "XXXXXX";
    if (mkdtemp(hidden.data()) == nullptr) {
        Fail(parent_);
    }
    const std::string lockName = hidden + "/" + kLockName;
    auto lock = std::make_unique<FileDescriptor>(
        open(lockName.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kUserOnlyFile));
    std::string folder = hidden;
    folder.erase(parent_.size() + 1, kHidden.size());
    if (!lock->IsOpen() || flock(lock->Number(), LOCK_EX | LOCK_NB) != 0 ||
        rename(hidden.c_str(), folder.c_str()) != 0) {
        const int error = errno;
        std::error_code ignored;
        std::filesystem::remove_all(hidden, ignored);
        errno = error;
        Fail(parent_);
    }
    lock_ = std::move(lock);
    folder_ = std::move(folder);
}

std::string RecoveryFolder::FileOf(int number) const {
    return folder_ + "/" + std::to_string(number) + kKeptSuffix;
}

}  // namespace quenloft
