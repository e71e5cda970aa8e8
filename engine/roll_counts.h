// How often a result came for the same entry text: the memory of the duplicate rule.
#pragma once

#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>

#include "engine/text_map.h"

namespace quenloft {

class RollCounts {
  public:
    RollCounts() = default;
    RollCounts(const RollCounts&) = delete;
    RollCounts& operator=(const RollCounts&) = delete;

    /// The count stored for the two texts one behind the other; null where there is none, and then
    /// it is stored as 1. Valid until the next call.
    std::int64_t* FindOrStart(std::string_view referringText, std::string_view result);
    void Clear();

  private:
    // A generation stores some dozens of keys and drops them all: the pool keeps their memory.
    std::pmr::unsynchronized_pool_resource pool_;
    std::pmr::unordered_map<std::pmr::string, std::int64_t, TextHash, TextEqual> counts_{&pool_};
    std::string key_;
};

}  // namespace quenloft
