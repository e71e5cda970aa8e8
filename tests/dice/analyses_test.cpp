#include "dice/analyses.h"

#include <gtest/gtest.h>
#include <regex>

#include "dice/simulation_on.h"
#include "tests/support/fake_random.h"

namespace quenloft {
namespace {

using Lines = std::vector<std::string>;

class Analyses : public testing::Test {
  protected:
    template <typename Act>
    static std::string FailureOf(Act act) {
        try {
            act();
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "none";
    }

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
    const struct {
        const char* text;
        std::int32_t value;
    } cases[] = {{"0", 0},   {"-3", 0},     {" 12 ", 12}, {"2.5", 2}, {"3.5", 4},
                 {"0.3", 0}, {"1e3", 1000}, {"1,000", 1}, {"$5", 0},  {"(5)", 0}};
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(PositiveValue(text), value) << text;
    }
    const char* noNumbers[] = {"", " ", "12abc", "1.5.2", "--1", "\xD9\xA3", "50%"};
    for (const char* text : noNumbers) {
        EXPECT_EQ(FailureOf([&] { PositiveValue(text); }), "Type mismatch") << text;
    }
    EXPECT_EQ(FailureOf([&] { PositiveValue("2147483648"); }), "Overflow");
    EXPECT_EQ(FailureOf([&] { PositiveValue(std::string(40, '9')); }), "Overflow");
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
