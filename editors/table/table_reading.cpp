#include "editors/table/table_reading.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "engine/numbers.h"
#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {
namespace {

constexpr std::size_t kMostNamedLines = 10;  // What a message box can show.

/// A weight or a zero.
bool IsNumber(std::string_view text) {
    const RowKind kind = KindOfRow(text);
    return kind == RowKind::Weight || (kind == RowKind::Continuation && !Trimmed(text).empty());
}

/// Nothing where the text begins with no number, or with one past 32 bits.
std::optional<std::int64_t> WholeNumber(std::string_view text) {
    if (const auto plain = PlainNumber(text)) {
        return *plain;
    }
    const double number = std::nearbyint(NumericPrefix(text));
    const bool fits = number >= std::numeric_limits<std::int32_t>::min() &&
                      number <= std::numeric_limits<std::int32_t>::max();
    return fits && IsNumber(text) ? std::optional(static_cast<std::int64_t>(number)) : std::nullopt;
}

/// "lines 3, 4 and 7"; `numbers` is not empty.
std::string NameLines(const std::vector<std::size_t>& numbers) {
    std::string text = numbers.size() == 1 ? "line " : "lines ";
    const std::size_t named = std::min(numbers.size(), kMostNamedLines);
    for (std::size_t i = 0; i < named; ++i) {
        const bool isLast = i + 1 == numbers.size();
        text += i == 0 ? "" : isLast ? " and " : ", ";
        text += std::to_string(numbers[i]);
    }
    if (named < numbers.size()) {
        text += " and " + std::to_string(numbers.size() - named) + " more";
    }
    return text;
}

class Lines {
  public:
    /// The end of the last line begins no further one.
    explicit Lines(std::string_view text)
        : rest_(text.ends_with('\n') ? text.substr(0, text.size() - 1) : text),
          atEnd_(text.empty()) {}

    bool Next(std::string_view& line) {
        if (atEnd_) {
            return false;
        }
        const std::size_t end = rest_.find('\n');
        line = rest_.substr(0, end);
        atEnd_ = end == std::string_view::npos;
        rest_.remove_prefix(atEnd_ ? rest_.size() : end + 1);
        ++number_;
        return true;
    }
    /// Of the line last read, from 1.
    std::size_t Number() const { return number_; }

  private:
    std::string_view rest_;
    bool atEnd_;
    std::size_t number_ = 0;
};

class TableReader {
  public:
    explicit TableReader(std::string_view text) : lines_(text) {
        result_.content.rows.reserve(static_cast<std::size_t>(std::ranges::count(text, '\n')));
    }

    TableReading Read() {
        if (ReadHeaderLine()) {
            ReadRows();
            CompareTotal();
        }
        NoteFaults();
        return std::move(result_);
    }

  private:
    bool ReadHeaderLine() {
        std::string_view line;
        bool sawComment = false;
        bool sawLine = false;
        bool found = false;
        while (!found && lines_.Next(line)) {
            sawLine = true;
            sawComment = sawComment || IsCommentLine(line);
            found = !IsCommentLine(line) && !IsEmptyLine(line);
        }
        if (sawComment) {
            result_.leftOut.emplace_back("comments above the header");
        }
        if (found) {
            TakeHeader(line);
        } else if (sawLine) {
            AddFault("There is no header line.");
        }
        return found;
    }

    void TakeHeader(std::string_view line) {
        // Once the lines above it are gone, it would be taken for that of the file.
        constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
        while (line.starts_with(kByteOrderMark)) {
            line.remove_prefix(kByteOrderMark.size());
        }
        const std::size_t mark = line.find(kVariableMark);
        if (mark != std::string_view::npos) {
            result_.content.modifier = line.substr(mark);
        }
        const std::size_t separator = line.find(kHeaderSeparator);
        if (separator == std::string_view::npos) {
            // All of it is title: no line of the user's is lost.
            result_.content.title = line.substr(0, mark);
            AddFault("The header in line " + std::to_string(lines_.Number()) + " holds no " +
                     std::string(kHeaderSeparator) + ".");
            return;
        }
        result_.content.title = line.substr(0, separator);
        const std::size_t begin = separator + kHeaderSeparator.size();
        // A modifier may stand before the total; then it is part of the title, which is refused.
        const std::size_t end = mark > begin ? mark : std::string_view::npos;
        total_ = line.substr(begin, end == std::string_view::npos ? end : end - begin);
    }

    void ReadRows() {
        std::string_view line;
        const std::size_t header = lines_.Number();
        bool sawEmpty = false;
        while (lines_.Next(line)) {
            if (IsEmptyLine(line)) {
                // One below the header is the rule.
                sawEmpty = sawEmpty || lines_.Number() != header + 1;
                continue;
            }
            AddRow(line);
        }
        if (sawEmpty) {
            result_.leftOut.emplace_back("empty lines");
        }
        if (sawTextInBound_) {
            result_.leftOut.emplace_back("text behind the number of a bound");
        }
    }

    void AddRow(std::string_view line) {
        auto& rows = result_.content.rows;
        if (IsCommentLine(line)) {
            rows.push_back({std::string(kCommentFrequency), std::string(line.substr(1))});
            return;
        }
        const std::size_t separator = line.find(kEntrySeparator);
        if (separator == std::string_view::npos) {
            rows.push_back({{}, std::string(line)});
            return;
        }
        rows.push_back({FrequencyOf(line.substr(0, separator)),
                        std::string(line.substr(separator + kEntrySeparator.size()))});
    }

    std::string FrequencyOf(std::string_view boundText) {
        const auto bound = WholeNumber(boundText);
        if (!bound) {
            (IsNumber(boundText) ? largeBounds_ : badBounds_).push_back(lines_.Number());
            return std::string(Trimmed(boundText).empty() ? kEntrySeparator : boundText);
        }
        sawTextInBound_ = sawTextInBound_ || !(PlainNumber(boundText) || ParseNumber(boundText));
        const std::int64_t weight = *bound - bound_;
        bound_ = *bound;
        result_.hasEntryWithoutWeight = result_.hasEntryWithoutWeight || weight == 0;
        return std::to_string(weight);
    }

    void CompareTotal() {
        if (total_ && (!ParseNumber(*total_) || WholeNumber(*total_) != bound_)) {
            result_.leftOut.push_back("the header's total \"" + ShownTitle(*total_) + "\"");
        }
    }

    void NoteFaults() {
        const std::string mark(kEntrySeparator);
        if (!badBounds_.empty()) {
            AddFault((badBounds_.size() == 1 ? "There is no whole number before the "
                                             : "There are no whole numbers before the ") +
                     mark + " in " + NameLines(badBounds_) + ".");
        }
        if (!largeBounds_.empty()) {
            AddFault(
                (largeBounds_.size() == 1 ? "The number before the " : "The numbers before the ") +
                mark + " in " + NameLines(largeBounds_) +
                (largeBounds_.size() == 1 ? " is" : " are") +
                " past 32 bits: 2147483647 is the largest.");
        }
    }

    void AddFault(std::string_view sentence) {
        result_.faults.append(result_.faults.empty() ? "" : " ").append(sentence);
    }

    Lines lines_;
    TableReading result_;
    std::optional<std::string_view> total_;
    std::int64_t bound_ = 0;  // Of the entry last read.
    bool sawTextInBound_ = false;
    std::vector<std::size_t> badBounds_;
    std::vector<std::size_t> largeBounds_;
};

}  // namespace

TableReading ReadTable(std::string_view lines) { return TableReader(lines).Read(); }

}  // namespace quenloft
