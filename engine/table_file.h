// The table file: a header "title¤total??modifier??", then weighted entries "bound§text" with
// continuation lines; lines that begin with ";" are comments.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "engine/open_file_cache.h"
#include "platform/file_system.h"

namespace quenloft {

/// "¤" between title and total.
inline constexpr std::string_view kHeaderSeparator = "\xC2\xA4";
/// "§" between bound and text.
inline constexpr std::string_view kEntrySeparator = "\xC2\xA7";
/// Encloses variable statements, in entries and in the header.
inline constexpr std::string_view kVariableMark = "??";

inline constexpr std::string_view kInvalidHeader = "!Invalid fileheader!";

/// The text before the first "¤" of the header, or kInvalidHeader; never fails. Comments and empty
/// lines are told by their trimmed form here, unlike in TableHeader.
std::string ReadTitle(LineReader& lines);

struct TableHeader {
    std::string_view line;      ///< The whole header line; empty in an empty file.
    std::int32_t total = 0;     ///< The highest roll.
    std::string_view modifier;  ///< From the first "??" to the end of the line; empty without one.
};

/// Reads the header and leaves the handle behind it. `header` is filled as far as reading came, for
/// error reports. Throws Failure for a file of comments only and for a total past 32 bits.
void ReadHeader(FileHandle& handle, TableHeader& header);

/// Picks the entry for `roll` from where the handle stands, and reads to the end of its text.
/// In a table with rising bounds this is the first entry whose bound is at least `roll`, found by
/// bisection; other tables are read line by line. Throws Failure for a bound past 32 bits.
std::string ReadEntry(FileHandle& handle, std::int32_t roll, std::int32_t total);

/// The same by reading line by line only: what ReadEntry must agree with.
std::string ReadEntryByScan(FileHandle& handle, std::int32_t roll, std::int32_t total);

}  // namespace quenloft
