#include "platform/linux/folder_listing.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <string_view>

#include "platform/linux/file_failure.h"
#include "platform/linux/file_stamp.h"
#include "platform/linux/path_translation.h"

namespace quenloft {

namespace {

bool IsFolder(const std::string& folder, const dirent& item) {
    if (item.d_type == DT_LNK || item.d_type == DT_UNKNOWN) {
        return StampOf(JoinPath(folder, item.d_name)).kind == FileStamp::Kind::Folder;
    }
    return item.d_type == DT_DIR;
}

}  // namespace

std::vector<FolderEntry> ListDiskFolder(const std::string& diskPath) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(diskPath.c_str()), closedir);
    if (!folder) {
        throw SystemRefused(errno, ShownNativePath(diskPath));
    }
    std::vector<FolderEntry> entries;
    errno = 0;
    while (const dirent* item = readdir(folder.get())) {
        const std::string_view name = item->d_name;
        if (name != "." && name != "..") {
            entries.push_back({ShownName(name), IsFolder(diskPath, *item), name.starts_with('.')});
        }
        errno = 0;
    }
    if (errno != 0) {
        throw SystemRefused(errno, ShownNativePath(diskPath));
    }
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    return entries;
}

}  // namespace quenloft
