// Whether dice fall as they must: against exact distributions, and die by die against a script.
#include <cmath>

#include "dice/simulation_on.h"
#include "platform/linux/system_random_source.h"
#include "tests/support/failure_of.h"
#include "tests/support/fake_random.h"

namespace quenloft {
namespace {

using Odds = std::vector<double>;  // The probability of each outcome.

Odds Convolve(const Odds& a, const Odds& b) {
    Odds sum(a.size() + b.size() - 1, 0.0);
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < b.size(); ++j) {
            sum[i + j] += a[i] * b[j];
        }
    }
    return sum;
}

/// Of one die. Open-ended: F times (k - 1) + r, 1 <= r < F, comes with probability F^-k.
Odds DieOdds(std::int32_t faces, bool openEnded) {
    const auto f = static_cast<std::size_t>(faces);
    const std::size_t series = openEnded ? 40 : 1;
    Odds odds(f * series + 1, 0.0);
    double chance = 1.0 / faces;
    for (std::size_t k = 0; k < series; ++k, chance /= faces) {
        for (std::size_t r = 1; r <= f; ++r) {
            odds[f * k + r] = openEnded && r == f ? 0.0 : chance;
        }
    }
    return odds;
}

Odds HandfulOdds(const std::vector<DiceGroup>& groups, bool openEnded, bool countsSuccesses) {
    Odds odds{1.0};
    for (const DiceGroup& group : groups) {
        Odds die = DieOdds(group.faces, openEnded);
        if (countsSuccesses) {
            Odds success{0.0, 0.0};
            for (std::size_t face = 1; face < die.size(); ++face) {
                success[static_cast<std::int32_t>(face) >= group.target ? 1 : 0] += die[face];
            }
            die = success;
        }
        for (std::int32_t i = 0; i < group.count; ++i) {
            odds = Convolve(odds, die);
        }
    }
    return odds;
}

constexpr std::int32_t kRolls = 1'000'000;

/// Chi-squared over the outcomes that are likely enough, the rest taken together. The bound lies
/// six standard deviations out: it fails by chance less than once in a hundred million.
template <typename Counts>
void ExpectOdds(const Odds& odds, const Counts& counts, const std::string& what) {
    constexpr double kLikely = 20;
    double chiSquared = 0;
    double rareExpected = 0;
    double rareCount = kRolls;
    int degrees = 0;
    for (std::size_t i = 0; i < odds.size(); ++i) {
        const double expected = odds[i] * kRolls;
        if (expected < kLikely) {
            rareExpected += expected;
            continue;
        }
        const double count = counts.Of(static_cast<std::int32_t>(i));
        rareCount -= count;
        chiSquared += (count - expected) * (count - expected) / expected;
        ++degrees;
    }
    EXPECT_LE(std::abs(rareCount - rareExpected), 6 * std::sqrt(rareExpected) + 6) << what;
    EXPECT_LE(chiSquared, degrees + 6 * std::sqrt(2.0 * degrees) + 20) << what;
}

TEST(Simulation, RollsTheExactDistributions) {
    const struct {
        const char* what;
        std::vector<DiceGroup> groups;
        bool countsSuccesses;
    } handfuls[] = {
        {"2D10+1D12", {{2, 10, 0}, {1, 12, 0}}, false},
        {"1D2+1D4+1D20", {{1, 2, 0}, {1, 4, 0}, {1, 20, 0}}, false},
        {"6D6 against 5", {{6, 6, 5}}, true},
        {"4 white, 3 red, 2 black", {{4, 6, 5}, {3, 6, 4}, {2, 6, 3}}, true},
    };
    SystemRandomSource random;
    SimulationOn<SystemRandomSource> simulation(random);
    for (const auto& handful : handfuls) {
        for (const bool openEnded : {false, true}) {
            for (const bool increased : {false, true}) {
                const RunPlan plan{.groups = handful.groups,
                                   .rolls = kRolls,
                                   .rules = {openEnded, increased, kRolls}};
                const Odds odds = HandfulOdds(handful.groups, openEnded, handful.countsSuccesses);
                const std::string what = std::string(handful.what) +
                                         (openEnded ? ", open-ended" : "") +
                                         (increased ? ", randomness increased" : "");
                if (handful.countsSuccesses) {
                    SuccessCounts counts;
                    simulation.CountSuccesses(plan, counts);
                    ExpectOdds(odds, counts, what);
                } else {
                    TotalTally tally;
                    simulation.CountTotals(plan, {0, 300}, tally);
                    ExpectOdds(odds, tally.counts, what);
                }
            }
        }
    }
}

TEST(Simulation, ReseedsForEachDieAndNotForARollOfTheSameDie) {
    ScriptedRandom random({0.0, 0.99, 0.99, 0.5});  // 1; 6 and 6 and 4.
    SimulationOn<RandomSource> simulation(random);
    const std::vector<DiceGroup> groups = {{2, 6, 16}};
    std::string shown;
    SuccessCounts counts;
    simulation.CountSuccesses({.groups = groups,
                               .rolls = 1,
                               .rules = {.openEnded = true},
                               .showFaces = [&](std::string faces) { shown = std::move(faces); }},
                              counts);
    EXPECT_EQ(shown, "1,16,");
    EXPECT_EQ(counts.Of(1), 1);
    EXPECT_EQ(random.timerReseeds, 2);
    EXPECT_EQ(random.reseeds.size(), 0);
}

TEST(Simulation, FailsInTheRuntimesWords) {
    ConstantRandom random(0.99);
    SimulationOn<RandomSource> simulation(random);
    const struct {
        const char* what;
        DiceGroup group;
        bool openEnded;
        const char* words;
    } cases[] = {
        {"one face, open-ended", {1, 1, 1}, true, "Overflow"},
        {"dice that never stop", {1, 6, 1}, true, "Overflow"},
        {"300 successes", {300, 6, 1}, false, "none"},
        {"301 successes", {301, 6, 1}, false, "Subscript out of range"},
        {"two thousand million successes", {2'000'000'000, 6, -5}, false, "Subscript out of range"},
        {"a negative number of dice", {-5, 6, 1}, false, "none"},
    };
    for (const auto& [what, group, openEnded, words] : cases) {
        const std::vector<DiceGroup> groups = {group};
        const DieRules rules{.openEnded = openEnded};
        SuccessCounts counts;
        EXPECT_EQ(FailureOf([&] {
                      simulation.CountSuccesses({.groups = groups, .rolls = 1, .rules = rules},
                                                counts);
                  }),
                  words)
            << what;
    }
    const std::vector<DiceGroup> large = {{3, 2'000'000'000, 0}};
    TotalTally tally;
    EXPECT_EQ(FailureOf([&] {
                  simulation.CountTotals({.groups = large, .rolls = 1, .rules = {}}, {}, tally);
              }),
              "Overflow");
}

}  // namespace
}  // namespace quenloft
