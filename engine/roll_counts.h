// How often a result came for the same entry text: the memory of the duplicate rule.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

/// A hash table whose keys lie in one text, both kept from generation to generation: a generation
/// stores some dozens of keys and drops them all.
class RollCounts {
  public:
    /// The count stored for the two texts one behind the other; null where there is none, and then
    /// it is stored as 1. Valid until the next call.
    std::int64_t* FindOrStart(std::string_view referringText, std::string_view result);
    void Clear();

  private:
    struct Slot {
        std::uint64_t generation = 0;  // The slot is free unless this is the present one.
        std::size_t hash = 0;
        std::size_t keyBegin = 0;
        std::size_t keySize = 0;
        std::int64_t count = 0;
    };

    Slot& SlotFor(std::string_view key, std::size_t hash);
    void Grow();

    std::uint64_t generation_ = 1;
    std::size_t used_ = 0;
    std::string keys_;
    std::vector<Slot> slots_ = std::vector<Slot>(64);  // Always a power of two.
};

}  // namespace quenloft
