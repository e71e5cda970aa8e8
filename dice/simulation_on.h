// The simulation on one class of generators. With a final class every call of it is inlined, which
// is what makes a hundred million dice a second.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

#include "dice/report_lines.h"
#include "dice/simulation.h"
#include "engine/entropy_mixing.h"
#include "engine/failure.h"

namespace quenloft {

/// Rolls one die after the other by the same rules.
template <typename Source>
class DieRoller {
  public:
    DieRoller(Source& random, const DieRules& rules) : random_(random), rules_(rules) {}

    /// 1 to `faces`, or more where open-ended. Below 1 face: what the same sum gives.
    std::int32_t Roll(std::int32_t faces) {
        if (rules_.increaseRandomness) {
            MixEntropyInto(random_, rules_.seed);  // The machine's figures never overflow.
        } else {
            random_.ReseedFromTimer();
        }
        const std::int32_t face = Face(faces);
        return face == faces && rules_.openEnded ? RollOn(faces) : face;
    }

  private:
    std::int32_t Face(std::int32_t faces) {
        return static_cast<std::int32_t>(FastFloor(random_.Next() * faces)) + 1;
    }
    std::int32_t RollOn(std::int32_t faces) {
        std::int64_t total = faces;
        std::int32_t face = faces;
        while (face == faces) {
            // A die of one face never shows anything else.
            if (faces == 1 || total > std::numeric_limits<std::int32_t>::max()) {
                throw Failure(FailureNumber::Overflow);
            }
            face = Face(faces);
            total += face;
        }
        if (total > std::numeric_limits<std::int32_t>::max()) {
            throw Failure(FailureNumber::Overflow);
        }
        return static_cast<std::int32_t>(total);
    }

    Source& random_;
    const DieRules rules_;
};

template <typename Source>
class SimulationOn final : public Simulation {
  public:
    /// `random` outlives this object.
    explicit SimulationOn(Source& random) : random_(random) {}

    void CountTotals(const RunPlan& plan, const DisplayRange& range, TotalTally& tally) override {
        Repeat(plan, [&](DieRoller<Source>& roller) {
            const std::int32_t total = Total(roller, plan.groups);
            if (range.upper < total) {
                tally.highest = std::max(tally.highest, total);
                ++tally.above;
            }
            if (range.lower > total) {
                tally.lowest = std::min(tally.lowest, total);
                ++tally.below;
            }
            tally.counts.Count(total);
        });
    }

    void CountSuccesses(const RunPlan& plan, SuccessCounts& counts) override {
        Repeat(plan, [&](DieRoller<Source>& roller) {
            counts.Count(plan.showFaces ? ShownSuccesses(roller, plan)
                                        : Successes(roller, plan.groups));
        });
    }

    void IncreaseRandomness(double seed) override { MixEntropyInto(random_, seed); }

  private:
    template <typename RollOnce>
    void Repeat(const RunPlan& plan, RollOnce rollOnce) {
        DieRoller<Source> roller(random_, plan.rules);
        const std::int32_t rollsPerLook = RollsPerLook(plan);
        std::int32_t untilLook = rollsPerLook;
        for (std::int32_t rolled = 0; rolled < plan.rolls;) {
            rollOnce(roller);
            ++rolled;
            if (--untilLook == 0) {
                untilLook = rollsPerLook;
                if (plan.goOn && !plan.goOn(rolled)) {
                    return;
                }
            }
        }
    }

    static std::int32_t RollsPerLook(const RunPlan& plan) {
        constexpr std::int64_t kDicePerLook = 4096;
        std::int64_t dice = 1;
        for (const DiceGroup& group : plan.groups) {
            dice += std::max(group.count, 0);
        }
        return static_cast<std::int32_t>(std::max<std::int64_t>(kDicePerLook / dice, 1));
    }

    static std::int32_t Total(DieRoller<Source>& roller, std::span<const DiceGroup> groups) {
        std::int64_t total = 0;
        for (const DiceGroup& group : groups) {
            for (std::int32_t i = 0; i < group.count; ++i) {
                total += roller.Roll(group.faces);
                if (total > std::numeric_limits<std::int32_t>::max()) {
                    throw Failure(FailureNumber::Overflow);
                }
            }
        }
        return static_cast<std::int32_t>(total);
    }

    static std::int32_t Successes(DieRoller<Source>& roller, std::span<const DiceGroup> groups) {
        std::int32_t successes = 0;
        for (const DiceGroup& group : groups) {
            for (std::int32_t i = 0; i < group.count; ++i) {
                successes += roller.Roll(group.faces) >= group.target ? 1 : 0;
                if (static_cast<std::size_t>(successes) > kMostSuccesses) {
                    return successes;  // More can only fail in the same way, later.
                }
            }
        }
        return successes;
    }

    static std::int32_t ShownSuccesses(DieRoller<Source>& roller, const RunPlan& plan) {
        std::int32_t successes = 0;
        std::string faces;
        for (const DiceGroup& group : plan.groups) {
            for (std::int32_t i = 0; i < group.count; ++i) {
                const std::int32_t result = roller.Roll(group.faces);
                faces += std::to_string(result);
                faces += ',';
                ReportLines::CheckLength(faces);
                successes += result >= group.target ? 1 : 0;
            }
        }
        plan.showFaces(std::move(faces));
        return successes;
    }

    Source& random_;
};

}  // namespace quenloft
