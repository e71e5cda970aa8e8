#include "platform/linux/linux_file_system.h"

#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/atomic_file.h"
#include "platform/linux/disk_line_reader.h"
#include "platform/linux/file_failure.h"
#include "platform/linux/file_reading.h"
#include "platform/linux/folder_listing.h"
#include "platform/linux/path_translation.h"

namespace quenloft {

namespace {

/// Hundreds of thousands of table lines: every library that people really use stays in memory.
constexpr std::size_t kTextBudget = std::size_t{64} << 20;

std::string ProcessDirectory() {
    const std::unique_ptr<char, void (*)(void*)> path(getcwd(nullptr, 0), std::free);
    // The kernel puts a word in front of a folder that cannot be reached from the root.
    return path && path.get()[0] == '/' ? path.get() : "/";
}

std::string ShownPath(const Place& place) {
    return place.drive == kRootDrive ? ShownNativePath(place.diskPath)
                                     : ShownLibraryPath(place.diskPath, place.drive);
}

[[noreturn]] void FailAsFolder(const Place& place) {
    if (place.IsMissing() && place.stamp.error == EACCES) {
        throw SystemRefused(EACCES, ShownPath(place));
    }
    throw PathNotFound(ShownPath(place));
}

/// The folder of something that is to be made does not exist or may not be entered.
void RequireParent(const Place& place) {
    if (!place.hasParent) {
        FailAsFolder(place);
    }
}

}  // namespace

LinuxFileSystem::LinuxFileSystem()
    : texts_(kTextBudget), current_(finder_.NumberOf(ProcessDirectory())) {}

const std::string& LinuxFileSystem::CurrentDirectory() const {
    return finder_.LibraryPath(current_);
}

void LinuxFileSystem::ChangeDirectory(std::string_view path) {
    const Place& place = Find(path);
    if (!place.IsFolder()) {
        FailAsFolder(place);
    }
    current_ = place.folder;
}

void LinuxFileSystem::SetCurrentFolder(FolderId folder) {
    if (finder_.Knows(folder)) {
        current_ = folder;
    }
}

void LinuxFileSystem::SyncProcessDirectory() {
    // A folder that was deleted meanwhile: the process stays where it is.
    static_cast<void>(chdir(finder_.DiskPath(current_).c_str()) == 0);
}

bool LinuxFileSystem::FileExists(std::string_view path) {
    const Place& place = Find(path);
    return !place.IsMissing() && !place.IsFolder();
}

bool LinuxFileSystem::FolderExists(std::string_view path) { return Find(path).IsFolder(); }

std::string LinuxFileSystem::AbsolutePath(std::string_view path) {
    return finder_.LibraryPath(Find(path));
}

std::string LinuxFileSystem::NativePath(std::string_view path) { return ShownPath(Find(path)); }

std::vector<FolderEntry> LinuxFileSystem::ListFolder(std::string_view path) {
    const Place& place = Find(path);
    if (!place.IsFolder()) {
        FailAsFolder(place);
    }
    return ListDiskFolder(place.diskPath);
}

Place& LinuxFileSystem::FindFile(std::string_view path) {
    Place& place = Find(path);
    if (place.IsMissing()) {
        throw SystemRefused(place.stamp.error, ShownPath(place));
    }
    if (place.IsFolder()) {
        throw IsAFolder(ShownPath(place));
    }
    if (!place.IsFile()) {
        throw IsNoRegularFile(ShownPath(place));
    }
    return place;
}

std::shared_ptr<const TextFile> LinuxFileSystem::OpenText(std::string_view path) {
    Place& place = FindFile(path);
    if (place.text == nullptr) {
        place.text = &texts_.SlotOf(place.diskPath);
    }
    return texts_.Open(*place.text, place.stamp, finder_.Look());
}

std::unique_ptr<LineReader> LinuxFileSystem::ReadLines(std::string_view path) {
    return std::make_unique<DiskLineReader>(FindFile(path).diskPath);
}

std::string LinuxFileSystem::ReadBytes(std::string_view path) {
    const Place& place = FindFile(path);
    const FileDescriptor file = OpenForReading(place.diskPath);
    return ReadToEnd(file.Number(), place.diskPath);
}

void LinuxFileSystem::WriteBytes(std::string_view path, std::string_view bytes) {
    finder_.LookAgainAtOnce();
    const Place& place = Find(path);
    if (place.IsFolder()) {
        throw IsAFolder(ShownPath(place));
    }
    if (place.IsMissing()) {
        RequireParent(place);
    }
    WriteFileAtomically(place.diskPath, bytes);
    finder_.LookAgainAtOnce();
}

void LinuxFileSystem::CreateFolder(std::string_view path) {
    finder_.LookAgainAtOnce();
    const Place& place = Find(path);
    if (!place.IsMissing()) {
        throw SystemRefused(EEXIST, ShownPath(place));
    }
    RequireParent(place);
    if (mkdir(place.diskPath.c_str(), 0777) != 0) {
        throw SystemRefused(errno, ShownPath(place));
    }
    finder_.LookAgainAtOnce();
}

void LinuxFileSystem::DeleteFile(std::string_view path) {
    finder_.LookAgainAtOnce();
    const Place& place = Find(path);
    if (place.IsFolder()) {
        throw IsAFolder(ShownPath(place));
    }
    // A link that leads nowhere is found by nobody, and yet it can be deleted.
    if (place.IsMissing()) {
        RequireParent(place);
    }
    if (unlink(place.diskPath.c_str()) != 0) {
        throw SystemRefused(errno, ShownPath(place));
    }
    finder_.LookAgainAtOnce();
}

}  // namespace quenloft
