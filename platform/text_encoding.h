// Text at the file border. Inside the program all text is UTF-8; files are in the 8-bit code page
// of the machines that most libraries were made on (Windows-1252), or in UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quenloft {

enum class TextEncoding { Windows1252, Utf8 };

/// True when `bytes` is well-formed UTF-8 (no overlong forms, no surrogates). Plain ASCII is.
bool IsUtf8(std::string_view bytes);
/// All 256 bytes map, the five unassigned ones (81, 8D, 8F, 90, 9D) to U+0081 and so on.
std::string FromWindows1252(std::string_view bytes);
/// The inverse. Nothing where a character does not exist in Windows-1252.
std::optional<std::string> ToWindows1252(std::string_view utf8);
/// One line or file name: UTF-8 where it is valid, otherwise Windows-1252.
std::string DecodeText(std::string_view bytes);
/// What a whole file is written in: Utf8 when it holds bytes above 7F and all of it is valid UTF-8
/// (or it begins with a byte-order mark), otherwise Windows1252.
TextEncoding DetectEncoding(std::string_view bytes);

}  // namespace quenloft
