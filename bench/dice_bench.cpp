// How fast the simulations roll, each beside a floor measured in the same run: the same handful
// rolled by the same generator in a plain loop, never reseeded. Each iteration rolls ten million
// dice; `items_per_second` (dice) of a benchmark over that of its floor is the ratio.
#include <array>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "dice/analyses.h"
#include "dice/simulation_on.h"
#include "platform/linux/system_random_source.h"

namespace quenloft {
namespace {

constexpr std::int32_t kDice = 10'000'000;

struct Handful {
    std::vector<DiceGroup> groups;
    std::int32_t dice = 0;
    bool countsSuccesses = false;
};

const std::array<Handful, 3>& Handfuls() {
    static const std::array<Handful, 3> handfuls = {
        Handful{{{2, 10, 0}, {1, 12, 0}}, 3, false},
        Handful{{{6, 6, 5}}, 6, true},
        Handful{{{4, 6, 5}, {3, 6, 4}, {2, 6, 3}}, 9, true},
    };
    return handfuls;
}

const Handful& HandfulOf(const benchmark::State& state) {
    return Handfuls().at(static_cast<std::size_t>(state.range(0)));
}

void CountDice(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * kDice); }

void Floor(benchmark::State& state) {
    const Handful& handful = HandfulOf(state);
    SystemRandomSource random;
    for (auto _ : state) {
        std::array<std::int32_t, 1000> counts{};
        for (std::int32_t i = 0; i < kDice / handful.dice; ++i) {
            std::int32_t outcome = 0;
            for (const DiceGroup& group : handful.groups) {
                for (std::int32_t die = 0; die < group.count; ++die) {
                    const std::int32_t face =
                        static_cast<std::int32_t>(random.Next() * group.faces) + 1;
                    outcome += handful.countsSuccesses ? (face >= group.target ? 1 : 0) : face;
                }
            }
            ++counts[static_cast<std::size_t>(outcome)];
        }
        benchmark::DoNotOptimize(counts);
    }
    CountDice(state);
}

void Simulate(benchmark::State& state, const DieRules& rules) {
    const Handful& handful = HandfulOf(state);
    SystemRandomSource random;
    SimulationOn<SystemRandomSource> simulation(random);
    const RunPlan plan{.groups = handful.groups, .rolls = kDice / handful.dice, .rules = rules};
    for (auto _ : state) {
        if (handful.countsSuccesses) {
            SuccessCounts counts;
            simulation.CountSuccesses(plan, counts);
            benchmark::DoNotOptimize(counts);
        } else {
            TotalTally tally;
            simulation.CountTotals(plan, {0, 300}, tally);
            benchmark::DoNotOptimize(tally);
        }
    }
    CountDice(state);
}

void ReseededFromTimer(benchmark::State& state) { Simulate(state, {}); }
void IncreasedRandomness(benchmark::State& state) {
    Simulate(state, {.increaseRandomness = true, .seed = kDice});
}
void OpenEnded(benchmark::State& state) { Simulate(state, {.openEnded = true}); }

/// From the click to the finished lines: 100,000 rolls of 2D10+1D12.
void ReportOf100000Rolls(benchmark::State& state) {
    SystemRandomSource random;
    SimulationOn<SystemRandomSource> simulation(random);
    clsRoll handful;
    handful.FillValue("D10+D10+D12");
    for (auto _ : state) {
        ReportLines lines;
        RunTotals(simulation, handful, 100'000,
                  {.increaseRandomness = true, .displayMin = "0", .displayUpto = "300"}, {}, lines);
        benchmark::DoNotOptimize(lines.Lines().data());
    }
}

// 0 is 2D10+1D12, 1 is 6D6 against 5, 2 is 4 white, 3 red and 2 black dice.
BENCHMARK(Floor)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(ReseededFromTimer)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(IncreasedRandomness)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenEnded)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(ReportOf100000Rolls)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quenloft
