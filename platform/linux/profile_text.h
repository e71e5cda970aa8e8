// Settings in INI text: finding, listing and replacing, bytes in and bytes out. Names match without
// regard to case; the first section of a name and its first key of a name are the only ones that
// count. Everything that is not asked for stays as it was, to the byte.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quenloft {

/// The most characters that a value has, and the most that a complete list of keys has.
inline constexpr std::size_t kLongestValue = 249;
inline constexpr std::size_t kLongestKeyList = 1022;
/// What is left of a list that is longer.
inline constexpr std::size_t kCutKeyList = 1022;

/// The first `count` characters (not bytes) of `utf8`.
std::string_view FirstCharacters(std::string_view utf8, std::size_t count);

/// The value as UTF-8, without one pair of quotes around it, up to a NUL; not cut in length.
/// Nothing where section or key is missing.
std::optional<std::string> FindProfileValue(std::string_view fileBytes, std::string_view section,
                                            std::string_view key);

/// The section's key names in the file's order and spelling as UTF-8, each ended by NUL; not cut.
std::string ListProfileKeys(std::string_view fileBytes, std::string_view section);

/// The file's bytes with the value in place. New lines end in CR LF. A line keeps its encoding, a
/// new one has the file's, unless Windows-1252 cannot hold it: then it is UTF-8.
/// Nothing where section or key is empty, or where the result could not be read back (line ends,
/// NUL, "=" in a key).
std::optional<std::string> ReplaceProfileValue(std::string_view fileBytes, std::string_view section,
                                               std::string_view key, std::string_view value);

}  // namespace quenloft
