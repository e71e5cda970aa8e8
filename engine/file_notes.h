// What the engine remembers with the lines of a file, so that it works it out once.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "engine/table_file.h"
#include "engine/text_map.h"
#include "platform/file_system.h"

namespace quenloft {

/// The header of a table that could be read, and the number of lines up to it.
struct HeaderNote {
    TableHeader header;
    std::size_t lineCount = 0;
};

/// The entries of a table whose bounds rise, for bisection.
struct EntryIndex {
    bool usable = false;
    std::size_t firstBodyLine = 0;  ///< Number of lines before the body.
    std::vector<std::int32_t> bounds;
    std::vector<std::uint32_t> lines;  ///< Of each bound, counted from 0.
};

/// The kinds of each line of a script and the labels that were looked for.
struct ScriptIndex {
    std::vector<std::uint8_t> lineKinds;
    std::unordered_map<std::string, std::size_t, TextHash, TextEqual> labelLines;
};

struct FileNotes : TextFile::Notes {
    std::unique_ptr<HeaderNote> header;
    std::unique_ptr<EntryIndex> entries;
    std::unique_ptr<ScriptIndex> script;
};

/// The notes of `file`, made at the first call.
inline FileNotes& NotesOf(const TextFile& file) {
    if (!file.notes) {
        file.notes = std::make_unique<FileNotes>();
    }
    return static_cast<FileNotes&>(*file.notes);
}

}  // namespace quenloft
