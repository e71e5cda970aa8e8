// Library paths ("Z:\lib\x.tbl") taken apart, and native paths shown as text. Text only: nothing
// here looks at the disk.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

/// The drive that is the native root folder; there is no other.
inline constexpr char kRootDrive = 'Z';

struct PathParts {
    /// In upper case; kRootDrive where the path names none.
    char drive = kRootDrive;
    /// The names begin at the root, otherwise at the current folder.
    bool isFromRoot = false;
    /// How many folders above that beginning ".." leads.
    std::size_t climbs = 0;
    /// Without "." and ".."; views into the path. The last one without trailing blanks and dots.
    std::vector<std::string_view> names;
};

/// Takes a library, native or relative path apart.
PathParts SplitPath(std::string_view path);

/// Without the blanks and dots at its end; may become empty.
std::string_view CutTrailing(std::string_view name);

/// The UTF-8 text for one name on disk: other bytes are read as Windows-1252, and a "\", which is a
/// letter like any other on this system, becomes U+F05C.
std::string ShownName(std::string_view diskName);

/// "/home/u" with each of its names as above.
std::string ShownNativePath(std::string_view diskPath);
/// "Z:\home\u" for the absolute "/home/u".
std::string ShownLibraryPath(std::string_view diskPath, char drive = kRootDrive);

/// The path of `name` in `folder`.
std::string JoinPath(std::string_view folder, std::string_view name);
/// The folder part of an absolute path; "/" is its own parent.
std::string ParentPath(std::string_view path);

}  // namespace quenloft
