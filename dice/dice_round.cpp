#include "dice/dice_round.h"

#include <cstdint>

#include "engine/dice.h"
#include "engine/numbers.h"

namespace quenloft {
namespace {

/// What is added, as lines show it: the text as typed, behind a sign.
std::string AddText(const std::string& typed) {
    const double add = NumericPrefix(typed);
    if (add == 0) {
        return {};
    }
    return add < 0 ? typed : "+" + typed;
}

}  // namespace

void RollTimes(Dice& dice, const DiceRequest& request, const std::function<bool()>& goOn,
               ReportLines& lines, std::string& result) {
    const std::string beforeResult = request.count + "D" + request.faces + AddText(request.add) +
                                     (request.openEnded ? "~ = " : "  = ");
    const std::int32_t times = NumericValue(request.times);
    if (times < 1) {
        return;
    }
    const std::int32_t count = NumericValue(request.count);
    const std::int32_t faces = NumericValue(request.faces);
    const std::int32_t add = NumericValue(request.add);
    for (std::int32_t i = 0; i < times; ++i) {
        const std::int32_t total =
            dice.RollDicePool(count, faces, add, request.openEnded, /*useEntropy=*/false, 0);
        if (!goOn()) {
            return;
        }
        result = std::to_string(total);
        lines.Add(beforeResult + result);
    }
}

}  // namespace quenloft
