// The three analyses: what the boxes of a window ask for, one run of it, its report.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "dice/cls_roll.h"
#include "dice/report_lines.h"
#include "dice/simulation.h"
#include "dice/tallies.h"

namespace quenloft {

/// Asked during a run: see RunPlan::goOn.
using GoOn = std::function<bool(std::int32_t rolled)>;

/// The text as a strict number decides whether there is anything to do: 0 for 0 and below.
/// Otherwise its numeric value. Throws Failure "Type mismatch", "Overflow".
std::int32_t PositiveValue(const std::string& text);

// --- Totals of a handful, for the Kelbrunsystem. -------------------------------------------------

/// `texts` in the order of kDieKinds, each read as by PositiveValue.
clsRoll HandfulFromTexts(const std::array<std::string, kDieKinds.size()>& texts);

struct TotalsOptions {
    bool openEnded = false;
    bool increaseRandomness = false;
    std::string displayMin = {};   ///< As typed.
    std::string displayUpto = {};  ///< As typed; past 32 bits the run fails with "Overflow".
};

// The runs below add their report to `lines`. They throw Failure; the lines until then stay.

void RunTotals(Simulation& simulation, const clsRoll& handful, std::int32_t rolls,
               const TotalsOptions& options, const GoOn& goOn, ReportLines& lines);

// --- Successes of a pool against a target number, for Shadowrun. ---------------------------------

struct TargetPool {
    std::int32_t faces = 0;
    std::int32_t dice = 0;
    std::int32_t rolls = 0;
    std::int32_t target = 0;
};

struct TargetOptions {
    bool openEnded = false;
    bool increaseRandomness = false;
    bool showRolls = false;  ///< The results of each roll get a line of their own.
};

/// Adds to the counts that `counts` has: percentages are of this run's rolls all the same.
void RunTarget(Simulation& simulation, const TargetPool& pool, const TargetOptions& options,
               const GoOn& goOn, SuccessCounts& counts, ReportLines& lines);

// --- Successes of six-sided dice in three colours, for Drovemark. --------------------------------

struct ColourPool {
    std::int32_t white = 0;  ///< Succeeds on 5 and 6.
    std::int32_t red = 0;    ///< On 4 and more.
    std::int32_t black = 0;  ///< On 3 and more.
    std::int32_t rolls = 0;
};

/// The numeric values of texts. Throws Failure "Overflow".
ColourPool ColourPoolFromTexts(const std::string& rolls, const std::string& black,
                               const std::string& red, const std::string& white);

/// As RunTarget. A run that `goOn` ends is reported like one that rolled to its end.
void RunColours(Simulation& simulation, const ColourPool& pool, const GoOn& goOn,
                SuccessCounts& counts, ReportLines& lines);

}  // namespace quenloft
