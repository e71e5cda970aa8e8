// The notation of dice. Rows of dice end early: their length is the user's affair.
#include "engine/dice.h"
#include "platform/linux/system_random_source.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/fake_host.h"

void quenloft::Fuzz(std::string_view input) {
    static FakeHost host;
    static SystemRandomSource random;
    Dice dice(random, host, [turns = 0]() mutable { return ++turns < 2; });
    FUZZ_CHECK(!dice.RollDice(input).empty());
}
