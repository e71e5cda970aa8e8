// The reports of the three analyses, to the letter: columns are separated by tabs.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

#include "dice/cls_roll.h"
#include "dice/report_lines.h"
#include "dice/tallies.h"

namespace quenloft {

/// Of the Kelbrunsystem, and of the two that count successes.
inline constexpr std::size_t kShortDashes = 59;
inline constexpr std::size_t kLongDashes = 92;

/// "05.217": to 5 decimals, halves to even, then to 3, halves away from zero; two digits at least
/// before the point. Past 64 bits the nearest number that fits.
std::string PercentText(double percent);

/// How often a run was to roll, and the whole seconds that it took.
struct RunFigures {
    std::int32_t rolls = 0;
    std::int64_t seconds = 0;
};

/// The functions below add one report. They throw Failure (no rolls: "Overflow" or "Division by
/// zero", a table of too many rows: "Out of memory"); the lines until then stay.

void AddTotalsReport(const clsRoll& handful, const RunFigures& run, const DisplayRange& range,
                     const TotalTally& tally, ReportLines& lines);

/// `title` is what was rolled, up to " rolled "; `against` what stands between "times" and "in".
void AddSuccessReport(const std::string& title, const std::string& against, const RunFigures& run,
                      const SuccessCounts& counts, ReportLines& lines);

/// A point in time in whole seconds, and its form in reports.
struct Moment {
    static Moment Now();
    std::int64_t SecondsUntilNow() const;

    std::time_t time = 0;
    std::string text;  ///< Local time: "2026-11-21 20:15:00".
};

}  // namespace quenloft
