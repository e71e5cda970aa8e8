// The lines of recently read files, as much as a bound on memory allows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

#include "platform/linux/file_stamp.h"
#include "platform/linux/text_lines.h"

namespace quenloft {

class TextCache {
  public:
    /// One file that was opened. Its address never changes.
    struct Slot {
        std::string diskPath;
        /// Of the file before `lines` was read.
        FileStamp stamp;
        std::shared_ptr<const LoadedTextFile> lines;
        /// The look in which `lines` was last known to be what stands on disk.
        std::uint64_t look = 0;
        /// Grows from use to use over all slots.
        std::uint64_t lastUse = 0;
    };

    /// Files that nobody uses are dropped, the longest unused first, while more than `budget` bytes
    /// are kept.
    explicit TextCache(std::size_t budget) : budget_(budget) {}

    Slot& SlotOf(const std::string& diskPath);

    /// The lines of the file as it is in this look; the same object as before while the file is the
    /// same. `now` is the file's stamp in this look. Throws FileError.
    const std::shared_ptr<const LoadedTextFile>& Open(Slot& slot, const FileStamp& now,
                                                      std::uint64_t look) {
        slot.lastUse = ++useCount_;
        if (slot.look != look || !slot.lines) {
            Refresh(slot, now);
            slot.look = look;
        }
        return slot.lines;
    }

  private:
    void Refresh(Slot& slot, const FileStamp& now);
    void DropUnused(const Slot& keep);

    std::size_t budget_;
    std::size_t kept_ = 0;
    std::uint64_t useCount_ = 0;
    std::unordered_map<std::string, Slot> slots_;
};

}  // namespace quenloft
