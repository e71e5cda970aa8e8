// What the table editor edits: a title, a modifier, and rows of a frequency and an entry's text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

/// Both texts are UTF-8 and hold no line ends.
struct TableRow {
    std::string frequency;  ///< As the user typed it.
    std::string entry;
    friend bool operator==(const TableRow&, const TableRow&) = default;
};

struct TableContent {
    std::string title;
    std::string modifier;  ///< With its "??"; empty for none.
    std::vector<TableRow> rows;
    friend bool operator==(const TableContent&, const TableContent&) = default;
};

inline constexpr int kFrequencyColumn = 0;
inline constexpr int kEntryColumn = 1;
inline constexpr int kTableColumns = 2;

inline constexpr std::string_view kCommentFrequency = ";";

enum class RowKind {
    Weight,        ///< Begins an entry.
    Comment,       ///< The frequency is ";".
    Continuation,  ///< One more line of the entry above; the frequency is empty or a zero.
    NoNumber  ///< The frequency means nothing, or as a whole another number than it begins with.
};

RowKind KindOfRow(std::string_view frequency);

/// The leading number of a frequency, 0 where there is none. Only where the kind is Weight it is
/// the row's weight: "1,000" begins with 1 and is no weight.
double WeightOf(std::string_view frequency);

/// The number that `text` is where it is nothing but a whole number of 32 bits in digits, as nearly
/// every frequency and bound: many times as fast as reading any number.
std::optional<std::int32_t> PlainNumber(std::string_view text);

/// `text` with a blank for each line end: a cell is one line.
std::string OneLine(std::string_view text);

const std::string& CellText(const TableRow& row, int column);
std::string& CellText(TableRow& row, int column);

}  // namespace quenloft
