// Rolling dice, and the notation "3d6+2", "1d6~".
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "engine/host.h"
#include "platform/random_source.h"

namespace quenloft {

class Dice {
  public:
    /// `goOn` is asked every now and then in a long row of dice; false ends the row early.
    Dice(RandomSource& random, EngineHost& host, std::function<bool()> goOn);

    /// Reseeds the generator from the clock, the machine's memory figures and `seed`, all mixed by
    /// fresh random values. A failure shows a message box and leaves the generator as it was.
    void IncreaseRandomness(double seed);

    /// The sum of `count` dice; 0 for a count below 1. Open-ended: the highest face rolls again and
    /// adds. `useEntropy` reseeds through IncreaseRandomness(seed), otherwise from the timer.
    /// Throws Failure "Overflow" past 32 bits.
    std::int32_t RandomTotal(std::int32_t count, std::int32_t sides, bool openEnded,
                             bool useEntropy, std::int32_t seed);

    /// As RandomTotal plus `modifier`, a total of exactly 0 becomes 1. No dice or no sides: 0 at
    /// once, without reseeding.
    std::int32_t RollDicePool(std::int32_t count, std::int32_t sides, std::int32_t modifier,
                              bool openEnded, bool useEntropy, std::int32_t seed);

    /// Count, "D", sides, an optional "+N" or "-N", an optional final "~" for open-ended dice.
    /// The total as decimal text, or "Invalid dice!".
    std::string RollDice(std::string_view expression);

  private:
    void Reseed(bool useEntropy, std::int32_t seed);
    std::int64_t RollAll(std::int32_t count, std::int32_t sides, bool openEnded);

    RandomSource& random_;
    EngineHost& host_;
    std::function<bool()> goOn_;
};

}  // namespace quenloft
