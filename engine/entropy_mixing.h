// "Increase randomness": entropy of the machine, mixed by values of the generator itself.
//
// A template, because a simulation mixes before each of its millions of dice.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "platform/random_source.h"

namespace quenloft {

/// std::floor, which is a call for every die.
inline double FastFloor(double number) {
    constexpr double kWholeBelow = 9e18;  // What fits into 64 bits.
    return number >= 0 && number < kWholeBelow
               ? static_cast<double>(static_cast<std::int64_t>(number))
               : std::floor(number);
}

/// Reseeds `random` from the clock, the machine's memory figures and `seed`, all mixed by fresh
/// random values. False where the number overflows: the generator is as it was but for the values
/// taken from it. `Source` is RandomSource or a class derived from it.
template <typename Source>
bool MixEntropyInto(Source& random, double seed) {
    const MachineFigures& machine = random.Machine();
    const MemoryFigures& memory = machine.memory;
    const std::array figures = {
        machine.tickCount,       memory.availablePageFile, memory.availablePhysical,
        memory.availableVirtual, memory.structureLength,   memory.memoryLoad,
        memory.totalPageFile,    memory.totalPhysical,     memory.totalVirtual};
    const double number = FastFloor(random.DrawMixed(figures, seed) + 1);
    if (!std::isfinite(number)) {
        return false;
    }
    random.Reseed(number);
    return true;
}

}  // namespace quenloft
