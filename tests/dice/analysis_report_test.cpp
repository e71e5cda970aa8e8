#include "dice/analysis_report.h"

#include <gtest/gtest.h>

#include "engine/failure.h"

namespace quenloft {
namespace {

using Lines = std::vector<std::string>;

const std::string kShort(59, '-');
const std::string kLong(92, '-');

TEST(PercentText, RoundsToFiveDecimalsHalfToEvenAndThenToThreeHalfUp) {
    const struct {
        double percent;
        const char* text;
    } cases[] = {
        {0, "00.000"},          {5.217, "05.217"},       {100, "100.000"},
        {0.0005, "00.001"},     {99.9995, "100.000"},    {1.2345, "01.235"},
        {-1.5, "-01.500"},      {0.0004951, "00.001"},   {0.0004949, "00.000"},
        {-0.0000001, "00.000"}, {200, "200.000"},        {1e30, "90000000000.000"},
        {33.3333333, "33.333"}, {66.66666666, "66.667"},
    };
    for (const auto& [percent, text] : cases) {
        if (percent < 1e20) {
            EXPECT_EQ(PercentText(percent), text) << percent;
        } else {
            EXPECT_EQ(PercentText(percent).substr(0, 2), "90") << "no number may be past 64 bits";
        }
    }
}

class TotalsReport : public testing::Test {
  protected:
    /// Counts the totals as a run over `range` does.
    Lines Report(std::initializer_list<std::int32_t> totals, const DisplayRange& range,
                 std::string_view dice) {
        TotalTally tally;
        for (const std::int32_t total : totals) {
            tally.counts.Count(total);
            if (range.upper < total) {
                ++tally.above;
                tally.highest = std::max(tally.highest, total);
            }
            if (range.lower > total) {
                ++tally.below;
                tally.lowest = std::min(tally.lowest, total);
            }
        }
        clsRoll handful;
        handful.FillValue(dice);
        ReportLines lines;
        AddTotalsReport(handful, {static_cast<std::int32_t>(totals.size()), 3}, range, tally,
                        lines);
        return lines.Take();
    }
};

TEST_F(TotalsReport, HasARowForEveryTotalUpToTheLastOne) {
    EXPECT_EQ(
        Report({2, 2, 4, 3, 2, 2, 2, 2}, {0, 300}, "D2+D2"),
        (Lines{kShort, "2D2 rolled 8 times in 3 seconds", "Result\tOutcome\t% of Total\t\t% to get",
               "1\t0\t00.000 %\t\t100.000 %", "2\t6\t75.000 %\t\t100.000 %",
               "3\t1\t12.500 %\t\t25.000 %", "4\t1\t12.500 %\t\t12.500 %", kShort}));
}

TEST_F(TotalsReport, SubtractsTheRowsThatItDoesNotShow) {
    EXPECT_EQ(Report({1, 3, 5, 7}, {3.0, 5.5}, "D4+D4+d10"),
              (Lines{kShort, "2D4+1D10 rolled 4 times in 3 seconds",
                     "Result\tOutcome\t% of Total\t\t% to get", "3\t1\t25.000 %\t\t75.000 %",
                     "4\t0\t00.000 %\t\t50.000 %", "5\t1\t25.000 %\t\t50.000 %",
                     "1 rolls result were above 5.5", "Highest roll result: 7",
                     "1 results were below 3", "Lowest roll result: 1", kShort}));
}

TEST_F(TotalsReport, WithoutDiceKnowsTotalsOf0Only) {
    EXPECT_EQ(
        Report({0, 0}, {1, 300}, ""),
        (Lines{kShort, " rolled 2 times in 3 seconds", "Result\tOutcome\t% of Total\t\t% to get",
               "2 results were below 1", "Lowest roll result: 0", kShort}));
}

TEST_F(TotalsReport, WithTheRangeUpsideDownFindsEverythingOutside) {
    EXPECT_EQ(
        Report({6}, {10, 2}, "D6"),
        (Lines{kShort, "1D6 rolled 1 times in 3 seconds", "Result\tOutcome\t% of Total\t\t% to get",
               "1 rolls result were above 2", "Highest roll result: 6", "1 results were below 10",
               "Lowest roll result: 1", kShort}));
}

TEST_F(TotalsReport, OfTotalsInTheBillionsIsReadyAtOnce) {
    EXPECT_EQ(
        Report({2'000'000'000, 2'000'000'000, 1'999'999'999}, {0, 2}, ""),
        (Lines{kShort, " rolled 3 times in 3 seconds", "Result\tOutcome\t% of Total\t\t% to get",
               "1\t0\t00.000 %\t\t100.000 %", "2\t0\t00.000 %\t\t100.000 %",
               "3 rolls result were above 2", "Highest roll result: 2000000000", kShort}));
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
        try {
            AddSuccessReport("W", "", {0, 0}, counts, lines);
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_STREQ(failure.what(), words);
        }
        EXPECT_EQ(lines.Take(), (Lines{kLong, "W rolled 0 times in 0 seconds",
                                       "Successes\tOutcome\t% of Total\t\t% to get"}));
        counts.Count(0);
    }
}

}  // namespace
}  // namespace quenloft
