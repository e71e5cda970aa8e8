// Upper and lower case over all of Unicode's simple (one to one) mappings, whatever the user's
// locale.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

char32_t UpperLetter(char32_t letter);
char32_t LowerLetter(char32_t letter);

/// Every letter of `utf8` upper-cased. Bytes that are not UTF-8 stay as they are.
std::string UpperCase(std::string_view utf8);
/// Every letter lower-cased, likewise.
std::string LowerCase(std::string_view utf8);
/// The first letter upper-cased, the rest unchanged. Empty stays empty.
std::string UpperCaseFirst(std::string_view utf8);
/// A form in which two texts that differ only in case are equal. For comparing, not for showing.
std::string FoldCase(std::string_view utf8);

/// Takes one character off the front of `utf8`, which is not empty. A byte that begins no
/// well-formed character is returned as 0xDC00 + byte (no such character exists), so that
/// AppendLetter gives the same byte back.
char32_t TakeLetter(std::string_view& utf8);
void AppendLetter(std::string& utf8, char32_t letter);

}  // namespace quenloft
