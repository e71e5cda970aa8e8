#include "engine/dice.h"

#include <limits>

#include "engine/entropy_mixing.h"
#include "engine/failure.h"
#include "engine/numbers.h"
#include "engine/text_helpers.h"

namespace quenloft {

namespace {

/// How many dice are rolled between two looks at the event loop: well under a millisecond.
constexpr std::int64_t kDicePerTurn = 1 << 16;

std::int32_t To32Bits(std::int64_t total) {
    if (total < std::numeric_limits<std::int32_t>::min() ||
        total > std::numeric_limits<std::int32_t>::max()) {
        throw Failure(FailureNumber::Overflow);
    }
    return static_cast<std::int32_t>(total);
}

struct DiceNotation {
    std::int32_t count = 0;
    std::int32_t sides = 0;
    std::int32_t modifier = 0;
    bool openEnded = false;
};

/// Throws Failure for a text that is no dice notation.
DiceNotation ReadNotation(std::string_view text) {
    DiceNotation dice;
    if (text.find('~') != std::string_view::npos) {
        dice.openEnded = true;
        text.remove_suffix(1);
    }
    if (const std::size_t plus = text.find('+'); plus != std::string_view::npos) {
        dice.modifier = NumericValue(text.substr(plus + 1));
        text = text.substr(0, plus);
    } else if (const std::size_t minus = text.find('-'); minus != std::string_view::npos) {
        dice.modifier = RoundToInt32(-NumericPrefix(text.substr(minus + 1)));
        text = text.substr(0, minus);
    }
    const std::size_t letter = text.find_first_of("dD");
    if (letter == std::string_view::npos) {
        throw Failure(FailureNumber::InvalidArgument);
    }
    dice.count = TextToInt32(text.substr(0, letter));
    dice.sides = TextToInt32(text.substr(letter + 1));
    return dice;
}

}  // namespace

Dice::Dice(RandomSource& random, EngineHost& host, std::function<bool()> goOn)
    : random_(random), host_(host), goOn_(std::move(goOn)) {}

void Dice::IncreaseRandomness(double seed) {
    if (!MixEntropyInto(random_, seed)) {
        host_.ShowMessage("Failure in increasing randomness!" + std::string(kLineBreak) +
                          Failure(FailureNumber::Overflow).what());
    }
}

void Dice::Reseed(bool useEntropy, std::int32_t seed) {
    if (useEntropy) {
        IncreaseRandomness(seed);
    } else {
        random_.ReseedFromTimer();
    }
}

std::int64_t Dice::RollAll(std::int32_t count, std::int32_t sides, bool openEnded) {
    if (openEnded && sides == 1 && count > 0) {
        throw Failure(FailureNumber::Overflow);  // Rolls its highest face for ever.
    }
    std::int64_t total = 0;
    std::int64_t untilTurn = kDicePerTurn;
    for (std::int32_t i = 0; i < count; ++i) {
        double face = 0;
        do {
            face = FastFloor(random_.Next() * sides) + 1;
            total = To32Bits(total + static_cast<std::int64_t>(face));
            if (--untilTurn == 0) {
                untilTurn = kDicePerTurn;
                if (!goOn_()) {
                    return total;
                }
            }
        } while (openEnded && face == sides);
    }
    return total;
}

std::int32_t Dice::RandomTotal(std::int32_t count, std::int32_t sides, bool openEnded,
                               bool useEntropy, std::int32_t seed) {
    Reseed(useEntropy, seed);
    return To32Bits(RollAll(count, sides, openEnded));
}

std::int32_t Dice::RollDicePool(std::int32_t count, std::int32_t sides, std::int32_t modifier,
                                bool openEnded, bool useEntropy, std::int32_t seed) {
    if (count == 0 || sides == 0) {
        return 0;
    }
    Reseed(useEntropy, seed);
    const std::int32_t total = To32Bits(RollAll(count, sides, openEnded) + modifier);
    return total == 0 ? 1 : total;
}

std::string Dice::RollDice(std::string_view expression) {
    try {
        const DiceNotation dice = ReadNotation(expression);
        return std::to_string(RollDicePool(dice.count, dice.sides, dice.modifier, dice.openEnded,
                                           /*useEntropy=*/false, 0));
    } catch (const Failure&) {
        return "Invalid dice!";
    }
}

}  // namespace quenloft
