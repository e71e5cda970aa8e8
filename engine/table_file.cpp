#include "engine/table_file.h"

#include <algorithm>

#include "engine/failure.h"
#include "engine/file_notes.h"
#include "engine/numbers.h"
#include "engine/text_helpers.h"

namespace quenloft {

namespace {

/// The place of the first "§" in `line`.
std::size_t FindSeparator(std::string_view line) { return line.find(kEntrySeparator); }

std::string_view TextBehind(std::string_view line, std::size_t separator) {
    return line.substr(separator + kEntrySeparator.size());
}

/// Adds the continuation lines behind a matched entry to its text.
void ReadContinuation(FileHandle& handle, bool isLastEntry, std::string& text) {
    while (!handle.AtEnd()) {
        const std::string_view line = handle.ReadLine();
        if (FindSeparator(line) != std::string_view::npos) {
            return;
        }
        if (IsCommentLine(line) || (IsEmptyLine(line) && isLastEntry)) {
            continue;
        }
        text.append(kLineBreak).append(line);
    }
}

EntryIndex BuildIndex(const TextFile& file, std::size_t firstBodyLine) {
    EntryIndex index;
    index.firstBodyLine = firstBodyLine;
    for (std::size_t i = firstBodyLine; i < file.LineCount(); ++i) {
        const std::string_view line = file.Line(i);
        const std::size_t separator = FindSeparator(line);
        if (IsCommentLine(line) || separator == std::string_view::npos) {
            continue;
        }
        const double bound = NumericPrefix(line.substr(0, separator));
        const bool fits = bound > std::numeric_limits<std::int32_t>::min() &&
                          bound < std::numeric_limits<std::int32_t>::max();
        if (!fits) {
            return index;  // A line that fails when it is read, as it should.
        }
        const std::int32_t whole = RoundToInt32(bound);
        if (!index.bounds.empty() && whole < index.bounds.back()) {
            return index;
        }
        index.bounds.push_back(whole);
        index.lines.push_back(static_cast<std::uint32_t>(i));
    }
    index.usable = true;
    return index;
}

const EntryIndex& IndexOf(const FileHandle& handle) {
    std::unique_ptr<EntryIndex>& index = NotesOf(handle.File()).entries;
    if (!index || index->firstBodyLine != handle.Position()) {
        index = std::make_unique<EntryIndex>(BuildIndex(handle.File(), handle.Position()));
    }
    return *index;
}

}  // namespace

std::string ReadTitle(LineReader& lines) {
    std::string line;
    while (lines.ReadLine(line)) {
        const std::string_view trimmed = Trimmed(line);
        if (trimmed.empty() || trimmed.starts_with(';')) {
            continue;
        }
        const std::size_t separator = line.find(kHeaderSeparator);
        return separator == std::string::npos ? std::string(kInvalidHeader)
                                              : line.substr(0, separator);
    }
    return std::string(kInvalidHeader);
}

void ReadHeader(FileHandle& handle, TableHeader& header) {
    std::unique_ptr<HeaderNote>& note = NotesOf(handle.File()).header;
    if (note) {
        header = note->header;
        handle.GoTo(note->lineCount);
        return;
    }
    handle.Rewind();
    if (handle.AtEnd()) {
        return;
    }
    std::string_view line;
    do {
        if (handle.AtEnd()) {
            throw Failure(FailureNumber::InputPastEnd,
                          "Input past end of file: the table has no header line");
        }
        line = handle.ReadLine();
    } while (IsCommentLine(line) || IsEmptyLine(line));
    header.line = line;

    const std::size_t separator = header.line.find(kHeaderSeparator);
    header.total = NumericValue(separator == std::string_view::npos
                                    ? header.line
                                    : header.line.substr(separator + kHeaderSeparator.size()));
    const std::size_t modifier = header.line.find(kVariableMark);
    if (modifier != std::string_view::npos) {
        header.modifier = header.line.substr(modifier);
    }
    note = std::make_unique<HeaderNote>(HeaderNote{header, handle.Position()});
}

std::string ReadEntry(FileHandle& handle, std::int32_t roll, std::int32_t total) {
    // The entries' bounds are compared with a roll of at least 1: "first bound at least the roll"
    // is the rule of rising bounds only there.
    if (roll >= 1) {
        const EntryIndex& index = IndexOf(handle);
        const auto bound = std::lower_bound(index.bounds.begin(), index.bounds.end(), roll);
        if (index.usable && bound != index.bounds.end()) {
            handle.GoTo(index.lines[static_cast<std::size_t>(bound - index.bounds.begin())]);
            const std::string_view line = handle.ReadLine();
            std::string text(TextBehind(line, FindSeparator(line)));
            ReadContinuation(handle, *bound >= total, text);
            return text;
        }
    }
    return ReadEntryByScan(handle, roll, total);
}

std::string ReadEntryByScan(FileHandle& handle, std::int32_t roll, std::int32_t total) {
    bool sawBlankOrComment = false;
    std::int32_t previous = 0;
    std::string_view line;
    while (!handle.AtEnd()) {
        line = handle.ReadLine();
        if (IsCommentLine(line) || IsEmptyLine(line)) {
            sawBlankOrComment = true;
            continue;
        }
        const std::size_t separator = FindSeparator(line);
        if (separator == std::string_view::npos) {
            continue;
        }
        const std::int32_t bound = NumericValue(line.substr(0, separator));
        if (roll == bound || (previous < roll && roll < bound)) {
            std::string text(TextBehind(line, separator));
            ReadContinuation(handle, bound >= total, text);
            return text;
        }
        previous = bound;
    }
    if (sawBlankOrComment) {
        return {};
    }
    const std::size_t separator = FindSeparator(line);
    return std::string(separator == std::string_view::npos ? line : TextBehind(line, separator));
}

}  // namespace quenloft
