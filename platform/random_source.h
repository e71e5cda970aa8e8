// The port to randomness: a generator that runs on, and the clock and memory figures that are
// folded into it. A test hands the engine a scripted one and so decides every roll.
#pragma once

#include <cmath>
#include <cstdint>
#include <span>

namespace quenloft {

/// The machine's memory as it is now. All figures in bytes, except as noted.
struct MemoryFigures {
    double structureLength = 0;  ///< Size of the record that the system fills, in bytes.
    double memoryLoad = 0;       ///< Physical memory in use, in whole percent.
    double totalPhysical = 0;
    double availablePhysical = 0;
    double totalPageFile = 0;  ///< Physical memory and swap together.
    double availablePageFile = 0;
    double totalVirtual = 0;  ///< Address space of this process.
    double availableVirtual = 0;
};

/// What is mixed into the generator where randomness is to be increased.
struct MachineFigures {
    double tickCount = 0;
    MemoryFigures memory;
};

class RandomSource {
  public:
    virtual ~RandomSource() = default;

    /// The next value, uniform with 53 random bits: 0 <= value < 1.
    virtual double Next() = 0;
    /// (s + `seed`) * next, where s is the sum of Int(next * figure) + 1 over `figures` (whole
    /// numbers from 0 to 2^63), with a fresh next value each time; Int is the floor.
    virtual double DrawMixed(std::span<const double> figures, double seed) {
        double sum = 0;
        for (const double figure : figures) {
            sum += std::floor(Next() * figure) + 1;
        }
        return (sum + seed) * Next();
    }
    /// Folds the timer's present reading into the running state. The state is never replaced: a
    /// generator restarted from a clock would give equal rolls within one of its ticks.
    virtual void ReseedFromTimer() = 0;
    /// Folds `number` into the running state, as above.
    virtual void Reseed(double number) = 0;
    /// Milliseconds since the machine started.
    virtual double TickCount() = 0;
    /// Read anew at most once per tick of the timer.
    virtual MemoryFigures Memory() = 0;
    /// Both at once.
    virtual MachineFigures Machine() { return {TickCount(), Memory()}; }
};

}  // namespace quenloft
