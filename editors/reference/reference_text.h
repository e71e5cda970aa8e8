// The text of a reference: which file, in which capitals, how often.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

/// What the capitals of a referenced name ask of the result: see LetterCaseOfName.
enum class NameCase { Default, First, Upper, EveryWord };

/// `name` all in lower case, with its first letter upper, all upper, or its first and last letters
/// upper and those between lower.
std::string InNameCase(NameCase nameCase, std::string_view name);

/// The same for the name of a file: a "~" at its beginning does not count as its first letter, and
/// for EveryWord ".tbl" or ".spt" stays as it is ("Orc camP.tbl").
std::string InFileNameCase(NameCase nameCase, std::string_view fileName);

/// How "^", which begins a repeat count, is written.
inline constexpr std::string_view kRepeatMark = "^";
/// As above for who types the text as keystrokes, where a bare "^" stands for a key held down.
inline constexpr std::string_view kEscapedRepeatMark = "{^}";

/// "#name#", or with `repeatMark` "#name^3#" for a count above 1.
std::string ReferenceText(std::string_view name, double count, std::string_view repeatMark);

}  // namespace quenloft
