#include "shell/recovery/line_difference.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace quenloft {
namespace {

using Lines = std::vector<std::string_view>;
using Kind = DifferenceLine::Kind;

// Time and memory grow with its square: a thousand takes some milliseconds and four megabytes.
constexpr int kMostChanges = 1000;

Lines LinesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        lines.push_back(line);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return lines;
}

/// Myers' greedy search for the shortest way from the former lines to the latter. On diagonal `k`
/// (former line - latter line) it notes how far `changes` removals and additions lead.
class Search {
  public:
    Search(const Lines& former, const Lines& latter)
        : former_(former),
          latter_(latter),
          rows_(static_cast<int>(former.size())),
          columns_(static_cast<int>(latter.size())) {}

    /// Nothing where more changes than kMostChanges lie between them.
    std::optional<std::vector<DifferenceLine>> Run() {
        for (int changes = 0; changes <= std::min(kMostChanges, rows_ + columns_); ++changes) {
            reached_.emplace_back();
            for (int k = -changes; k <= changes; k += 2) {
                const int row = Slide(StartOn(k, changes), k);
                reached_.back().push_back(row);
                if (row >= rows_ && row - k >= columns_) {
                    return WayBack(changes);
                }
            }
        }
        return std::nullopt;
    }

  private:
    /// The row that `changes` changes reach on diagonal `k`; -1 outside of what they reach.
    int Reached(int changes, int k) const {
        const auto& rows = reached_[static_cast<std::size_t>(changes)];
        const int index = (k + changes) / 2;
        return k < -changes || index >= static_cast<int>(rows.size())
                   ? -1
                   : rows[static_cast<std::size_t>(index)];
    }
    bool ComesByAddition(int k, int changes) const {
        return k == -changes ||
               (k != changes && Reached(changes - 1, k - 1) < Reached(changes - 1, k + 1));
    }
    int StartOn(int k, int changes) const {
        if (changes == 0) {
            return 0;
        }
        return ComesByAddition(k, changes) ? Reached(changes - 1, k + 1)
                                           : Reached(changes - 1, k - 1) + 1;
    }
    int Slide(int row, int k) const {
        while (row < rows_ && row - k < columns_ && Former(row) == Latter(row - k)) {
            ++row;
        }
        return row;
    }
    std::vector<DifferenceLine> WayBack(int changes) const {
        std::vector<DifferenceLine> way;
        int row = rows_;
        int k = rows_ - columns_;
        for (; changes >= 0; --changes) {
            for (const int start = StartOn(k, changes); row > start; --row) {
                way.push_back({Kind::Both, Former(row - 1)});
            }
            if (changes == 0) {
                break;
            }
            if (ComesByAddition(k, changes)) {
                way.push_back({Kind::Added, Latter(row - k - 1)});
                ++k;
            } else {
                way.push_back({Kind::Removed, Former(row - 1)});
                --row;
                --k;
            }
        }
        std::ranges::reverse(way);
        return way;
    }
    std::string_view Former(int row) const { return former_[static_cast<std::size_t>(row)]; }
    std::string_view Latter(int column) const { return latter_[static_cast<std::size_t>(column)]; }

    const Lines& former_;
    const Lines& latter_;
    const int rows_;
    const int columns_;
    std::vector<std::vector<int>> reached_;  // By changes, then by diagonal.
};

std::vector<DifferenceLine> WholeDifference(const Lines& former, const Lines& latter) {
    if (auto shortest = Search(former, latter).Run()) {
        return std::move(*shortest);
    }
    std::vector<DifferenceLine> all;
    for (const std::string_view line : former) {
        all.push_back({Kind::Removed, line});
    }
    for (const std::string_view line : latter) {
        all.push_back({Kind::Added, line});
    }
    return all;
}

/// Equal lines farther than `context` from every change become one LeftOut a gap.
std::vector<DifferenceLine> WithContext(const std::vector<DifferenceLine>& all,
                                        std::size_t context) {
    std::vector<bool> isShown(all.size(), false);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].kind != Kind::Both) {
            const std::size_t first = i - std::min(i, context);
            const std::size_t last = std::min(all.size() - 1, i + context);
            std::fill(isShown.begin() + static_cast<std::ptrdiff_t>(first),
                      isShown.begin() + static_cast<std::ptrdiff_t>(last) + 1, true);
        }
    }
    std::vector<DifferenceLine> shown;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (isShown[i]) {
            shown.push_back(all[i]);
        } else if (shown.empty() || shown.back().kind != Kind::LeftOut) {
            shown.push_back({Kind::LeftOut, {}});
        }
    }
    return shown;
}

}  // namespace

std::vector<DifferenceLine> DifferenceOf(std::string_view former, std::string_view latter,
                                         std::size_t context) {
    const Lines formerLines = LinesOf(former);
    const Lines latterLines = LinesOf(latter);
    if (formerLines == latterLines) {
        return {};
    }
    // Most of two texts is equal at the beginning and at the end, and need not be searched.
    const auto [changed, latterChanged] = std::ranges::mismatch(formerLines, latterLines);
    const auto sameAtStart = changed - formerLines.begin();
    const auto most =
        static_cast<std::ptrdiff_t>(std::min(formerLines.size(), latterLines.size())) - sameAtStart;
    const auto sameAtEnd =
        std::mismatch(formerLines.rbegin(), formerLines.rbegin() + most, latterLines.rbegin())
            .first -
        formerLines.rbegin();
    std::vector<DifferenceLine> all;
    const auto addEqual = [&all](auto from, auto to) {
        std::for_each(from, to, [&all](std::string_view line) {
            all.push_back({Kind::Both, line});
        });
    };
    addEqual(formerLines.begin(), changed);
    const auto middle = WholeDifference({changed, formerLines.end() - sameAtEnd},
                                        {latterChanged, latterLines.end() - sameAtEnd});
    all.insert(all.end(), middle.begin(), middle.end());
    addEqual(formerLines.end() - sameAtEnd, formerLines.end());
    return WithContext(all, context);
}

}  // namespace quenloft
