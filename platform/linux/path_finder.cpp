#include "platform/linux/path_finder.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/text_encoding.h"

namespace quenloft {

namespace {

/// Paths made up by scripts must not fill the memory; no library has so many files.
constexpr std::size_t kMostMemos = 100'000;

void AppendNames(Place& place, const PathParts& parts, std::size_t firstName) {
    for (std::size_t i = firstName; i < parts.names.size(); ++i) {
        place.diskPath = JoinPath(place.diskPath, DecodeText(parts.names[i]));
    }
}

/// For the system the name would end in its middle.
bool IsImpossible(std::string_view name) { return name.find('\0') != std::string_view::npos; }

Place MissingPlace(std::string diskPath, int error) {
    Place place;
    place.diskPath = std::move(diskPath);
    place.stamp.error = error;
    return place;
}

}  // namespace

PathFinder::PathFinder() { NumberOf("/"); }

FolderId PathFinder::NumberOf(const std::string& diskPath) {
    const auto [entry, isNew] = numbers_.emplace(diskPath, static_cast<FolderId>(folders_.size()));
    if (isNew) {
        folders_.emplace_back();
        folders_.back().diskPath = diskPath;
        folders_.back().libraryPath = ShownLibraryPath(diskPath);
    }
    return entry->second;
}

const std::string& PathFinder::LibraryPath(Place& place) {
    if (place.libraryPath_.empty()) {
        place.libraryPath_ = ShownLibraryPath(place.diskPath, place.drive);
    }
    return place.libraryPath_;
}

Place& PathFinder::FindAnew(FolderId base, std::string_view path) {
    const auto known = folders_[base].memo.find(path);
    if (known != folders_[base].memo.end()) {
        Place& place = known->second;
        if (!StillHolds(place)) {
            place = Resolve(base, path);
        }
        place.look_ = look_;
        return place;
    }
    if (memoCount_ >= kMostMemos) {
        ForgetMemos();
    }
    ++memoCount_;
    Place& place =
        folders_[base].memo.emplace(std::string(path), Resolve(base, path)).first->second;
    watch_.Watch(ParentPath(place.diskPath));
    place.look_ = look_;
    return place;
}

bool PathFinder::StillHolds(Place& place) {
    if (!place.isExact_) {
        if (place.decidedBy_ == kNoFolder) {
            return false;
        }
        Folder& folder = folders_[place.decidedBy_];
        folder.index.Refresh(folder.diskPath, look_);
        if (folder.index.Version() != place.indexVersion_) {
            return false;
        }
        if (place.IsMissing()) {
            return true;
        }
    }
    const FileStamp now = StampOf(place.diskPath);
    if (now.kind != place.stamp.kind) {
        return false;
    }
    place.stamp = now;
    return true;
}

Place PathFinder::Resolve(FolderId base, std::string_view path) {
    const PathParts parts = SplitPath(path);
    if (parts.drive != kRootDrive) {
        Place place = MissingPlace("/", ENOTDIR);
        place.drive = parts.drive;
        AppendNames(place, parts, 0);
        return place;
    }
    FolderId folder = parts.isFromRoot ? 0 : base;
    for (std::size_t i = 0; i < parts.climbs && folder != 0; ++i) {
        folder = NumberOf(ParentPath(folders_[folder].diskPath));
    }
    if (std::any_of(parts.names.begin(), parts.names.end(), IsImpossible)) {
        Place place = MissingPlace(folders_[folder].diskPath, ENOENT);
        AppendNames(place, parts, 0);
        return place;
    }
    Place place = ResolveNames(folder, parts);
    if (place.IsFolder()) {
        place.folder = NumberOf(place.diskPath);
    }
    return place;
}

Place PathFinder::ResolveNames(FolderId folder, const PathParts& parts) {
    // Most references are spelled as on disk: then one look at the whole path is all.
    Place exact;
    exact.diskPath = folders_[folder].diskPath;
    for (const std::string_view name : parts.names) {
        exact.diskPath = JoinPath(exact.diskPath, name);
    }
    exact.stamp = StampOf(exact.diskPath);
    exact.isExact_ = !exact.IsMissing();
    if (exact.isExact_ || parts.names.empty()) {
        return exact;
    }
    if (parts.names.size() == 1) {
        Place place = ResolveName(folder, parts.names[0], false);
        if (place.IsMissing()) {
            place.stamp.error = exact.stamp.error;
        }
        return place;
    }
    for (std::size_t i = 0; i + 1 < parts.names.size(); ++i) {
        Place place = ResolveName(folder, parts.names[i], true);
        if (!place.IsFolder()) {
            const bool isRefused = place.stamp.error == EACCES;
            Place missing = MissingPlace(place.diskPath, isRefused ? EACCES : ENOTDIR);
            AppendNames(missing, parts, i + 1);
            return missing;
        }
        folder = NumberOf(place.diskPath);
    }
    Place place = ResolveName(folder, parts.names.back(), true);
    place.isExact_ = false;
    place.decidedBy_ = kNoFolder;
    return place;
}

Place PathFinder::ResolveName(FolderId number, std::string_view name, bool tryExact) {
    Folder& folder = folders_[number];
    Place place = MissingPlace(JoinPath(folder.diskPath, name), ENOENT);
    place.hasParent = true;
    if (tryExact) {
        place.stamp = StampOf(place.diskPath);
        if (!place.IsMissing()) {
            place.isExact_ = true;
            return place;
        }
    }
    folder.index.Refresh(folder.diskPath, look_);
    place.decidedBy_ = number;
    place.indexVersion_ = folder.index.Version();
    const std::string* diskName = folder.index.Find(name);
    if (diskName == nullptr) {
        place.diskPath = JoinPath(folder.diskPath, DecodeText(name));
        return place;
    }
    place.diskPath = JoinPath(folder.diskPath, *diskName);
    place.stamp = StampOf(place.diskPath);
    if (place.IsMissing()) {
        // A link that leads nowhere: what it leads to may appear without a trace in this folder.
        place.decidedBy_ = kNoFolder;
    }
    return place;
}

void PathFinder::ForgetMemos() {
    for (Folder& folder : folders_) {
        folder.memo.clear();
    }
    memoCount_ = 0;
}

}  // namespace quenloft
