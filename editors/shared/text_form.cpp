#include "editors/shared/text_form.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quenloft {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kDefaultLineEnd = "\r\n";

struct RawLine {
    std::string_view bytes;
    std::string_view end;  // Empty in the last line, and only there.
};

std::string_view LineEndAt(std::string_view bytes, std::size_t place) {
    const bool isPair =
        bytes[place] == '\r' && place + 1 < bytes.size() && bytes[place + 1] == '\n';
    return bytes.substr(place, isPair ? 2 : 1);
}

std::string_view MarkOf(std::string_view bytes) {
    return bytes.substr(0, bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
}

/// Looks for line feeds and carriage returns one at a time: that is far quicker than for either.
template <typename Visit>
void VisitLines(std::string_view bytes, Visit visit) {
    bytes.remove_prefix(MarkOf(bytes).size());
    std::size_t begin = 0;
    std::size_t feed = bytes.find('\n');  // The next one from `begin` on.
    for (;;) {
        const std::size_t length = bytes.substr(begin, feed - begin).find('\r');
        const std::size_t place = length == bytes.npos ? feed : begin + length;
        if (place == bytes.npos) {
            visit(RawLine{bytes.substr(begin), {}});
            return;
        }
        const std::string_view end = LineEndAt(bytes, place);
        visit(RawLine{bytes.substr(begin, place - begin), end});
        begin = place + end.size();
        feed = feed < begin ? bytes.find('\n', begin) : feed;
    }
}

std::vector<RawLine> RawLines(std::string_view bytes) {
    std::vector<RawLine> lines;
    VisitLines(bytes, [&lines](const RawLine& line) { lines.push_back(line); });
    return lines;
}

std::vector<std::string_view> TextLines(std::string_view text) {
    std::vector<std::string_view> lines;
    for (;;) {
        const std::size_t place = text.find('\n');
        lines.push_back(text.substr(0, place));
        if (place == text.npos) {
            return lines;
        }
        text.remove_prefix(place + 1);
    }
}

bool Reads(const RawLine& raw, std::string_view line) {
    return raw.bytes == line ? IsUtf8(line) : DecodeText(raw.bytes) == line;
}

std::string_view CommonLineEnd(const std::vector<RawLine>& lines) {
    constexpr std::array<std::string_view, 3> kEnds{kDefaultLineEnd, "\n", "\r"};
    const auto count = [&lines](std::string_view end) {
        return std::ranges::count(lines, end, &RawLine::end);
    };
    return *std::ranges::max_element(kEnds, {}, count);
}

// Where the lines of a text and those of the file's former content are the same.
struct Comparison {
    std::vector<std::string_view> lines;
    std::vector<RawLine> raw;
    std::size_t sameAtStart = 0;
    std::size_t sameAtEnd = 0;
};

Comparison Compare(std::string_view text, std::string_view former) {
    Comparison result{TextLines(text), RawLines(former)};
    const auto& lines = result.lines;
    const auto& raw = result.raw;
    const std::size_t most = std::min(lines.size(), raw.size());
    while (result.sameAtEnd < most && Reads(raw[raw.size() - 1 - result.sameAtEnd],
                                            lines[lines.size() - 1 - result.sameAtEnd])) {
        ++result.sameAtEnd;
    }
    // The last lines have no end, so they are compared with each other only.
    const std::size_t mostAtStart = std::min(most - result.sameAtEnd, most - 1);
    while (result.sameAtStart < mostAtStart &&
           Reads(raw[result.sameAtStart], lines[result.sameAtStart])) {
        ++result.sameAtStart;
    }
    return result;
}

const RawLine* FormerLine(const Comparison& comparison, std::size_t index) {
    if (index < comparison.sameAtStart) {
        return &comparison.raw[index];
    }
    const std::size_t fromEnd = comparison.lines.size() - index;
    return fromEnd <= comparison.sameAtEnd ? &comparison.raw[comparison.raw.size() - fromEnd]
                                           : nullptr;
}

void AppendLine(std::string& bytes, std::string_view line, std::string_view end) {
    // In a file of several kinds of line ends an empty line could make one end of two.
    const bool joins = line.empty() && end == "\n" && bytes.ends_with('\r');
    bytes.append(line).append(joins ? "\r\n" : end);
}

bool HasHighBytes(std::string_view bytes) {
    return std::ranges::any_of(bytes, [](char byte) { return static_cast<signed char>(byte) < 0; });
}

std::optional<std::string> EncodeLine(std::string_view line, TextEncoding encoding) {
    if (encoding == TextEncoding::Utf8) {
        return std::string(line);
    }
    std::optional<std::string> bytes = ToWindows1252(line);
    if (bytes && HasHighBytes(*bytes) && IsUtf8(*bytes)) {
        return std::nullopt;
    }
    return bytes;
}

}  // namespace

std::string TextOfBytes(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);  // Characters of the code page become longer.
    VisitLines(bytes, [&text](const RawLine& line) {
        if (IsUtf8(line.bytes)) {
            text += line.bytes;
        } else {
            text += FromWindows1252(line.bytes);
        }
        if (!line.end.empty()) {
            text += '\n';
        }
    });
    return text;
}

std::optional<std::string> BytesOfText(std::string_view text, std::string_view former,
                                       TextEncoding encoding) {
    const Comparison comparison = Compare(text, former);
    const std::string_view newEnd = CommonLineEnd(comparison.raw);
    std::string bytes(MarkOf(former));
    for (std::size_t i = 0; i < comparison.lines.size(); ++i) {
        if (const RawLine* same = FormerLine(comparison, i)) {
            AppendLine(bytes, same->bytes, same->end);
            continue;
        }
        const auto line = EncodeLine(comparison.lines[i], encoding);
        if (!line) {
            return std::nullopt;
        }
        AppendLine(bytes, *line, i + 1 < comparison.lines.size() ? newEnd : std::string_view());
    }
    return bytes;
}

std::string Utf8BytesOfText(std::string_view text, std::string_view former) {
    const Comparison comparison = Compare(text, former);
    const std::string_view newEnd = CommonLineEnd(comparison.raw);
    std::string bytes(MarkOf(former));
    for (std::size_t i = 0; i < comparison.lines.size(); ++i) {
        const RawLine* same = FormerLine(comparison, i);
        const bool isLast = i + 1 == comparison.lines.size();
        AppendLine(bytes, comparison.lines[i],
                   same     ? same->end
                   : isLast ? std::string_view()
                            : newEnd);
    }
    return bytes;
}

std::optional<std::string> EncodeText(std::string_view utf8, TextEncoding encoding) {
    if (encoding == TextEncoding::Utf8) {
        return std::string(utf8);
    }
    std::optional<std::string> bytes = ToWindows1252(utf8);
    if (!bytes) {
        return std::nullopt;
    }
    bool isReadAgain = true;
    VisitLines(*bytes, [&isReadAgain](const RawLine& line) {
        isReadAgain = isReadAgain && !(IsUtf8(line.bytes) && HasHighBytes(line.bytes));
    });
    if (!isReadAgain) {
        bytes.reset();
    }
    return bytes;
}

}  // namespace quenloft
