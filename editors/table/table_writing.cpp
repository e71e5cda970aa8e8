#include "editors/table/table_writing.h"

#include <cstdint>

#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {
namespace {

bool Holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

std::string TitleFault(std::string_view title) {
    for (const std::string_view mark : {kHeaderSeparator, kVariableMark}) {
        if (Holds(title, mark)) {
            return "The title holds " + std::string(mark) +
                   ", so only the part before it would be read as the title.";
        }
    }
    return StartsWithTrimmed(title, ";")
               ? "The title begins with ; so it would be read as a comment."
               : "";
}

std::string ModifierFault(std::string_view modifier) {
    return modifier.empty() || modifier.starts_with(kVariableMark)
               ? ""
               : "The modifier does not begin with ??, so it would be read as part of the total.";
}

/// `bound` is whole and fits 32 bits.
void AppendBound(std::string& text, double bound) {
    text += std::to_string(static_cast<std::int32_t>(bound));
}

/// Of the file's text.
std::size_t SizeAtMost(const TableContent& content) {
    constexpr std::size_t kAroundEntry = 16;  // Bound, separator, line break.
    std::size_t size = content.title.size() + content.modifier.size() + 2 * kAroundEntry;
    for (const TableRow& row : content.rows) {
        size += row.entry.size() + kAroundEntry;
    }
    return size;
}

void AppendRow(std::string& text, const TableRow& row, const WeightSums& sums, std::size_t index) {
    if (sums.Kind(index) == RowKind::Weight) {
        AppendBound(text, sums.Bound(index));
        text.append(kEntrySeparator);
    } else if (sums.Kind(index) == RowKind::Comment) {
        text.append(kCommentFrequency);
    }
    text.append(row.entry);
}

}  // namespace

std::optional<TableFault> FirstFault(const TableContent& content, const WeightSums& sums) {
    if (std::string fault = TitleFault(content.title); !fault.empty()) {
        return TableFault{TableFault::Place::Title, 0, std::move(fault)};
    }
    if (std::string fault = ModifierFault(content.modifier); !fault.empty()) {
        return TableFault{TableFault::Place::Modifier, 0, std::move(fault)};
    }
    for (std::size_t row = 0; row < content.rows.size(); ++row) {
        const RowMark mark = sums.Mark(row, content.rows[row].entry);
        if (!CanBeSaved(mark)) {
            return TableFault{TableFault::Place::Row, row,
                              NameOfRow(content, row) + " " + std::string(SentenceOf(mark)) + "."};
        }
    }
    return std::nullopt;
}

std::string NameOfRow(const TableContent& content, std::size_t row) {
    constexpr std::size_t kMostLetters = 40;
    return "Row " + std::to_string(row + 1) + " (\"" +
           ShownTitle(content.rows[row].entry, kMostLetters) + "\")";
}

std::vector<std::size_t> ZeroRows(const TableContent& content) {
    std::vector<std::size_t> zeros;
    for (std::size_t row = 0; row < content.rows.size(); ++row) {
        const std::string& frequency = content.rows[row].frequency;
        if (KindOfRow(frequency) == RowKind::Continuation && !Trimmed(frequency).empty()) {
            zeros.push_back(row);
        }
    }
    return zeros;
}

std::string TableFileText(const TableContent& content, const WeightSums& sums) {
    std::string text = content.title;
    text.reserve(SizeAtMost(content));
    text.append(kHeaderSeparator);
    AppendBound(text, sums.Total());
    text.append(content.modifier).append(kLineBreak);
    for (std::size_t row = 0; row < content.rows.size(); ++row) {
        text.append(kLineBreak);
        AppendRow(text, content.rows[row], sums, row);
    }
    return text.append(kLineBreak);
}

std::string TablePrintText(const TableContent& content, const std::string& path,
                           const std::string& program) {
    std::string text = "Title :" + content.title;
    text.append(kLineBreak).append("Modifier :").append(content.modifier);
    text.append(kLineBreak).append("Filename :").append(path).append(kLineBreak);
    for (const TableRow& row : content.rows) {
        text.append(kLineBreak).append(row.frequency).append("\t").append(row.entry);
    }
    return text.append(kLineBreak).append(kLineBreak).append("Printed by ").append(program);
}

}  // namespace quenloft
