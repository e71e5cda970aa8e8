#include "editors/table/weight_sums.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "engine/numbers.h"
#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {
namespace {

constexpr double kLargestBound = std::numeric_limits<std::int32_t>::max();
constexpr double kSmallestPercentage = 0.001;  // What is less likely is not told apart.

std::string PercentText(double percentage) {
    if (percentage > 0 && percentage < kSmallestPercentage) {
        return "<" + NumberToText(kSmallestPercentage) + " %";
    }
    constexpr int kDigits = 3;
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), percentage,
                                       std::chars_format::general, kDigits);
    return NumberToText(NumericPrefix({digits.data(), written.ptr})) + " %";
}

std::string RangeText(double first, double last) {
    const std::string end = NumberToText(last);
    return first == last ? end : NumberToText(first) + "-" + end;
}

bool IsBound(double sum) { return sum >= 0 && sum <= kLargestBound; }

}  // namespace

bool CanBeSaved(RowMark mark) { return mark == RowMark::None || mark == RowMark::NeverRolled; }

std::string_view SentenceOf(RowMark mark) {
    switch (mark) {
        case RowMark::None:
            return {};
        case RowMark::NeverRolled:
            return "has a weight that adds nothing to the sum: no roll picks it alone";
        case RowMark::NoNumber:
            return "has a frequency that is no number";
        case RowMark::NegativeSum:
            return "makes the sum of the weights negative";
        case RowMark::SumTooLarge:
            return "makes the sum of the weights larger than 2147483647";
        case RowMark::ReadsAsEntry:
            return "has no weight but holds \xC2\xA7, so it would be read as an entry of its own";
        case RowMark::ReadsAsComment:
            return "begins with ; so it would be read as a comment. Put the ; into Frequency to "
                   "make it one";
    }
    return {};
}

void WeightSums::Replace(std::size_t first, std::size_t count, std::span<const TableRow> rows) {
    const auto place = [this](std::size_t row) {
        return sums_.begin() + static_cast<std::ptrdiff_t>(row);
    };
    if (rows.size() < count) {
        sums_.erase(place(first + rows.size()), place(first + count));
    } else {
        sums_.insert(place(first + count), rows.size() - count, Sum());
    }
    std::ranges::transform(rows, place(first), SumOf, &TableRow::frequency);
    AddUp(first);
}

void WeightSums::SetFrequency(std::size_t row, std::string_view frequency) {
    sums_[row] = SumOf(frequency);
    AddUp(row);
}

RowMark WeightSums::Mark(std::size_t row, std::string_view entry) const {
    const Sum& sum = sums_[row];
    switch (sum.kind) {
        case RowKind::Weight:
            if (!IsBound(sum.bound)) {
                return sum.bound < 0 ? RowMark::NegativeSum : RowMark::SumTooLarge;
            }
            return sum.bound > BoundBefore(row) ? RowMark::None : RowMark::NeverRolled;
        case RowKind::Comment:
            return RowMark::None;
        case RowKind::Continuation:
            return IsCommentLine(entry)                                    ? RowMark::ReadsAsComment
                   : entry.find(kEntrySeparator) != std::string_view::npos ? RowMark::ReadsAsEntry
                                                                           : RowMark::None;
        case RowKind::NoNumber:
            return RowMark::NoNumber;
    }
    return RowMark::None;
}

std::string WeightSums::Label(std::size_t row) const {
    const Sum& sum = sums_[row];
    if (sum.kind != RowKind::Weight || !IsBound(sum.bound) || !IsBound(BoundBefore(row))) {
        return {};
    }
    const double rolls = sum.bound - BoundBefore(row);
    if (rolls <= 0) {
        return PercentText(0);
    }
    std::string label = RangeText(BoundBefore(row) + 1, sum.bound);
    if (IsBound(Total()) && Total() > 0) {
        label += "  " + PercentText(std::min(100.0, rolls * 100 / Total()));
    }
    return label;
}

WeightSums::Sum WeightSums::SumOf(std::string_view frequency) {
    const RowKind kind = KindOfRow(frequency);
    return {kind == RowKind::Weight ? WeightOf(frequency) : 0, 0, kind};
}

void WeightSums::AddUp(std::size_t first) {
    double bound = first == 0 ? 0 : sums_[first - 1].bound;
    for (std::size_t row = first; row < sums_.size(); ++row) {
        bound = std::nearbyint(bound + sums_[row].weight);
        sums_[row].bound = bound;
    }
}

}  // namespace quenloft
