#include "platform/linux/linux_profile_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/linux/path_translation.h"
#include "platform/linux/profile_text.h"
#include "platform/linux/program_folders.h"

namespace quenloft {

namespace {

constexpr std::string_view kExtension = ".INI";

/// Files can be made and replaced in the folder. A disk that fails refuses nothing: the settings
/// stay where they are, and writing them tells.
bool CanBeWrittenTo(const std::string& folder) {
    return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0 || errno == EIO;
}

std::string CutToValue(std::string_view text) {
    return std::string(FirstCharacters(text.substr(0, text.find('\0')), kLongestValue));
}

}  // namespace

LinuxProfileFile::LinuxProfileFile(FileSystem& files, std::string executablePath,
                                   std::string configurationFolder,
                                   std::function<void(const std::string& sentence)> tellFailure)
    : files_(files),
      executablePath_(std::move(executablePath)),
      configurationFolder_(std::move(configurationFolder)),
      tellFailure_(std::move(tellFailure)) {}

std::string LinuxProfileFile::GetApplicationBaseName() {
    const std::filesystem::path executable(executablePath_);
    return ShownLibraryPath(
        JoinPath(executable.parent_path().string(), executable.stem().string()));
}

std::string LinuxProfileFile::GetProfileFileName() {
    const std::filesystem::path executable(executablePath_);
    if (LiesBesideExecutable()) {
        return GetApplicationBaseName() + std::string(kExtension);
    }
    const std::string name = executable.stem().string() + std::string(kExtension);
    return ShownLibraryPath(JoinPath(configurationFolder_, name));
}

bool LinuxProfileFile::LiesBesideExecutable() const {
    return SharedFolder(executablePath_).empty() && CanBeWrittenTo(ParentPath(executablePath_));
}

std::string LinuxProfileFile::ReadOrNothing(std::string_view file) {
    // Settings may be edited by hand at any time; nothing remembered about the file counts.
    files_.LookAgain();
    try {
        return files_.ReadBytes(file);
    } catch (const FileError&) {
        return {};
    }
}

std::string LinuxProfileFile::ReadProfileString(std::string_view section, std::string_view key,
                                                std::string_view defaultValue,
                                                std::string_view file) {
    const std::optional<std::string> value = FindProfileValue(ReadOrNothing(file), section, key);
    if (value) {
        return CutToValue(*value);
    }
    return CutToValue(defaultValue.substr(0, defaultValue.find_last_not_of(' ') + 1));
}

std::string LinuxProfileFile::ReadProfileKeyList(std::string_view file, std::string_view section) {
    std::string keys = ListProfileKeys(ReadOrNothing(file), section);
    if (FirstCharacters(keys, kLongestKeyList).size() == keys.size()) {
        return keys;
    }
    return std::string(FirstCharacters(keys, kCutKeyList));
}

bool LinuxProfileFile::WriteProfileStrings(std::span<const ProfileEntry> entries,
                                           std::string_view file) {
    if (entries.empty()) {
        return true;
    }
    files_.LookAgain();
    try {
        const std::string bytes = ReadToChange(file);
        const std::string changed = WithEntries(bytes, entries, file);
        // The windows write all their settings when they close: most of them are as they were.
        if (changed != bytes) {
            files_.WriteBytes(file, changed);
        }
        return true;
    } catch (const FileError& error) {
        tellFailure_(error.what());
        return false;
    }
}

std::string LinuxProfileFile::ReadToChange(std::string_view file) {
    try {
        return files_.ReadBytes(file);
    } catch (const FileError& error) {
        // A file that is there but cannot be read must not be taken for an empty one.
        if (error.GetKind() != FileError::Kind::FileNotFound &&
            error.GetKind() != FileError::Kind::PathNotFound) {
            throw;
        }
    }
    MakeFolderFor(file);
    return {};
}

std::string LinuxProfileFile::WithEntries(std::string bytes, std::span<const ProfileEntry> entries,
                                          std::string_view file) {
    for (const ProfileEntry& entry : entries) {
        auto changed = ReplaceProfileValue(bytes, entry.section, entry.key, entry.value);
        if (!changed) {
            throw FileError(FileError::Kind::Other, files_.NativePath(file) +
                                                        " cannot hold the setting \"" + entry.key +
                                                        "\" with this value");
        }
        bytes = std::move(*changed);
    }
    return bytes;
}

/// The configuration folder does not exist before the program's first settings do.
void LinuxProfileFile::MakeFolderFor(std::string_view file) {
    if (file == GetProfileFileName() && !LiesBesideExecutable()) {
        std::error_code ignored;  // Writing the file fails then.
        std::filesystem::create_directories(configurationFolder_, ignored);
        files_.LookAgain();
    }
}

}  // namespace quenloft
