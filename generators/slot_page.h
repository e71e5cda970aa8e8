// The slots of the list page and their memory in the profile.
#pragma once

#include <array>

#include "generators/table_slot.h"

namespace quenloft {

class FileSystem;
class ProfileFile;

class SlotPage {
  public:
    /// The profile remembers three slots more than the page has buttons for.
    static constexpr int kSlots = 21;

    /// False, and nothing changes, for an index below 0 or past the last slot.
    bool Bind(int index, TableSlot slot);
    /// An empty slot for such an index.
    const TableSlot& At(int index) const;

    /// Binds the tables of "Table0" to "Table20" in section "ListPage" and makes the folder of each
    /// the current directory. A slot whose file is no more comes back empty.
    void Restore(Engine& engine, ProfileFile& profile);
    /// Writes the slots that hold a table, as native paths, where they differ from what is
    /// remembered; what an empty slot held before stays.
    void Save(FileSystem& files, ProfileFile& profile) const;

  private:
    std::array<TableSlot, kSlots> slots_;
};

}  // namespace quenloft
