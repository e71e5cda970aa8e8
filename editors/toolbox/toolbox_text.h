// The marks of the table language that the insert toolbox writes.
#pragma once

#include <string>
#include <string_view>

#include "editors/reference/reference_text.h"

namespace quenloft {

/// What stands in the boxes for a dice mark. Numbers are read as everywhere: the leading number,
/// rounded, 0 where there is none.
struct DiceBoxes {
    std::string number;
    std::string sides;
    std::string add;
    bool openEnded = false;
};

/// "@3d6-1~@". Throws Failure "Overflow" for a number past 32 bits.
std::string DiceMark(const DiceBoxes& boxes);

/// "??gold??".
std::string VariableMark(std::string_view name);

/// "|", which becomes a line break.
inline constexpr char kLineBreakMark[] = "|";

/// "#LOOT^4#"; without a count where that of `repeat` is 1 or less. Throws Failure "Overflow".
std::string ReferenceMark(std::string_view name, NameCase nameCase, std::string_view repeat);

}  // namespace quenloft
