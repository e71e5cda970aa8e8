#include "dice/analyses.h"

#include "dice/analysis_report.h"
#include "engine/failure.h"
#include "engine/numbers.h"

namespace quenloft {
namespace {

constexpr std::int32_t kColourFaces = 6;

std::string Letters(char letter, std::int32_t count) {
    constexpr std::int32_t kMostLetters = 1 << 22;
    if (count > kMostLetters) {
        throw Failure(FailureNumber::OutOfMemory);
    }
    return count > 0 ? std::string(static_cast<std::size_t>(count), letter) : std::string();
}

}  // namespace

std::int32_t PositiveValue(const std::string& text) {
    return TextToNumber(text) > 0 ? NumericValue(text) : 0;
}

clsRoll HandfulFromTexts(const std::array<std::string, kDieKinds.size()>& texts) {
    clsRoll handful;
    for (std::size_t kind = 0; kind < kDieKinds.size(); ++kind) {
        handful.SetCount(kind, PositiveValue(texts[kind]));
    }
    return handful;
}

void RunTotals(Simulation& simulation, const clsRoll& handful, std::int32_t rolls,
               const TotalsOptions& options, const GoOn& goOn, ReportLines& lines) {
    const Moment start = Moment::Now();
    const DisplayRange range{NumericPrefix(options.displayMin), NumericPrefix(options.displayUpto)};
    RoundToInt32(range.upper);  // Once the size of an array: one past 32 bits has always failed.
    std::array<DiceGroup, kDieKinds.size()> groups;
    for (std::size_t kind = 0; kind < kDieKinds.size(); ++kind) {
        groups[kind] = {.count = handful.Count(kind), .faces = kDieKinds[kind]};
    }
    TotalTally tally;
    simulation.CountTotals({.groups = groups,
                            .rolls = rolls,
                            .rules = {options.openEnded, options.increaseRandomness, rolls},
                            .goOn = goOn},
                           range, tally);
    AddTotalsReport(handful, {rolls, start.SecondsUntilNow()}, range, tally, lines);
}

void RunTarget(Simulation& simulation, const TargetPool& pool, const TargetOptions& options,
               const GoOn& goOn, SuccessCounts& counts, ReportLines& lines) {
    const Moment start = Moment::Now();
    if (options.increaseRandomness) {
        simulation.IncreaseRandomness(pool.rolls);
    }
    const std::array groups = {
        DiceGroup{.count = pool.dice, .faces = pool.faces, .target = pool.target}};
    RunPlan plan{.groups = groups,
                 .rolls = pool.rolls,
                 .rules = {options.openEnded, options.increaseRandomness, pool.rolls},
                 .goOn = goOn};
    if (options.showRolls) {
        plan.showFaces = [&lines](std::string faces) { lines.Add(std::move(faces)); };
    }
    simulation.CountSuccesses(plan, counts);
    AddSuccessReport(std::to_string(pool.dice) + "D" + std::to_string(pool.faces),
                     " against Target No " + std::to_string(pool.target),
                     {pool.rolls, start.SecondsUntilNow()}, counts, lines);
}

ColourPool ColourPoolFromTexts(const std::string& rolls, const std::string& black,
                               const std::string& red, const std::string& white) {
    return {.white = NumericValue(white),
            .red = NumericValue(red),
            .black = NumericValue(black),
            .rolls = NumericValue(rolls)};
}

void RunColours(Simulation& simulation, const ColourPool& pool, const GoOn& goOn,
                SuccessCounts& counts, ReportLines& lines) {
    const Moment start = Moment::Now();
    const std::array groups = {
        DiceGroup{.count = pool.white, .faces = kColourFaces, .target = 5},
        DiceGroup{.count = pool.red, .faces = kColourFaces, .target = 4},
        DiceGroup{.count = pool.black, .faces = kColourFaces, .target = 3},
    };
    simulation.CountSuccesses({.groups = groups,
                               .rolls = pool.rolls,
                               .rules = {.increaseRandomness = true},
                               .goOn = goOn},
                              counts);
    AddSuccessReport(Letters('W', pool.white) + Letters('R', pool.red) + Letters('B', pool.black),
                     "", {pool.rolls, start.SecondsUntilNow()}, counts, lines);
}

}  // namespace quenloft
