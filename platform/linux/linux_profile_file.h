// Settings in a file of the disk. The rules of the text are in profile_text.h; this class knows
// where the program's own profile lies and saves without loss.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/profile_file.h"

namespace quenloft {

class LinuxProfileFile : public ProfileFile {
  public:
    /// `executablePath` is the absolute native path of the running program; `configurationFolder`
    /// is the user's folder for this program's settings, made when it is first written to.
    /// `tellFailure` is given a sentence, without its stop, for each write that failed.
    LinuxProfileFile(
        FileSystem& files, std::string executablePath, std::string configurationFolder,
        std::function<void(const std::string& sentence)> tellFailure = [](const std::string&) {});

    std::string GetProfileFileName() override;
    std::string GetApplicationBaseName() override;
    std::string ReadProfileString(std::string_view section, std::string_view key,
                                  std::string_view defaultValue, std::string_view file) override;
    bool WriteProfileStrings(std::span<const ProfileEntry> entries, std::string_view file) override;
    std::string ReadProfileKeyList(std::string_view file, std::string_view section) override;

  private:
    /// Not where the program is installed for all, even where the user may write there.
    bool LiesBesideExecutable() const;
    /// The file's bytes as they are now; none where it cannot be read.
    std::string ReadOrNothing(std::string_view file);
    /// The file's bytes; none where there is no such file yet. Throws FileError.
    std::string ReadToChange(std::string_view file);
    /// `bytes` with the entries. Throws FileError where a profile cannot hold one of them.
    std::string WithEntries(std::string bytes, std::span<const ProfileEntry> entries,
                            std::string_view file);
    void MakeFolderFor(std::string_view file);

    FileSystem& files_;
    std::string executablePath_;
    std::string configurationFolder_;
    std::function<void(const std::string& sentence)> tellFailure_;
};

}  // namespace quenloft
