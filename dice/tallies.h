// What the simulations count.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <vector>

#include "engine/failure.h"

namespace quenloft {

/// Adds one to a counter of 32 bits. Throws Failure "Overflow".
inline void CountOne(std::int32_t& counter) {
    if (counter == std::numeric_limits<std::int32_t>::max()) {
        throw Failure(FailureNumber::Overflow);
    }
    ++counter;
}

/// How often each total came: totals from 0 up to any size.
class TotalCounts {
  public:
    void Count(std::int32_t total) {
        if (static_cast<std::size_t>(total) < dense_.size()) {
            CountOne(dense_[static_cast<std::size_t>(total)]);
        } else {
            CountBeyond(total);
        }
    }
    std::int32_t Of(std::int32_t total) const;
    /// The highest total from 1 upwards that came; 0 where none did.
    std::int32_t Last() const;

  private:
    void CountBeyond(std::int32_t total);

    std::vector<std::int32_t> dense_;              // By total; grows to the largest.
    std::map<std::int32_t, std::int32_t> beyond_;  // Totals of millions of dice.
};

inline constexpr std::size_t kMostSuccesses = 300;

/// How often each number of successes came, over all the runs of a window.
class SuccessCounts {
  public:
    /// Throws Failure "Subscript out of range" past kMostSuccesses.
    void Count(std::int32_t successes) {
        if (static_cast<std::size_t>(successes) > kMostSuccesses) {
            throw Failure(FailureNumber::SubscriptOutOfRange);
        }
        CountOne(counts_[static_cast<std::size_t>(successes)]);
    }
    std::int32_t Of(std::int32_t successes) const {
        return counts_.at(static_cast<std::size_t>(successes));
    }
    /// The highest number of successes that came; 0 where none did.
    std::int32_t Last() const;

  private:
    std::array<std::int32_t, kMostSuccesses + 1> counts_{};
};

/// The totals of a run, and those outside the range that its report shows.
struct TotalTally {
    TotalCounts counts;
    std::int32_t above = 0;
    std::int32_t highest = 0;
    std::int32_t below = 0;
    std::int32_t lowest = 1;  ///< Lowered by totals below 1 only.
};

/// Both limits as typed: they need not be whole, nor the lower one the smaller.
struct DisplayRange {
    double lower = 0;
    double upper = 0;

    bool Shows(double total) const { return lower <= total && upper >= total; }
};

}  // namespace quenloft
