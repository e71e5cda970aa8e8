// Reads one folder of the library, a few table titles at a time.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "explorer/library_item.h"
#include "platform/file_system.h"

namespace quenloft {

/// The title in the header of the table at a library path.
using TitleReader = std::function<std::string(const std::string& path)>;

/// A folder's items are handed out when the last title is known and not before: so they are sorted
/// once, and nothing moves under the mouse.
class FolderReading {
  public:
    /// Lists the folder at once. A folder that cannot be listed has no items and a Failure().
    FolderReading(FileSystem& files, std::string_view folder, bool showHidden);

    /// Reads the next title. False when all are known.
    bool ReadOne(const TitleReader& readTitle);

    /// The sorted items; called once, after ReadOne returned false.
    std::vector<LibraryItem> TakeItems();
    /// A sentence without a final stop; empty when all went well.
    const std::string& Failure() const { return failure_; }

  private:
    std::vector<LibraryItem> items_;  // A table is labelled with its file name until it is read.
    std::size_t next_ = 0;
    std::string failure_;
};

/// The folder that `nativePath` leads to when every link is followed, given the same of its parent.
/// Two folders are the same when these are equal.
std::string RealFolder(const std::string& nativePath, const std::string& realParent);

}  // namespace quenloft
