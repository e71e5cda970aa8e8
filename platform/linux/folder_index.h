// The names in one folder, found without regard to case and without looking at the disk each time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/file_stamp.h"

namespace quenloft {

class FolderIndex {
  public:
    /// Reads the folder again if it may have changed since the last time; at most once a `look`.
    void Refresh(const std::string& diskPath, std::uint64_t look);

    /// The disk's name for `name` (UTF-8): the name itself, otherwise the one that is shown the
    /// same, otherwise the first in byte order that differs only by case or by trailing blanks and
    /// dots. nullptr where there is none. Valid until the next Refresh.
    const std::string* Find(std::string_view name) const;

    /// Grows whenever the names have changed.
    std::uint64_t Version() const { return version_; }

  private:
    struct Entry {
        std::string key;       ///< What names that count as equal have in common.
        std::string diskName;  ///< The bytes on disk.
        bool operator==(const Entry&) const = default;
    };

    static std::string KeyOf(std::string_view shownName);
    static bool ReadNames(const std::string& diskPath, std::vector<Entry>& entries);

    std::vector<Entry> entries_;  ///< Sorted.
    FileStamp stamp_;             ///< Taken before entries_ were read.
    std::uint64_t look_ = 0;
    std::uint64_t version_ = 0;
};

}  // namespace quenloft
