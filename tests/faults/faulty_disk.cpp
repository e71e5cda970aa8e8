// Hardened headers define some of these functions inline.
#undef _FORTIFY_SOURCE
#include "tests/faults/faulty_disk.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_set>
#include <utility>

namespace quenloft {
namespace {

/// The one disk of the process: what the system's functions find has to be in one place.
struct State {
    std::mutex mutex;  // Windows read folders in threads of their own.
    bool isArmed = false;
    std::string folder;
    Fault fault{};
    int callsLeft = 0;
    bool hasStruck = false;
    /// What the next write fails with, after one that was cut short.
    int afterwards = 0;
    std::unordered_set<int> files;
};

State& Disk() {
    static auto* const state = new State;  // Files are closed after the last destructor.
    return *state;
}

enum class Verdict { Pass, Fail, Shorten };

/// With the mutex held. Sets errno on Fail.
Verdict Judge(State& disk, DiskCall call) {
    if (call == DiskCall::Write && disk.afterwards != 0) {
        errno = std::exchange(disk.afterwards, 0);
        return Verdict::Fail;
    }
    const auto& calls = disk.fault.calls;
    if (std::find(calls.begin(), calls.end(), call) == calls.end() || --disk.callsLeft != 0) {
        return Verdict::Pass;
    }
    disk.hasStruck = true;
    if (disk.fault.cutsShort) {
        disk.afterwards = call == DiskCall::Write ? disk.fault.error : 0;
        return Verdict::Shorten;
    }
    errno = disk.fault.error;
    return Verdict::Fail;
}

Verdict JudgePath(DiskCall call, const char* path) {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    const bool concerns = disk.isArmed && std::string_view(path).starts_with(disk.folder);
    return concerns ? Judge(disk, call) : Verdict::Pass;
}

Verdict JudgeFile(DiskCall call, int file) {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    return disk.isArmed && disk.files.contains(file) ? Judge(disk, call) : Verdict::Pass;
}

void Remember(int file, const char* path) {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    if (file >= 0 && disk.isArmed && std::string_view(path).starts_with(disk.folder)) {
        disk.files.insert(file);
    }
}

void Forget(int file) {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    disk.files.erase(file);
}

/// The function that this program's own one stands before.
template <typename Function>
Function* Real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Calls the function of that name, unless the disk fails.
template <typename Result, typename... Arguments>
Result Call(Verdict verdict, const char* name, Arguments... arguments) {
    return verdict == Verdict::Fail ? Result(-1) : Real<Result(Arguments...)>(name)(arguments...);
}

std::size_t Half(Verdict verdict, std::size_t size) {
    return verdict == Verdict::Shorten && size > 1 ? size / 2 : size;
}

}  // namespace

FaultyDisk::FaultyDisk(std::string folder, const Fault& fault, int number) {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    disk.folder = std::move(folder);
    disk.fault = fault;
    disk.callsLeft = number;
    disk.hasStruck = false;
    disk.afterwards = 0;
    disk.files.clear();
    disk.isArmed = true;
}

FaultyDisk::~FaultyDisk() {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    disk.isArmed = false;
}

bool FaultyDisk::HasStruck() const {
    State& disk = Disk();
    const std::lock_guard lock(disk.mutex);
    return disk.hasStruck;
}

}  // namespace quenloft

using quenloft::Call;
using quenloft::DiskCall;
using quenloft::JudgeFile;
using quenloft::JudgePath;
using quenloft::Real;
using quenloft::Verdict;

extern "C" {

int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t);
        va_end(arguments);
    }
    const DiskCall call = (flags & O_CREAT) != 0 ? DiskCall::Create : DiskCall::Open;
    const int file = JudgePath(call, path) == Verdict::Fail
                         ? -1
                         : Real<int(const char*, int, ...)>("open")(path, flags, mode);
    quenloft::Remember(file, path);
    return file;
}

DIR* opendir(const char* path) {
    static const auto real = Real<decltype(opendir)>("opendir");
    if (JudgePath(DiskCall::Open, path) == Verdict::Fail) {
        return nullptr;
    }
    DIR* folder = real(path);
    if (folder) {
        quenloft::Remember(dirfd(folder), path);
    }
    return folder;
}

dirent* readdir(DIR* folder) {
    static const auto real = Real<decltype(readdir)>("readdir");
    return JudgeFile(DiskCall::Read, dirfd(folder)) == Verdict::Fail ? nullptr : real(folder);
}

int closedir(DIR* folder) {
    static const auto real = Real<decltype(closedir)>("closedir");
    quenloft::Forget(dirfd(folder));
    return real(folder);
}

int stat(const char* path, struct stat* data) noexcept {
    return Call<int>(JudgePath(DiskCall::Look, path), "stat", path, data);
}

int lstat(const char* path, struct stat* data) noexcept {
    return Call<int>(JudgePath(DiskCall::Look, path), "lstat", path, data);
}

int fstat(int file, struct stat* data) noexcept {
    return Call<int>(JudgeFile(DiskCall::Look, file), "fstat", file, data);
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    return Call<int>(JudgePath(DiskCall::Look, path), "faccessat", folder, path, mode, flags);
}

ssize_t read(int file, void* buffer, std::size_t size) {
    const Verdict verdict = JudgeFile(DiskCall::Read, file);
    return Call<ssize_t>(verdict, "read", file, buffer, quenloft::Half(verdict, size));
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    const Verdict verdict = JudgeFile(DiskCall::Write, file);
    return Call<ssize_t>(verdict, "write", file, bytes, quenloft::Half(verdict, size));
}

int fsync(int file) { return Call<int>(JudgeFile(DiskCall::Flush, file), "fsync", file); }

int close(int file) {
    static const auto real = Real<decltype(close)>("close");
    const Verdict verdict = JudgeFile(DiskCall::Close, file);
    const int error = errno;
    quenloft::Forget(file);
    const int result = real(file);  // It is closed in any case.
    errno = verdict == Verdict::Fail ? error : errno;
    return verdict == Verdict::Fail ? -1 : result;
}

int rename(const char* from, const char* to) noexcept {
    return Call<int>(JudgePath(DiskCall::Rename, from), "rename", from, to);
}

int unlink(const char* path) noexcept {
    return Call<int>(JudgePath(DiskCall::Delete, path), "unlink", path);
}

int mkdir(const char* path, mode_t mode) noexcept {
    return Call<int>(JudgePath(DiskCall::Create, path), "mkdir", path, mode);
}

int fchown(int file, uid_t user, gid_t group) noexcept {
    return Call<int>(JudgeFile(DiskCall::Own, file), "fchown", file, user, group);
}

int fchmod(int file, mode_t mode) noexcept {
    return Call<int>(JudgeFile(DiskCall::Own, file), "fchmod", file, mode);
}

}  // extern "C"
