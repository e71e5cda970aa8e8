// From a path as it is spelled in a library to the place on disk that it names, remembered: within
// one look a path that was asked for before costs one look-up in a table and no system call.
#pragma once

#include <cstdint>
#include <deque>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/file_system.h"
#include "platform/linux/change_watch.h"
#include "platform/linux/file_stamp.h"
#include "platform/linux/folder_index.h"
#include "platform/linux/path_translation.h"
#include "platform/linux/text_cache.h"

namespace quenloft {

inline constexpr FolderId kNoFolder = std::numeric_limits<FolderId>::max();

/// What a path names, as it was seen in the present look.
struct Place {
    /// The path on disk; where nothing is there, the one that it would get.
    std::string diskPath;
    char drive = kRootDrive;
    /// Its kind and, where it is missing, the reason.
    FileStamp stamp;
    /// The folder that it would be in exists. Known only where it is missing itself.
    bool hasParent = false;
    /// Itself, where it is a folder.
    FolderId folder = kNoFolder;
    /// Its text, once that was opened.
    TextCache::Slot* text = nullptr;

    bool IsFile() const { return stamp.kind == FileStamp::Kind::File; }
    bool IsFolder() const { return stamp.kind == FileStamp::Kind::Folder; }
    bool IsMissing() const { return stamp.kind == FileStamp::Kind::Missing; }

  private:
    friend class PathFinder;
    std::uint64_t look_ = 0;
    /// Found under exactly the asked spelling: nothing else can ever be meant by it.
    bool isExact_ = false;
    /// The folder whose index decided otherwise, and its version then; kNoFolder where more than
    /// one folder was asked.
    FolderId decidedBy_ = kNoFolder;
    std::uint64_t indexVersion_ = 0;
    std::string libraryPath_;
};

class PathFinder {
  public:
    PathFinder();

    /// What `path` names, seen from `base`. Never fails. Valid until the next call.
    Place& Find(FolderId base, std::string_view path) {
        auto& memo = folders_[base].memo;
        const auto found = memo.find(path);
        if (found != memo.end() && found->second.look_ == look_) {
            return found->second;
        }
        return FindAnew(base, path);
    }
    /// The library path of `place`, made at the first call.
    const std::string& LibraryPath(Place& place);

    /// From now on everything is looked at anew, at its next use.
    void LookAgain() {
        if (watch_.MayHaveChanged()) {
            ++look_;
        }
    }
    /// The same where this program itself has changed something.
    void LookAgainAtOnce() { ++look_; }
    std::uint64_t Look() const { return look_; }

    /// The number of the folder at an absolute path on disk, which need not exist any more.
    FolderId NumberOf(const std::string& diskPath);
    bool Knows(FolderId folder) const { return folder < folders_.size(); }
    const std::string& DiskPath(FolderId folder) const { return folders_[folder].diskPath; }
    const std::string& LibraryPath(FolderId folder) const { return folders_[folder].libraryPath; }

  private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>()(text);
        }
    };
    struct Folder {
        std::string diskPath;
        std::string libraryPath;
        FolderIndex index;
        /// By the path as it was asked for from here.
        std::unordered_map<std::string, Place, TextHash, std::equal_to<>> memo;
    };

    Place& FindAnew(FolderId base, std::string_view path);
    /// One `stat`, or none, where that is enough to know that `place` still holds.
    bool StillHolds(Place& place);
    Place Resolve(FolderId base, std::string_view path);
    Place ResolveNames(FolderId folder, const PathParts& parts);
    /// The one name in one folder; looks at the exact spelling only where `tryExact`.
    Place ResolveName(FolderId folder, std::string_view name, bool tryExact);
    void ForgetMemos();

    ChangeWatch watch_;
    std::deque<Folder> folders_;
    std::unordered_map<std::string, FolderId> numbers_;
    std::uint64_t look_ = 1;
    std::size_t memoCount_ = 0;
};

}  // namespace quenloft
