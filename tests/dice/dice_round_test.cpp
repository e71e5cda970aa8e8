// Handfuls of dice as they are written, and the lines of their rolls.
#include "dice/dice_round.h"

#include "dice/cls_roll.h"
#include "engine/dice.h"
#include "tests/support/failure_of.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_random.h"

namespace quenloft {
namespace {

TEST(ClsRoll, ReadsDiceListsToTheLetter) {
    const std::pair<const char*, const char*> cases[] = {
        {"D10+D10+D12", "2D10+1D12"},
        {"d10+D10+x", "2D10"},
        {"D10+", ""},
        {"+D10", "1D10"},
        {"D6++D6", "2D6"},
        {"D10 +D6", "1D6"},
        {"2D10", ""},
        {"D100", ""},
        {"+", ""},
        {"", ""},
    };
    for (const auto& [list, handful] : cases) {
        clsRoll roll;
        roll.FillValue(list);
        EXPECT_EQ(roll.Text(), handful) << list;
    }
}

TEST(ClsRoll, AddsUpUntilItIsReset) {
    clsRoll roll;
    roll.FillValue("D4");
    roll.FillValue("D12+D4+D6+D8+D20+D10+D2");
    EXPECT_EQ(roll.Text(), "1D2+2D4+1D6+1D8+1D10+1D12+1D20");
    roll.Reset();
    EXPECT_EQ(roll.Text(), "");
}

class DiceRound : public testing::Test {
  protected:
    /// The lines, and in front of them what a failed roll said.
    std::vector<std::string> Roll(const DiceRequest& request) {
        ReportLines lines;
        const std::string failure =
            FailureOf([&] { RollTimes(dice, request, goOn, lines, result); });
        std::vector<std::string> all = lines.Take();
        if (failure != "none") {
            all.insert(all.begin(), failure);
        }
        return all;
    }

    ConstantRandom random;  // Each die shows a 1.
    FakeHost host;
    static bool goOn() { return true; }
    Dice dice{random, host, goOn};
    std::string result = "0";
};

TEST_F(DiceRound, WritesLinesWithTheTextsAsTyped) {
    const std::pair<DiceRequest, std::vector<std::string>> cases[] = {
        {{"3", "6", "2", "1", true}, {"3D6+2~ = 5"}},
        {{"03", "6", "0", "1", false}, {"03D6  = 3"}},
        {{"1", "6", "-2", "1", false}, {"1D6-2  = -1"}},
        {{"1", "6", "+3", "1", false}, {"1D6++3  = 4"}},
        {{"1", "6", "-0", "1", false}, {"1D6  = 1"}},
        {{"abc", "6", "5", "1", false}, {"abcD6+5  = 0"}},
        {{" 2", "1e1", "0", "1", false}, {" 2D1e1  = 2"}},
        {{"1,000", "6", "0", "1", false}, {"1,000D6  = 1"}},
        {{"1", "6", "0", "2.5", false}, {"1D6  = 1", "1D6  = 1"}},
        {{"1", "6", "0", "0", false}, {}},
        {{"1", "1", "0", "1", true}, {"Overflow"}},
        {{"1", "6", "9999999999999999999999999999999999999999", "1", false}, {"Overflow"}},
        {{"1", "6", "2147483647", "3", false}, {"Overflow"}},
    };
    for (const auto& [request, lines] : cases) {
        EXPECT_EQ(Roll(request), lines) << request.count << " D " << request.faces << " + "
                                        << request.add << " times " << request.times;
    }
}

TEST_F(DiceRound, KeepsTheLastResultWhereNothingIsRolled) {
    Roll({"2", "6", "10", "1", false});
    EXPECT_EQ(result, "12");
    Roll({"2", "6", "0", "0", false});
    EXPECT_EQ(result, "12");
}

}  // namespace
}  // namespace quenloft
