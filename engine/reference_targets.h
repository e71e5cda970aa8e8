// The file that a reference names, worked out once for each spelling and folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/text_helpers.h"
#include "engine/text_map.h"
#include "platform/file_system.h"

namespace quenloft {

/// A table or script by its path, taken apart. Never changes: a run may still use it while the file
/// that its reference names has become another.
struct ReferenceTarget {
    explicit ReferenceTarget(std::string spelledPath);

    std::string_view Folder() const { return std::string_view(path).substr(0, folderLength); }

    std::string path;          ///< As spelled in the reference, with the extension that was found.
    std::string fileName;      ///< What is opened in the folder of the path.
    std::size_t folderLength;  ///< Of DirectoryPart(path).
    bool hasDrive;
    bool isScript;
    LetterCase letterCase;
    /// The table as it stood in this look (FileSystem::Look); nothing where it is still to be
    /// opened. How long unused text is kept is the file system's affair.
    std::weak_ptr<const TextFile> text = {};
    std::uint64_t look = 0;
};

/// A path that begins with "\" is relative to the current directory; any other is returned as it
/// is.
std::string FromCurrentDirectory(const FileSystem& files, std::string_view path);

/// The library path of a file that a user named, in any form: the folder as on disk, the name as
/// the user spelled it, since the spelling chooses the case of the result.
std::string PathAsSpelled(FileSystem& files, std::string_view path);

/// Decides the extension of a referenced file: the name itself where it ends in ".tbl" or ".spt",
/// otherwise with ".tbl" where such a file exists, otherwise with ".spt" where such a file exists,
/// otherwise unchanged. Tables win over scripts of the same name.
std::string ResolveFileKind(FileSystem& files, std::string name);

class ReferenceTargets {
  public:
    explicit ReferenceTargets(FileSystem& files) : files_(files) {}

    /// What `reference` names from the current directory. Fails in nothing: a missing file is a
    /// target that cannot be opened.
    std::shared_ptr<const ReferenceTarget> Find(std::string_view reference);

  private:
    using Targets = std::unordered_map<std::string, std::shared_ptr<const ReferenceTarget>,
                                       TextHash, TextEqual>;

    std::shared_ptr<const ReferenceTarget> Resolve(std::string_view reference);

    FileSystem& files_;
    std::vector<Targets> byFolder_;  // Indexed by FolderId.
    std::size_t count_ = 0;
};

}  // namespace quenloft
