// What the bytes of a text file hold besides its lines: encoding, line ends, byte-order mark. An
// editor shows the lines; lines that were not changed go back to the disk as the bytes they were.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text_encoding.h"

namespace quenloft {

/// The lines of `bytes` as UTF-8, with a "\n" between them; each line is decoded by itself. CR LF,
/// LF and lone CR end a line, so a file that ends with one has an empty last line. A byte-order
/// mark is left out.
std::string TextOfBytes(std::string_view bytes);

/// `text` (lines as above) as the next content of the file that holds `former` now: lines that
/// stand unchanged at its beginning and its end keep their bytes; the others get `encoding`, and
/// the line end that `former` has most (CR LF where it has none). The same text gives the same
/// bytes. Nothing where `encoding` cannot hold a line.
std::optional<std::string> BytesOfText(std::string_view text, std::string_view former,
                                       TextEncoding encoding);

/// All of `text` in UTF-8; lines that stand unchanged keep their line ends, the file keeps its
/// mark.
std::string Utf8BytesOfText(std::string_view text, std::string_view former);

/// `utf8` as it will be read again, line by line: nothing where Windows-1252 lacks a character, or
/// where its bytes would be taken for UTF-8.
std::optional<std::string> EncodeText(std::string_view utf8, TextEncoding encoding);

}  // namespace quenloft
