#include "dice/cls_roll.h"

#include <gtest/gtest.h>

namespace quenloft {
namespace {

TEST(ClsRoll, ReadsDiceListsToTheLetter) {
    const struct {
        const char* list;
        const char* handful;
    } cases[] = {
        {"D10+D10+D12", "2D10+1D12"},
        {"D20+D2+D4+D6+D8+D10+D12", "1D2+1D4+1D6+1D8+1D10+1D12+1D20"},
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
    roll.FillValue("D4+D20");
    EXPECT_EQ(roll.Text(), "2D4+1D20");
    roll.Reset();
    EXPECT_EQ(roll.Text(), "");
}

}  // namespace
}  // namespace quenloft
