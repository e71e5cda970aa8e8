// The program's one generator: PCG (128 bits of state, 64 bits of output), the coarse monotonic
// clock and the memory figures of sysinfo(2).
//
// Inline and final, because a simulation reseeds before each of its millions of dice.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <pcg_random.hpp>
#include <random>
#include <time.h>

#include "platform/random_source.h"

namespace quenloft {

/// PCG with one operation more: entropy is folded into the running state.
class FoldingPcg : public pcg_engines::oneseq_xsl_rr_128_64 {
  public:
    using pcg_engines::oneseq_xsl_rr_128_64::oneseq_xsl_rr_128_64;

    void Fold(std::uint64_t entropy) {
        // Odd 64-bit golden ratio, doubled: an even addend keeps the step's increment odd, and with
        // it the full period, even where the same entropy comes again and again within one tick.
        constexpr state_type kSpread =
            (state_type(0x9E3779B97F4A7C15U) << 64) + 0xBF58476D1CE4E5B8U;
        state_ = bump(state_ + kSpread * entropy);
    }
};

class SystemRandomSource final : public RandomSource {
  public:
    /// Begins with entropy of the operating system.
    SystemRandomSource();

    double Next() override {
        constexpr double kScale = 1.0 / 9007199254740992.0;  // 2^-53: all that a double resolves.
        return static_cast<double>(generator_() >> 11) * kScale;
    }
    void NextValues(std::span<double> values) override {
        for (double& value : values) {
            value = SystemRandomSource::Next();
        }
    }
    void ReseedFromTimer() override { generator_.Fold(TimerReading()); }
    void Reseed(double number) override { generator_.Fold(std::bit_cast<std::uint64_t>(number)); }
    double TickCount() override { return std::floor(static_cast<double>(TimerReading()) / 1e6); }
    MemoryFigures Memory() override {
        const std::uint64_t now = TimerReading();
        if (now != memoryReadAt_) {
            memoryReadAt_ = now;
            ReadMemory();
        }
        return memory_;
    }

  private:
    /// Nanoseconds; moves on with the kernel's tick (every 1 to 10 ms) and costs a few nanoseconds.
    static std::uint64_t TimerReading() {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
        return static_cast<std::uint64_t>(now.tv_sec) * 1'000'000'000U +
               static_cast<std::uint64_t>(now.tv_nsec);
    }
    void ReadMemory();

    FoldingPcg generator_;
    std::uint64_t memoryReadAt_ = 0;
    MemoryFigures memory_;
};

}  // namespace quenloft
