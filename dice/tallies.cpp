#include "dice/tallies.h"

#include <algorithm>

namespace quenloft {
namespace {

// 64 MiB of counters; what lies beyond is counted by name.
constexpr std::int32_t kDenseTotals = 1 << 24;

}  // namespace

std::int32_t TotalCounts::Of(std::int32_t total) const {
    if (static_cast<std::size_t>(total) < dense_.size()) {
        return dense_[static_cast<std::size_t>(total)];
    }
    const auto found = beyond_.find(total);
    return found == beyond_.end() ? 0 : found->second;
}

std::int32_t TotalCounts::Last() const {
    if (!beyond_.empty()) {
        return beyond_.rbegin()->first;
    }
    const auto last = std::find_if(dense_.rbegin(), dense_.rend(), [](auto n) { return n > 0; });
    return std::max(0, static_cast<std::int32_t>(dense_.rend() - last) - 1);
}

void TotalCounts::CountBeyond(std::int32_t total) {
    if (total >= kDenseTotals) {
        CountOne(beyond_[total]);
        return;
    }
    dense_.resize(static_cast<std::size_t>(total) + 1);
    CountOne(dense_.back());
}

std::int32_t SuccessCounts::Last() const {
    const auto last = std::find_if(counts_.rbegin(), counts_.rend(), [](auto n) { return n > 0; });
    return std::max(0, static_cast<std::int32_t>(counts_.rend() - last) - 1);
}

}  // namespace quenloft
