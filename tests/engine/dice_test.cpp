#include "engine/dice.h"

#include "engine/failure.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_random.h"

namespace quenloft {
namespace {

/// The random value in the middle of a face.
double Face(int face, int sides) { return (face - 0.5) / sides; }

TEST(DiceNotation, ReadsCountSidesModifierAndOpenEnd) {
    const auto d6 = [](int face) { return Face(face, 6); };
    const struct {
        const char* notation;
        std::vector<double> values;
        const char* total;
    } cases[] = {
        {"3D6", {d6(1), d6(6), d6(4)}, "11"},
        {" 1 d 6 ", {d6(5)}, "5"},
        {"1d6-2", {d6(2)}, "1"},   // A total of exactly 0 becomes 1 ...
        {"1d6-3", {d6(1)}, "-2"},  // ... a negative one stays.
        {"2d6+1+1", {d6(1), d6(1)}, "3"},
        {"1d6+-5", {d6(6)}, "1"},
        {"1d6+2~", {d6(6), d6(1)}, "9"},
        {"2d6~", {d6(6), d6(1), d6(3)}, "10"},
        {"1d1,0", {Face(7, 10)}, "7"},
        {"3d0", {}, "0"},
        {"-2d6", {}, "Invalid dice!"},  // The "-" begins a modifier: no dice before it.
        {"d6", {}, "Invalid dice!"},
        {"", {}, "Invalid dice!"},
        {"1d6d6", {}, "Invalid dice!"},
        {"3000000000d6", {}, "Invalid dice!"},
        {"1d6+3000000000", {}, "Invalid dice!"},
        {"2d1~", {}, "Invalid dice!"},  // Would roll its highest face for ever.
    };
    for (const auto& c : cases) {
        ScriptedRandom random(c.values);
        FakeHost host;
        Dice dice(random, host, [] { return true; });
        EXPECT_EQ(dice.RollDice(c.notation), c.total) << c.notation;
        EXPECT_EQ(random.Left(), 0U) << c.notation;
    }
}

TEST(DicePool, PastThirtyTwoBitsFailsAndALongRowCanBeEnded) {
    ConstantRandom highest(0.9999999999);
    FakeHost host;
    Dice dice(highest, host, [] { return true; });
    EXPECT_THROW(dice.RandomTotal(3, 2147483647, false, false, 0), Failure);
    EXPECT_EQ(dice.RandomTotal(-4, 6, false, false, 0), 0);

    int turns = 0;
    Dice ended(highest, host, [&] { return ++turns < 3; });
    EXPECT_LT(ended.RandomTotal(999999999, 2, false, false, 0), 1000000);
    EXPECT_EQ(turns, 3);
}

TEST(Randomness, IsIncreasedByClockMemoryAndSeed) {
    // One fresh value a figure: the tick, eight memory figures, and the last product.
    ScriptedRandom random({0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.25});
    random.tickCount = 101;
    random.memory = {.structureLength = 10,
                     .memoryLoad = 20,
                     .totalPhysical = 30,
                     .availablePhysical = 40,
                     .totalPageFile = 50,
                     .availablePageFile = 60,
                     .totalVirtual = 70,
                     .availableVirtual = 80};
    FakeHost host;
    Dice(random, host, [] { return true; }).IncreaseRandomness(7);
    // 50+1 for the tick, half of 360 and 8 for the memory: (51 + 188 + 7) * 0.25 + 1, floored.
    EXPECT_EQ(random.reseeds, std::vector<double>{62});
    EXPECT_TRUE(host.messages.empty());

    ScriptedRandom broken(std::vector<double>(10, 0.5));
    broken.memory.totalPhysical = 1e308 * 10;
    Dice(broken, host, [] { return true; }).IncreaseRandomness(0);
    EXPECT_TRUE(broken.reseeds.empty());
    EXPECT_EQ(host.messages,
              std::vector<std::string>{"Failure in increasing randomness!\r\nOverflow"});
}

}  // namespace
}  // namespace quenloft
