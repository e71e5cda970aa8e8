// The running sums of a table's weights: which rolls pick a row, how likely it is, and whether the
// table file can say what the row says.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "editors/table/table_rows.h"

namespace quenloft {

/// What is wrong with a row.
enum class RowMark {
    None,
    NeverRolled,  ///< Its bound is not above the one before. The file may say so.
    // With these the file would say something else, or nothing:
    NoNumber,
    NegativeSum,
    SumTooLarge,     ///< Past 32 bits.
    ReadsAsEntry,    ///< A line without a weight that holds "§".
    ReadsAsComment,  ///< A line of an entry that begins with ";".
};

/// False where the table file would differ in meaning from the row.
bool CanBeSaved(RowMark mark);
/// A sentence without its subject, the row: "has a frequency that is no number". Empty for None.
std::string_view SentenceOf(RowMark mark);

/// Holds the sums of as many rows as it was told of, and no text. Each total is rounded to a whole
/// number, halves to even, before the next weight is added.
class WeightSums {
  public:
    /// Takes `count` rows from `first` on out and puts `rows` there. All sums behind are new then,
    /// in a few nanoseconds a row.
    void Replace(std::size_t first, std::size_t count, std::span<const TableRow> rows);
    /// The frequency of one row.
    void SetFrequency(std::size_t row, std::string_view frequency);

    std::size_t Count() const { return sums_.size(); }
    double Total() const { return sums_.empty() ? 0 : sums_.back().bound; }
    /// The highest roll that picks the row, or a row before.
    double Bound(std::size_t row) const { return sums_[row].bound; }
    double BoundBefore(std::size_t row) const { return row == 0 ? 0 : sums_[row - 1].bound; }
    RowKind Kind(std::size_t row) const { return sums_[row].kind; }
    /// `entry` is the row's text.
    RowMark Mark(std::size_t row, std::string_view entry) const;
    /// "6-15  50 %" for a row with a weight, otherwise empty.
    std::string Label(std::size_t row) const;

  private:
    struct Sum {
        double weight = 0;
        double bound = 0;
        RowKind kind = RowKind::Continuation;
    };
    static Sum SumOf(std::string_view frequency);
    void AddUp(std::size_t first);

    std::vector<Sum> sums_;
};

}  // namespace quenloft
