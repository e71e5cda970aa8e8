#include "engine/roll_counts.h"

#include <functional>
#include <utility>

namespace quenloft {

std::int64_t* RollCounts::FindOrStart(std::string_view referringText, std::string_view result) {
    const std::size_t keyBegin = keys_.size();
    keys_.append(referringText).append(result);
    const std::string_view key = std::string_view(keys_).substr(keyBegin);
    const std::size_t hash = std::hash<std::string_view>{}(key);
    Slot& slot = SlotFor(key, hash);
    if (slot.generation == generation_) {
        keys_.resize(keyBegin);
        return &slot.count;
    }
    slot = Slot{generation_, hash, keyBegin, key.size(), 1};
    if (++used_ > slots_.size() / 2) {
        Grow();
    }
    return nullptr;
}

/// The slot that holds `key`, or the free one where it belongs.
RollCounts::Slot& RollCounts::SlotFor(std::string_view key, std::size_t hash) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = hash & mask;
    while (slots_[i].generation == generation_ &&
           !(slots_[i].hash == hash &&
             std::string_view(keys_).substr(slots_[i].keyBegin, slots_[i].keySize) == key)) {
        i = (i + 1) & mask;
    }
    return slots_[i];
}

void RollCounts::Grow() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    for (const Slot& slot : old) {
        if (slot.generation == generation_) {
            SlotFor(std::string_view(keys_).substr(slot.keyBegin, slot.keySize), slot.hash) = slot;
        }
    }
}

void RollCounts::Clear() {
    constexpr std::size_t kMostSlotsKept =
        1 << 16;  // A run of millions of keys gives its memory back.
    if (slots_.size() > kMostSlotsKept) {
        *this = RollCounts();
        return;
    }
    ++generation_;
    used_ = 0;
    keys_.clear();
}

}  // namespace quenloft
