// What the library explorer shows of a file or folder, and in which order.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace quenloft {

enum class ItemKind { Folder, Table, Script };

struct LibraryItem {
    ItemKind kind = ItemKind::Folder;
    std::string path;  ///< Library path.
    std::string label;
};

/// By the extension after the last "."; nothing for other files.
std::optional<ItemKind> KindOfFile(std::string_view name);

/// False for names that begin with "~", for files that are neither table nor script, and for hidden
/// entries unless `showHidden`.
bool IsShown(const FolderEntry& entry, bool showHidden);

/// The title of the table called `name` as a label: on one line, at most 200 characters, the file's
/// base name where the title is blank.
std::string LabelOfTable(std::string_view title, std::string_view name);

/// By label without regard to case; equal labels by path.
void SortItems(std::vector<LibraryItem>& items);

/// Joins library paths.
std::string PathInFolder(std::string_view folder, std::string_view name);

}  // namespace quenloft
