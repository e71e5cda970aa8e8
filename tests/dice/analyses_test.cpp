#include "dice/analyses.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <regex>

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
    /// The report so far, with "N" for the seconds that it took.
    Lines TakeLines() {
        Lines all = lines.Take();
        for (std::string& line : all) {
            line = std::regex_replace(line, std::regex(R"( in \d+ seconds)"), " in N seconds");
        }
        return all;
    }

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

TEST_F(Analyses, CountTotalsOfAHandful) {
    const clsRoll handful = HandfulFromTexts({"0", "-1", "2", "0", "0", "0", "1"});
    RunTotals(simulation, handful, 4, {.displayMin = "2", .displayUpto = "abc"}, {}, lines);
    EXPECT_EQ(TakeLines(),
              (Lines{std::string(59, '-'), "2D6+1D20 rolled 4 times in N seconds",
                     "Result\tOutcome\t% of Total\t\t% to get", "4 rolls result were above 0",
                     "Highest roll result: 3", std::string(59, '-')}));
    EXPECT_EQ(
        FailureOf([&] { RunTotals(simulation, handful, 4, {.displayUpto = "3e9"}, {}, lines); }),
        "Overflow");
}

TEST_F(Analyses, FindEveryTotalAboveANegativeEndOfTheRange) {
    RunTotals(simulation, HandfulFromTexts({"0", "0", "1", "0", "0", "0", "0"}), 2,
              {.displayMin = "0", .displayUpto = "-5"}, {}, lines);
    EXPECT_EQ(TakeLines(),
              (Lines{std::string(59, '-'), "1D6 rolled 2 times in N seconds",
                     "Result\tOutcome\t% of Total\t\t% to get", "2 rolls result were above -5",
                     "Highest roll result: 1", std::string(59, '-')}));
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
    // The entropy of a machine whose figures are all 0, mixed with the seed: (9 + seed) / 2 + 1.
    const struct {
        const char* what;
        std::function<void()> run;
        const char* log;
    } cases[] = {
        {"totals", [&] { RunTotals(recorded, handful, 3, {}, {}, lines); },
         "timer die timer die timer die timer die timer die timer die "},
        {"totals, increased: seed 3",
         [&] { RunTotals(recorded, handful, 3, {.increaseRandomness = true}, {}, lines); },
         "7 die 7 die 7 die 7 die 7 die 7 die "},
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
         [&] { RunColours(recorded, {.white = 1, .rolls = 3}, {}, counts, lines); },
         "5 die 5 die 5 die "},
        {"the dice roller: once for each roll",
         [&] {
             RollTimes(dice, {"2", "6", "0", "2", false}, lines, result);
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

TEST_F(Analyses, AddUpSuccessesFromRunToRun) {
    const TargetPool pool{.faces = 6, .dice = 2, .rolls = 2, .target = 1};
    RunTarget(simulation, pool, {.showRolls = true}, {}, counts, lines);
    RunTarget(simulation, pool, {.increaseRandomness = true}, {}, counts, lines);
    const std::string dashes(92, '-');
    const std::string title = "2D6 rolled 2 times against Target No 1 in N seconds";
    const std::string header = "Successes\tOutcome\t% of Total\t\t% to get";
    EXPECT_EQ(TakeLines(),
              (Lines{"1,1,", "1,1,", dashes, title, header, "0\t\t0\t00.000 %\t\t100.000 %",
                     "1\t\t0\t00.000 %\t\t100.000 %", "2\t\t2\t100.000 %\t\t100.000 %", dashes,
                     title, header, "0\t\t0\t00.000 %\t\t100.000 %",
                     "1\t\t0\t00.000 %\t\t100.000 %", "2\t\t4\t200.000 %\t\t100.000 %"}));
}

TEST_F(Analyses, KnowTheColoursByTheirFaces) {
    const struct {
        double value;
        std::int32_t successes;  // Of 1 white, 10 red and 100 black dice.
    } faces[] = {{0.2, 0}, {0.4, 100}, {0.55, 110}, {0.75, 111}};
    for (const auto& [value, successes] : faces) {
        ConstantRandom constant(value);
        SimulationOn<RandomSource> simulationOfOneFace(constant);
        SuccessCounts own;
        RunColours(simulationOfOneFace, ColourPoolFromTexts("1", "100 b", "10", "1.5e0"), {}, own,
                   lines);
        EXPECT_EQ(own.Last(), value < 0.7 ? successes : 112) << "1.5 dice are 2";
    }
    lines.Take();
    RunColours(simulation, {.white = 2, .red = 1, .black = -1, .rolls = 1}, {}, counts, lines);
    EXPECT_EQ(TakeLines()[1], "WWR rolled 1 times in N seconds");
}

TEST_F(Analyses, ReportACancelledRunOverAllItsRolls) {
    RunColours(
        simulation, {.rolls = 100'000}, [](std::int32_t) { return false; }, counts, lines);
    const Lines report = TakeLines();
    EXPECT_EQ(report[1], " rolled 100000 times in N seconds");
    EXPECT_EQ(report[3], "0\t\t4096\t04.096 %\t\t100.000 %");
}

}  // namespace
}  // namespace quenloft
