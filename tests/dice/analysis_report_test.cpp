#include "dice/analysis_report.h"

#include "dice/simulation_on.h"
#include "tests/support/failure_of.h"
#include "tests/support/fake_random.h"

namespace quenloft {
namespace {

using Lines = std::vector<std::string>;

const std::string kShort(59, '-');
const std::string kLong(92, '-');

TEST(PercentText, RoundsToFiveDecimalsHalfToEvenAndThenToThreeHalfUp) {
    const std::pair<double, const char*> cases[] = {
        {0, "00.000"},           {5.217, "05.217"},      {100, "100.000"},  {0.0005, "00.001"},
        {99.9995, "100.000"},    {1.2345, "01.235"},     {-1.5, "-01.500"}, {0.0004951, "00.001"},
        {0.0004949, "00.000"},   {-0.0000001, "00.000"}, {200, "200.000"},  {33.3333333, "33.333"},
        {66.66666666, "66.667"},
    };
    for (const auto& [percent, text] : cases) {
        EXPECT_EQ(PercentText(percent), text) << percent;
    }
    EXPECT_EQ(PercentText(1e30).substr(0, 2), "90") << "no number may be past 64 bits";
}

class TotalsReport : public testing::Test {
  protected:
    std::string Report(const std::vector<std::int32_t>& totals, const DisplayRange& range,
                       std::string_view dice) {
        const std::vector<DiceGroup> anyTotal = {{1, 2'000'000'000, 0}};
        std::vector<double> values;
        for (const std::int32_t total : totals) {
            values.push_back((total - 0.5) / 2'000'000'000);
        }
        ScriptedRandom random(values);
        const auto rolls = static_cast<std::int32_t>(totals.size());
        TotalTally tally;
        SimulationOn<RandomSource>(random).CountTotals(
            {.groups = anyTotal, .rolls = rolls, .rules = {}}, range, tally);
        clsRoll handful;
        handful.FillValue(dice);
        ReportLines lines;
        AddTotalsReport(handful, {rolls, 3}, range, tally, lines);
        std::string text;
        for (const std::string& line : lines.Take()) {
            text += line == kShort ? "---\n" : line + "\n";
        }
        return text;
    }
};

TEST_F(TotalsReport, HasARowForEveryTotalInItsRange) {
    const std::string header = "Result\tOutcome\t% of Total\t\t% to get\n";
    EXPECT_EQ(Report({2, 2, 4, 3, 2, 2, 2, 2}, {0, 4}, "D2+D2"),
              "---\n2D2 rolled 8 times in 3 seconds\n" + header +
                  "1\t0\t00.000 %\t\t100.000 %\n2\t6\t75.000 %\t\t100.000 %\n"
                  "3\t1\t12.500 %\t\t25.000 %\n4\t1\t12.500 %\t\t12.500 %\n---\n");
    EXPECT_EQ(Report({1, 3, 5, 7}, {3.0, 5.5}, "D4+D4+d10"),
              "---\n2D4+1D10 rolled 4 times in 3 seconds\n" + header +
                  "3\t1\t25.000 %\t\t75.000 %\n4\t0\t00.000 %\t\t50.000 %\n"
                  "5\t1\t25.000 %\t\t50.000 %\n1 rolls result were above 5.5\n"
                  "Highest roll result: 7\n1 results were below 3\nLowest roll result: 1\n---\n")
        << "what is not shown is subtracted";
    EXPECT_EQ(Report({0, 0}, {1, 300}, ""),
              "---\n rolled 2 times in 3 seconds\n" + header +
                  "2 results were below 1\nLowest roll result: 0\n---\n")
        << "no dice";
    EXPECT_EQ(Report({6}, {10, 2}, "D6"),
              "---\n1D6 rolled 1 times in 3 seconds\n" + header +
                  "1 rolls result were above 2\nHighest roll result: 6\n"
                  "1 results were below 10\nLowest roll result: 1\n---\n")
        << "the range upside down";
    EXPECT_EQ(Report({2'000'000'000, 1'999'999'999}, {0, 1}, ""),
              "---\n rolled 2 times in 3 seconds\n" + header +
                  "1\t0\t00.000 %\t\t100.000 %\n2 rolls result were above 1\n"
                  "Highest roll result: 2000000000\n---\n")
        << "totals in the billions, at once";
}

TEST(SuccessReport, DividesTheCountsOfAllRunsByTheRollsOfTheLast) {
    SuccessCounts counts;
    for (const std::int32_t successes : {0, 1, 1, 3}) {
        counts.Count(successes);
    }
    ReportLines lines;
    AddSuccessReport("3D6", " against Target No 5", {2, 0}, counts, lines);
    EXPECT_EQ(lines.Take(),
              (Lines{kLong, "3D6 rolled 2 times against Target No 5 in 0 seconds",
                     "Successes\tOutcome\t% of Total\t\t% to get", "0\t\t1\t50.000 %\t\t100.000 %",
                     "1\t\t2\t100.000 %\t\t50.000 %", "2\t\t0\t00.000 %\t\t-50.000 %",
                     "3\t\t1\t50.000 %\t\t-50.000 %"}));
}

TEST(SuccessReport, WithoutRollsFailsWhereItDivides) {
    SuccessCounts counts;
    for (const char* words : {"Overflow", "Division by zero"}) {
        ReportLines lines;
        EXPECT_EQ(FailureOf([&] { AddSuccessReport("W", "", {0, 0}, counts, lines); }), words);
        EXPECT_EQ(lines.Take(), (Lines{kLong, "W rolled 0 times in 0 seconds",
                                       "Successes\tOutcome\t% of Total\t\t% to get"}));
        counts.Count(0);
    }
}

}  // namespace
}  // namespace quenloft
