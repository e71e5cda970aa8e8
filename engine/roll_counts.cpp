#include "engine/roll_counts.h"

#include <utility>

namespace quenloft {

namespace {

// FNV-1a (Fowler, Noll, Vo): goes on from any hash, so that a text and its two parts hash alike.
constexpr std::uint64_t kFnvBasis = 0xCBF29CE484222325U;
constexpr std::uint64_t kFnvPrime = 0x100000001B3U;

std::uint64_t HashOn(std::uint64_t hash, std::string_view text) {
    for (const unsigned char c : text) {
        hash = (hash ^ c) * kFnvPrime;
    }
    return hash;
}

}  // namespace

std::int64_t* RollCounts::FindOrStart(Referrer& referrer, std::string_view result) {
    if (!referrer.isHashed_) {
        referrer.isHashed_ = true;
        referrer.hash_ = HashOn(kFnvBasis, referrer.text_);
    }
    const std::uint64_t hash = HashOn(referrer.hash_, result);
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = hash & mask;
    for (; slots_[i].generation == generation_; i = (i + 1) & mask) {
        if (slots_[i].hash == hash && Holds(slots_[i], referrer, result)) {
            return &slots_[i].count;
        }
    }
    if (referrer.storedAt_ == std::string::npos) {
        referrer.storedAt_ = texts_.size();
        texts_ += referrer.text_;
    }
    slots_[i] = Slot{generation_,   hash, referrer.storedAt_, referrer.text_.size(), texts_.size(),
                     result.size(), 1};
    texts_ += result;
    if (++used_ > slots_.size() / 2) {
        Grow();
    }
    return nullptr;
}

/// The key is one text: where it is split does not matter.
bool RollCounts::Holds(const Slot& slot, Referrer& referrer, std::string_view result) const {
    const std::string_view storedReferrer = Stored(slot.referrerAt, slot.referrerSize);
    const std::string_view storedResult = Stored(slot.resultAt, slot.resultSize);
    if (slot.referrerSize != referrer.text_.size()) {
        return std::string(storedReferrer).append(storedResult) ==
               std::string(referrer.text_).append(result);
    }
    if (storedResult != result) {
        return false;
    }
    if (referrer.storedAt_ == std::string::npos && storedReferrer == referrer.text_) {
        referrer.storedAt_ = slot.referrerAt;
    }
    return referrer.storedAt_ == slot.referrerAt || storedReferrer == referrer.text_;
}

void RollCounts::Grow() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.generation != generation_) {
            continue;
        }
        std::size_t i = slot.hash & mask;
        while (slots_[i].generation == generation_) {
            i = (i + 1) & mask;
        }
        slots_[i] = slot;
    }
}

void RollCounts::Clear() {
    // A run of millions of keys, or of long texts, gives its memory back.
    constexpr std::size_t kMostSlotsKept = 1 << 16;
    constexpr std::size_t kMostBytesKept = 1 << 24;
    if (slots_.size() > kMostSlotsKept || texts_.capacity() > kMostBytesKept) {
        *this = RollCounts();
        return;
    }
    ++generation_;
    used_ = 0;
    texts_.clear();
}

}  // namespace quenloft
