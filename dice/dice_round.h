// One click on the dice roller's button: N D F + A, rolled a number of times.
#pragma once

#include <functional>
#include <string>

#include "dice/report_lines.h"

namespace quenloft {

class Dice;

/// The boxes as typed.
struct DiceRequest {
    std::string count;
    std::string faces;
    std::string add;
    std::string times;
    bool openEnded = false;
};

/// Adds a line for each roll ("3D6+2~ = 17") and puts the last result into `result`; both stay as
/// they are where nothing is rolled. Asks `goOn` after each roll; false ends it there, and the roll
/// does not count. Throws Failure "Overflow". The lines until then stay.
void RollTimes(Dice& dice, const DiceRequest& request, const std::function<bool()>& goOn,
               ReportLines& lines, std::string& result);

}  // namespace quenloft
