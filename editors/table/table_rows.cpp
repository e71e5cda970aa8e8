#include "editors/table/table_rows.h"

#include <charconv>
#include <system_error>

#include "engine/numbers.h"
#include "engine/text_helpers.h"

namespace quenloft {

RowKind KindOfRow(std::string_view frequency) {
    if (const auto plain = PlainNumber(frequency)) {
        return *plain != 0 ? RowKind::Weight : RowKind::Continuation;
    }
    if (Trimmed(frequency).empty()) {
        return RowKind::Continuation;
    }
    if (frequency == kCommentFrequency) {
        return RowKind::Comment;
    }
    const double weight = NumericPrefix(frequency);
    const auto number = ParseNumber(frequency);
    if (number && *number != weight) {
        return RowKind::NoNumber;  // "0,5" or "$5": nobody means what the table file would say.
    }
    if (weight != 0) {
        return RowKind::Weight;
    }
    return number ? RowKind::Continuation : RowKind::NoNumber;
}

double WeightOf(std::string_view frequency) {
    if (const auto plain = PlainNumber(frequency)) {
        return *plain;
    }
    return frequency.empty() ? 0 : NumericPrefix(frequency);
}

std::optional<std::int32_t> PlainNumber(std::string_view text) {
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

std::string OneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        i += isPair ? 1 : 0;
        line += text[i] == '\r' || text[i] == '\n' ? ' ' : text[i];
    }
    return line;
}

const std::string& CellText(const TableRow& row, int column) {
    return column == kFrequencyColumn ? row.frequency : row.entry;
}

std::string& CellText(TableRow& row, int column) {
    return column == kFrequencyColumn ? row.frequency : row.entry;
}

}  // namespace quenloft
