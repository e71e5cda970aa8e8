#include "explorer/library_item.h"

#include <algorithm>

#include "engine/text_helpers.h"
#include "platform/letter_case.h"

namespace quenloft {
namespace {}  // namespace

std::optional<ItemKind> KindOfFile(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string extension = UpperCase(name.substr(dot + 1));
    if (extension == "TBL") {
        return ItemKind::Table;
    }
    if (extension == "SPT") {
        return ItemKind::Script;
    }
    return std::nullopt;
}

bool IsShown(const FolderEntry& entry, bool showHidden) {
    const bool isPrivate = Trimmed(entry.name).starts_with('~');
    const bool isOfLibrary = entry.isFolder || KindOfFile(entry.name).has_value();
    return isOfLibrary && !isPrivate && (showHidden || !entry.isHidden);
}

std::string LabelOfTable(std::string_view title, std::string_view name) {
    if (Trimmed(title).empty()) {
        return std::string(FileBaseName(name));
    }
    return ShownTitle(title);
}

void SortItems(std::vector<LibraryItem>& items) {
    struct Keyed {
        std::string key;
        LibraryItem item;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (LibraryItem& item : items) {
        std::string key = FoldCase(item.label);
        keyed.push_back({std::move(key), std::move(item)});
    }
    std::sort(keyed.begin(), keyed.end(), [](const Keyed& left, const Keyed& right) {
        return left.key != right.key ? left.key < right.key : left.item.path < right.item.path;
    });
    for (std::size_t i = 0; i < keyed.size(); ++i) {
        items[i] = std::move(keyed[i].item);
    }
}

std::string PathInFolder(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with('\\')) {
        path += '\\';
    }
    return path.append(name);
}

}  // namespace quenloft
