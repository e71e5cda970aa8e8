// The program's one generator: PCG (128 bits of state, 64 bits of output), the coarse monotonic
// clock and the memory figures of sysinfo(2).
//
// Inline and final, because a simulation reseeds before each of its millions of dice.
#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <pcg_random.hpp>
#include <random>
#include <time.h>

#include "platform/random_source.h"

namespace quenloft {

/// PCG with one operation more: entropy is folded in. It is kept beside the stream and changes what
/// comes out of it, never the stream itself: that keeps its full period whatever is folded, and
/// steps on while the entropy for the next die is still being worked out.
class FoldingPcg : private pcg_engines::oneseq_xsl_rr_128_64 {
    using Stream = pcg_engines::oneseq_xsl_rr_128_64;

  public:
    explicit FoldingPcg(pcg_extras::pcg128_t seed) : Stream(seed) {}

    std::uint64_t operator()() { return Stream::operator()() ^ folded_; }
    /// The next outputs, an even number of them, each given to `take` with its place. Two lanes
    /// step over one another, for a step waits for the one before it.
    template <typename Take>
    void Generate(std::size_t count, Take take) {
        const state_type twoSteps = multiplier() * multiplier();
        const state_type twoIncrements = (multiplier() + 1) * increment();
        state_type first = bump(state_);
        state_type second = bump(first);
        for (std::size_t i = 0; i < count; i += 2) {
            take(i, output(first) ^ folded_);
            take(i + 1, output(second) ^ folded_);
            state_ = second;
            first = first * twoSteps + twoIncrements;
            second = second * twoSteps + twoIncrements;
        }
    }
    void Fold(std::uint64_t entropy) {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;  // Odd: nothing is lost.
        folded_ = (folded_ + entropy) * kGoldenRatio;
    }

  private:
    std::uint64_t folded_ = 0;
};

class SystemRandomSource final : public RandomSource {
  public:
    /// Begins with entropy of the operating system.
    SystemRandomSource();

    double Next() override { return FromBits(generator_()); }
    double DrawMixed(std::span<const double> figures, double seed) override {
        // Each output serves two figures: half its bits are plenty for what is only entropy.
        constexpr int kHalf = 32;
        constexpr std::uint64_t kUpperHalf = 0xFFFFFFFF00000000U;
        std::uint64_t sum = figures.size();
        const std::size_t fours = figures.size() / 4 * 4;
        generator_.Generate(fours / 2, [&](std::size_t place, std::uint64_t bits) {
            sum += Part(figures[2 * place], bits & kUpperHalf);
            sum += Part(figures[2 * place + 1], bits << kHalf);
        });
        for (const double figure : figures.subspan(fours)) {
            sum += Part(figure, generator_());
        }
        return (static_cast<double>(static_cast<std::int64_t>(sum)) + seed) *
               SystemRandomSource::Next();
    }
    void ReseedFromTimer() override { generator_.Fold(TimerReading()); }
    void Reseed(double number) override { generator_.Fold(std::bit_cast<std::uint64_t>(number)); }
    double TickCount() override { return FreshMachine().tickCount; }
    MemoryFigures Memory() override { return FreshMachine().memory; }
    MachineFigures Machine() override { return FreshMachine(); }

  private:
    static double FromBits(std::uint64_t bits) {
        constexpr double kScale = 1.0 / 9007199254740992.0;  // 2^-53: all that a double resolves.
        return static_cast<double>(bits >> 11U) * kScale;
    }
    /// Int(next * figure), where next is `bits` as a fraction of 2^64.
    static std::uint64_t Part(double figure, std::uint64_t bits) {
        const pcg_extras::pcg128_t product =
            pcg_extras::pcg128_t(bits) *
            static_cast<std::uint64_t>(static_cast<std::int64_t>(figure));
        return static_cast<std::uint64_t>(product >> 64);
    }
    /// Nanoseconds; moves on with the kernel's tick (every 1 to 10 ms) and costs a few nanoseconds.
    static std::uint64_t TimerReading() {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
        return static_cast<std::uint64_t>(now.tv_sec) * 1'000'000'000U +
               static_cast<std::uint64_t>(now.tv_nsec);
    }
    /// Read anew once per tick of the timer.
    const MachineFigures& FreshMachine() {
        const std::uint64_t now = TimerReading();
        if (now != machineReadAt_) {
            machineReadAt_ = now;
            machine_.tickCount = std::floor(static_cast<double>(now) / 1e6);
            ReadMemory(machine_.memory);
        }
        return machine_;
    }
    static void ReadMemory(MemoryFigures& memory);

    FoldingPcg generator_;
    std::uint64_t machineReadAt_ = 0;
    MachineFigures machine_;
};

}  // namespace quenloft
