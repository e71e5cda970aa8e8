#include "dice/analyses.h"

#include <algorithm>
#include <functional>

#include "dice/dice_round.h"
#include "dice/simulation_on.h"
#include "engine/dice.h"
#include "engine/numbers.h"
#include "tests/support/failure_of.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_random.h"

namespace quenloft {
namespace {

using Lines = std::vector<std::string>;

class Analyses : public testing::Test {
  protected:
    ConstantRandom random;  // Each die shows a 1.
    SimulationOn<RandomSource> simulation{random};
    ReportLines lines;
    SuccessCounts counts;
};

TEST_F(Analyses, ReadBoxesStrictlyToDecideAndLenientlyToCount) {
    const std::pair<const char*, std::int32_t> cases[] = {
        {"0", 0},   {"-3", 0},     {" 12 ", 12}, {"2.5", 2}, {"3.5", 4},
        {"0.3", 0}, {"1e3", 1000}, {"1,000", 1}, {"$5", 0},  {"(5)", 0}};
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(PositiveValue(text), value) << text;
    }
    for (const char* text : {"", " ", "12abc"}) {
        EXPECT_EQ(FailureOf([&] { PositiveValue(text); }), "Type mismatch") << text;
    }
    EXPECT_EQ(FailureOf([&] { PositiveValue("2147483648"); }), "Overflow");
}

/// Writes down in which order the generator is reseeded and asked for dice.
class RecordingRandom : public ConstantRandom {
  public:
    RecordingRandom() : ConstantRandom(0.5) {}
    double Next() override {
        log += "die ";
        return ConstantRandom::Next();
    }
    double DrawMixed(std::span<const double> figures, double seed) override {
        return ConstantRandom().DrawMixed(figures, seed) + (9 + seed) / 2;
    }
    void ReseedFromTimer() override { log += "timer "; }
    void Reseed(double number) override { log += NumberToText(number) + " "; }

    std::string log;
};

TEST_F(Analyses, ReseedTheGeneratorInTheirOwnWays) {
    RecordingRandom recorder;
    SimulationOn<RandomSource> recorded(recorder);
    FakeHost host;
    Dice dice(recorder, host, [] { return true; });
    clsRoll handful;
    handful.FillValue("D6+D6");
    std::string result;
    // The entropy of a machine whose figures are all 0, mixed with the seed: (9 + seed) / 2 + 1,
    // floored.
    const struct {
        const char* what;
        std::function<void()> run;
        const char* log;
    } cases[] = {
        {"totals", [&] { RunTotals(recorded, handful, 2, {}, {}, lines); },
         "timer die timer die timer die timer die "},
        {"totals, increased: seed 2",
         [&] { RunTotals(recorded, handful, 2, {.increaseRandomness = true}, {}, lines); },
         "6 die 6 die 6 die 6 die "},
        {"a target",
         [&] {
             RunTarget(recorded, {6, 1, 3, 5}, {}, {}, counts, lines);
         },
         "timer die timer die timer die "},
        {"a target, increased: seed 3, and once before the first die",
         [&] {
             RunTarget(recorded, {6, 1, 3, 5}, {.increaseRandomness = true}, {}, counts, lines);
         },
         "7 7 die 7 die 7 die "},
        {"colours: seed 0",
         [&] { RunColours(recorded, {.white = 1, .rolls = 2}, {}, counts, lines); },
         "5 die 5 die "},
        {"the dice roller: once for each roll",
         [&] {
             RollTimes(
                 dice, {"2", "6", "0", "2", false}, [] { return true; }, lines, result);
         },
         "timer die die timer die die "},
    };
    for (const auto& [what, run, log] : cases) {
        recorder.log.clear();
        run();
        EXPECT_EQ(recorder.log, log) << what;
    }
}

TEST_F(Analyses, HoldNoMoreLinesThanAMachineDoes) {
    constexpr std::size_t kAll = std::size_t{512} << 20U;
    ReportLines full(kAll - ReportLines::BytesOf("1") - ReportLines::BytesOf("2"));
    full.Add("1");
    EXPECT_EQ(FailureOf([&] { full.Add("too long"); }), "Out of memory");
    full.Add("2");
    EXPECT_EQ(FailureOf([&] { full.Add(""); }), "Out of memory");
    EXPECT_EQ(full.Take(), (Lines{"1", "2"}));
}

TEST_F(Analyses, KnowTheColoursByTheirFaces) {
    // successes: Of 1 white, 10 red and 100 black dice.
    const std::pair<double, std::int32_t> faces[] = {
        {0.2, 0}, {0.4, 100}, {0.55, 110}, {0.75, 111}};
    for (const auto& [value, successes] : faces) {
        ConstantRandom constant(value);
        SimulationOn<RandomSource> simulationOfOneFace(constant);
        SuccessCounts own;
        RunColours(simulationOfOneFace, ColourPoolFromTexts("1", "100 b", "10", "1.5e0"), {}, own,
                   lines);
        EXPECT_EQ(own.Last(), value < 0.7 ? successes : 112) << "1.5 dice are 2";
    }
}

}  // namespace
}  // namespace quenloft
