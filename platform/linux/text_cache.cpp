#include "platform/linux/text_cache.h"

#include <algorithm>
#include <vector>

#include "platform/linux/file_reading.h"
#include "platform/linux/path_translation.h"

namespace quenloft {

TextCache::Slot& TextCache::SlotOf(const std::string& diskPath) {
    Slot& slot = slots_[diskPath];
    if (slot.diskPath.empty()) {
        slot.diskPath = diskPath;
    }
    return slot;
}

void TextCache::Refresh(Slot& slot, const FileStamp& now) {
    if (slot.lines && slot.stamp.Proves(now)) {
        return;
    }
    const FileDescriptor file = OpenForReading(slot.diskPath);
    const FileStamp stamp = StampOf(file.Number());
    auto lines = std::make_shared<const LoadedTextFile>(ReadToEnd(file.Number(), slot.diskPath),
                                                        ShownLibraryPath(slot.diskPath));
    // Only now: after a read that failed, the new stamp would prove the old lines.
    slot.stamp = stamp;
    if (slot.lines && slot.lines->HasSameLines(*lines)) {
        return;
    }
    kept_ += lines->MemorySize() - (slot.lines ? slot.lines->MemorySize() : 0);
    slot.lines = std::move(lines);
    if (kept_ > budget_) {
        DropUnused(slot);
    }
}

// Down to three quarters of the budget, so that the next files do not each begin it again.
void TextCache::DropUnused(const Slot& keep) {
    std::vector<Slot*> unused;
    for (auto& [path, slot] : slots_) {
        if (slot.lines.use_count() == 1 && &slot != &keep) {
            unused.push_back(&slot);
        }
    }
    std::sort(unused.begin(), unused.end(),
              [](const Slot* a, const Slot* b) { return a->lastUse < b->lastUse; });
    for (Slot* slot : unused) {
        if (kept_ <= budget_ / 4 * 3) {
            break;
        }
        kept_ -= slot->lines->MemorySize();
        slot->lines.reset();
    }
}

}  // namespace quenloft
