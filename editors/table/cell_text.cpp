#include "editors/table/cell_text.h"

#include <optional>

#include "engine/text_helpers.h"

namespace quenloft {
namespace {

constexpr std::string_view kCellEnds = "\t\r\n";

class CellParser {
  public:
    explicit CellParser(std::string_view text) : rest_(text) {}

    std::vector<CellLine> Parse() {
        std::vector<CellLine> lines;
        while (!rest_.empty()) {
            lines.push_back(TakeLine());
        }
        return lines;
    }

  private:
    CellLine TakeLine() {
        CellLine line{TakeCell()};
        while (rest_.starts_with('\t')) {
            rest_.remove_prefix(1);
            line.push_back(TakeCell());
        }
        rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : rest_.empty() ? 0 : 1);
        return line;
    }

    std::string TakeCell() {
        if (auto quoted = TakeQuoted()) {
            return *std::move(quoted);
        }
        std::string cell(rest_.substr(0, rest_.find_first_of(kCellEnds)));
        rest_.remove_prefix(cell.size());
        return cell;
    }

    std::optional<std::string> TakeQuoted() {
        if (!rest_.starts_with('"') || noMoreQuotes_) {
            return std::nullopt;
        }
        std::string cell;
        std::size_t place = 1;
        for (;;) {
            const std::size_t quote = rest_.find('"', place);
            if (quote == std::string_view::npos) {
                noMoreQuotes_ = true;  // Or each line that begins with one would look anew.
                return std::nullopt;
            }
            cell += rest_.substr(place, quote - place);
            place = quote + 1;
            if (!rest_.substr(place).starts_with('"')) {
                break;
            }
            cell += '"';
            ++place;
        }
        if (place < rest_.size() && kCellEnds.find(rest_[place]) == std::string_view::npos) {
            return std::nullopt;
        }
        rest_.remove_prefix(place);
        return cell;
    }

    std::string_view rest_;
    bool noMoreQuotes_ = false;
};

void AppendCell(std::string& text, std::string_view cell) {
    const bool needsQuotes =
        cell.starts_with('"') || cell.find_first_of(kCellEnds) != std::string_view::npos;
    if (!needsQuotes) {
        text += cell;
        return;
    }
    text += '"';
    for (const char c : cell) {
        text.append(c == '"' ? 2 : 1, c);
    }
    text += '"';
}

}  // namespace

std::vector<CellLine> ParseCells(std::string_view text) { return CellParser(text).Parse(); }

std::string FormatCells(const std::vector<CellLine>& lines) {
    std::string text;
    for (const CellLine& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            text += i == 0 ? "" : "\t";
            AppendCell(text, line[i]);
        }
        if (lines.size() > 1 || text.empty()) {
            text += kLineBreak;
        }
    }
    return text;
}

}  // namespace quenloft
