// Rolling a handful of dice many thousand times: the one simulation behind the analyses. They
// differ in what they count.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "dice/tallies.h"

namespace quenloft {

/// Dice of one kind. Where successes are counted, a die that rolls `target` or more is one.
struct DiceGroup {
    std::int32_t count = 0;  ///< Below 1: no dice.
    std::int32_t faces = 0;
    std::int32_t target = 0;
};

/// How each die of a run is rolled.
struct DieRules {
    bool openEnded = false;           ///< The highest face rolls again and adds, without a cap.
    bool increaseRandomness = false;  ///< Reseeds from mixed entropy, not from the timer.
    std::int32_t seed = 0;            ///< Of the mixed entropy.
};

struct RunPlan {
    std::span<const DiceGroup> groups;  ///< Rolled in this order, die by die.
    std::int32_t rolls = 0;             ///< Of the whole handful; below 1: none.
    DieRules rules;
    /// Asked between two handfuls, about every hundred microseconds, with the number of handfuls
    /// rolled so far; false ends the run. May be empty.
    std::function<bool(std::int32_t rolled)> goOn = {};
    /// Given the results of each handful's dice, each with "," behind it. May be empty. (Totals
    /// have no use for it.)
    std::function<void(std::string faces)> showFaces = {};
};

/// The generator is reseeded before every die (not before an open-ended die rolls on). Both
/// functions throw Failure: "Overflow" for a result past 32 bits, which an open-ended die of one
/// face is at once, and what the tally throws.
class Simulation {
  public:
    virtual ~Simulation() = default;

    /// Counts the sum of each handful.
    virtual void CountTotals(const RunPlan& plan, const DisplayRange& range, TotalTally& tally) = 0;
    /// Counts the dice of each handful that reach their target.
    virtual void CountSuccesses(const RunPlan& plan, SuccessCounts& counts) = 0;
    /// Reseeds once from mixed entropy.
    virtual void IncreaseRandomness(double seed) = 0;
};

}  // namespace quenloft
