#include "engine/roll_counts.h"

namespace quenloft {

std::int64_t* RollCounts::FindOrStart(std::string_view referringText, std::string_view result) {
    key_.assign(referringText).append(result);
    const auto place = counts_.find(std::string_view(key_));
    if (place != counts_.end()) {
        return &place->second;
    }
    counts_.emplace(key_, 1);
    return nullptr;
}

void RollCounts::Clear() { counts_.clear(); }

}  // namespace quenloft
