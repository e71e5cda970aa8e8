#include "explorer/folder_reading.h"

#include <filesystem>

#include "engine/text_helpers.h"

namespace quenloft {

FolderReading::FolderReading(FileSystem& files, std::string_view folder, bool showHidden) {
    try {
        for (const FolderEntry& entry : files.ListFolder(folder)) {
            if (!IsShown(entry, showHidden)) {
                continue;
            }
            LibraryItem item{ItemKind::Folder, PathInFolder(folder, entry.name), entry.name};
            if (!entry.isFolder) {
                item.kind = *KindOfFile(entry.name);
            }
            if (item.kind == ItemKind::Script) {
                item.label = FileBaseName(entry.name);
            }
            items_.push_back(std::move(item));
        }
    } catch (const FileError& error) {
        failure_ = error.what();
    }
}

bool FolderReading::ReadOne(const TitleReader& readTitle) {
    while (next_ < items_.size() && items_[next_].kind != ItemKind::Table) {
        ++next_;
    }
    if (next_ == items_.size()) {
        return false;
    }
    LibraryItem& item = items_[next_++];
    item.label = LabelOfTable(readTitle(item.path), item.label);
    return true;
}

std::vector<LibraryItem> FolderReading::TakeItems() {
    SortItems(items_);
    return std::move(items_);
}

std::string RealFolder(const std::string& nativePath, const std::string& realParent) {
    namespace fs = std::filesystem;
    std::error_code failed;
    const fs::path path(nativePath);
    // Only a link can lead elsewhere; all other folders are saved the walk from the root.
    if (!realParent.empty() && !fs::is_symlink(path, failed)) {
        return (fs::path(realParent) / path.filename()).string();
    }
    const fs::path real = fs::canonical(path, failed);
    return failed ? nativePath : real.string();
}

}  // namespace quenloft
