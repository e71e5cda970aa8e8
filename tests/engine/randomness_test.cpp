// The odds. Each bound is where a right generator fails once in a million runs.
#include <cmath>
#include <numeric>

#include "engine/dice.h"
#include "tests/support/engine_fixture.h"

namespace quenloft {
namespace {

/// How far the counts are from equal, in standard deviations of a chi-square distribution.
double ChiSquare(const std::vector<long>& counts) {
    const double total = std::accumulate(counts.begin(), counts.end(), 0.0);
    const double expected = total / static_cast<double>(counts.size());
    double chiSquare = 0;
    for (const long count : counts) {
        const double off = static_cast<double>(count) - expected;
        chiSquare += off * off / expected;
    }
    return chiSquare;
}

/// In standard deviations of a normal distribution (Wilson and Hilferty 1931), for few degrees of
/// freedom too.
double Deviation(double chiSquare, double freedom) {
    const double variance = 2 / (9 * freedom);
    return (std::cbrt(chiSquare / freedom) - (1 - variance)) / std::sqrt(variance);
}

constexpr int kRolls = 100000;  // In well under a second: thousands within one tick of the clock.
constexpr double kNormalBound = 4.9;  // Once in a million.

void ExpectFair(const std::vector<int>& rolls, int faces) {
    std::vector<long> counts(static_cast<std::size_t>(faces));
    std::vector<long> pairs(static_cast<std::size_t>(faces * faces));
    for (std::size_t i = 0; i < rolls.size(); ++i) {
        ASSERT_TRUE(rolls[i] >= 1 && rolls[i] <= faces);
        ++counts[static_cast<std::size_t>(rolls[i] - 1)];
        if (i > 0) {
            ++pairs[static_cast<std::size_t>((rolls[i - 1] - 1) * faces + rolls[i] - 1)];
        }
    }
    const double ofCounts = ChiSquare(counts);
    EXPECT_LT(std::fabs(Deviation(ofCounts, faces - 1)), kNormalBound);
    // Pairs that overlap: the serial test of Good (1953).
    const double ofPairs = ChiSquare(pairs) - ofCounts;
    EXPECT_LT(std::fabs(Deviation(ofPairs, faces * (faces - 1))), kNormalBound);
}

TEST(Randomness, ReseedingWithinOneTickKeepsTheDiceFair) {
    SystemRandomSource random;
    FakeHost host;
    Dice dice(random, host, [] { return true; });
    for (const int faces : {2, 6, 20}) {
        for (const bool useEntropy : {false, true}) {
            std::vector<int> rolls;
            for (int i = 0; i < kRolls; ++i) {
                rolls.push_back(dice.RandomTotal(1, faces, false, useEntropy, i & 1));
            }
            SCOPED_TRACE(faces);
            ExpectFair(rolls, faces);
        }
    }
}

TEST(Randomness, TwoProgramsStartedAtOnceRollDifferently) {
    SystemRandomSource one;
    SystemRandomSource two;
    EXPECT_NE(one.Next(), two.Next());
}

TEST_F(EngineFixture, TablesRollByTheirWeights) {
    folder.Write("w.tbl", "T¤10\n\n1§1\n2§2\n3§3\n10§4\n");
    std::vector<int> rolls;
    long last = 0;
    engine.ResetGeneration();
    for (int i = 0; i < kRolls; ++i) {
        const int entry = std::stoi(engine.RollTable(folder.LibraryPath("w.tbl")));
        if (entry < 4) {
            rolls.push_back(entry);
        } else {
            ++last;
        }
    }
    ExpectFair(rolls, 3);
    const double deviation = (static_cast<double>(last) - 0.7 * kRolls) / std::sqrt(0.21 * kRolls);
    EXPECT_LT(std::fabs(deviation), kNormalBound);
}

}  // namespace
}  // namespace quenloft
