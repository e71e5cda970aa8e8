// The port to settings in INI text with the rules of the Windows profile functions.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quenloft {

struct ProfileEntry {
    std::string section;
    std::string key;
    std::string value;
};

class ProfileFile {
  public:
    virtual ~ProfileFile() = default;

    /// Library path of the program's own profile: beside the executable, named like it, ".INI";
    /// in the user's configuration folder where the program is installed system-wide, or where the
    /// executable's folder cannot be written.
    virtual std::string GetProfileFileName() = 0;
    /// The executable's folder, a backslash and its name without extension.
    virtual std::string GetApplicationBaseName() = 0;
    /// The value of the first `key` in the first `section`, cut to 249 characters. Section and key
    /// match without regard to case; one pair of quotes around the value is cut. Where the file,
    /// the section or the key is missing: `defaultValue`, its trailing blanks cut. Never fails.
    virtual std::string ReadProfileString(std::string_view section, std::string_view key,
                                          std::string_view defaultValue, std::string_view file) = 0;
    /// Replaces the value in place, or adds key and section; everything else in the file stays as
    /// it was. Atomic. False where nothing could be written (also for an empty section or key
    /// name); the user is told why then.
    bool WriteProfileString(std::string_view section, std::string_view key, std::string_view value,
                            std::string_view file) {
        const ProfileEntry entry{std::string(section), std::string(key), std::string(value)};
        return WriteProfileStrings({&entry, 1}, file);
    }
    /// Likewise all of them or none.
    virtual bool WriteProfileStrings(std::span<const ProfileEntry> entries,
                                     std::string_view file) = 0;
    /// The key names of `section` in the file's order and spelling, each ended by NUL; a list of
    /// 1,024 characters or more is cut to 1,022.
    virtual std::string ReadProfileKeyList(std::string_view file, std::string_view section) = 0;
};

}  // namespace quenloft
