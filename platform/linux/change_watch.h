// Asks the kernel whether anything happened in the folders that files were read from, so that a
// generation need not look at each of its files again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_set>

namespace quenloft {

class ChangeWatch {
  public:
    ChangeWatch();
    ~ChangeWatch();
    ChangeWatch(const ChangeWatch&) = delete;
    ChangeWatch& operator=(const ChangeWatch&) = delete;

    /// From now on changes of the files in this folder, and of the folder itself, are noticed.
    void Watch(const std::string& folderDiskPath);
    /// False only where nothing changed in the watched folders since the last call that was true.
    /// True after some milliseconds in any case: what the kernel does not tell (a change through a
    /// link from elsewhere, a folder further up that was renamed) is noticed by a look then.
    bool MayHaveChanged();

  private:
    bool HasEvents();

    int inotify_;
    /// A folder of a kind that is changed from other machines, one too many to be watched, or one
    /// whose watch was lost when it was moved or deleted: the kernel is not asked any more.
    bool isBlind_ = false;
    std::int64_t trustedUntil_ = 0;
    std::unordered_set<std::string> watched_;
};

}  // namespace quenloft
