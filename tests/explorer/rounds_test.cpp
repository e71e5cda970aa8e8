#include "explorer/rounds.h"

#include <gtest/gtest.h>

namespace quenloft {
namespace {

TEST(Rounds, AreReadLenientlyAndBounded) {
    const struct {
        const char* text;
        int rounds;
    } cases[] = {
        {"", 1},       {" 12 ", 12},        {"abc", 1},          {"0", 1},
        {"-5", 1},     {"2.5", 2},          {"3.5", 4},          {"12 times", 12},
        {"1e3", 1000}, {"100000", 100'000}, {"100001", 100'000}, {"1e999", 100'000},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(RoundsFromText(c.text), c.rounds) << c.text;
    }
}

class RunRoundsTest : public testing::Test {
  protected:
    std::string Run(int rounds) {
        output.clear();
        rolled = 0;
        RunRounds(rounds, {.roll = [this] { return "r" + std::to_string(++rolled); },
                           .isAborted = [this] { return rolled == abortAt; },
                           .yield = [this] { ++yields; },
                           .append =
                               [this](std::string_view text) {
                                   ++pieces;
                                   output += text;
                               }});
        return output;
    }

    std::string output;
    int rolled = 0;
    int abortAt = -1;
    int yields = 0;
    int pieces = 0;
};

TEST_F(RunRoundsTest, LeavesAnEmptyLineBetweenResults) {
    EXPECT_EQ(Run(1), "r1");
    EXPECT_EQ(Run(3), "r1\r\n\r\nr2\r\n\r\nr3");
}

TEST_F(RunRoundsTest, EndsWithTheRoundThatWasAborted) {
    abortAt = 2;
    EXPECT_EQ(Run(1'000), "r1\r\n\r\nr2\r\n\r\nProcess Aborted!");
}

TEST_F(RunRoundsTest, HandsOutManyResultsInFewPieces) {
    Run(100'000);
    EXPECT_TRUE(output.ends_with("\r\n\r\nr100000"));
    EXPECT_LT(pieces, 1'000);
    EXPECT_EQ(yields, 100'000) << "an abort must be seen between any two rounds";
}

}  // namespace
}  // namespace quenloft
