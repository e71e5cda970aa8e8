// The small text and path helpers that the file formats rest on. What trims and what does not,
// which dot counts and what compares case matters to the letter: old libraries depend on it. Paths
// here are library paths; only "\" separates.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quenloft {

inline constexpr std::string_view kLineBreak = "\r\n";

/// The first character is ";". No trimming: " ;x" is no comment.
bool IsCommentLine(std::string_view line);
/// Exactly the empty text: a line of blanks is not empty.
bool IsEmptyLine(std::string_view line);
/// Trims both, then compares the beginning, with regard to case.
bool StartsWithTrimmed(std::string_view text, std::string_view prefix);
/// Without the blanks (code 32 only) at both ends.
std::string_view Trimmed(std::string_view text);

/// The second and third characters are ":\": "C:\x" yes, "C:x" no.
bool HasDrive(std::string_view path);
/// The first character of `path` (empty for an empty path).
std::string_view DriveLetter(std::string_view path);
/// Everything before the last "\"; empty where there is none.
std::string_view DirectoryPart(std::string_view path);
/// The text after the last "\", or all of `path`.
std::string_view FileName(std::string_view path);
/// The file name cut before its first ".".
std::string_view FileBaseName(std::string_view path);
/// The text after the first "." of the file name; the whole file name where there is none.
std::string_view FileExtension(std::string_view path);

/// Upper-cases the first letter of each word; words begin after blanks and line feeds. A text
/// without a blank gets its first letter upper-cased only. Throws Failure for an empty text.
std::string CapitaliseWords(std::string_view text);

/// The case that the name of a file asks for in its result: "names" as it stands, "Names" first
/// letter, "NameS" every word, "NAMES" all letters. OneCapital is a name like "N": every word for a
/// script, but a table needs a second letter.
enum class LetterCase { AsItStands, FirstLetter, EveryWord, AllLetters, OneCapital };
/// `path` is spelled as in the reference.
LetterCase LetterCaseOfName(std::string_view path);
/// `text` is not empty. Throws Failure for OneCapital.
std::string ApplyCaseOfTableName(LetterCase letterCase, std::string text);
std::string ApplyCaseOfScriptName(LetterCase letterCase, std::string text);

/// A title as windows show it: control characters as blanks, and no more than `mostLetters` (a
/// longer one ends in "…"). No title is that long; a broken file's first line may be.
std::string ShownTitle(std::string_view title, std::size_t mostLetters = 200);

/// True when the last four characters are ".spt", whatever their case.
bool IsScriptPath(std::string_view path);
/// The same for ".tbl".
bool IsTablePath(std::string_view path);

}  // namespace quenloft
