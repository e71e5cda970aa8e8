#include "dice/analysis_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "engine/failure.h"
#include "engine/numbers.h"
#include "engine/value.h"

namespace quenloft {
namespace {

double PercentOf(std::int32_t count, std::int32_t rolls) {
    if (rolls == 0) {
        throw Failure(count == 0 ? FailureNumber::Overflow : FailureNumber::DivisionByZero);
    }
    return static_cast<double>(count) / rolls * 100;
}

std::string RolledText(const std::string& title, const std::string& against,
                       const RunFigures& run) {
    return title + " rolled " + std::to_string(run.rolls) + " times" + against + " in " +
           std::to_string(run.seconds) + " seconds";
}

/// Adds the rows from `first` to `last` that are shown. `Counts` has Of(number).
template <typename Counts>
class Table {
  public:
    Table(const Counts& counts, std::int32_t rolls, std::string afterNumber, ReportLines& lines)
        : counts_(counts), rolls_(rolls), afterNumber_(std::move(afterNumber)), lines_(lines) {}

    void Add(std::int32_t first, std::int32_t last, const DisplayRange& shown) {
        double remaining = 100;
        for (std::int64_t i = first; i <= last; ++i) {
            const auto number = static_cast<std::int32_t>(i);
            if (number > shown.upper) {
                return;
            }
            const double share = PercentOf(counts_.Of(number), rolls_);
            if (shown.Shows(number)) {
                AddRow(number, share, remaining);
            }
            remaining -= share;
        }
    }

  private:
    void AddRow(std::int32_t number, double share, double remaining) {
        lines_.Add(std::to_string(number) + afterNumber_ + std::to_string(counts_.Of(number)) +
                   "\t" + PercentText(share) + " %\t\t" + PercentText(remaining) + " %");
    }

    const Counts& counts_;
    const std::int32_t rolls_;
    const std::string afterNumber_;
    ReportLines& lines_;
};

}  // namespace

std::string PercentText(double percent) {
    constexpr double kDecimals = 1e5;
    constexpr double kLargest = 9e18;
    const double scaled = std::clamp(percent * kDecimals, -kLargest, kLargest);
    const long long rounded = std::llrint(scaled);
    const long long thousandths = (std::llabs(rounded) + 50) / 100;
    const char* sign = rounded < 0 && thousandths > 0 ? "-" : "";
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%s%02lld.%03lld", sign, thousandths / 1000,
                  thousandths % 1000);
    return text.data();
}

void AddTotalsReport(const clsRoll& handful, const RunFigures& run, const DisplayRange& range,
                     const TotalTally& tally, ReportLines& lines) {
    const std::string dashes(kShortDashes, '-');
    lines.Add(dashes);
    lines.Add(RolledText(handful.Text(), "", run));
    lines.Add("Result\tOutcome\t% of Total\t\t% to get");
    Table(tally.counts, run.rolls, "\t", lines).Add(1, tally.counts.Last(), range);
    if (tally.above > 0) {
        lines.Add(std::to_string(tally.above) + " rolls result were above " +
                  NumberToText(range.upper));
        lines.Add("Highest roll result: " + std::to_string(tally.highest));
    }
    if (tally.below > 0) {
        lines.Add(std::to_string(tally.below) + " results were below " + NumberToText(range.lower));
        lines.Add("Lowest roll result: " + std::to_string(tally.lowest));
    }
    lines.Add(dashes);
}

void AddSuccessReport(const std::string& title, const std::string& against, const RunFigures& run,
                      const SuccessCounts& counts, ReportLines& lines) {
    lines.Add(std::string(kLongDashes, '-'));
    lines.Add(RolledText(title, against, run));
    lines.Add("Successes\tOutcome\t% of Total\t\t% to get");
    Table(counts, run.rolls, "\t\t", lines)
        .Add(0, counts.Last(), {.lower = 0, .upper = kMostSuccesses});
}

Moment Moment::Now() { return {std::time(nullptr), DateTimeText()}; }

std::int64_t Moment::SecondsUntilNow() const { return std::time(nullptr) - time; }

}  // namespace quenloft
