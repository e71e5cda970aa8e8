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
    /// An entry text whose references are being expanded. However many they are, it is hashed and
    /// stored once.
    class Referrer {
      public:
        explicit Referrer(std::string_view text) : text_(text) {}

      private:
        friend class RollCounts;
        std::string_view text_;
        bool isHashed_ = false;
        std::uint64_t hash_ = 0;
        std::size_t storedAt_ = std::string::npos;
    };

    /// The count stored for the referring text and `result` one behind the other; null where there
    /// is none, and then it is stored as 1. Valid until the next call.
    std::int64_t* FindOrStart(Referrer& referrer, std::string_view result);
    void Clear();

  private:
    struct Slot {
        std::uint64_t generation = 0;  // The slot is free unless this is the present one.
        std::uint64_t hash = 0;        // Of both texts.
        std::size_t referrerAt = 0;
        std::size_t referrerSize = 0;
        std::size_t resultAt = 0;
        std::size_t resultSize = 0;
        std::int64_t count = 0;
    };

    bool Holds(const Slot& slot, Referrer& referrer, std::string_view result) const;
    std::string_view Stored(std::size_t at, std::size_t size) const {
        return std::string_view(texts_).substr(at, size);
    }
    void Grow();

    std::uint64_t generation_ = 1;
    std::size_t used_ = 0;
    std::string texts_;
    std::vector<Slot> slots_ = std::vector<Slot>(64);  // Always a power of two.
};

}  // namespace quenloft
