#include "platform/linux/folder_index.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <tuple>
#include <utility>

#include "platform/letter_case.h"
#include "platform/linux/path_translation.h"
#include "platform/text_encoding.h"

namespace quenloft {

std::string FolderIndex::KeyOf(std::string_view shownName) {
    return FoldCase(CutTrailing(shownName));
}

/// False where the folder could not be read to its end.
bool FolderIndex::ReadNames(const std::string& diskPath, std::vector<Entry>& entries) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(diskPath.c_str()), closedir);
    if (!folder) {
        return false;
    }
    errno = 0;
    while (const dirent* item = readdir(folder.get())) {
        const std::string_view name = item->d_name;
        if (name != "." && name != "..") {
            entries.push_back({KeyOf(ShownName(name)), std::string(name)});
        }
        errno = 0;
    }
    return errno == 0;
}

void FolderIndex::Refresh(const std::string& diskPath, std::uint64_t look) {
    if (look_ == look) {
        return;
    }
    look_ = look;
    const FileStamp now = StampOf(diskPath);
    if (stamp_.Proves(now)) {
        return;
    }
    std::vector<Entry> entries;
    stamp_ = now;
    stamp_.isSettled = ReadNames(diskPath, entries) && now.isSettled;
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::tie(a.key, a.diskName) < std::tie(b.key, b.diskName);
    });
    if (entries != entries_) {
        entries_ = std::move(entries);
        ++version_;
    }
}

const std::string* FolderIndex::Find(std::string_view name) const {
    const std::string shown = DecodeText(name);
    const std::string key = KeyOf(shown);
    const auto first =
        std::lower_bound(entries_.begin(), entries_.end(), key,
                         [](const Entry& entry, const std::string& k) { return entry.key < k; });
    const std::string* best = nullptr;
    for (auto entry = first; entry != entries_.end() && entry->key == key; ++entry) {
        if (entry->diskName == name) {
            return &entry->diskName;
        }
        const bool isShownSo = ShownName(entry->diskName) == shown;
        if (best == nullptr || (isShownSo && ShownName(*best) != shown)) {
            best = &entry->diskName;
        }
    }
    return best;
}

}  // namespace quenloft
